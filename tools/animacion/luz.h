// How the scene looks through the camera: one picture of the film.
#pragma once

#include <QImage>

namespace animacion {

/// The picture that is exposed from one second of the loop to another.
QImage Fotografiar(QSize tamano, double desde, double hasta);

}  // namespace animacion
