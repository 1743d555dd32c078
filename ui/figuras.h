// Plain shapes in place of pictures whose files cannot be read.
#pragma once

#include <QPainter>
#include <QRectF>
#include <QString>

namespace corvanda {

/// Draws the plain form of a picture, by the name of its file, so that it fills the place. A name
/// without one (a shadow, an ornament) leaves the place empty.
void Dibujar_Figura(QPainter& pintor, const QString& nombre, const QRectF& lugar);

}  // namespace corvanda
