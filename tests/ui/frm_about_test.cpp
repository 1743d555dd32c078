// The start-up screen, over a media control that only notes what it is told.
#include "ui/frm_about.h"

#include <QLabel>

#include "tests/apoyo/sin_nombre.h"
#include "tests/ui/ventana.h"

namespace corvanda::pruebas {
namespace {

/// Notes the commands in the desktop's journal, with A for the film's name, and answers the state
/// that the test wants.
struct Cine : MediaControl {
    explicit Cine(Diario& diario) : diario(diario) {}
    long mciSendString(const std::string& command, std::string& reply) override {
        const std::string nombre = R"("/opt/juegos de mesa/corvanda\Corvanda.avi")";
        std::string linea = command;
        const auto sitio = linea.find(nombre);
        if (sitio != std::string::npos) linea.replace(sitio, nombre.size(), "A");
        diario.push_back(linea);
        reply = command.starts_with("Status") ? estado : "";
        return 0;
    }

    Diario& diario;
    std::string estado = "playing";
};

class Acerca : public testing::Test {
  protected:
    FrmAbout& Mostrar() {
        acerca.reset();
        cerrada = false;
        escritorio.Leer();
        acerca = std::make_unique<FrmAbout>(
            nullptr, veces, FrmAbout::Servicios_De_Acerca{cine, escritorio, escritorio}, Escala(),
            Carpeta_De_Imagenes(), [this] {
                cerrada = true;
                escritorio.diario.emplace_back("principal");
                EXPECT_FALSE(acerca->isVisible());
            });
        acerca->show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(acerca.get()));
        acerca->findChild<QTimer*>("Timer1")->stop();  // the test lets the time pass
        acerca->resize(800, 700);  // the screen of a test may be too small for the texts
        return *acerca;
    }
    /// Lets a time pass that is a whole number of ticks.
    void Pasar(int milisegundos) {
        const int latido = acerca->findChild<QTimer*>("Timer1")->interval();
        ASSERT_EQ(milisegundos % latido, 0);
        for (int i = 0; i < milisegundos / latido && !cerrada; ++i) acerca->Timer1_Timer();
    }
    QWidget* De(const char* nombre) const { return acerca->findChild<QWidget*>(nombre); }

    Escritorio escritorio;
    Cine cine{escritorio.diario};
    Integer veces = 0;
    bool cerrada = false;
    std::unique_ptr<FrmAbout> acerca;
};

TEST_F(Acerca, The_Start_Up_Screen_Plays_Its_Film_For_Three_Seconds_And_Hands_Over) {
    FrmAbout& ventana = Mostrar();
    const auto manija = std::to_string(reinterpret_cast<std::uintptr_t>(De("Picture1")));
    EXPECT_EQ(escritorio.Leer(),
              (Diario{"puntero reloj", "Open A Wait", "Window A handle  " + manija,
                      "Put A destination at 0 0 200 150", "puntero normal"}));
    EXPECT_EQ(Sin_Nombre(ventana), "");
    Pasar(100);
    EXPECT_EQ(escritorio.Leer(), Diario{"Status A Mode"});
    for (const char* estado : {"stopped", "Seeking", "s", "playing", "paused", " stopped", ""}) {
        const bool parada = std::toupper(estado[0]) == 'S';
        cine.estado = estado;
        Pasar(100);
        EXPECT_EQ(escritorio.Leer(), parada ? (Diario{"Status A Mode", "Seek A to 0", "Play A"})
                                            : Diario{"Status A Mode"})
            << estado;
    }
    Pasar(2100);
    EXPECT_EQ(escritorio.Leer(), Diario(21, "Status A Mode"));
    EXPECT_FALSE(cerrada);
    Pasar(100);
    EXPECT_EQ(escritorio.Leer(),
              (Diario{"Status A Mode", "puntero reloj", "Close A", "principal", "puntero normal"}));
    ventana.Close_About();
    acerca.reset();
    EXPECT_EQ(escritorio.Leer(), Diario{}) << "closed once, whatever comes after";
    Mostrar().close();
    EXPECT_TRUE(cerrada);
    Mostrar();
    escritorio.Leer();
    acerca.reset();
    EXPECT_EQ(escritorio.Leer(), Diario{"Close A"}) << "a window that is taken away shows nothing";
}

TEST_F(Acerca, Closes_By_Itself_At_The_Thirtieth_Tick_Of_All_Showings_And_At_No_Other) {
    Mostrar();
    Pasar(1000);
    acerca->Close_About();
    Mostrar();
    Pasar(1900);
    EXPECT_FALSE(cerrada);
    Pasar(100);
    EXPECT_TRUE(cerrada);
    for (const int antes : {30, 32767, -20}) {
        veces = static_cast<Integer>(antes);
        Mostrar();
        Pasar(4900);
        EXPECT_FALSE(cerrada) << antes;
        Pasar(100);
        EXPECT_EQ(cerrada, antes == -20) << antes;
    }
}

TEST_F(Acerca, A_Click_That_Begins_And_Ends_Beside_The_Texts_Closes_It) {
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

TEST_F(Acerca, A_Key_That_Types_A_Character_Closes_It) {
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
