#include "ui/estampas.h"

#include <QPainter>
#include <QSvgRenderer>
#include <QThreadPool>
#include <algorithm>
#include <memory>

#include "ui/figuras.h"

namespace corvanda {

namespace {

std::pair<QString, quint64> Clave_De(const QString& nombre, QSize tamano) {
    return {nombre,
            (static_cast<quint64>(tamano.width()) << 32) | static_cast<quint64>(tamano.height())};
}

// A drawing of nothing would make the chip or die invisible.
bool Vacio(const QImage& lienzo) {
    const uchar* fin = lienzo.constBits() + lienzo.sizeInBytes();
    return std::all_of(lienzo.constBits(), fin, [](uchar octeto) { return octeto == 0; });
}

QImage Lienzo(QSize tamano) {
    QImage lienzo(tamano.expandedTo({1, 1}), QImage::Format_ARGB32_Premultiplied);
    lienzo.fill(Qt::transparent);
    return lienzo;
}

QImage Dibujar_O_Figurar(const QString& carpeta, const QString& nombre, QSize tamano) {
    QImage dibujada = Estampas::Dibujar(carpeta + '/' + nombre + ".svg", tamano);
    if (!dibujada.isNull() && !Vacio(dibujada)) return dibujada;
    QImage lienzo = Lienzo(tamano);
    QPainter pintor(&lienzo);
    pintor.setRenderHint(QPainter::Antialiasing);
    Dibujar_Figura(pintor, nombre, QRectF({}, QSizeF(tamano)));
    return lienzo;
}

}  // namespace

QString Estampas::Nombre_De(Picture estampa) {
    switch (estampa) {
        case Picture::None:
            return {};
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
            return "disco_blanco";
        case Picture::Cafe:
            return "disco_cafe";
        case Picture::Adios:
            return "adios";
        default:
            return QString("dado%1").arg(static_cast<int>(estampa) -
                                         static_cast<int>(Picture::Dado1) + 1);
    }
}

QImage Estampas::Dibujar(const QString& archivo, QSize tamano) {
    QSvgRenderer dibujo(archivo);
    if (!dibujo.isValid()) return {};
    if (archivo.contains("/dado")) dibujo.setAspectRatioMode(Qt::KeepAspectRatio);
    QImage lienzo = Lienzo(tamano);
    QPainter pintor(&lienzo);
    pintor.setRenderHint(QPainter::Antialiasing);
    dibujo.render(&pintor, QRectF(lienzo.rect()));
    return lienzo;
}

// The workers hold copies of all they need, but the library under them must not be gone first.
Estampas::~Estampas() {
    for (const auto& imagen : en_camino) imagen.wait();
}

void Estampas::Preparar(const std::vector<Pedido>& pedidos) {
    for (const auto& [nombre, tamano] : pedidos) {
        const Clave clave = Clave_De(nombre, tamano);
        if (hechas.contains(clave) || en_camino.contains(clave)) continue;
        auto promesa = std::make_shared<std::promise<QImage>>();
        en_camino.insert(clave, promesa->get_future().share());
        QThreadPool::globalInstance()->start(
            [promesa, que = nombre, cuanto = tamano, en = carpeta] {
                promesa->set_value(Dibujar_O_Figurar(en, que, cuanto));
            });
    }
}

QPixmap Estampas::De(const QString& nombre, QSize tamano, qreal ratio) {
    if (nombre.isEmpty()) return {};
    const Clave clave = Clave_De(nombre, tamano);
    if (!hechas.contains(clave)) {
        const auto camino = en_camino.take(clave);
        const QImage imagen =
            camino.valid() ? camino.get() : Dibujar_O_Figurar(carpeta, nombre, tamano);
        hechas.insert(clave, QPixmap::fromImage(imagen));
    }
    // Set where it is kept: a copy would be a copy of all its pixels.
    QPixmap& hecha = hechas[clave];
    hecha.setDevicePixelRatio(ratio);
    return hecha;
}

void Estampas::Olvidar(const QString& nombre) {
    hechas.removeIf([&nombre](const auto& hecha) { return hecha.key().first == nombre; });
}

QPixmap Estampas::Suelta(const QString& nombre, int lado, qreal ratio) const {
    const QSize tamano(qRound(lado * ratio), qRound(lado * ratio));
    QPixmap hecha = QPixmap::fromImage(Dibujar(carpeta + '/' + nombre + ".svg", tamano));
    hecha.setDevicePixelRatio(ratio);
    return hecha;
}

}  // namespace corvanda
