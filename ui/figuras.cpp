#include "ui/figuras.h"

#include <QPainterPath>
#include <QPolygonF>
#include <algorithm>
#include <vector>

namespace corvanda {

namespace {

const QColor MADERA(0xc8, 0x9b, 0x5e);
const QColor FIELTRO(0x0e, 0x28, 0x1c);
const QColor BARRO(0xb9, 0x56, 0x3c);
const QColor PIZARRA(0x5f, 0x82, 0x87);
const QColor MARFIL(0xf3, 0xea, 0xd0);
const QColor NOGAL(0x3a, 0x20, 0x14);

void Triangulo(QPainter& pintor, const QRectF& lugar, bool hacia_abajo, const QColor& color) {
    const qreal base = hacia_abajo ? lugar.top() : lugar.bottom();
    const qreal punta = hacia_abajo ? lugar.bottom() : lugar.top();
    pintor.setBrush(color);
    pintor.drawPolygon(
        QPolygonF({{lugar.left(), base}, {lugar.right(), base}, {lugar.center().x(), punta}}));
}

void Ficha(QPainter& pintor, const QRectF& lugar, const QColor& cuerpo, const QColor& canto) {
    const qreal ancho = lugar.width() / 12;
    pintor.setPen(QPen(canto, ancho));
    pintor.setBrush(cuerpo);
    pintor.drawEllipse(lugar.adjusted(ancho, ancho, -ancho, -ancho));
}

void Dado(QPainter& pintor, const QRectF& lugar, int cara) {
    const qreal lado = std::min(lugar.width(), lugar.height());
    QRectF cuadro(0, 0, lado, lado);
    cuadro.moveCenter(lugar.center());
    pintor.setBrush(MARFIL);
    pintor.drawRoundedRect(cuadro, lado / 6, lado / 6);
    pintor.setBrush(NOGAL);
    const auto punto = [&](int columna, int fila) {
        const QPointF centro(cuadro.left() + lado * (1 + columna) / 4,
                             cuadro.top() + lado * (1 + fila) / 4);
        pintor.drawEllipse(centro, lado / 11, lado / 11);
    };
    if (cara % 2 == 1) punto(1, 1);
    if (cara >= 2) punto(0, 0), punto(2, 2);
    if (cara >= 4) punto(2, 0), punto(0, 2);
    if (cara == 6) punto(0, 1), punto(2, 1);
}

}  // namespace

int Cara_De(Picture estampa) {
    return estampa < Picture::Dado1
               ? 0
               : static_cast<int>(estampa) - static_cast<int>(Picture::Dado1) + 1;
}

void Dibujar_Figura(QPainter& pintor, Picture estampa, const QRectF& lugar) {
    pintor.setPen(Qt::NoPen);
    switch (estampa) {
        case Picture::None:
            break;
        case Picture::Estuche:
            pintor.fillRect(lugar, MADERA);
            break;
        case Picture::Tablero:
            pintor.fillRect(lugar, FIELTRO);
            break;
        case Picture::Triangulo_Sup_A:
        case Picture::Triangulo_Sup_B:
            Triangulo(pintor, lugar, true, estampa == Picture::Triangulo_Sup_A ? BARRO : PIZARRA);
            break;
        case Picture::Triangulo_Inf_A:
        case Picture::Triangulo_Inf_B:
            Triangulo(pintor, lugar, false, estampa == Picture::Triangulo_Inf_A ? BARRO : PIZARRA);
            break;
        case Picture::Blanca:
            Ficha(pintor, lugar, MARFIL, NOGAL);
            break;
        case Picture::Cafe:
            Ficha(pintor, lugar, NOGAL, MADERA);
            break;
        case Picture::Adios:
            pintor.fillRect(lugar, FIELTRO);
            break;
        default:
            Dado(pintor, lugar, Cara_De(estampa));
    }
}

}  // namespace corvanda
