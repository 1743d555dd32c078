// The start-up screen, over a media control that only notes what it is told.
#include "ui/frm_about.h"

#include <QLabel>

#include "tests/apoyo/sin_nombre.h"
#include "tests/ui/ventana.h"

namespace corvanda::pruebas {
namespace {

/// Notes the commands, with A for the film's name, and answers the state that the test wants.
struct Cine : MediaControl {
    long mciSendString(const std::string& command, std::string& reply) override {
        const std::string nombre = R"("/opt/juegos de mesa/corvanda\Corvanda.avi")";
        std::string linea = command;
        const auto sitio = linea.find(nombre);
        if (sitio != std::string::npos) linea.replace(sitio, nombre.size(), "A");
        diario.push_back(linea);
        reply = command.starts_with("Status") ? estado : "";
        return 0;
    }
    Diario Leer() { return std::exchange(diario, {}); }

    Diario diario;
    std::string estado = "playing";
};

class AcercaTest : public testing::Test {
  protected:
    FrmAbout& Mostrar() {
        acerca.reset();
        cerrada = false;
        acerca = std::make_unique<FrmAbout>(
            nullptr, veces, FrmAbout::Servicios_De_Acerca{cine, escritorio, escritorio}, Escala(),
            Carpeta_De_Imagenes(), [this] {
                cerrada = true;
                cine.diario.emplace_back("principal");
                EXPECT_FALSE(acerca->isVisible());
                EXPECT_TRUE(escritorio.reloj_de_arena);
            });
        acerca->show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(acerca.get()));
        acerca->findChild<QTimer*>("Timer1")->stop();  // the test gives the ticks
        acerca->resize(800, 700);  // the screen of a test may be too small for the texts
        return *acerca;
    }
    QWidget* De(const char* nombre) const { return acerca->findChild<QWidget*>(nombre); }

    Escritorio escritorio;
    Cine cine;
    Integer veces = 0;
    bool cerrada = false;
    std::unique_ptr<FrmAbout> acerca;
};

TEST_F(AcercaTest, opens_the_film_restarts_it_when_it_stopped_and_closes_it_once) {
    FrmAbout& ventana = Mostrar();
    const auto manija = std::to_string(reinterpret_cast<std::uintptr_t>(De("Picture1")));
    EXPECT_EQ(cine.Leer(), (Diario{"Open A Wait", "Window A handle  " + manija,
                                   "Put A destination at 0 0 200 150"}));
    EXPECT_EQ(Sin_Nombre(ventana), "");
    for (const char* estado : {"stopped", "Seeking", "s", "playing", "paused", " stopped", ""}) {
        const bool parada = std::toupper(estado[0]) == 'S';
        cine.estado = estado;
        ventana.Timer1_Timer();
        EXPECT_EQ(cine.Leer(), parada ? (Diario{"Status A Mode", "Seek A to 0", "Play A"})
                                      : Diario{"Status A Mode"})
            << estado;
    }
    ventana.close();
    EXPECT_EQ(cine.Leer(), (Diario{"Close A", "principal"}));
    ventana.Close_About();
    acerca.reset();
    EXPECT_EQ(cine.Leer(), Diario{}) << "closed once, whatever comes after";
    Mostrar();
    cine.Leer();
    acerca.reset();
    EXPECT_EQ(cine.Leer(), Diario{"Close A"}) << "a window that is taken away shows nothing";
}

TEST_F(AcercaTest, closes_at_exactly_the_thirtieth_tick_of_all_showings) {
    const struct {
        Integer antes;
        int latidos;  // 0: not within a hundred
        Integer despues;
    } tabla[] = {{0, 30, 30}, {29, 1, 30}, {30, 0, 130}, {-5, 35, 30}, {32767, 0, -32669}};
    for (const auto& fila : tabla) {
        veces = fila.antes;
        Mostrar();
        int latidos = 0;
        for (; !cerrada && latidos < 100; ++latidos) acerca->Timer1_Timer();
        EXPECT_EQ(cerrada ? latidos : 0, fila.latidos) << fila.antes;
        EXPECT_EQ(veces, fila.despues);
    }
}

TEST_F(AcercaTest, a_click_that_begins_and_ends_beside_the_texts_closes_it) {
    const struct {
        const char *desde, *hasta;
        bool direccion, cierra;
    } tabla[] = {
        {"Image1", "Image2", false, true},     {"Picture1", "Picture1", false, true},
        {"Label1", "Label1", false, false},    {"Label1", "Image1", false, false},
        {"Image1", "Label1", false, false},    {"lblDisp1", "lblDisp1", false, true},
        {"lblDisp1", "lblDisp1", true, false},
    };
    for (const auto& fila : tabla) {
        FrmAbout& ventana = Mostrar();
        if (fila.direccion) ventana.Mostrar_Direccion();
        const auto lugar = [this](const char* nombre) { return De(nombre)->geometry().center(); };
        QTest::mousePress(ventana.windowHandle(), Qt::LeftButton, {}, lugar(fila.desde));
        EXPECT_FALSE(cerrada);
        QTest::mouseRelease(ventana.windowHandle(), Qt::LeftButton, {}, lugar(fila.hasta));
        EXPECT_EQ(cerrada, fila.cierra) << fila.desde << fila.hasta << fila.direccion;
    }
}

TEST_F(AcercaTest, a_key_that_types_a_character_closes_it) {
    for (const auto tecla : {Qt::Key_Return, Qt::Key_Escape, Qt::Key_Space, Qt::Key_A,
                             Qt::Key_Backspace, Qt::Key_Tab}) {
        QTest::keyClick(&Mostrar(), tecla);
        EXPECT_TRUE(cerrada) << tecla;
    }
    FrmAbout& ventana = Mostrar();
    for (const auto tecla : {Qt::Key_Shift, Qt::Key_Left, Qt::Key_F1, Qt::Key_Home, Qt::Key_Delete})
        QTest::keyClick(&ventana, tecla);
    QTest::keyClick(&ventana, Qt::Key_A, Qt::AltModifier);
    QKeyEvent repetida(QEvent::KeyPress, Qt::Key_Return, {}, "\r", true);
    QCoreApplication::sendEvent(&ventana, &repetida);
    EXPECT_FALSE(cerrada);
}

}  // namespace
}  // namespace corvanda::pruebas
