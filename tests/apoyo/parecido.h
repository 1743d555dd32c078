// Whether two pictures show the same to a person. Letters and edges may be drawn by another version
// of the toolkit or of the font rasteriser: smoothed otherwise, or up to a pixel aside. What a
// person would notice, from a missing pip to a colour, is more than that.
#pragma once

#include <QImage>
#include <QRect>
#include <vector>

namespace corvanda::pruebas {

struct Diferencia {
    std::vector<QRect>
        areas;     ///< where they differ, pixels, from top to bottom; empty when nowhere
    QImage vista;  ///< the approved one, faded, with what differs reddened
};

/// Pictures of different sizes differ as a whole.
Diferencia Comparar(const QImage& nueva, const QImage& aprobada);

}  // namespace corvanda::pruebas
