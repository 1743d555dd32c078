#include "tools/laminas/ventanas.h"

#include <QCoreApplication>
#include <QPainter>
#include <array>

#include "tools/laminas/mesa.h"
#include "ui/form1.h"
#include "ui/frm_volado.h"

using namespace corvanda;

namespace laminas {

namespace {

const QColor PAPEL(0xfd, 0xfa, 0xf3);  // that of the help's pages
const QColor TINTA(0x2b, 0x20, 0x1a);
const QColor MARCO(0x8a, 0x7d, 0x6c);

/// Says the next of the throws that it was given.
class Tiros final : public RandomNumbers {
  public:
    explicit Tiros(std::array<Integer, 2> caras) : caras(caras) {}
    double Rnd() override { return (caras.at(cual++) - 1) / 5.0; }
    void Randomize() override {}

  private:
    std::array<Integer, 2> caras;
    std::size_t cual = 0;
};

// The inner part of a window, framed by a line because the page is as light as the window.
QImage Retrato(QDialog& ventana) {
    const QSize tamano = ventana.size();
    QImage hoja = Hoja(tamano + QSize(2, 2), MARCO);
    QPainter pintor(&hoja);
    pintor.drawPixmap(1, 1, ventana.grab());
    return hoja;
}

}  // namespace

QImage Quien_Empieza(Estampas& estampas) {
    Modulo1 modulo;
    Tiros tiros({5, 3});
    const Escala escala;
    FrmVolado ventana(nullptr, modulo, tiros, escala, estampas, [] {});
    ventana.show();
    ventana.Btn_Click();
    ventana.Btn_Click();
    return Retrato(ventana);
}

QImage Velocidad(Estampas& estampas) {
    Modulo1 modulo;
    modulo.Velocidad = 100;
    const Escala escala;
    Form1 ventana(nullptr, modulo, escala, estampas);
    ventana.show();
    const auto* aceptar = ventana.findChild<QPushButton*>("BtnAceptar");
    while (!aceptar->isEnabled()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return Retrato(ventana);
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
