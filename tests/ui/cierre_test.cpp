// The settings, read at load and saved after a confirmed quit, and all ways to the end.
#include "computer/computadora.h"
#include "tests/ui/ventana.h"

namespace corvanda::pruebas {
namespace {

TEST(Carga, The_Window_Is_Shown_With_Its_Chips_Before_It_Is_Dressed_And_Reads_The_Settings) {
    Ventana v;
    v.partida.Dobles = 3;
    v.escritorio.En_El_Pase(1, [&v] {
        EXPECT_TRUE(v.frm.isVisible());
        EXPECT_EQ(v.partida.Dobles, 0);
        EXPECT_EQ(Pila_En(v.partida, 11).Cuenta(), 5);
        EXPECT_EQ(v.partida.Tablero[1].Shown, Picture::None);
        QTest::keyClick(&v.frm, Qt::Key_F1);
        v.partida.Jugando = True;
    });
    v.frm.Form_Load();
    EXPECT_EQ(v.escritorio.Leer(),
              (Diario{"siembra", "puntero reloj", "puntero normal",
                      "ayuda " + v.escritorio.Path() + "\\corvanda.HLP 1 0", "lee Sonido",
                      "lee Nivel", "lee Velocidad", "cuenta dispositivos"}));
    EXPECT_EQ(v.partida.Tablero[1].Shown, v.partida.Tablero[0].Shown);
    EXPECT_EQ(v.partida.Jugando, False);
}

TEST(Ajustes, Stored_Texts_Become_Marks_And_Speed_And_Are_Written_Back) {
    const struct {
        const char *sonido, *nivel, *velocidad;  // nullptr: not stored
        unsigned dispositivos;
        Boolean Sonido;
        const char *sonido_despues, *nivel_despues, *velocidad_despues;
    } tabla[] = {
        {nullptr, nullptr, nullptr, 1, True, "-1", "Principiante", "100"},
        {"0", "Avanzado", "7.5", 1, False, "0", "Avanzado", "8"},
        {"1", "Principiante ", "99999", 1, True, "-1", "Avanzado", "32767"},
        {"abc", "", "", 1, False, "0", "Avanzado", "0"},
        {"-1", "Principiante", "100", 0, False, "-1", "Principiante", "100"},  // the mark is kept
    };
    for (const auto& fila : tabla) {
        SCOPED_TRACE(fila.velocidad_despues);
        Ventana v;
        const auto guardar = [&](const char* clave, const char* valor) {
            const std::string aplicacion = v.escritorio.Path() + "\\Corvanda.Ini";
            if (valor != nullptr) v.escritorio.almacen[{aplicacion, "Config", clave}] = valor;
        };
        guardar("Sonido", fila.sonido);
        guardar("Nivel", fila.nivel);
        guardar("Velocidad", fila.velocidad);
        v.escritorio.dispositivos = fila.dispositivos;
        v.Abrir();
        EXPECT_EQ(v.partida.Sonido, fila.Sonido);
        EXPECT_EQ(v.Entrada("mnuSonido")->isEnabled(), fila.dispositivos > 0);
        EXPECT_EQ(v.Entrada("mnuSonido")->isChecked(), std::string(fila.sonido_despues) == "-1");
        EXPECT_EQ(v.Entrada("mnuLev0")->isChecked(), fila.nivel_despues[0] == 'P');
        EXPECT_EQ(v.Entrada("mnuLev2")->isChecked(), fila.nivel_despues[0] == 'A');
        v.escritorio.Contestar(button::Yes);
        v.frm.mnuSalir_Click();
        EXPECT_EQ(v.Leer(), (Diario{PREGUNTA, std::string("guarda Sonido=") + fila.sonido_despues,
                                    std::string("guarda Nivel=") + fila.nivel_despues,
                                    std::string("guarda Velocidad=") + fila.velocidad_despues,
                                    "guarda todo"}));
    }
}

/// Counts how often the window said that it may close.
class Cierre : public testing::Test {
  protected:
    void Abrir(Ventana& v, const char* posicion = "dice 5 4") {
        terminadas = 0;
        QObject::connect(&v.frm, &FrmPrincipal::terminada, [this, &v] {
            EXPECT_TRUE(v.frm.Mesa().Cerrando()) << "the game ends before that is told";
            ++terminadas;
        });
        v.Poner(posicion);
    }
    int terminadas = 0;
};

TEST_F(Cierre, Only_A_Person_Is_Asked_And_Only_Yes_Saves) {
    const struct {
        Integer motivo, respuesta;  // 0: nobody is asked
        bool termina, guarda;
    } tabla[] = {
        {razon::Marco, button::Yes, true, true},
        {razon::Programa, button::No, false, false},
        {razon::Marco, button::No, false, false},
        {razon::Sistema, 0, true, false},
        {3, 0, true, false},
        {-1, 0, true, false},
    };
    for (const auto& fila : tabla) {
        Ventana v;
        Abrir(v);
        if (fila.respuesta != 0) v.escritorio.Contestar(fila.respuesta);
        if (fila.motivo == razon::Marco) {
            EXPECT_FALSE(v.frm.close()) << "the application ends the program, not the window";
        } else {
            v.frm.Descargar(fila.motivo);
        }
        EXPECT_EQ(terminadas, fila.termina ? 1 : 0) << fila.motivo;
        EXPECT_TRUE(v.escritorio.Respuestas_Gastadas()) << fila.motivo;
        EXPECT_EQ(v.escritorio.almacen.empty(), !fila.guarda) << fila.motivo;
    }
}

TEST_F(Cierre, Before_The_Settings_Were_Read_Nothing_Is_Saved) {
    Ventana v;
    v.escritorio.Contestar(button::Yes);
    v.escritorio.En_El_Pase(1, [&] { v.frm.close(); });
    v.frm.Form_Load();
    EXPECT_TRUE(v.frm.Mesa().Cerrando());
    EXPECT_TRUE(v.escritorio.almacen.empty());
}

TEST_F(Cierre, A_Store_That_Fails_Gives_One_Message_And_The_Program_Ends_Once) {
    Ventana v;
    Abrir(v);
    v.escritorio.fallo_al_guardar = "The settings could not be saved.";
    v.escritorio.Contestar(button::Yes);
    v.escritorio.Contestar(button::Ok, [&] { v.frm.Descargar(razon::Sistema); });
    v.frm.mnuSalir_Click();
    EXPECT_EQ(v.Leer().back(), "caja 48 [Corvanda] The settings could not be saved.");
    v.frm.mnuSalir_Click();
    EXPECT_EQ(v.Leer(), Diario{});
    EXPECT_EQ(terminadas, 1);
}

// Each window open when the wish to quit comes, by a person who says Yes or by the system.
TEST_F(Cierre, Over_Every_Window_Is_Asked_Once_And_Nothing_Follows) {
    const std::pair<const char*, std::function<void(Ventana&)>> tabla[] = {
        {"FrmVolado", [](Ventana& v) { v.frm.mnuNew_Click(); }},
        {"Form1", [](Ventana& v) { v.frm.mnuVel_Click(); }},
        {"MsgBox", [](Ventana& v) { v.Entrada("mnuPasar")->trigger(); }},
        {"MsgBox", [](Ventana& v) { v.frm.close(); }},
    };
    for (const auto& [nombre, abre] : tabla) {
        for (const bool sistema : {false, true}) {
            SCOPED_TRACE(nombre);
            Ventana v(Ventana::Cajas::Reales);
            Abrir(v);
            const Partida antes = v.partida;
            v.vigilante.Esperar([&, esperado = nombre](QWidget& ventana) {
                EXPECT_EQ(ventana.objectName(), esperado);
                const bool pregunta = ventana.windowTitle() == "¿ Exit ?";
                if (!pregunta && !sistema)
                    v.vigilante.Esperar(
                        [](QWidget& caja) { QTest::keyClick(&caja, Qt::Key_Enter); });
                v.frm.Descargar(sistema ? razon::Sistema : razon::Marco);
                EXPECT_EQ(terminadas, pregunta && !sistema ? 0 : 1) << "one question is enough";
                pregunta ? void(QTest::keyClick(&ventana, Qt::Key_Return)) : void(ventana.close());
            });
            abre(v);
            EXPECT_EQ(terminadas, 1);
            EXPECT_EQ(v.escritorio.almacen.empty(), sistema);
            EXPECT_EQ(v.partida.Turno, antes.Turno);
            EXPECT_TRUE(v.vigilante.Gastado());
        }
    }
}

TEST_F(Cierre, In_A_Roll_And_In_The_Computers_Pause_No_Move_Sound_Or_Box_Follows) {
    for (const int pase : {1, 2, 3, 4, 8, 12}) {
        Computadora computadora;
        Ventana v(Ventana::Cajas::Diario, &computadora);
        Abrir(v, "dice 5 0");
        v.partida.Velocidad = 4;
        v.partida.Nivel = AVANZADO;
        v.partida.Sonido = True;
        v.escritorio.Dados({3, 2});
        v.escritorio.Contestar(button::Yes);
        const int ultimo = v.escritorio.Pases() + pase;
        Partida antes;
        v.escritorio.En_El_Pase(pase, [&] {
            v.frm.close();
            antes = v.partida;
        });
        v.raton.Arrastrar(v.Centro({Arreglo::Blanca, 11}), v.Base(16));
        EXPECT_EQ(terminadas, 1) << pase;
        EXPECT_EQ(v.partida, antes) << pase;
        EXPECT_EQ(v.Leer().back(), "guarda todo") << pase;
        EXPECT_TRUE(pase < 8 || v.escritorio.Pases() == ultimo) << "the pause does not go on";
    }
}

}  // namespace
}  // namespace corvanda::pruebas
