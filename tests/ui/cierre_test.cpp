// The settings, read at load and saved after a confirmed quit, and all ways to the end.
#include <gtest/gtest.h>

#include "computer/computadora.h"
#include "tests/ui/ventana.h"

namespace corvanda::pruebas {
namespace {

using Almacen = decltype(Escritorio::almacen);

constexpr const char* APLICACION = "/opt/juegos de mesa/corvanda\\Corvanda.Ini";

void Guardar(Almacen& almacen, const char* clave, const char* valor) {
    if (valor != nullptr) almacen[{APLICACION, "Config", clave}] = valor;
}

std::string Guardado(const Almacen& almacen, const char* clave) {
    const auto hallado = almacen.find({APLICACION, "Config", clave});
    return hallado == almacen.end() ? "(none)" : hallado->second;
}

TEST(Ajustes, stored_texts_become_marks_and_speed_and_are_written_back) {
    const struct {
        const char *sonido, *nivel, *velocidad;  // nullptr: not stored
        unsigned dispositivos;
        Boolean Sonido;
        bool principiante;
        Integer Velocidad;
        const char *sonido_despues, *velocidad_despues;
    } tabla[] = {
        {nullptr, nullptr, nullptr, 1, True, true, 100, "-1", "100"},
        {"0", "Avanzado", "7", 1, False, false, 7, "0", "7"},
        {"-1", "principiante", "7.5", 2, True, false, 8, "-1", "8"},
        {"1", "Principiante ", "2.5", 1, True, false, 2, "-1", "2"},
        {"abc", "", "", 1, False, false, 0, "0", "0"},
        {"12abc", "Principiante", "12abc", 1, True, true, 12, "-1", "12"},
        {" 0.4", "Principiante", "  33", 1, True, true, 33, "-1", "33"},
        {"", "Principiante", "1e2", 1, False, true, 100, "0", "100"},
        {"0", "Principiante", "99999", 1, False, true, 32767, "0", "32767"},
        {"0", "Principiante", "-99999", 1, False, true, -32768, "0", "-32768"},
        {"-1", "Principiante", "100", 0, False, true, 100, "-1", "100"},  // the mark, not Sonido
        {"0", "Principiante", "100", 0, False, true, 100, "0", "100"},
    };
    for (const auto& fila : tabla) {
        Ventana v;
        SCOPED_TRACE(std::string(fila.velocidad != nullptr ? fila.velocidad : "(none)"));
        Guardar(v.escritorio.almacen, "Sonido", fila.sonido);
        Guardar(v.escritorio.almacen, "Nivel", fila.nivel);
        Guardar(v.escritorio.almacen, "Velocidad", fila.velocidad);
        v.escritorio.dispositivos = fila.dispositivos;
        v.Abrir();
        EXPECT_EQ(v.partida.Sonido, fila.Sonido);
        EXPECT_EQ(v.Entrada("mnuSonido")->isEnabled(), fila.dispositivos > 0);
        EXPECT_EQ(v.Entrada("mnuSonido")->isChecked(), std::string(fila.sonido_despues) == "-1");
        EXPECT_EQ(v.Entrada("mnuLev0")->isChecked(), fila.principiante);
        EXPECT_EQ(v.Entrada("mnuLev2")->isChecked(), !fila.principiante);
        EXPECT_EQ(v.partida.Velocidad, fila.Velocidad);
        EXPECT_EQ(v.partida.Nivel, DOS_PERSONAS);
        EXPECT_EQ(v.partida.Jugando, False);

        v.escritorio.Contestar(button::Yes);
        v.frm.mnuSalir_Click();
        const std::string nivel = fila.principiante ? "Principiante" : "Avanzado";
        EXPECT_EQ(v.Leer(), (Diario{PREGUNTA, std::string("guarda Sonido=") + fila.sonido_despues,
                                    "guarda Nivel=" + nivel,
                                    std::string("guarda Velocidad=") + fila.velocidad_despues,
                                    "guarda todo"}));
    }
}

/// Counts how often the window said that it may close.
class Cierre : public testing::Test {
  protected:
    void Abrir(Ventana& v) {
        QObject::connect(&v.frm, &FrmPrincipal::terminada, [this] { ++terminadas; });
        v.Abrir();
    }
    int terminadas = 0;
};

TEST_F(Cierre, only_a_person_is_asked_and_only_yes_saves) {
    const struct {
        Integer motivo;
        Integer respuesta;  // 0: nobody is asked
        bool termina, guarda;
    } tabla[] = {
        {razon::Marco, button::Yes, true, true},
        {razon::Programa, button::Yes, true, true},
        {razon::Marco, button::No, false, false},
        {razon::Programa, button::No, false, false},
        {razon::Sistema, 0, true, false},
        {3, 0, true, false},
        {-1, 0, true, false},
    };
    for (const auto& fila : tabla) {
        Ventana v;
        terminadas = 0;
        Abrir(v);
        v.Poner("B 11x3 bar1 | C 5x4 3x1 | dice 5 4");
        v.Entrada("mnuSonido")->trigger();
        const Partida antes = v.partida;
        if (fila.respuesta != 0) v.escritorio.Contestar(fila.respuesta);
        if (fila.motivo == razon::Marco) {
            EXPECT_FALSE(v.frm.close()) << "the application ends the program, not the window";
        } else {
            v.frm.Descargar(fila.motivo);
        }
        EXPECT_EQ(terminadas, fila.termina ? 1 : 0) << fila.motivo;
        EXPECT_EQ(v.partida, antes) << fila.motivo;
        const Diario diario = v.Leer();
        EXPECT_EQ(std::count(diario.begin(), diario.end(), PREGUNTA), fila.respuesta != 0 ? 1 : 0);
        EXPECT_EQ(Guardado(v.escritorio.almacen, "Velocidad"), fila.guarda ? "100" : "(none)");
    }
}

TEST_F(Cierre, a_store_that_fails_gives_one_message_and_the_program_ends) {
    for (const bool sistema : {false, true}) {
        Ventana v;
        terminadas = 0;
        Abrir(v);
        v.escritorio.fallo_al_guardar = "The settings could not be saved.";
        v.escritorio.Contestar(button::Yes);
        v.escritorio.Contestar(button::Ok, [&] {
            if (sistema) v.frm.Descargar(razon::Sistema);
        });
        v.frm.mnuSalir_Click();
        EXPECT_EQ(v.Leer().back(), "caja 48 [Corvanda] The settings could not be saved.");
        v.frm.mnuSalir_Click();
        v.frm.Descargar(razon::Sistema);
        EXPECT_EQ(v.Leer(), Diario{});
        EXPECT_EQ(terminadas, 1) << "once is enough";
    }
}

TEST_F(Cierre, in_the_real_box_enter_is_yes_and_esc_is_no) {
    for (const auto tecla : {Qt::Key_Escape, Qt::Key_Return}) {
        Ventana v(Ventana::Cajas::Reales);
        Abrir(v);
        v.vigilante.Esperar([&](QWidget& caja) {
            v.frm.mnuSalir_Click();  // a second wish while the question is open asks nothing more
            EXPECT_EQ(Caja_De(caja), PREGUNTA);
            QTest::keyClick(&caja, tecla);
        });
        v.frm.close();
        EXPECT_EQ(v.vigilante.cajas.size(), 1U);
        EXPECT_EQ(terminadas, tecla == Qt::Key_Return ? 1 : 0);
        EXPECT_EQ(Guardado(v.escritorio.almacen, "Sonido"),
                  tecla == Qt::Key_Return ? "-1" : "(none)");
    }
}

/// What happens between the end of the settings and now: nothing but a pointer put back.
void Nada_Mas(Ventana& v) {
    const Diario diario = v.Leer();
    const auto fin = std::find(diario.begin(), diario.end(), "guarda todo");
    ASSERT_NE(fin, diario.end());
    EXPECT_EQ(Diario(fin + 1, diario.end()), Diario{});
}

TEST_F(Cierre, in_the_middle_of_a_roll_nothing_follows) {
    for (int pase = 1; pase <= 4; ++pase) {
        Ventana v;
        terminadas = 0;
        Abrir(v);
        v.Poner("dice 5 0");
        v.partida.Sonido = True;
        v.escritorio.Dados({3, 2});
        v.escritorio.Contestar(button::Yes);
        v.escritorio.En_El_Pase(pase, [&v] { v.frm.close(); });
        v.raton.Arrastrar(v.Centro({Arreglo::Blanca, 11}), v.Base(16));
        EXPECT_EQ(terminadas, 1) << pase;
        EXPECT_EQ(v.partida.Jugando, False);
        Nada_Mas(v);
    }
}

TEST_F(Cierre, in_the_computers_pause_no_move_sound_or_box_follows) {
    for (const bool sistema : {false, true}) {
        Computadora computadora;
        Ventana v(Ventana::Cajas::Diario, &computadora);
        terminadas = 0;
        Abrir(v);
        v.Poner("dice 5 0");
        v.partida.Velocidad = 4;
        v.partida.Nivel = AVANZADO;
        v.partida.Sonido = True;
        v.escritorio.Dados({3, 2});
        if (!sistema) v.escritorio.Contestar(button::Yes);
        Partida antes;
        const int ultimo = v.escritorio.Pases() + 8;
        v.escritorio.En_El_Pase(8, [&] {
            v.Leer();
            v.frm.Descargar(sistema ? razon::Sistema : razon::Marco);
            antes = v.partida;
        });
        v.raton.Arrastrar(v.Centro({Arreglo::Blanca, 11}), v.Base(16));
        EXPECT_EQ(terminadas, 1);
        EXPECT_EQ(v.partida, antes);
        EXPECT_EQ(v.escritorio.Pases(), ultimo) << "the pause does not go on either";
        if (sistema) {
            EXPECT_EQ(v.Leer(), Diario{});
        } else {
            Nada_Mas(v);
        }
    }
}

TEST_F(Cierre, by_the_system_under_a_box_the_handler_under_it_does_nothing_more) {
    const struct {
        const char* que;
        const char* posicion;
        std::function<void(Ventana&)> accion;
    } tabla[] = {
        {"a pass", "B 23x1 bar1 | C 0x5 1x5 2x5 | dice 1 2",
         [](Ventana& v) { v.Entrada("mnuPasar")->trigger(); }},
        {"a win", "B 23x1 | C 0x1 | dice 6 5",
         [](Ventana& v) {
             v.raton.Arrastrar(v.Centro({Arreglo::Blanca, 0}), {375, 5900});
         }},
        {"the question", "dice 6 5", [](Ventana& v) { v.frm.close(); }},
    };
    for (const auto& fila : tabla) {
        SCOPED_TRACE(fila.que);
        Ventana v;
        terminadas = 0;
        Abrir(v);
        v.Poner(fila.posicion);
        v.escritorio.Contestar(button::Yes, [&v] { v.frm.Descargar(razon::Sistema); });
        fila.accion(v);
        EXPECT_TRUE(v.escritorio.Respuestas_Gastadas());
        EXPECT_EQ(terminadas, 1);
        EXPECT_EQ(v.partida.Turno, BLANCA);
        EXPECT_EQ(v.Leer().back().substr(0, 4), "caja") << "the box was the last";
        EXPECT_EQ(Guardado(v.escritorio.almacen, "Nivel"), "(none)");
    }
}

}  // namespace
}  // namespace corvanda::pruebas
