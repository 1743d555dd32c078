#include "tools/laminas/marcas.h"

#include <QPainterPath>
#include <QPainterPathStroker>
#include <algorithm>

namespace laminas {

namespace {

// Logical pixels of the page.
constexpr double RADIO = 11;   // of a number, a tick or a cross
constexpr double BORDE = 1.5;  // of the outline that sets a mark off from what lies under it
constexpr double FLECHA = 4.5;
constexpr double CAMINO = 6;
constexpr double LADO_DE_DADO = 20;
constexpr int LETRA_DE_NUMERO = 15;
constexpr int LETRA_DE_ROTULO = 12;

constexpr double ANILLO = 335;  // of a ring, twips: it fits the chips

struct Colores {
    QColor cuerpo;
    QColor borde;  // at least three times as light or dark as the body
};

const QColor OSCURO(0x26, 0x16, 0x0e);
const QColor MARFIL(0xff, 0xf6, 0xe2);

Colores De(Tinta tinta) {
    switch (tinta) {
        case Tinta::Blanca:
            return {MARFIL, OSCURO};
        case Tinta::Cafe:
            return {QColor(0x7a, 0x32, 0x18), MARFIL};
        case Tinta::Verde:
            return {QColor(0x1f, 0x80, 0x38), Qt::white};
        case Tinta::Roja:
            return {QColor(0xc4, 0x22, 0x1e), Qt::white};
        case Tinta::Amarilla:
            break;
    }
    return {QColor(0xff, 0xcc, 0x33), OSCURO};
}

// The outline lies outside the shape, which keeps its size.
void Llenar(QPainter& pintor, const QPainterPath& forma, const Colores& colores) {
    pintor.setPen(QPen(colores.borde, 2 * BORDE, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    pintor.setBrush(Qt::NoBrush);
    pintor.drawPath(forma);
    pintor.fillPath(forma, colores.cuerpo);
}

QPainterPath Circulo(QPointF centro, double radio) {
    QPainterPath forma;
    forma.addEllipse(centro, radio, radio);
    return forma;
}

// Numbers and captions: by the shape of the letters, so that they stand in the middle to the pixel.
void Escribir(QPainter& pintor, QPointF centro, const QPainterPath& letras, const QColor& color) {
    pintor.fillPath(letras.translated(centro - letras.boundingRect().center()), color);
}

QPainterPath Letras(const QString& texto, int alto = LETRA_DE_NUMERO) {
    QFont letra;
    letra.setPixelSize(alto);
    letra.setBold(true);
    letra.setHintingPreference(QFont::PreferNoHinting);
    QPainterPath forma;
    forma.addText(0, 0, letra, texto);
    return forma;
}

void Signo(QPainter& pintor, QPointF centro, Tinta tinta, const QPolygonF& trazo) {
    const Colores colores = De(tinta);
    Llenar(pintor, Circulo(centro, RADIO + BORDE), {colores.borde, OSCURO});
    pintor.setPen(Qt::NoPen);
    pintor.setBrush(colores.cuerpo);
    pintor.drawEllipse(centro, RADIO - BORDE / 2, RADIO - BORDE / 2);
    pintor.setPen(QPen(colores.borde, 3.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    pintor.setBrush(Qt::NoBrush);
    pintor.drawPolyline(trazo.translated(centro));
}

void Si(QPainter& pintor, QPointF centro) {
    Signo(pintor, centro, Tinta::Verde, {{-4.8, 0.4}, {-1.4, 4}, {5, -3.8}});
}

void No(QPainter& pintor, QPointF centro) {
    Signo(pintor, centro, Tinta::Roja,
          {{-3.8, -3.8}, {3.8, 3.8}, {0, 0}, {3.8, -3.8}, {-3.8, 3.8}});
}

// A die's number stands in a square, so that nobody takes it for that of a point.
void Numero_De_Dado(QPainter& pintor, QPointF centro, const QString& texto) {
    QRectF lado(0, 0, LADO_DE_DADO, LADO_DE_DADO);
    lado.moveCenter(centro);
    QPainterPath forma;
    forma.addRoundedRect(lado, 4, 4);
    Llenar(pintor, forma, De(Tinta::Amarilla));
    Escribir(pintor, centro, Letras(texto), OSCURO);
}

void Rotulo(QPainter& pintor, QPointF centro, const QString& texto, Tinta tinta) {
    const Colores colores = De(tinta);
    const QPainterPath letras = Letras(texto, LETRA_DE_ROTULO);
    QRectF placa(0, 0, letras.boundingRect().width() + 12, LETRA_DE_ROTULO + 8);
    placa.moveCenter(centro);
    QPainterPath forma;
    forma.addRoundedRect(placa, 4, 4);
    Llenar(pintor, forma, colores);
    Escribir(pintor, centro, letras, colores.borde);
}

void Anillo(QPainter& pintor, QPointF centro, double radio) {
    QPainterPathStroker trazo;
    trazo.setWidth(4);
    Llenar(pintor, trazo.createStroke(Circulo(centro, radio)), De(Tinta::Amarilla));
}

void Zona(QPainter& pintor, const QRectF& area, Tinta tinta) {
    QColor velo = De(tinta).cuerpo;
    velo.setAlpha(45);
    QPainterPath forma;
    forma.addRoundedRect(area, 5, 5);
    pintor.fillPath(forma, velo);
    QPainterPathStroker trazo;
    trazo.setWidth(3);
    Llenar(pintor, trazo.createStroke(forma), De(tinta));
}

QPointF Hacia(QPointF desde, QPointF hasta, double cuanto) {
    QLineF linea(desde, hasta);
    linea.setLength(std::min(cuanto, linea.length()));
    return linea.p2();
}

// The line of an arrow up to its head; what came before the tip says where the head points.
void Punta_Y_Linea(QPainter& pintor, const QPainterPath& linea, QPointF base, QPointF punta,
                   double grueso, Tinta tinta) {
    QPainterPathStroker trazo;
    trazo.setWidth(grueso);
    trazo.setCapStyle(Qt::RoundCap);
    const QPointF largo = punta - base;
    const QPointF ancho(-largo.y() * 0.6, largo.x() * 0.6);
    QPainterPath cabeza;
    cabeza.addPolygon(QPolygonF{base + ancho, punta, base - ancho});
    cabeza.closeSubpath();
    Llenar(pintor, trazo.createStroke(linea).united(cabeza), De(tinta));
}

void Flecha(QPainter& pintor, const std::vector<QPointF>& puntos, const Marca& marca) {
    const QPointF base = Hacia(puntos[2], puntos[1], FLECHA * 3.2);
    QPainterPath linea(puntos[0]);
    linea.quadTo(puntos[1], base);
    Punta_Y_Linea(pintor, linea, base, puntos[2], FLECHA, marca.tinta);
    if (marca.tinta == Tinta::Roja) No(pintor, linea.pointAtPercent(0.5));
    if (!marca.texto.isEmpty()) Numero_De_Dado(pintor, linea.pointAtPercent(0.5), marca.texto);
}

void Camino(QPainter& pintor, const std::vector<QPointF>& esquinas, Tinta tinta) {
    constexpr double VUELTA = 9;
    QPainterPath linea(esquinas[0]);
    for (std::size_t i = 1; i + 1 < esquinas.size(); ++i) {
        linea.lineTo(Hacia(esquinas[i], esquinas[i - 1], VUELTA));
        linea.quadTo(esquinas[i], Hacia(esquinas[i], esquinas[i + 1], VUELTA));
    }
    const QPointF punta = esquinas.back();
    const QPointF base = Hacia(punta, esquinas[esquinas.size() - 2], CAMINO * 2.8);
    linea.lineTo(base);
    Punta_Y_Linea(pintor, linea, base, punta, CAMINO, tinta);
}

}  // namespace

void Marcar(QPainter& pintor, const Marca& marca, double escala) {
    std::vector<QPointF> puntos = marca.puntos;
    for (QPointF& punto : puntos) punto *= escala;
    switch (marca.clase) {
        case Marca::Clase::Numero:
            Llenar(pintor, Circulo(puntos[0], RADIO), De(marca.tinta));
            return Escribir(pintor, puntos[0], Letras(marca.texto), OSCURO);
        case Marca::Clase::Si:
            return Si(pintor, puntos[0]);
        case Marca::Clase::No:
            return No(pintor, puntos[0]);
        case Marca::Clase::Anillo:
            return Anillo(pintor, puntos[0], ANILLO * escala);
        case Marca::Clase::Rotulo:
            return Rotulo(pintor, puntos[0], marca.texto, marca.tinta);
        case Marca::Clase::Zona:
            return Zona(pintor, QRectF(puntos[0], puntos[1]), marca.tinta);
        case Marca::Clase::Flecha:
            return Flecha(pintor, puntos, marca);
        case Marca::Clase::Camino:
            return Camino(pintor, puntos, marca.tinta);
    }
}

}  // namespace laminas
