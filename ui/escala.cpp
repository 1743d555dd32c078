#include "ui/escala.h"

#include <algorithm>
#include <cmath>

namespace corvanda {

namespace {

constexpr double ANCHO_PRINCIPAL = 10215;
constexpr double ALTO_PRINCIPAL = 6495;
constexpr double ULTIMO_TEXTO = 9240;

}  // namespace

Escala Escala::Para(QSizeF usable) {
    const double ancho = usable.width() * 15 / ANCHO_PRINCIPAL;
    const double alto = usable.height() * 15 / std::max(ALTO_PRINCIPAL, ULTIMO_TEXTO);
    const double veintavos = std::floor(std::min(ancho, alto) * 20 + 1e-6);
    return Escala(std::max(veintavos, 20.0) / 20);
}

QRect Escala::Lugar(double left, double top, double width, double height) const {
    const QPoint esquina(qRound(Pixeles(left)), qRound(Pixeles(top)));
    const QPoint fin(qRound(Pixeles(left + width)), qRound(Pixeles(top + height)));
    return {esquina, QSize(fin.x() - esquina.x(), fin.y() - esquina.y())};
}

QSize Escala::Tamano(double width, double height) const {
    return {qRound(Pixeles(width)), qRound(Pixeles(height))};
}

QFont Escala::Letra(double puntos, bool negrita) const {
    QFont letra;
    letra.setPixelSize(std::max(1, qRound(Pixeles(puntos * 20))));
    letra.setBold(negrita);
    return letra;
}

}  // namespace corvanda
