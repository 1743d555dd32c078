// The pictures that are no part of a board: a dialog of the game, and how often each face of a die
// comes up.
#pragma once

#include <QImage>

#include "ui/estampas.h"

namespace laminas {

/// The inner part of a window, framed by a line because the page is as light as the window.
QImage Enmarcada(const QImage& ventana);
QImage Frecuencias(corvanda::Estampas& estampas);

}  // namespace laminas
