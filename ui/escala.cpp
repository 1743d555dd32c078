#include "ui/escala.h"

#include <algorithm>
#include <cmath>

namespace corvanda {

namespace {

constexpr double MENOR = 8;  // twentieths: 0.4

}  // namespace

Escala Escala::Que_Quepan(QSizeF twips, QSizeF pixeles) {
    const double ancho = pixeles.width() * 15 / twips.width();
    const double alto = pixeles.height() * 15 / twips.height();
    const double veintavos = std::floor(std::min(ancho, alto) * 20 + 1e-6);
    return Escala(std::max(veintavos, MENOR) / 20);
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
