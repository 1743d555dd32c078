// Where the board lies, what a change repaints, and pictures that are missing.
#include <QPaintEvent>
#include <cmath>

#include "tests/ui/ventana.h"

namespace corvanda::pruebas {
namespace {

TEST(Escala, is_the_largest_twentieth_at_which_the_design_fits) {
    const std::pair<QSizeF, double> tabla[] = {
        {{1366, 768}, 1.20},    {{1920, 1080}, 1.75},  {{1920, 1044}, 1.65}, {{3840, 2160}, 3.50},
        {{817.2, 739.2}, 1.20}, {{817.1, 2000}, 1.15}, {{681, 616}, 1},      {{0, 0}, 1},
    };
    for (const auto& [usable, k] : tabla) EXPECT_DOUBLE_EQ(Escala::Para(usable).K(), k) << k;
}

TEST(Ventana_Principal, keeps_the_case_in_its_middle_whatever_its_size) {
    Ventana v;
    v.Abrir();
    EXPECT_TRUE(v.frm.windowState().testFlag(Qt::WindowMaximized));
    v.frm.showNormal();
    for (const QSize tamano : {QSize(681, 460), QSize(800, 600), QSize(400, 200)}) {
        v.frm.resize(tamano);
        QCoreApplication::processEvents();
        const QPoint lejos =
            v.frm.centralWidget()->rect().center() - v.frm.Tablero().geometry().center();
        EXPECT_LE(lejos.manhattanLength(), 2) << tamano.width();
        EXPECT_EQ(v.frm.Tablero().size(), QSize(609, 405)) << "never scaled";
    }
}

// Run at several device pixel ratios.
TEST(Rejilla, images_stand_on_whole_device_pixels_and_neighbours_meet) {
    for (const double k : {1.0, 1.15, 1.2, 1.75, 3.5}) {
        Ventana v(Ventana::Cajas::Diario, nullptr, Escala::Para({k * 681.01, 10000}));
        const Estuche& estuche = v.frm.Tablero();
        const auto lugar = [&](double left, double width, Picture estampa) {
            Image imagen;
            imagen.Left = imagen.Top = static_cast<Single>(left);
            imagen.Width = imagen.Height = static_cast<Single>(width);
            imagen.Shown = estampa;
            const QRectF donde = estuche.Lugar(imagen);
            for (const double orilla : {donde.left(), donde.right(), donde.bottom()}) {
                const double pixeles = orilla * estuche.devicePixelRatioF();
                EXPECT_NEAR(pixeles, std::round(pixeles), 1e-6);
            }
            return donde;
        };
        for (double left = 0; left < 9000; left += 77.5) {
            for (const double width : {450.0, 480.0, 600.0, 3960.0})
                EXPECT_NEAR(lugar(left, width, Picture::Tablero).right(),
                            lugar(left + width, 15, Picture::Tablero).left(), 1e-6);
            EXPECT_NEAR(lugar(left, 525, Picture::Blanca).width(),
                        lugar(0, 525, Picture::Blanca).width(), 1e-6);
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
    const auto tocar = [&] {
        for (const Control control : {Control{Arreglo::Blanca, 3}, Control{Arreglo::Cafe, 13}})
            esperada += estuche.Lugar(*Imagen_De(v.partida, control)).toAlignedRect();
    };
    tocar();
    v.partida.Origen = 11;
    v.frm.Mesa().Mover(BLANCA, 3, 15);
    tocar();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !pintado.region.isEmpty(); }));
    QTest::qWait(20);
    EXPECT_EQ(pintado.region, esperada);
    pintado.region = {};
    QTest::qWait(100);
    EXPECT_TRUE(pintado.region.isEmpty());
}

TEST(Imagenes, plain_shapes_take_the_place_of_files_that_are_missing) {
    const QImage ficha = Estampas("/nonexistent").De(Picture::Blanca, {35, 35}, 1).toImage();
    EXPECT_GT(qAlpha(ficha.pixel(17, 17)), 200);
}

}  // namespace
}  // namespace corvanda::pruebas
