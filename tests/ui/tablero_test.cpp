// Where the board lies, and what a change repaints.
#include <QApplication>
#include <QPaintEvent>
#include <cmath>

#include "tests/ui/ventana.h"
#include "ui/frm_about.h"

namespace corvanda::pruebas {
namespace {

TEST(Escala, is_the_largest_twentieth_at_which_the_start_up_screen_fits) {
    const std::pair<QSizeF, double> tabla[] = {
        {{1366, 768}, 1.20},    {{1920, 1080}, 1.75},  {{1920, 1044}, 1.65}, {{3840, 2160}, 3.50},
        {{817.2, 739.2}, 1.20}, {{817.1, 2000}, 1.15}, {{800, 600}, 0.95},   {{0, 0}, 0.4},
    };
    for (const auto& [usable, k] : tabla) EXPECT_DOUBLE_EQ(FrmAbout::Escala_Para(usable).K(), k);
}

// Below a title bar of 40 pixels, and beside a panel of 30 that the desktop does not tell of.
TEST(Escala, lets_the_board_fill_the_maximised_window_and_never_leave_it) {
    const struct {
        QSizeF usable;
        double puntos, menor, mayor;
    } tabla[] = {
        {{640, 480}, 10, 0.90, 0.90},   {{800, 600}, 10, 1.10, 1.15},
        {{1024, 768}, 10, 1.50, 1.50},  {{1366, 768}, 10, 1.60, 1.65},
        {{1366, 720}, 10, 1.50, 1.55},  {{1920, 1080}, 10, 2.35, 2.40},
        {{2560, 1440}, 10, 3.15, 3.25}, {{3840, 2160}, 10, 4.80, 4.90},
        {{1024, 768}, 24, 1.50, 1.50},  {{800, 600}, 24, 1.10, 1.15},
        {{1920, 1080}, 24, 2.15, 2.30}, {{100, 50}, 10, 0.4, 0.4},
    };
    const QFont antes = QApplication::font();
    for (const auto& fila : tabla) {
        SCOPED_TRACE(testing::Message()
                     << fila.usable.height() << ", " << fila.puntos << " points");
        QFont letra = antes;
        letra.setPointSizeF(fila.puntos);
        QApplication::setFont(letra);
        const Escala escala = FrmPrincipal::Escala_Para(fila.usable);
        EXPECT_GE(escala.K(), fila.menor - 1e-9);
        EXPECT_LE(escala.K(), fila.mayor + 1e-9);
        const QSize estuche = escala.Tamano(Estuche::ANCHO, Estuche::ALTO);
        if (escala.K() == 0.4) continue;
        const int menus = Ventana().frm.menuBar()->heightForWidth(estuche.width());
        EXPECT_LE(estuche.height() + menus + 70, fila.usable.height());
        EXPECT_LE(estuche.width(), fila.usable.width());
    }
    QApplication::setFont(antes);
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
        Ventana v(Ventana::Cajas::Diario, nullptr,
                  Escala::Que_Quepan({10215, 6495}, {k * 681.01, 10000}));
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
    v.Poner("B 0x2 11x2 16x3 18x5 | dice 4 2");
    Estuche& estuche = v.frm.Tablero();
    QTest::qWait(50);
    Pintado pintado;
    estuche.installEventFilter(&pintado);
    QRegion esperada;
    const auto tocar = [&] {
        for (const Control control : {Control{Arreglo::Blanca, 3}, Control{Arreglo::Dado, 0}})
            esperada += estuche.Medidas().Huella(*Imagen_De(v.partida, control));
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

}  // namespace
}  // namespace corvanda::pruebas
