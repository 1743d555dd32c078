// A board that nobody plays at: it sets up a position through the game and draws a part of it.
#pragma once

#include <QImage>

#include "tools/laminas/tabla.h"
#include "ui/estampas.h"

namespace laminas {

/// Pixels of a picture to one logical pixel of the page: desktop/help_browser.cpp shows them at
/// that size on an ordinary screen, and pixel by pixel on one with twice as many.
constexpr double RATIO = 2;

/// A picture of so many logical pixels, filled with a colour.
QImage Hoja(QSizeF tamano, const QColor& color);

QImage Dibujar(const Lamina& lamina, corvanda::Estampas& estampas);

}  // namespace laminas
