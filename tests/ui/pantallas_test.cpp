// Windows that come to a screen with twice as many pixels while they are open.
#include <QLabel>
#include <QScreen>

#include "tests/ui/ventana.h"

namespace corvanda::pruebas {
namespace {

void Llevar_A_La_Otra(QWidget& ventana) {
    const qreal ratio = ventana.devicePixelRatioF();
    ventana.move(QGuiApplication::screens().at(1)->geometry().topLeft() + QPoint(20, 20));
    ASSERT_TRUE(QTest::qWaitFor([&] { return ventana.devicePixelRatioF() == 2 * ratio; }));
}

/// Whether the middle of what a widget paints is more than a picture drawn twice as large: in that,
/// neighbours differ at every second pixel only.
bool Nitido(QWidget& control) {
    const QImage vista = control.grab().toImage();
    int distintos[2] = {0, 0};
    for (int y = vista.height() / 3; y < vista.height() * 2 / 3; ++y)
        for (int x = vista.width() / 3; x < vista.width() * 2 / 3; ++x)
            if (vista.pixel(x, y) != vista.pixel(x + 1, y)) ++distintos[x % 2];
    return std::min(distintos[0], distintos[1]) > 0;
}

TEST(Pantallas, a_chip_in_the_hand_and_the_pointer_are_drawn_for_the_screen_they_are_on) {
    Ventana v;
    v.Poner("dice 5 4");
    v.frm.showNormal();
    v.raton.Ir(v.Centro({Arreglo::Blanca, 1}));
    const Estuche& estuche = v.frm.Tablero();
    const qreal ratio = estuche.cursor().pixmap().devicePixelRatio();
    v.raton.Pulsar(v.Centro({Arreglo::Blanca, 1}));
    Llevar_A_La_Otra(v.frm);
    EXPECT_TRUE(Nitido(v.Flotante()));
    v.raton.Ir(v.Base(4));
    EXPECT_TRUE(Nitido(v.Flotante()));
    v.raton.Soltar(v.Base(4));
    EXPECT_EQ(Pila_En(v.partida, 4).Tope(), 1) << "the drag went on";
    v.raton.Ir(v.Centro({Arreglo::Blanca, 0}));
    EXPECT_EQ(estuche.cursor().pixmap().devicePixelRatio(), 2 * ratio);
}

TEST(Pantallas, so_are_the_pictures_in_the_dialogs) {
    for (const auto& [entrada, imagen] : {std::pair("mnuVel", "Image3"), {"mnuNew", "Image1"}}) {
        Ventana v;
        v.Abrir();
        v.escritorio.Azares({0.5, 0.5, 0.5});
        v.vigilante.Esperar([&, imagen = imagen](QWidget& dialogo) {
            auto* figura = dialogo.findChild<QLabel*>(imagen);
            if (auto* tirar = dialogo.findChild<QWidget*>("Btn"))
                QTest::mouseClick(tirar, Qt::LeftButton);
            Llevar_A_La_Otra(dialogo);
            figura->grab();
            EXPECT_EQ(figura->pixmap().devicePixelRatio(), figura->devicePixelRatioF()) << imagen;
            dialogo.close();
        });
        v.Entrada(entrada)->trigger();
    }
}

TEST(Pantallas, a_chip_that_the_keys_hold_stays_at_its_place_when_the_board_moves) {
    Ventana v;
    v.Poner("dice 5 4");
    v.frm.showNormal();
    for (const auto tecla : {Qt::Key_Up, Qt::Key_Space, Qt::Key_Right})
        QTest::keyClick(&v.frm.Tablero(), tecla);
    ASSERT_TRUE(v.frm.Tablero().Arrastrando());
    const QPoint antes = v.Flotante().pos() - v.frm.Tablero().pos();
    v.frm.resize(v.frm.size() + QSize(-60, 40));
    QCoreApplication::processEvents();
    EXPECT_EQ(v.Flotante().pos() - v.frm.Tablero().pos(), antes);
}

}  // namespace
}  // namespace corvanda::pruebas
