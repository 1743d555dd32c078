// Plain shapes in place of pictures whose files cannot be read.
#pragma once

#include <QPainter>
#include <QRectF>

#include "runtime/image.h"

namespace corvanda {

/// The pips of a die's face, 0 for pictures that are no die.
int Cara_De(Picture estampa);

/// Draws the plain form of a picture so that it fills the place.
void Dibujar_Figura(QPainter& pintor, Picture estampa, const QRectF& lugar);

}  // namespace corvanda
