// Twips on today's screens. A twip is a 1440th of an inch on paper; here it is what the layout is
// measured in, and the scale says how many of them make one logical pixel. It is chosen at
// start-up, by each window that says how much of it has to be seen (FrmPrincipal, FrmAbout), and
// never again. It is one number: everybody keeps a copy.
#pragma once

#include <QFont>
#include <QRect>
#include <QRectF>
#include <QSize>

namespace corvanda {

class Escala {
  public:
    /// The usual 15 twips per pixel.
    Escala() = default;
    /// 15 / k, k the largest multiple of 0.05, at least 0.4, at which so many twips fit into so
    /// many logical pixels.
    static Escala Que_Quepan(QSizeF twips, QSizeF pixeles);

    double Twips_Por_Pixel() const { return twips_por_pixel; }
    double K() const { return 15 / twips_por_pixel; }

    double Pixeles(double twips) const { return twips / twips_por_pixel; }
    double Twips(double pixeles) const { return pixeles * twips_por_pixel; }

    /// A control's place in whole logical pixels; its edges are rounded, so neighbours meet.
    QRect Lugar(double left, double top, double width, double height) const;
    QSize Tamano(double width, double height) const;

    /// A font of a size in points of the layout: 1 point is 20 twips.
    QFont Letra(double puntos, bool negrita = false) const;

  private:
    explicit Escala(double k) : twips_por_pixel(15 / k) {}

    double twips_por_pixel = 15;
};

}  // namespace corvanda
