// Where the board lies, what a change repaints, and what its pictures look like.
#include <gtest/gtest.h>

#include <QFile>
#include <QPaintEvent>
#include <QTemporaryDir>
#include <cmath>

#include "tests/ui/ventana.h"

namespace corvanda::pruebas {
namespace {

using enum Arreglo;

TEST(Escala, is_the_largest_twentieth_at_which_the_design_fits) {
    const struct {
        QSizeF usable;
        double k;
    } tabla[] = {
        {{1366, 768}, 1.20},    {{1920, 1080}, 1.75},  {{1920, 1044}, 1.65},
        {{3840, 2160}, 3.50},   {{2560, 1080}, 1.75},  {{1024, 2160}, 1.50},
        {{817.2, 739.2}, 1.20}, {{817.1, 2000}, 1.15}, {{681, 616}, 1},
        {{640, 480}, 1},        {{1, 1}, 1},           {{0, 0}, 1},
    };
    for (const auto& fila : tabla) {
        const Escala escala = Escala::Para(fila.usable);
        EXPECT_DOUBLE_EQ(escala.K(), fila.k) << fila.usable.width() << "x" << fila.usable.height();
        EXPECT_DOUBLE_EQ(escala.Twips_Por_Pixel(), 15 / fila.k);
        for (double left = 0; left < 500; left += 15) {
            const QRect lugar = escala.Lugar(left, left, 255, 255);
            const QRect vecino = escala.Lugar(left + 255, left + 255, 15, 15);
            EXPECT_EQ(lugar.bottomRight() + QPoint(1, 1), vecino.topLeft()) << "neighbours meet";
        }
    }
}

TEST(Ventana_Principal, keeps_the_case_in_its_middle_whatever_its_size) {
    const struct {
        double ancho, alto;  // inside, twips
        double left, top;    // of the case
    } tabla[] = {
        {10215, 6495, 540, 210},
        {12000, 9000, 1432.5, 1462.5},
        {9135, 6075, 0, 0},
        {6000, 3000, -1567.5, -1537.5},
    };
    Ventana v;
    v.Abrir();
    EXPECT_EQ(v.frm.windowTitle(), "Corvanda");
    EXPECT_TRUE(v.frm.windowState().testFlag(Qt::WindowMaximized));
    v.frm.showNormal();
    QCoreApplication::processEvents();
    EXPECT_EQ(v.frm.centralWidget()->size(), QSize(681, 433)) << "restored to its design size";
    const int menus = v.frm.height() - v.frm.centralWidget()->height();
    for (const auto& fila : tabla) {
        v.frm.resize(qRound(fila.ancho / 15), qRound(fila.alto / 15) + menus);
        QCoreApplication::processEvents();
        ASSERT_EQ(v.frm.centralWidget()->height(), qRound(fila.alto / 15));
        const QPoint esquina = v.frm.Tablero().pos();
        EXPECT_NEAR(esquina.x(), fila.left / 15, 1) << fila.ancho;
        EXPECT_NEAR(esquina.y(), fila.top / 15, 1) << fila.ancho;
        EXPECT_EQ(v.frm.Tablero().size(), QSize(609, 405)) << "never scaled";
    }
    v.frm.resize(qRound(10215 / 15.0), qRound(6495 / 15.0) + menus);
    QCoreApplication::processEvents();
    EXPECT_EQ(v.frm.Tablero().pos(), QPoint(36, 14));
    const QImage vista = v.frm.centralWidget()->grab().toImage();
    EXPECT_EQ(vista.pixelColor(2, 2), QColor(128, 0, 0)) << "dark red around the case";
}

// Run at several device pixel ratios.
TEST(Rejilla, images_stand_on_whole_device_pixels_and_neighbours_meet) {
    for (const double k : {1.0, 1.15, 1.2, 1.75, 3.5}) {
        Ventana v(Ventana::Cajas::Diario, nullptr, Escala::Para({k * 681.01, 10000}));
        const Estuche& estuche = v.frm.Tablero();
        const qreal ratio = estuche.devicePixelRatioF();
        const auto entero = [ratio](qreal x) {
            return std::abs(x * ratio - std::round(x * ratio)) < 1e-6;
        };
        const auto lugar = [&](double left, double width, Picture estampa) {
            Image imagen;
            imagen.Left = imagen.Top = static_cast<Single>(left);
            imagen.Width = imagen.Height = static_cast<Single>(width);
            imagen.Shown = estampa;
            const QRectF donde = estuche.Lugar(imagen);
            EXPECT_TRUE(entero(donde.left()) && entero(donde.right()) && entero(donde.bottom()));
            return donde;
        };
        for (double left = 0; left < 9000; left += 77.5) {
            for (const double width : {450.0, 480.0, 600.0, 3960.0}) {
                EXPECT_NEAR(lugar(left, width, Picture::Tablero).right(),
                            lugar(left + width, 15, Picture::Tablero).left(), 1e-6);
            }
            EXPECT_NEAR(lugar(left, 525, Picture::Blanca).width(),
                        lugar(0, 525, Picture::Blanca).width(), 1e-6)
                << "chips have one size, so that they are sharp everywhere";
        }
    }
}

/// What was painted of a widget.
struct Pintado final : QObject {
    bool eventFilter(QObject*, QEvent* evento) override {
        if (evento->type() == QEvent::Paint) region += static_cast<QPaintEvent*>(evento)->region();
        return false;
    }
    QRegion region;
};

TEST(Pintado_Del_Tablero, a_change_repaints_what_it_touched_and_rest_repaints_nothing) {
    Ventana v;
    v.Poner("B 0x2 11x2 16x3 18x5 | C 5x5 7x3 12x5 15x1 23x1 | dice 4 4");
    Estuche& estuche = v.frm.Tablero();
    QTest::qWait(50);
    Pintado pintado;
    estuche.installEventFilter(&pintado);
    QRegion esperada;
    const auto tocar = [&](Control control) {
        esperada += estuche.Lugar(*Imagen_De(v.partida, control)).toAlignedRect();
    };
    tocar({Blanca, 3});
    tocar({Cafe, 13});
    v.partida.Origen = 11;
    v.frm.Mesa().Mover(BLANCA, 3, 15);
    tocar({Blanca, 3});
    tocar({Cafe, 13});
    ASSERT_TRUE(QTest::qWaitFor([&] { return !pintado.region.isEmpty(); }));
    QTest::qWait(20);
    EXPECT_TRUE(pintado.region.subtracted(esperada).isEmpty());
    EXPECT_TRUE(esperada.subtracted(pintado.region).isEmpty());

    pintado.region = {};
    QTest::qWait(100);
    EXPECT_TRUE(pintado.region.isEmpty());
}

/// Relative luminance of the sRGB colours.
double Luminancia(QColor color) {
    const auto lineal = [](double c) {
        return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * lineal(color.redF()) + 0.7152 * lineal(color.greenF()) +
           0.0722 * lineal(color.blueF());
}

double Contraste(double una, double otra) {
    return (std::max(una, otra) + 0.05) / (std::min(una, otra) + 0.05);
}

/// The middle luminance of what a picture shows within a ring around its middle, 1 its half width.
double Luz(const QImage& imagen, double desde, double hasta) {
    std::vector<double> luces;
    for (int y = 0; y < imagen.height(); ++y) {
        for (int x = 0; x < imagen.width(); ++x) {
            const double lejos =
                std::hypot(2.0 * x / imagen.width() - 1, 2.0 * y / imagen.height() - 1);
            const QColor color = imagen.pixelColor(x, y);
            if (color.alphaF() < 0.9 || lejos < desde || lejos > hasta) continue;
            luces.push_back(Luminancia(color));
        }
    }
    if (luces.empty()) return -1;
    std::nth_element(luces.begin(), luces.begin() + static_cast<long>(luces.size() / 2),
                     luces.end());
    return luces[luces.size() / 2];
}

constexpr Picture PUNTAS[] = {Picture::Triangulo_Sup_A, Picture::Triangulo_Sup_B,
                              Picture::Triangulo_Inf_A, Picture::Triangulo_Inf_B};

/// Each picture against what it lies on: three to one at the least.
void Comprobar_Contrastes(const QString& carpeta) {
    Estampas estampas(carpeta);
    const auto de = [&](Picture estampa, QSize tamano) {
        return estampas.De(estampa, tamano, 1).toImage();
    };
    const double tablero = Luz(de(Picture::Tablero, {264, 388}), 0, 2);
    for (const Picture punta : PUNTAS) {
        const double fondo = Luz(de(punta, {30, 170}), 0, 2);
        EXPECT_GE(Contraste(fondo, tablero), 3) << "point " << static_cast<int>(punta);
        for (const Picture ficha : {Picture::Blanca, Picture::Cafe}) {
            const QImage dibujo = de(ficha, {105, 105});
            // Its body or the line around it sets a chip off.
            const double mejor = std::max(Contraste(Luz(dibujo, 0, 0.7), fondo),
                                          Contraste(Luz(dibujo, 0.8, 1), fondo));
            EXPECT_GE(mejor, 3) << "chip " << static_cast<int>(ficha) << " on point "
                                << static_cast<int>(punta);
        }
    }
    const double blanca = Luz(de(Picture::Blanca, {105, 105}), 0, 0.9);
    const double cafe = Luz(de(Picture::Cafe, {105, 105}), 0, 0.9);
    EXPECT_GE(Contraste(blanca, cafe), 3) << "the two sides";
    const QImage uno = de(Picture::Dado1, {96, 96});
    EXPECT_GE(Contraste(Luz(uno, 0, 0.1), Luz(uno, 0.4, 0.7)), 3) << "the pip on its die";
}

TEST(Imagenes, can_be_told_from_what_they_lie_on) {
    Comprobar_Contrastes(Carpeta_De_Imagenes());
}

TEST(Imagenes, plain_shapes_take_the_place_of_files_that_cannot_be_read) {
    const struct {
        const char* que;
        std::function<QByteArray(const QByteArray&)> dana;
    } tabla[] = {
        {"empty", [](const QByteArray&) { return QByteArray(); }},
        {"half", [](const QByteArray& bytes) { return bytes.left(bytes.size() / 2); }},
        {"noise", [](const QByteArray& bytes) { return QByteArray(bytes.size(), '\xa7'); }},
        {"no size", [](const QByteArray&) { return QByteArray("<svg/>"); }},
        {"missing", nullptr},
    };
    for (const auto& fila : tabla) {
        SCOPED_TRACE(fila.que);
        const QTemporaryDir carpeta;
        for (const QString& nombre : QDir(Carpeta_De_Imagenes()).entryList(QDir::Files)) {
            QFile entera(Carpeta_De_Imagenes() + '/' + nombre);
            QFile danada(carpeta.filePath(nombre));
            if (!fila.dana || !entera.open(QIODevice::ReadOnly)) continue;
            ASSERT_TRUE(danada.open(QIODevice::WriteOnly));
            danada.write(fila.dana(entera.readAll()));
        }
        Comprobar_Contrastes(carpeta.path());
        Estampas estampas(carpeta.path());
        EXPECT_TRUE(estampas.Suelta("corvanda", 32, 1).isNull() || fila.dana);
    }
}

}  // namespace
}  // namespace corvanda::pruebas
