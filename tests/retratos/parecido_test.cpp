// What counts as a difference between two pictures, by faults planted in one of them.
#include "tests/apoyo/parecido.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QPainter>
#include <QPainterPath>

#include "ui/estampas.h"

namespace corvanda::pruebas {
namespace {

/// Parts of the board and of a dialog, as small as they are on the smallest screen, and how they
/// are drawn.
struct Vista {
    int dado = 5;
    QString cuenta = "5";
    Picture ficha = Picture::Blanca;
    QString texto = "1=Fast";
    qreal opacidad = 1;        // of the chip
    bool debajo = false;       // the die under the chip
    QPoint lugar = {};         // of everything
    QPointF corrimiento = {};  // of the letters
    QFont::HintingPreference ajuste = QFont::PreferDefaultHinting;
    bool contornos = false;           // letters by their outlines
    QColor luz = QColor(0, 0, 0, 0);  // over everything
};

class Parecido : public testing::Test {
  protected:
    QImage Dibujar(const Vista& v) {
        QImage imagen(200, 80, QImage::Format_RGB32);
        imagen.fill(QColor(0x14, 0x30, 0x24));
        QPainter pintor(&imagen);
        pintor.setRenderHint(QPainter::Antialiasing);
        pintor.translate(v.lugar);
        const auto cara = static_cast<Picture>(static_cast<int>(Picture::Dado1) + v.dado - 1);
        if (v.debajo) pintor.drawPixmap(20, 20, estampas.De(cara, {32, 32}, 1));
        pintor.setOpacity(v.opacidad);
        pintor.drawPixmap(40, 30, estampas.De(v.ficha, {35, 35}, 1));
        pintor.setOpacity(1);
        if (!v.debajo) pintor.drawPixmap(20, 20, estampas.De(cara, {32, 32}, 1));
        pintor.setBrush(QColor(0x2a, 0x16, 0x0d));
        pintor.drawEllipse(90, 20, 29, 29);
        Escribir(pintor, {90, 20, 29, 29}, 12, v.cuenta, QColor(0xf6, 0xee, 0xd8), v);
        pintor.fillRect(130, 20, 60, 40, QColor(0xdc, 0xd9, 0xd2));
        Escribir(pintor, {130, 20, 60, 40}, 11, v.texto, Qt::darkBlue, v);
        pintor.fillRect(imagen.rect(), v.luz);
        return imagen;
    }

    bool Iguales(const Vista& nueva, const Vista& aprobada) {
        return Comparar(Dibujar(nueva), Dibujar(aprobada)).areas.empty();
    }

  private:
    static void Escribir(QPainter& pintor, QRectF donde, int alto, const QString& texto,
                         const QColor& color, const Vista& v) {
        QFont letra;
        letra.setPixelSize(alto);
        letra.setBold(true);
        letra.setHintingPreference(v.ajuste);
        pintor.setFont(letra);
        pintor.setPen(color);
        donde.translate(v.corrimiento);
        if (!v.contornos) return pintor.drawText(donde, Qt::AlignCenter, texto);
        const QFontMetricsF medidas(letra);
        QPainterPath forma;
        forma.addText(donde.center().x() - medidas.horizontalAdvance(texto) / 2,
                      donde.center().y() - medidas.height() / 2 + medidas.ascent(), letra, texto);
        pintor.fillPath(forma, color);
    }

    Estampas estampas{QCoreApplication::applicationDirPath() + "/imagenes"};
};

TEST_F(Parecido, another_way_to_draw_the_same_is_none) {
    for (const QPointF corrimiento : {QPointF(0, 0), {0.5, 0}, {0, 0.5}, {0.75, 0.25}})
        for (const auto ajuste : {QFont::PreferNoHinting, QFont::PreferVerticalHinting})
            for (const bool contornos : {false, true})
                for (const char* cuenta : {"8", "15"}) {
                    const Vista vista{.cuenta = cuenta,
                                      .corrimiento = corrimiento,
                                      .ajuste = ajuste,
                                      .contornos = contornos};
                    EXPECT_TRUE(Iguales(vista, {.cuenta = cuenta}))
                        << cuenta << ' ' << corrimiento.x() << ' ' << corrimiento.y() << ' '
                        << ajuste << contornos;
                }
    EXPECT_TRUE(Iguales({.luz = QColor(255, 255, 255, 6)}, {})) << "a breath lighter";
}

TEST_F(Parecido, what_a_player_would_notice_is_one) {
    const std::pair<const char*, Vista> tabla[] = {
        {"a chip of the other colour", {.ficha = Picture::Cafe}},
        {"a pale chip", {.opacidad = 0.35}},
        {"the die under the chip", {.debajo = true}},
        {"no number", {.cuenta = ""}},
        {"another caption", {.texto = "1=Slow"}},
        {"a letter missing", {.texto = "1=ast"}},
        {"two pixels aside", {.lugar = {2, 0}}},
        {"a dimmed picture", {.luz = QColor(0, 0, 0, 40)}},
    };
    for (const auto& [que, vista] : tabla) EXPECT_FALSE(Iguales(vista, {})) << que;
    for (int dado = 1; dado <= 6; ++dado)
        for (int otro = 1; otro < dado; ++otro)
            EXPECT_FALSE(Iguales({.dado = dado}, {.dado = otro})) << dado << otro;
    for (int cuenta = 2; cuenta <= 15; ++cuenta)
        for (int otra = 2; otra < cuenta; ++otra)
            EXPECT_FALSE(
                Iguales({.cuenta = QString::number(cuenta)}, {.cuenta = QString::number(otra)}))
                << cuenta << ' ' << otra;
}

TEST_F(Parecido, says_where) {
    const Diferencia diferencia = Comparar(Dibujar({.dado = 4}), Dibujar({}));
    ASSERT_EQ(diferencia.areas.size(), 1U);
    EXPECT_TRUE(diferencia.areas.front().contains(36, 36));
    EXPECT_TRUE(QRect(20, 20, 32, 32).contains(diferencia.areas.front().center()));
    EXPECT_LE(diferencia.areas.front().width(), 24);
    QImage doble = Dibujar({.corrimiento = {0.5, 0}});
    doble.setDevicePixelRatio(2);
    EXPECT_TRUE(Comparar(doble, Dibujar({})).areas.empty()) << "pixels count, not ratios";
    EXPECT_FALSE(Comparar(Dibujar({}), QImage()).areas.empty()) << "nothing is approved";
}

}  // namespace
}  // namespace corvanda::pruebas
