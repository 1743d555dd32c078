#include "ui/figuras.h"

#include <QPolygonF>
#include <algorithm>

#include "ui/paleta.h"

namespace corvanda {

namespace {

using namespace paleta;

void Triangulo(QPainter& pintor, const QRectF& lugar, bool hacia_abajo) {
    const qreal base = hacia_abajo ? lugar.top() : lugar.bottom();
    const qreal punta = hacia_abajo ? lugar.bottom() : lugar.top();
    pintor.drawPolygon(
        QPolygonF({{lugar.left(), base}, {lugar.right(), base}, {lugar.center().x(), punta}}));
}

void Ficha(QPainter& pintor, const QRectF& lugar, const QColor& canto) {
    const qreal ancho = lugar.width() / 12;
    pintor.setPen(QPen(canto, ancho));
    pintor.drawEllipse(lugar.adjusted(ancho, ancho, -ancho, -ancho));
}

void Dado(QPainter& pintor, const QRectF& lugar, int cara, const QColor& puntos) {
    const qreal lado = std::min(lugar.width(), lugar.height());
    QRectF cuadro(0, 0, lado, lado);
    cuadro.moveCenter(lugar.center());
    pintor.drawRoundedRect(cuadro, lado / 6, lado / 6);
    pintor.setBrush(puntos);
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

void Rombo(QPainter& pintor, const QRectF& lugar) {
    pintor.setPen(QPen(LATON, lugar.width() / 12));
    pintor.drawPolygon(QPolygonF({{lugar.center().x(), lugar.top()},
                                  {lugar.right(), lugar.center().y()},
                                  {lugar.center().x(), lugar.bottom()},
                                  {lugar.left(), lugar.center().y()}}));
}

// What a picture is made of: the first whose name is a part of the file's.
QColor Material(const QString& nombre) {
    const std::pair<const char*, QColor> tabla[] = {
        {"blanc", MARFIL},  {"cafe", NOGAL},  {"estuche", MADERA}, {"tablero", FIELTRO},
        {"adios", FIELTRO}, {"inf_a", BARRO}, {"sup_a", BARRO},    {"inf_b", OCRE},
        {"sup_b", OCRE},    {"dado", MARFIL}, {"turno", FIELTRO},
    };
    for (const auto& [parte, color] : tabla) {
        if (nombre.contains(parte)) return color;
    }
    return Qt::transparent;
}

}  // namespace

void Dibujar_Figura(QPainter& pintor, const QString& nombre, const QRectF& lugar) {
    const bool cafe = nombre.contains("cafe");
    pintor.setPen(Qt::NoPen);
    pintor.setBrush(Material(nombre));
    if (nombre.startsWith("triangulo")) {
        Triangulo(pintor, lugar, nombre.contains("sup"));
    } else if (nombre.startsWith("dado")) {
        Dado(pintor, lugar, nombre.mid(4, 1).toInt(), cafe ? MARFIL : NOGAL);
    } else if (nombre.startsWith("turno")) {
        Rombo(pintor, lugar);
    } else if (nombre.startsWith("disco")) {
        Ficha(pintor, lugar, cafe ? MADERA : NOGAL);
    } else {
        pintor.drawRect(lugar);
    }
}

}  // namespace corvanda
