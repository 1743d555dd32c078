// The start-player dialog and the speed dialog, opened from the main window.
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>

#include "tests/apoyo/sin_nombre.h"
#include "tests/ui/ventana.h"

namespace corvanda::pruebas {
namespace {

template <typename Control>
Control& Hallar(const QWidget& dialogo, const char* nombre) {
    auto* control = dialogo.findChild<Control*>(nombre);
    if (control == nullptr) throw std::runtime_error(std::string("no control ") + nombre);
    return *control;
}

/// What the start-player dialog shows, in one line: a die that is shown says its face.
std::string Vista(const QWidget& dialogo) {
    const auto cara = [&](const char* nombre) {
        const auto& imagen = Hallar<QLabel>(dialogo, nombre);
        const std::string dicho = imagen.accessibleName().toStdString();
        return dicho == "Die: not thrown" ? " -" : " " + dicho;
    };
    return Hallar<QPushButton>(dialogo, "Btn").text().toStdString() + cara("Image1") +
           cara("Image2") + " " + Hallar<QLabel>(dialogo, "Label1").text().toStdString();
}

constexpr const char* EMPIEZA_BLANCA = "The player with White Chips starts";
constexpr const char* EMPIEZA_CAFE = "The player with Brown Chips starts";

TEST(Volado, Between_Two_People_Each_Press_Is_One_Throw) {
    const struct {
        std::vector<double> azares;       // the throws, then the two dice of the first roll
        std::vector<std::string> vistas;  // after each press
        Integer Turno;
    } tabla[] = {
        {{0.8, 0.2, 0, 0.2},
         {"&Brown Chips Die: 5 - ", std::string("&Close Die: 5 Die: 2 ") + EMPIEZA_BLANCA},
         BLANCA},
        // Halves go to the even neighbour, and a tie is thrown again.
        {{0.1, 0.0, 0.3, 0.999, 0, 0.2},
         {"&Brown Chips Die: 1 - ", "&White Chips Die: 1 Die: 1 ", "&Brown Chips Die: 3 Die: 1 ",
          std::string("&Close Die: 3 Die: 6 ") + EMPIEZA_CAFE},
         CAFE},
    };
    for (const auto& fila : tabla) {
        Ventana v;
        v.Abrir();
        for (const double azar : fila.azares) v.escritorio.Azares({azar});
        v.vigilante.Esperar([&](QWidget& dialogo) {
            EXPECT_EQ(dialogo.windowTitle(), "Player to Start");
            EXPECT_EQ(Sin_Nombre(dialogo), "");
            EXPECT_EQ(Vista(dialogo), "&White Chips - - ");
            for (const std::string& vista : fila.vistas) {
                QTest::mouseClick(&Hallar<QPushButton>(dialogo, "Btn"), Qt::LeftButton);
                EXPECT_EQ(Vista(dialogo), vista);
            }
            EXPECT_EQ(v.partida.Turno, -fila.Turno) << "the first roll turns it round";
            QTest::mouseClick(&Hallar<QPushButton>(dialogo, "Btn"), Qt::LeftButton);
            EXPECT_FALSE(dialogo.isVisible());
        });
        v.frm.mnuNew_Click();
        EXPECT_EQ(v.partida.Turno, fila.Turno);
    }
}

TEST(Volado, Against_The_Computer_Browns_Throw_Follows_By_Itself_And_So_After_A_Tie) {
    Ventana v;
    v.Abrir();
    v.escritorio.Dados({4, 4, 2, 1, 1, 2});
    v.vigilante.Esperar([&](QWidget& dialogo) {
        v.Leer();
        for (const auto tecla : {Qt::Key_F1, Qt::Key_F9, Qt::Key_A})
            QTest::keyClick(&dialogo, tecla);
        EXPECT_EQ(v.Leer(), Diario{"ayuda " + v.escritorio.Path() + "\\corvanda.HLP 1 1"});
        QTest::keyClick(&dialogo, Qt::Key_Return);
        EXPECT_EQ(Vista(dialogo), "&White Chips Die: 4 Die: 4 ");
        EXPECT_EQ(v.escritorio.dormido, 400);
        QTest::keyClick(&dialogo, Qt::Key_Escape);
        EXPECT_EQ(Vista(dialogo), std::string("&Close Die: 2 Die: 1 ") + EMPIEZA_BLANCA);
        QTest::keyClick(&dialogo, Qt::Key_Return);
        EXPECT_FALSE(dialogo.isVisible());
    });
    v.frm.mnuVs_Click();
    EXPECT_EQ(v.partida.Turno, BLANCA);
}

TEST(Volado, Closed_Before_The_Decision_It_Leaves_The_Turn_Alone) {
    for (const int tiros : {0, 1, 2}) {
        Ventana v;
        v.Poner("turn C | dice 5 4");
        v.escritorio.Sembrar(7);
        v.escritorio.Azares({0.5, 0.5});
        v.vigilante.Esperar([&](QWidget& dialogo) {
            for (int i = 0; i < tiros; ++i) QTest::keyClick(&dialogo, Qt::Key_Return);
            EXPECT_EQ(v.partida.Turno, CAFE);
            dialogo.close();
        });
        v.frm.mnuNew_Click();
        EXPECT_EQ(v.partida.Turno, BLANCA) << tiros << ": turned round by the roll as ever";
        EXPECT_EQ(v.partida.Jugando, True);
    }
}

TEST(Velocidad, Nothing_Can_Be_Decided_Before_The_Chip_Has_Crossed_And_Only_Ok_Changes_It) {
    const struct {
        Integer antes;
        const char* texto;
        std::vector<Qt::Key> teclas;
        Integer despues;
    } tabla[] = {
        {100, " 100", {Qt::Key_Home, Qt::Key_Return}, 1},
        {100, " 100", {Qt::Key_Right, Qt::Key_Escape}, 100},
        // What points left or up goes towards the fast end.
        {100, " 100", {Qt::Key_PageUp, Qt::Key_Up, Qt::Key_Left, Qt::Key_Return}, 78},
        {100, " 100", {Qt::Key_PageDown, Qt::Key_Down, Qt::Key_Right, Qt::Key_Return}, 122},
        {1, " 1", {Qt::Key_End, Qt::Key_Enter}, 200},
        {0, " 1", {Qt::Key_Escape}, 0},
        {32767, " 200", {Qt::Key_Return}, 200},
    };
    for (const auto& fila : tabla) {
        Ventana v;
        v.Abrir();
        v.partida.Velocidad = fila.antes;
        v.vigilante.Esperar([&](QWidget& dialogo) {
            EXPECT_EQ(dialogo.windowTitle(), "Game Speed...");
            EXPECT_EQ(Sin_Nombre(dialogo), "");
            auto& texto = Hallar<QLineEdit>(dialogo, "TxtVel");
            EXPECT_EQ(texto.text(), fila.texto);
            for (const auto tecla : {Qt::Key_Escape, Qt::Key_Return})
                QTest::keyClick(&dialogo, tecla);
            EXPECT_TRUE(dialogo.isVisible()) << "too early";
            const auto& ok = Hallar<QPushButton>(dialogo, "BtnAceptar");
            ASSERT_TRUE(QTest::qWaitFor([&] { return ok.isEnabled(); }));
            for (const Qt::Key tecla : fila.teclas) {
                QTest::keyClick(dialogo.focusWidget(), tecla);
                const int valor = Hallar<QScrollBar>(dialogo, "Scroll").value();
                EXPECT_EQ(texto.text(), " " + QString::number(valor));
            }
            EXPECT_FALSE(dialogo.isVisible());
        });
        v.Entrada("mnuVel")->trigger();
        EXPECT_EQ(v.partida.Velocidad, fila.despues);
    }
}

}  // namespace
}  // namespace corvanda::pruebas
