#include "ui/estampas.h"

#include <QPainter>
#include <QPainterPath>
#include <QSvgRenderer>
#include <QThreadPool>
#include <algorithm>
#include <memory>

#include "ui/figuras.h"

namespace corvanda {

namespace {

QString Archivo_De(Picture estampa) {
    switch (estampa) {
        case Picture::Estuche:
            return "estuche";
        case Picture::Tablero:
            return "tablero";
        case Picture::Triangulo_Sup_A:
            return "triangulo_sup_a";
        case Picture::Triangulo_Sup_B:
            return "triangulo_sup_b";
        case Picture::Triangulo_Inf_A:
            return "triangulo_inf_a";
        case Picture::Triangulo_Inf_B:
            return "triangulo_inf_b";
        case Picture::Blanca:
            return "blanca";
        case Picture::Cafe:
            return "cafe";
        case Picture::Adios:
            return "adios";
        case Picture::None:
            return {};
        default:
            return QString("dado%1").arg(Cara_De(estampa));
    }
}

quint64 Clave(Picture estampa, QSize tamano) {
    return (static_cast<quint64>(estampa) << 48) | (static_cast<quint64>(tamano.width()) << 24) |
           static_cast<quint64>(tamano.height());
}

Picture Estampa_De(quint64 clave) {
    return static_cast<Picture>(clave >> 48);
}

QImage Lienzo(QSize tamano) {
    QImage lienzo(tamano.expandedTo({1, 1}), QImage::Format_ARGB32_Premultiplied);
    lienzo.fill(Qt::transparent);
    return lienzo;
}

// A drawing of nothing would make the chip or die invisible.
bool Vacio(const QImage& lienzo) {
    const uchar* fin = lienzo.constBits() + lienzo.sizeInBytes();
    return std::all_of(lienzo.constBits(), fin, [](uchar octeto) { return octeto == 0; });
}

QImage Dibujar(const QString& carpeta, Picture estampa, QSize tamano) {
    QImage lienzo = Lienzo(tamano);
    QPainter pintor(&lienzo);
    pintor.setRenderHint(QPainter::Antialiasing);
    QSvgRenderer dibujo(carpeta + '/' + Archivo_De(estampa) + ".svg");
    // Everything fills its place, except the dice: those are square whatever the place is.
    if (Cara_De(estampa) > 0) dibujo.setAspectRatioMode(Qt::KeepAspectRatio);
    if (dibujo.isValid()) dibujo.render(&pintor, QRectF({}, QSizeF(tamano)));
    pintor.end();
    if (Vacio(lienzo)) {
        pintor.begin(&lienzo);
        pintor.setRenderHint(QPainter::Antialiasing);
        Dibujar_Figura(pintor, estampa, QRectF({}, QSizeF(tamano)));
    }
    return lienzo;
}

}  // namespace

// The workers hold copies of all they need, but the library under them must not be gone first.
Estampas::~Estampas() {
    for (const auto& imagen : en_camino) imagen.wait();
}

void Estampas::Preparar(const std::vector<Pedido>& pedidos) {
    for (const Pedido& pedido : pedidos) {
        const quint64 clave = Clave(pedido.estampa, pedido.tamano);
        if (hechas.contains(clave) || en_camino.contains(clave)) continue;
        auto promesa = std::make_shared<std::promise<QImage>>();
        en_camino.insert(clave, promesa->get_future().share());
        QThreadPool::globalInstance()->start([promesa, pedido, en = carpeta] {
            promesa->set_value(Dibujar(en, pedido.estampa, pedido.tamano));
        });
    }
}

QPixmap Estampas::De(Picture estampa, QSize tamano, qreal ratio) {
    if (estampa == Picture::None) return {};
    const quint64 clave = Clave(estampa, tamano);
    if (!hechas.contains(clave)) {
        const auto camino = en_camino.take(clave);
        const QImage imagen = camino.valid() ? camino.get() : Dibujar(carpeta, estampa, tamano);
        hechas.insert(clave, QPixmap::fromImage(imagen));
    }
    // Set where it is kept: a copy would be a copy of all its pixels.
    QPixmap& hecha = hechas[clave];
    hecha.setDevicePixelRatio(ratio);
    return hecha;
}

void Estampas::Olvidar(Picture estampa) {
    hechas.removeIf([estampa](const auto& hecha) { return Estampa_De(hecha.key()) == estampa; });
}

QPixmap Estampas::Suelta(const QString& nombre, int lado, qreal ratio) {
    QImage lienzo = Lienzo(QSize(qRound(lado * ratio), qRound(lado * ratio)));
    QPainter pintor(&lienzo);
    pintor.setRenderHint(QPainter::Antialiasing);
    QSvgRenderer dibujo(carpeta + '/' + nombre + ".svg");
    if (!dibujo.isValid()) return {};
    dibujo.render(&pintor, QRectF(lienzo.rect()));
    pintor.end();
    QPixmap hecha = QPixmap::fromImage(lienzo);
    hecha.setDevicePixelRatio(ratio);
    return hecha;
}

}  // namespace corvanda
