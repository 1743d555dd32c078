#include <QScreen>

#include "tests/ui/acerca.h"

namespace corvanda::pruebas {
namespace {

// The film

TEST_F(AcercaTest, loading_opens_the_film_in_the_black_box_under_the_hourglass) {
    Hacer();
    const auto manija = reinterpret_cast<std::uintptr_t>(De("Picture1"));
    EXPECT_EQ(cine.Leer(), (Diario{"Open A Wait", "Window A handle  " + std::to_string(manija),
                                   "Put A destination at 0 0 200 150"}));
    EXPECT_EQ(escritorio.Leer(), (Diario{"puntero reloj", "puntero normal"}));
}

TEST_F(AcercaTest, only_a_stopped_film_is_played_again) {
    Mostrar();
    const Diario otra_vez{"Status A Mode", "Seek A to 0", "Play A"};
    const Diario nada_mas{"Status A Mode"};
    const struct {
        const char* estado;
        long fallo;
        Diario ordenes;
    } tabla[] = {
        {"stopped", 0, otra_vez},  {"Seeking", 0, otra_vez}, {"s", 0, otra_vez},
        {"playing", 0, nada_mas},  {"paused", 0, nada_mas},  {"not ready", 0, nada_mas},
        {" stopped", 0, nada_mas}, {"", 263, nada_mas},      {"", 0, nada_mas},
    };
    for (const auto& fila : tabla) {
        cine.estado = fila.estado;
        cine.fallo = fila.fallo;
        acerca->Timer1_Timer();
        EXPECT_EQ(cine.Leer(), fila.ordenes) << fila.estado;
    }
}

TEST_F(AcercaTest, closing_stops_the_clock_closes_the_film_and_then_shows_the_main_window) {
    FrmAbout& ventana = Mostrar();
    escritorio.Leer();
    ventana.Close_About();
    EXPECT_EQ(cine.Leer(), (Diario{"Close A", "principal"}));
    EXPECT_EQ(escritorio.Leer(), (Diario{"puntero reloj", "puntero normal"}));
    ventana.Close_About();
    acerca.reset();
    EXPECT_EQ(cine.Leer(), Diario{}) << "closed once, whatever comes after";
}

TEST_F(AcercaTest, its_own_clock_ticks_while_it_is_open_and_not_after) {
    FrmAbout& ventana = Hacer();
    ventana.show();
    ASSERT_TRUE(QTest::qWaitFor([this] { return veces >= 2; }));
    ventana.Close_About();
    const Integer al_cerrar = veces;
    cine.Leer();
    QTest::qWait(250);
    EXPECT_EQ(veces, al_cerrar);
    EXPECT_EQ(cine.Leer(), Diario{});
}

TEST_F(AcercaTest, a_window_that_is_taken_away_closes_its_film_and_shows_nothing) {
    Mostrar();
    acerca.reset();
    EXPECT_EQ(cine.Leer(), Diario{"Close A"});
}

// The counter

TEST_F(AcercaTest, it_closes_at_exactly_the_thirtieth_tick_of_all_showings) {
    const struct {
        Integer antes;
        int latidos;  // 0: not within a hundred
        Integer despues;
    } tabla[] = {{0, 30, 30}, {10, 20, 30}, {29, 1, 30}, {30, 0, 130}, {-5, 35, 30}, {500, 0, 600}};
    for (const auto& fila : tabla) {
        veces = fila.antes;
        veces_mostrada = 0;
        Mostrar();
        int latidos = 0;
        while (!Cerrada() && latidos < 100) {
            acerca->Timer1_Timer();
            ++latidos;
        }
        EXPECT_EQ(Cerrada() ? latidos : 0, fila.latidos) << fila.antes;
        EXPECT_EQ(veces, fila.despues);
    }
}

TEST_F(AcercaTest, the_counter_goes_on_from_showing_to_showing_and_wraps) {
    Mostrar();
    for (int i = 0; i < 10; ++i) acerca->Timer1_Timer();
    acerca->Close_About();
    Mostrar();
    EXPECT_EQ(veces, 10);
    veces = 32767;
    acerca->Timer1_Timer();
    EXPECT_EQ(veces, -32768);
    EXPECT_TRUE(acerca->isVisible());
}

// What closes it

TEST_F(AcercaTest, a_click_closes_it_everywhere_but_on_a_text) {
    const struct {
        const char* donde;
        bool direccion;
        bool cierra;
    } tabla[] = {
        {"Image1", false, true},   {"Image2", false, true},   {"Picture1", false, true},
        {"", false, true},         {"Label1", false, false},  {"Label5", false, false},
        {"lblDisp1", false, true}, {"lblDisp1", true, false}, {"lblDisp2", true, false},
    };
    for (const auto& fila : tabla) {
        veces_mostrada = 0;
        FrmAbout& ventana = Mostrar();
        ventana.resize(800, 700);  // the screen of a test may be too small for the texts
        if (fila.direccion) ventana.Mostrar_Direccion();
        const QPoint punto = *fila.donde ? De(fila.donde)->geometry().center() : QPoint(3, 300);
        QTest::mouseClick(ventana.windowHandle(), Qt::LeftButton, {}, punto);
        EXPECT_EQ(Cerrada(), fila.cierra) << fila.donde << fila.direccion;
    }
}

TEST_F(AcercaTest, a_click_begins_and_ends_on_the_window) {
    FrmAbout& ventana = Mostrar();
    ventana.resize(800, 700);
    const QPoint libre(3, 300);
    const QPoint texto = De("Label1")->geometry().center();
    for (const auto& [desde, hasta] : {std::pair(texto, libre), std::pair(libre, texto)}) {
        QTest::mousePress(ventana.windowHandle(), Qt::LeftButton, {}, desde);
        QTest::mouseRelease(ventana.windowHandle(), Qt::LeftButton, {}, hasta);
        EXPECT_FALSE(Cerrada());
    }
    QTest::mousePress(ventana.windowHandle(), Qt::LeftButton, {}, libre);
    EXPECT_FALSE(Cerrada());
    QTest::mouseRelease(ventana.windowHandle(), Qt::LeftButton, {}, libre);
    EXPECT_TRUE(Cerrada());
}

TEST_F(AcercaTest, a_key_that_types_a_character_closes_it) {
    const struct {
        Qt::Key tecla;
        Qt::KeyboardModifiers con;
        bool cierra;
    } tabla[] = {
        {Qt::Key_Return, {}, true},
        {Qt::Key_Escape, {}, true},
        {Qt::Key_Space, {}, true},
        {Qt::Key_A, {}, true},
        {Qt::Key_7, {}, true},
        {Qt::Key_Enter, Qt::KeypadModifier, true},
        {Qt::Key_Backspace, {}, true},
        {Qt::Key_Tab, {}, true},
        {Qt::Key_A, Qt::ShiftModifier, true},
        {Qt::Key_Shift, {}, false},
        {Qt::Key_Left, {}, false},
        {Qt::Key_F1, {}, false},
        {Qt::Key_Control, {}, false},
        {Qt::Key_Home, {}, false},
        {Qt::Key_PageDown, {}, false},
        {Qt::Key_Delete, {}, false},
        {Qt::Key_F12, {}, false},
        {Qt::Key_A, Qt::AltModifier, false},
        {Qt::Key_CapsLock, {}, false},
        {Qt::Key_Insert, {}, false},
    };
    for (const auto& fila : tabla) {
        veces_mostrada = 0;
        QTest::keyClick(&Mostrar(), fila.tecla, fila.con);
        EXPECT_EQ(Cerrada(), fila.cierra) << fila.tecla;
    }
}

// As a desktop sends them: a held key comes again and again, and Delete comes with a character.
TEST_F(AcercaTest, keys_that_only_look_like_typing_do_not_close_it) {
    FrmAbout& ventana = Mostrar();
    QKeyEvent repetida(QEvent::KeyPress, Qt::Key_Return, {}, "\r", true);
    QKeyEvent suprimir(QEvent::KeyPress, Qt::Key_Delete, {}, "\x7f");
    for (QKeyEvent* tecla : {&repetida, &suprimir}) QCoreApplication::sendEvent(&ventana, tecla);
    EXPECT_FALSE(Cerrada());
}

TEST_F(AcercaTest, the_close_of_the_frame_shows_the_main_window_too) {
    Mostrar().close();
    EXPECT_EQ(cine.Leer(), (Diario{"Close A", "principal"}));
    EXPECT_FALSE(acerca->isVisible());
}

TEST_F(AcercaTest, a_modal_showing_ends_with_the_window) {
    FrmAbout& ventana = Hacer();
    QTimer::singleShot(0, &ventana, [&ventana] {
        EXPECT_TRUE(ventana.isModal());
        ventana.Close_About();
    });
    ventana.exec();
    EXPECT_EQ(veces_mostrada, 1);
}

// The layout

TEST_F(AcercaTest, everything_is_centred_on_the_screen_in_twips) {
    for (const double lado : {616, 800, 1400}) {
        const Escala escala = Escala::Para(QSizeF(lado * 1.4, lado));
        FrmAbout& ventana = Hacer(escala);
        const QRect pantalla = ventana.screen()->geometry();
        EXPECT_EQ(ventana.geometry(), pantalla);
        EXPECT_TRUE(ventana.isFullScreen());
        const double medio = escala.Twips(pantalla.width()) / 2;
        const struct {
            const char* nombre;
            double corrido, top, width, height;
        } tabla[] = {
            {"Image1", 0, -120, 2685, 2385},    {"Picture1", 0, 2400, 3000, 2250},
            {"Image2", 0, 4710, 6555, 2700},    {"Label1", 0, 7690, 7335, 600},
            {"Label5", -30, 7740, 7335, 600},   {"lblDisp1", 0, 8640, 7335, 600},
            {"lblDisp2", -30, 8610, 7335, 600},
        };
        for (const auto& fila : tabla) {
            const QRect lugar = escala.Lugar(medio - fila.width / 2 + fila.corrido, fila.top,
                                             fila.width, fila.height);
            EXPECT_EQ(De(fila.nombre)->geometry(), lugar) << fila.nombre;
        }
    }
}

TEST_F(AcercaTest, another_size_than_the_screens_is_centred_in_too) {
    FrmAbout& ventana = Mostrar();
    ventana.resize(1200, 900);
    EXPECT_EQ(De("Picture1")->x(), (1200 - 200) / 2);
}

TEST_F(AcercaTest, of_each_pair_of_texts_the_grey_one_lies_over_the_white_one) {
    FrmAbout& ventana = Mostrar();
    ventana.Mostrar_Direccion();
    const auto orden = ventana.children();
    const std::pair<const char*, const char*> pares[] = {{"Label5", "Label1"},
                                                         {"lblDisp1", "lblDisp2"}};
    for (const auto& [debajo, encima] : pares) {
        const auto* blanca = De<QLabel>(debajo);
        const auto* gris = De<QLabel>(encima);
        EXPECT_LT(orden.indexOf(blanca), orden.indexOf(gris)) << debajo;
        EXPECT_EQ(blanca->text(), gris->text());
        EXPECT_EQ(blanca->palette().color(QPalette::WindowText), QColor(Qt::white));
        EXPECT_EQ(gris->palette().color(QPalette::WindowText).saturation(), 0);
        EXPECT_LT(gris->palette().color(QPalette::WindowText).lightness(), 200);
        EXPECT_TRUE(gris->font().bold());
        EXPECT_EQ(gris->font().pixelSize(), 16);
    }
    EXPECT_EQ(De<QLabel>("Label1")->text().count('\n'), 1);
    EXPECT_TRUE(De<QLabel>("Label1")->text().contains("authors@corvanda.example"));
    EXPECT_EQ(De<QLabel>("lblDisp1")->text(), "https://corvanda.example");
}

TEST_F(AcercaTest, the_web_address_is_shown_only_when_it_is_asked_for) {
    FrmAbout& ventana = Mostrar();
    EXPECT_TRUE(De("Label1")->isVisible());
    for (const char* nombre : {"lblDisp1", "lblDisp2"}) EXPECT_FALSE(De(nombre)->isVisible());
    ventana.Mostrar_Direccion();
    for (const char* nombre : {"lblDisp1", "lblDisp2"}) EXPECT_TRUE(De(nombre)->isVisible());
}

TEST_F(AcercaTest, it_is_black_and_has_no_frame) {
    FrmAbout& ventana = Mostrar();
    EXPECT_TRUE(ventana.windowFlags() & Qt::FramelessWindowHint);
    EXPECT_EQ(ventana.windowTitle(), "Acerca de...");
    const QImage foto = ventana.grab().toImage();
    EXPECT_EQ(foto.pixelColor(1, 1), QColor(Qt::black));
    EXPECT_EQ(foto.pixelColor(foto.width() / 2, 200), QColor(Qt::black)) << "without a film";
}

}  // namespace
}  // namespace corvanda::pruebas
