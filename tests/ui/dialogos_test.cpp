// The start-player dialog and the speed dialog, opened from the main window.
#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>

#include "tests/ui/ventana.h"
#include "ui/form1.h"

namespace corvanda::pruebas {
namespace {

template <typename Control>
Control& Hallar(const QWidget& dialogo, const char* nombre) {
    auto* control = dialogo.findChild<Control*>(nombre);
    if (control == nullptr) throw std::runtime_error(std::string("no control ") + nombre);
    return *control;
}

struct Sitio {
    const char* nombre;
    double left, top, width, height;
};

void Comparar_Sitios(const QWidget& dialogo, const Escala& escala,
                     const std::vector<Sitio>& sitios) {
    for (const Sitio& s : sitios) {
        EXPECT_EQ(Hallar<QWidget>(dialogo, s.nombre).geometry(),
                  escala.Lugar(s.left, s.top, s.width, s.height))
            << s.nombre;
        const auto* texto = dialogo.findChild<QLabel*>(s.nombre);
        if (texto == nullptr || texto->text().isEmpty() || texto->wordWrap()) continue;
        EXPECT_LE(texto->sizeHint().width(), texto->width()) << s.nombre << " is cut off";
    }
}

/// Which die an image shows, 0 for none.
int Cara(Estampas& estampas, const QLabel& imagen) {
    if (imagen.pixmap().isNull()) return 0;
    for (int cara = 1; cara <= 6; ++cara) {
        const auto dado = static_cast<Picture>(static_cast<int>(Picture::Dado1) + cara - 1);
        const qreal ratio = imagen.devicePixelRatioF();
        const QPixmap esta = estampas.De(dado, imagen.size() * ratio, ratio);
        if (imagen.pixmap().toImage() == esta.toImage()) return cara;
    }
    return -1;
}

/// What the dialog shows, in one line.
std::string Vista(Estampas& estampas, const QWidget& dialogo) {
    return Hallar<QPushButton>(dialogo, "Btn").text().toStdString() + " " +
           std::to_string(Cara(estampas, Hallar<QLabel>(dialogo, "Image1"))) + " " +
           std::to_string(Cara(estampas, Hallar<QLabel>(dialogo, "Image2"))) + " " +
           Hallar<QLabel>(dialogo, "Label1").text().toStdString();
}

constexpr const char* EMPIEZA_BLANCA = "The player with White Chips starts";
constexpr const char* EMPIEZA_CAFE = "The player with Brown Chips starts";

TEST(Volado, is_laid_out_as_designed_at_every_scale) {
    for (const QSizeF pantalla : {QSizeF(800, 600), QSizeF(1920, 1080)}) {
        const Escala escala = Escala::Para(pantalla);
        Ventana v(Ventana::Cajas::Diario, nullptr, escala);
        v.Abrir();
        v.escritorio.Dados({1, 6, 1, 1});
        v.vigilante.Esperar([&](QWidget& dialogo) {
            EXPECT_EQ(dialogo.windowTitle(), "Player to Start");
            EXPECT_EQ(dialogo.size(), escala.Tamano(3135, 2220));
            EXPECT_EQ(dialogo.minimumSize(), dialogo.maximumSize()) << "a fixed border";
            Comparar_Sitios(dialogo, escala,
                            {{"Image1", 540, 120, 480, 480},
                             {"Image2", 2100, 120, 480, 480},
                             {"Label2", 60, 720, 1455, 255},
                             {"Label3", 1740, 720, 1335, 255},
                             {"Label1", 360, 1020, 2415, 735},
                             {"Btn", 840, 1800, 1455, 315}});
            EXPECT_EQ(Hallar<QLabel>(dialogo, "Label2").text(), "Player 1");
            EXPECT_EQ(Hallar<QLabel>(dialogo, "Label3").text(), "Player 2");
            Sortear(dialogo);
        });
        v.frm.mnuNew_Click();
    }
}

TEST(Volado, between_two_people_each_press_is_one_throw) {
    const struct {
        std::vector<double> azares;       // the throws, then the two dice of the first roll
        std::vector<std::string> vistas;  // after each press
        Integer Turno;
    } tabla[] = {
        {{0.8, 0.2, 0, 0.2},
         {"&Brown Chips 5 0 ", std::string("&Close 5 2 ") + EMPIEZA_BLANCA},
         BLANCA},
        {{0.0, 0.999, 0, 0.2},
         {"&Brown Chips 1 0 ", std::string("&Close 1 6 ") + EMPIEZA_CAFE},
         CAFE},
        // Halves go to the even neighbour, and a tie is thrown again.
        {{0.1, 0.0, 0.3, 0.9, 0, 0.2},
         {"&Brown Chips 1 0 ", "&White Chips 1 1 ", "&Brown Chips 3 1 ",
          std::string("&Close 3 5 ") + EMPIEZA_CAFE},
         CAFE},
    };
    for (const auto& fila : tabla) {
        Ventana v;
        v.Abrir();
        for (const double azar : fila.azares) v.escritorio.Azares({azar});
        v.vigilante.Esperar([&](QWidget& dialogo) {
            EXPECT_EQ(Vista(v.estampas, dialogo), "&White Chips 0 0 ");
            for (const std::string& vista : fila.vistas) {
                QTest::mouseClick(&Hallar<QPushButton>(dialogo, "Btn"), Qt::LeftButton);
                EXPECT_EQ(Vista(v.estampas, dialogo), vista);
            }
            EXPECT_EQ(v.partida.Turno, -fila.Turno) << "the first roll turns it round";
            QTest::mouseClick(&Hallar<QPushButton>(dialogo, "Btn"), Qt::LeftButton);
            EXPECT_FALSE(dialogo.isVisible());
        });
        v.frm.mnuNew_Click();
        EXPECT_EQ(v.partida.Turno, fila.Turno);
        EXPECT_EQ(v.partida.Dado1, 1);
        EXPECT_EQ(v.partida.Dado2, 2);
        const Diario diario = v.escritorio.Leer();
        EXPECT_EQ(std::count(diario.begin(), diario.end(), "siembra"), 1) << "seeded at its load";
    }
}

TEST(Volado, against_the_computer_browns_throw_follows_by_itself_and_so_after_a_tie) {
    Ventana v;
    v.Abrir();
    v.escritorio.Dados({4, 4, 2, 1, 1, 2});
    v.vigilante.Esperar([&](QWidget& dialogo) {
        QTest::keyClick(&dialogo, Qt::Key_Return);
        EXPECT_EQ(Vista(v.estampas, dialogo), "&White Chips 4 4 ");
        QTest::keyClick(&dialogo, Qt::Key_Escape);
        EXPECT_EQ(Vista(v.estampas, dialogo), std::string("&Close 2 1 ") + EMPIEZA_BLANCA);
        QTest::keyClick(&dialogo, Qt::Key_Return);
        EXPECT_FALSE(dialogo.isVisible());
    });
    v.frm.mnuVs_Click();
    EXPECT_EQ(v.partida.Turno, BLANCA);
}

TEST(Volado, closed_before_the_decision_it_leaves_the_turn_alone) {
    const struct {
        const char* que;
        std::function<void(QWidget&)> hace;
    } tabla[] = {
        {"at once", [](QWidget&) {}},
        {"after one throw", [](QWidget& d) { QTest::keyClick(&d, Qt::Key_Return); }},
        {"after a tie",
         [](QWidget& d) {
             QTest::keyClick(&d, Qt::Key_Escape);
             QTest::keyClick(&d, Qt::Key_Escape);
         }},
    };
    for (const auto& fila : tabla) {
        Ventana v;
        v.Poner("turn C | dice 5 4");
        v.escritorio.Sembrar(7);
        v.escritorio.Azares({0.5, 0.5});
        v.vigilante.Esperar([&](QWidget& dialogo) {
            fila.hace(dialogo);
            EXPECT_TRUE(dialogo.isVisible()) << fila.que;
            EXPECT_EQ(v.partida.Turno, CAFE);
            dialogo.close();
        });
        v.frm.mnuNew_Click();
        EXPECT_EQ(v.partida.Turno, BLANCA) << fila.que << ": turned round by the roll as ever";
        EXPECT_EQ(v.partida.Jugando, True);
    }
}

TEST(Volado, help_by_its_key_and_nothing_by_others) {
    Ventana v;
    v.Abrir();
    v.escritorio.Dados({1, 6, 1, 1});
    v.vigilante.Esperar([&](QWidget& dialogo) {
        v.Leer();
        QTest::keyClick(&dialogo, Qt::Key_F1);
        for (const int tecla : {Qt::Key_F9, Qt::Key_A, Qt::Key_Left}) {
            QTest::keyClick(&dialogo, static_cast<Qt::Key>(tecla));
        }
        EXPECT_EQ(v.Leer(), Diario{"ayuda " + v.escritorio.Path() + "\\corvanda.HLP 1 1"});
        EXPECT_EQ(Vista(v.estampas, dialogo), "&White Chips 0 0 ");
        Sortear(dialogo);
    });
    v.frm.mnuVs_Click();
}

/// Opens the speed dialog and hands it over when its buttons can be used.
void Con_Velocidad(Ventana& v, const std::function<void(QWidget&)>& mano) {
    v.vigilante.Esperar([&](QWidget& dialogo) {
        ASSERT_TRUE(QTest::qWaitFor(
            [&] { return Hallar<QPushButton>(dialogo, "BtnCancelar").isEnabled(); }));
        mano(dialogo);
        EXPECT_FALSE(dialogo.isVisible());
    });
    v.Entrada("mnuVel")->trigger();
    EXPECT_TRUE(v.vigilante.Gastado());
}

TEST(Velocidad, nothing_can_be_decided_before_the_chip_has_crossed) {
    const Escala escala = Escala::Para({1920, 1080});
    Ventana v(Ventana::Cajas::Diario, nullptr, escala);
    v.Abrir();
    v.vigilante.Esperar([&](QWidget& dialogo) {
        EXPECT_EQ(dialogo.windowTitle(), "Game Speed...");
        EXPECT_EQ(dialogo.size(), escala.Tamano(4770, 1815));
        Comparar_Sitios(dialogo, escala,
                        {{"Label1", 840, 480, 1935, 495},
                         {"TxtVel", 1200, 960, 1215, 495},
                         {"Label2", 120, 1440, 1095, 255},
                         {"Scroll", 1200, 1440, 1215, 255},
                         {"Label3", 2520, 1440, 1095, 255},
                         {"BtnAceptar", 3480, 840, 1215, 395},
                         {"BtnCancelar", 3480, 1320, 1215, 395},
                         {"Image3", 3840, 0, 480, 480}});
        auto& ok = Hallar<QPushButton>(dialogo, "BtnAceptar");
        auto& chip = Hallar<QLabel>(dialogo, "Image3");
        const QImage quieta = chip.pixmap().toImage();
        EXPECT_FALSE(quieta.isNull());
        EXPECT_FALSE(ok.isEnabled());
        for (const auto tecla : {Qt::Key_Escape, Qt::Key_Return}) QTest::keyClick(&dialogo, tecla);
        QTest::mouseClick(&Hallar<QPushButton>(dialogo, "BtnCancelar"), Qt::LeftButton);
        EXPECT_TRUE(dialogo.isVisible());
        ASSERT_TRUE(QTest::qWaitFor([&] { return ok.isEnabled(); }));
        EXPECT_EQ(chip.pos(), escala.Lugar(140, 0, 480, 480).topLeft());
        EXPECT_EQ(chip.pixmap().toImage(), quieta) << "the streaks are gone again";
        EXPECT_FALSE(Hallar<QLineEdit>(dialogo, "TxtVel").isEnabled());
        QTest::keyClick(&dialogo, Qt::Key_Escape);
        EXPECT_FALSE(dialogo.isVisible());
    });
    v.frm.mnuVel_Click();
    EXPECT_EQ(v.partida.Velocidad, 100);
}

TEST(Velocidad, shows_a_chip_even_where_its_picture_is_missing) {
    Partida partida;
    Estampas ninguna("/nonexistent");
    const Form1 dialogo(nullptr, partida, Escala(), ninguna);
    EXPECT_FALSE(Hallar<QLabel>(dialogo, "Image3").pixmap().isNull());
}

TEST(Velocidad, only_ok_changes_it_and_the_bar_shows_the_nearest_it_can) {
    const struct {
        Integer antes;
        const char* texto;
        std::vector<Qt::Key> teclas;
        Integer despues;
    } tabla[] = {
        {100, " 100", {Qt::Key_Home, Qt::Key_Return}, 1},
        {100, " 100", {Qt::Key_Home, Qt::Key_Escape}, 100},
        {100, " 100", {Qt::Key_Right, Qt::Key_Return}, 101},
        {1, " 1", {Qt::Key_End, Qt::Key_Enter}, 200},
        {0, " 1", {Qt::Key_Escape}, 0},
        {-5, " 1", {Qt::Key_Return}, 1},
        {32767, " 200", {Qt::Key_Escape}, 32767},
    };
    for (const auto& fila : tabla) {
        Ventana v;
        v.Abrir();
        v.partida.Velocidad = fila.antes;
        Con_Velocidad(v, [&](QWidget& dialogo) {
            auto& texto = Hallar<QLineEdit>(dialogo, "TxtVel");
            EXPECT_EQ(texto.text(), fila.texto);
            for (const Qt::Key tecla : fila.teclas) {
                QTest::keyClick(dialogo.focusWidget(), tecla);
                const int valor = Hallar<QScrollBar>(dialogo, "Scroll").value();
                EXPECT_EQ(texto.text(), " " + QString::number(valor));
            }
        });
        EXPECT_EQ(v.partida.Velocidad, fila.despues);
    }
}

}  // namespace
}  // namespace corvanda::pruebas
