#include "ui/trazado.h"

#include <algorithm>
#include <cmath>

#include "ui/lugares.h"

namespace corvanda {

namespace {

constexpr double ORILLA = 60;  // twips that a rim, a shadow or a turned die reach over its square

bool Es_Ficha(const Image& imagen) {
    return imagen.Shown == Picture::Blanca || imagen.Shown == Picture::Cafe;
}

bool Es_Dado(const Image& imagen) {
    return imagen.Shown >= Picture::Dado1;
}

}  // namespace

qreal Trazado::En_Rejilla(double twips) const {
    return std::round(escala.Pixeles(twips) * Ratio()) / Ratio();
}

QPointF Trazado::En_Rejilla(QPointF twips) const {
    return {En_Rejilla(twips.x()), En_Rejilla(twips.y())};
}

QRectF Trazado::En_Rejilla(const QRectF& twips) const {
    return {En_Rejilla(twips.topLeft()), En_Rejilla(twips.bottomRight())};
}

QPointF Trazado::Esquina(const Image& imagen) {
    const auto left = static_cast<double>(imagen.Left);
    const auto top = static_cast<double>(imagen.Top);
    if (!Es_Dado(imagen)) return {left, top};
    const bool izquierdo = left + static_cast<double>(imagen.Width) / 2 < BISAGRA;
    return {izquierdo ? BISAGRA - JUNTO_A_BISAGRA - DADO : BISAGRA + JUNTO_A_BISAGRA,
            ALTURA_DE_DADOS};
}

QRectF Trazado::Cuadrado(QPointF esquina, double lado) const {
    const qreal ancho = En_Rejilla(lado);
    return {En_Rejilla(esquina), QSizeF(ancho, ancho)};
}

// Chips and dice keep one size, so that each is rendered once and sharp; the others meet their
// neighbours, so both of their edges are rounded.
QRectF Trazado::Lugar(const Image& imagen) const {
    const QPointF esquina = Esquina(imagen);
    if (Es_Ficha(imagen)) return Cuadrado(esquina, DISCO);
    if (Es_Dado(imagen)) return Cuadrado(esquina, DADO);
    return En_Rejilla(QRectF(
        esquina, QSizeF(static_cast<double>(imagen.Width), static_cast<double>(imagen.Height))));
}

QRect Trazado::Huella(QPointF esquina) const {
    const QPointF orilla(ORILLA, ORILLA);
    return Cuadrado(esquina - orilla, SOMBRA + 2 * ORILLA - HASTA_EL_DISCO).toAlignedRect();
}

QRect Trazado::Huella(const Image& imagen) const {
    if (Es_Ficha(imagen) || Es_Dado(imagen)) return Huella(Esquina(imagen));
    return Lugar(imagen).toAlignedRect();
}

QRect Trazado::Area(Integer lugar) const {
    const QRectF cuadro = lugares::Cuadro(partida, lugar);
    return escala.Lugar(cuadro.left(), cuadro.top(), cuadro.width(), cuadro.height());
}

int Trazado::Grueso() const {
    return std::max(2, qRound(escala.Pixeles(30)));
}

QRect Trazado::Marco(Integer lugar) const {
    const int grueso = 2 * Grueso();
    return Area(lugar).adjusted(-grueso, -grueso, grueso, grueso);
}

}  // namespace corvanda
