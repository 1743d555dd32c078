#include "ui/pintura.h"

#include <QPainter>
#include <algorithm>
#include <cmath>
#include <vector>

#include "ui/lugares.h"
#include "ui/paleta.h"

namespace corvanda {

namespace {

bool Es_Ficha_O_Dado(Picture estampa) {
    return estampa == Picture::Blanca || estampa == Picture::Cafe || estampa >= Picture::Dado1;
}

bool Es_Del_Fondo(Arreglo nombre) {
    return nombre == Arreglo::Tablero || nombre == Arreglo::Triangle;
}

}  // namespace

QSize Pintura::Pixeles() const {
    const qreal ratio = sobre.devicePixelRatioF();
    return {qRound(sobre.width() * ratio), qRound(sobre.height() * ratio)};
}

QSize Pintura::Pixeles_De(const Image& imagen) const {
    return (Lugar(imagen).size() * sobre.devicePixelRatioF()).toSize();
}

QPixmap Pintura::Estampa_De(const Image& imagen) const {
    return estampas.De(imagen.Shown, Pixeles_De(imagen), sobre.devicePixelRatioF());
}

// The board is still to be dressed, and its pictures are wanted as they will be then.
void Pintura::Preparar() {
    Partida vestida = partida;
    Vestir(vestida);
    std::vector<Estampas::Pedido> pedidos{{Estampas::Nombre_De(Picture::Estuche), Pixeles()}};
    const auto pedir = [&](const Image& imagen) {
        pedidos.push_back({Estampas::Nombre_De(imagen.Shown), Pixeles_De(imagen)});
    };
    for (const Image& imagen : vestida.Tablero) pedir(imagen);
    for (const Image& imagen : vestida.Triangle) pedir(imagen);
    pedir(vestida.Blanca[0]);
    pedir(vestida.Cafe[0]);
    estampas.Preparar(pedidos);
}

void Pintura::Cambiar(Control control) {
    if (Es_Del_Fondo(control.Nombre)) fondo = {};
}

// Chips and dice keep one size, so that each is rendered once and sharp; the others meet their
// neighbours, so both of their edges are rounded.
QRectF Pintura::Lugar(const Image& imagen) const {
    const qreal ratio = sobre.devicePixelRatioF();
    const auto rejilla = [&](double twips) {
        return std::round(escala.Pixeles(twips) * ratio) / ratio;
    };
    const auto left = static_cast<double>(imagen.Left);
    const auto top = static_cast<double>(imagen.Top);
    const QPointF esquina(rejilla(left), rejilla(top));
    const auto width = static_cast<double>(imagen.Width);
    const auto height = static_cast<double>(imagen.Height);
    if (Es_Ficha_O_Dado(imagen.Shown)) return {esquina, QSizeF(rejilla(width), rejilla(height))};
    return {esquina, QPointF(rejilla(left + width), rejilla(top + height))};
}

void Pintura::Pintar(QPainter& pintor, const QRectF& tocado, const Velada& velada) {
    struct Capa {
        const Image* imagen;
        Control control;
    };
    std::vector<Capa> capas;
    const auto juntar = [&](const auto& miembros, Arreglo nombre) {
        for (std::size_t i = 0; i < miembros.size(); ++i) {
            const Image& imagen = miembros[i];
            if (!imagen.Visible || imagen.Shown == Picture::None) continue;
            if (!Lugar(imagen).intersects(tocado)) continue;
            capas.push_back({&imagen, {nombre, static_cast<Integer>(i)}});
        }
    };
    juntar(partida.Adios, Arreglo::Adios);
    juntar(partida.Blanca, Arreglo::Blanca);
    juntar(partida.Cafe, Arreglo::Cafe);
    juntar(partida.Dado, Arreglo::Dado);
    std::sort(capas.begin(), capas.end(), [](const Capa& una, const Capa& otra) {
        return una.imagen->ZOrder < otra.imagen->ZOrder;
    });

    pintor.drawPixmap(QPointF(0, 0), Fondo());
    for (const Capa& capa : capas) {
        pintor.setOpacity(capa.control == velada.ficha ? velada.opacidad : 1);
        pintor.drawPixmap(Lugar(*capa.imagen).topLeft(), Estampa_De(*capa.imagen));
    }
    pintor.setOpacity(1);
    for (Integer lugar = 0; lugar <= BARRA_BLANCA; ++lugar) {
        Pintar_Cuenta(pintor, lugar, velada.ficha);
    }
}

// The pictures that it is made of are as large as itself and are not needed again.
const QPixmap& Pintura::Fondo() {
    const qreal ratio = sobre.devicePixelRatioF();
    if (fondo.size() == Pixeles() && fondo.devicePixelRatio() == ratio) return fondo;
    QImage lienzo(Pixeles(), QImage::Format_RGB32);
    lienzo.setDevicePixelRatio(ratio);
    lienzo.fill(paleta::CAOBA);
    QPainter pintor(&lienzo);
    pintor.drawPixmap(QPointF(0, 0), estampas.De(Picture::Estuche, Pixeles(), ratio));
    estampas.Olvidar(Estampas::Nombre_De(Picture::Estuche));
    const auto poner = [&](const auto& miembros) {
        for (const Image& imagen : miembros) {
            if (!imagen.Visible || imagen.Shown == Picture::None) continue;
            pintor.drawPixmap(Lugar(imagen).topLeft(), Estampa_De(imagen));
        }
        for (const Image& imagen : miembros) estampas.Olvidar(Estampas::Nombre_De(imagen.Shown));
    };
    poner(partida.Tablero);
    poner(partida.Triangle);
    pintor.end();
    fondo = QPixmap::fromImage(std::move(lienzo));
    return fondo;
}

// Chips that lie exactly on others hide them, so the top one tells how many there are.
void Pintura::Pintar_Cuenta(QPainter& pintor, Integer lugar, Control velada) const {
    const Pila& pila = Pila_En(partida, lugar);
    const bool cafe =
        lugar == BARRA_CAFE || (Es_Punto(lugar) && Punto_En(partida, lugar).Owner == CAFE);
    const Arreglo color = cafe ? Arreglo::Cafe : Arreglo::Blanca;
    const Image* tope = Imagen_De(partida, {color, pila.Tope()});
    if (tope == nullptr || Control{color, pila.Tope()} == velada) return;
    bool tapa = false;
    for (Integer item = 1; item < pila.Cuenta(); ++item) {
        const Image* otra = Imagen_De(partida, {color, pila.Ficha(item)});
        tapa = tapa || (otra->Top == tope->Top && Control{color, pila.Ficha(item)} != velada);
    }
    if (!tapa) return;

    const QRectF ficha = Lugar(*tope);
    const qreal radio = ficha.height() * 0.27;
    pintor.setRenderHint(QPainter::Antialiasing);
    pintor.setPen(Qt::NoPen);
    pintor.setBrush(cafe ? paleta::NOGAL : paleta::MARFIL);
    pintor.drawEllipse(ficha.center(), radio, radio);
    QFont letra = pintor.font();
    letra.setPixelSize(std::max(1, qRound(ficha.height() * 0.42)));
    letra.setBold(true);
    pintor.setFont(letra);
    pintor.setPen(cafe ? paleta::MARFIL : paleta::NOGAL);
    pintor.drawText(ficha, Qt::AlignCenter, QString::number(pila.Cuenta()));
}

}  // namespace corvanda
