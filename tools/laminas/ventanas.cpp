#include "tools/laminas/ventanas.h"

#include <QPainter>
#include <array>

#include "tools/laminas/mesa.h"

using namespace corvanda;

namespace laminas {

namespace {

const QColor PAPEL(0xfd, 0xfa, 0xf3);  // that of the help's pages
const QColor TINTA(0x2b, 0x20, 0x1a);
const QColor MARCO(0x8a, 0x7d, 0x6c);

}  // namespace

QImage Enmarcada(const QImage& ventana) {
    QImage hoja = Hoja(ventana.deviceIndependentSize() + QSizeF(2, 2), MARCO);
    QPainter(&hoja).drawImage(1, 1, ventana);
    return hoja;
}

// One block for each of ten throws.
QImage Frecuencias(Estampas& estampas) {
    constexpr std::array<int, 6> DE_DIEZ{1, 2, 2, 2, 2, 1};
    constexpr int PASO = 90;
    constexpr int LADO = 44;
    constexpr int ALTO = 15;
    constexpr int SUELO = 96;
    QImage hoja = Hoja({PASO * 6.0, 120}, PAPEL);
    QPainter pintor(&hoja);
    pintor.setRenderHint(QPainter::Antialiasing);
    QFont letra;
    letra.setPixelSize(14);
    letra.setBold(true);
    pintor.setFont(letra);
    for (int i = 0; i < 6; ++i) {
        const int veces = DE_DIEZ.at(static_cast<std::size_t>(i));
        const QRect columna((PASO - LADO) / 2 + i * PASO, 6, LADO, LADO);
        const auto cara = static_cast<Picture>(static_cast<int>(Picture::Dado1) + i);
        pintor.drawPixmap(columna.topLeft(), estampas.De(cara, columna.size() * RATIO, RATIO));
        for (int bloque = 1; bloque <= veces; ++bloque) {
            const QRect lugar(columna.left(), SUELO - bloque * ALTO, LADO, ALTO - 2);
            pintor.fillRect(lugar,
                            veces == 1 ? QColor(0xb8, 0x48, 0x2a) : QColor(0x5a, 0x86, 0x30));
        }
        pintor.setPen(TINTA);
        pintor.drawText(QRect(i * PASO, SUELO, PASO, 20), Qt::AlignCenter,
                        QString("%1 in 10").arg(veces));
    }
    return hoja;
}

}  // namespace laminas
