#include "tests/apoyo/parecido.h"

#include <QPainter>
#include <algorithm>

namespace corvanda::pruebas {

namespace {

// The mean difference in an area of 8 x 8 pixels decides, and such areas begin at every fourth
// pixel. The self-test holds the limit between what the same letters may differ by and what
// different numbers do, both as small as they are on the smallest board (12 pixels, bold).
constexpr int PASO = 4;
constexpr int TOLERADA = 16;
constexpr int MEDIOS_PIXELES = 2;  // an area may be so many halves of a pixel aside

/// The mean of copies of a picture that are so far aside.
QImage Mezclada(const QImage& imagen, std::initializer_list<int> lados,
                std::initializer_list<int> altos) {
    QImage mezcla(imagen.size(), QImage::Format_RGB32);
    QPainter pintor(&mezcla);
    int copias = 0;
    for (const int y : altos) {
        for (const int x : lados) {
            pintor.setOpacity(1.0 / ++copias);
            pintor.drawImage(x, y, imagen);
        }
    }
    return mezcla;
}

// A little out of focus: a line between two pixels is as dark as one on a pixel.
QImage Suave(const QImage& imagen, QSize tamano) {
    QImage entera = imagen.convertToFormat(QImage::Format_RGB32).copy(QRect({}, tamano));
    entera.setDevicePixelRatio(1);
    return Mezclada(entera, {0, -1, 1}, {0, -1, 1});
}

QImage Movida(const QImage& imagen, int derecha, int abajo) {
    const auto mitades = [](int medios) {
        return std::pair((medios & ~1) / 2, (medios & ~1) / 2 + (medios & 1));
    };
    const auto [x, x2] = mitades(derecha);
    const auto [y, y2] = mitades(abajo);
    return Mezclada(imagen, {x, x2}, {y, y2});
}

/// A pixel for each step: how much differs in the area that begins there when the pictures are laid
/// over each other as well as can be.
QImage Restos(const QImage& nueva, const QImage& aprobada) {
    const QSize pasos((nueva.width() + PASO - 1) / PASO, (nueva.height() + PASO - 1) / PASO);
    const QImage una = Suave(nueva, pasos * PASO);
    const QImage otra = Suave(aprobada, pasos * PASO);
    QImage menor(pasos, QImage::Format_RGB32);
    menor.fill(Qt::white);
    for (int abajo = -MEDIOS_PIXELES; abajo <= MEDIOS_PIXELES; ++abajo) {
        for (int derecha = -MEDIOS_PIXELES; derecha <= MEDIOS_PIXELES; ++derecha) {
            QImage resta = Movida(otra, derecha, abajo);
            QPainter restador(&resta);
            restador.setCompositionMode(QPainter::CompositionMode_Difference);
            restador.drawImage(0, 0, una);
            restador.end();
            resta = resta.scaled(pasos, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
            QPainter pintor(&menor);
            pintor.setCompositionMode(QPainter::CompositionMode_Darken);
            pintor.drawImage(0, 0, Mezclada(resta, {0, -1}, {0, -1}));
        }
    }
    return menor;
}

// Areas that touch are one.
void Juntar(std::vector<QRect>& areas, QRect nueva) {
    const auto otra = [&] {
        return std::find_if(areas.begin(), areas.end(), [&](const QRect& una) {
            return una.adjusted(-PASO, -PASO, PASO, PASO).intersects(nueva);
        });
    };
    for (auto una = otra(); una != areas.end(); una = otra()) {
        nueva |= *una;
        areas.erase(una);
    }
    areas.push_back(nueva);
}

}  // namespace

Diferencia Comparar(const QImage& nueva, const QImage& aprobada) {
    if (nueva.size() != aprobada.size()) return {{nueva.rect()}, aprobada};
    Diferencia diferencia{{}, aprobada.convertToFormat(QImage::Format_RGB32)};
    if (nueva.convertToFormat(QImage::Format_RGB32) == diferencia.vista) return diferencia;
    const QImage restos = Restos(nueva, aprobada);
    QPainter pintor(&diferencia.vista);
    pintor.fillRect(diferencia.vista.rect(), QColor(255, 255, 255, 160));
    for (int y = 0; y < restos.height(); ++y) {
        for (int x = 0; x < restos.width(); ++x) {
            const QRgb resto = restos.pixel(x, y);
            if (std::max({qRed(resto), qGreen(resto), qBlue(resto)}) <= TOLERADA) continue;
            const QRect area(x * PASO, y * PASO, 2 * PASO, 2 * PASO);
            pintor.fillRect(area, QColor(220, 0, 0, 60));
            Juntar(diferencia.areas, area & nueva.rect());
        }
    }
    return diferencia;
}

}  // namespace corvanda::pruebas
