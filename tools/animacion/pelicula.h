// An AVI file of motion-JPEG pictures.
#pragma once

#include <QByteArray>
#include <QSize>
#include <vector>

namespace animacion {

/// The bytes of a film of these pictures, each a whole JPEG file.
QByteArray Pelicula(const std::vector<QByteArray>& fotos, QSize tamano, int fotos_por_segundo);

}  // namespace animacion
