// What may happen in the middle: in each pass of a roll and of the computer's pause, under each
// box, and in the start-player dialog.
#include <gtest/gtest.h>

#include "computer/computadora.h"
#include "tests/apoyo/diario.h"
#include "tests/apoyo/mesa.h"
#include "tests/apoyo/tabla.h"

namespace corvanda::pruebas {
namespace {

struct Momento {
    explicit Momento(const std::vector<std::string>& fila)
        : posicion(fila[0]),
          accion(fila[1]),
          nivel(static_cast<Byte>(std::stoi(fila[2]))),
          respuesta(fila[5]) {}

    const std::string posicion, accion;
    const Byte nivel;
    const std::string respuesta;
};

/// A table with the computer at it, watched for two turns at once.
struct Escena : Oponente, Mesa {
    explicit Escena(const std::string& posicion, Byte nivel = DOS_PERSONAS) : Mesa(posicion, this) {
        for (int i = 0; i < 20; ++i) escritorio.Dados({3, 3});
        escritorio.Contestar_Siempre();
        partida.Nivel = nivel;
        partida.Velocidad = 2;
        partida.Sonido = True;
    }
    void Tirar_Computer(Juego& juego_en_curso) override {
        ++turnos;
        maximo = std::max(maximo, ++dentro);
        Computadora().Tirar_Computer(juego_en_curso);
        --dentro;
    }
    void Empezar(Byte nivel, Integer empieza) {
        volado.turno = static_cast<Integer>(-empieza);
        juego.Empezar(nivel, volado);
    }
    void Correr(const Momento& momento, int pase, const std::function<void()>& suceso) {
        if (pase > 0) escritorio.En_El_Pase(pase, suceso);
        if (pase == 0) escritorio.Contestar(button::Ok, suceso);
        Volado_Fijo primero(partida, CAFE);
        if (pase < 0) primero.mientras = suceso;
        if (momento.accion == "new") return juego.Empezar(DOS_PERSONAS, primero);
        if (momento.accion == "roll") return juego.Tirar_Dados();
        // A chip is held when the pass is given.
        if (momento.respuesta == "nothing" && momento.accion == "pass") Hacer("C14");
        Hacer(momento.accion);
    }
    // Returns what the journal says of hands, and leaves it as it was.
    Diario Molestar(bool pasa = true) {
        const Diario antes = escritorio.Leer();
        for (const char* accion : {"B0", "C0"}) Hacer(accion);
        if (pasa) Hacer("pass");
        Soltar({Arreglo::Blanca, 1}, {Arreglo::Triangle, 3});
        // A chip that was in the hand before the computer took the side does not help, either.
        if (juego.Computadora_Juega() && !pasa) juego.Poner_Origen(7);
        for (const Integer punto : {Integer{7}, Integer{4}})
            Soltar({Arreglo::Cafe, 14}, {Arreglo::Triangle, punto});
        Soltar({Arreglo::Blanca, 1}, {Arreglo::Adios, 0});
        Diario respuesta = escritorio.Leer();
        escritorio.diario = antes;
        return respuesta;
    }

    Volado_Fijo volado{partida, BLANCA};
    int turnos = 0, dentro = 0, maximo = 0;
};

void Esperar_Orden(const Escena& escena) {
    EXPECT_LE(escena.maximo, 1);
    EXPECT_FALSE(escena.juego.Computadora_Juega());
    EXPECT_FALSE(escena.escritorio.reloj_de_arena);
    EXPECT_TRUE(escena.escritorio.Respuestas_Gastadas());
}

void Probar_Manos(const Momento& momento, int pase) {
    Escena tranquila(momento.posicion, momento.nivel), escena(momento.posicion, momento.nivel);
    tranquila.Correr(momento, pase, [] {});
    Diario respuesta{"nothing happened"};
    escena.Correr(momento, pase, [&] {
        EXPECT_FALSE(escena.juego.Se_Puede_Tomar({Arreglo::Blanca, 0}));
        EXPECT_FALSE(escena.juego.Se_Puede_Tomar({Arreglo::Cafe, 0}));
        respuesta = escena.Molestar(momento.respuesta != "not your turn");
    });
    const std::string caja = momento.respuesta == "no game" ? SIN_JUEGO : NO_ES_SU_TURNO;
    Diario esperada{Suena("strike"), caja, Suena("strike"), caja};
    if (momento.respuesta == "nothing") esperada.clear();
    EXPECT_EQ(respuesta, esperada);
    EXPECT_EQ(escena.escritorio.diario, tranquila.escritorio.diario);
    EXPECT_EQ(escena.escritorio.Pases(), tranquila.escritorio.Pases());
    EXPECT_TRUE(escena.partida == tranquila.partida) << Texto(escena.partida);
    Esperar_Orden(escena);
}

// The new game is the only one and goes as if nothing had been before; so does the second of two
// that were asked for while the first had to wait, and hands get no answer meanwhile.
void Probar_Otro_Juego(const Momento& momento, int pase, Byte nivel, Integer empieza) {
    Escena sola(""), escena(momento.posicion, momento.nivel);
    sola.Empezar(nivel, empieza);
    int pases = 0;
    escena.volado.mientras = [&] { EXPECT_EQ(escena.dentro, 0) << "the old turn has unwound"; };
    escena.Correr(momento, pase, [&] {
        pases = escena.escritorio.Pases();
        escena.escritorio.Leer();
        if (pase > 0) escena.Empezar(AVANZADO, static_cast<Integer>(-empieza));
        escena.Empezar(nivel, empieza);
        if (pase > 0) {
            EXPECT_EQ(escena.Molestar(), Diario{});
        }
    });
    EXPECT_EQ(Texto(escena.partida), Texto(sola.partida));
    EXPECT_EQ(Faltas(escena.partida), Diario{});
    EXPECT_EQ(escena.partida.Jugando, True);
    EXPECT_EQ(escena.juego.Se_Puede_Tomar({Arreglo::Cafe, 0}), escena.partida.Turno == CAFE);
    EXPECT_EQ(escena.escritorio.Leer(), sola.escritorio.Leer());
    EXPECT_EQ(escena.escritorio.Pases(), pases + sola.escritorio.Pases());
    Esperar_Orden(escena);
}

// After the end of the program nothing moves, sounds or shows, whatever comes.
void Probar_Cierre(const Momento& momento, int pase, bool con_otro_juego) {
    Escena escena(momento.posicion, momento.nivel);
    Partida cerrada;
    int pases = 0;
    escena.Correr(momento, pase, [&] {
        if (con_otro_juego) escena.Empezar(PRINCIPIANTE, CAFE);
        escena.escritorio.arrastrada = {Arreglo::Blanca, 0};
        escena.juego.Cerrar();
        EXPECT_EQ(escena.escritorio.arrastrada, Control{});
        escena.escritorio.Leer();
        cerrada = escena.partida;
        pases = escena.escritorio.Pases();
    });
    cerrada.Turno = escena.partida.Turno;  // the dialog's last word
    escena.juego.Beeper();
    escena.juego.MsgError(1);
    escena.juego.Tirar_Dados();
    escena.Empezar(DOS_PERSONAS, CAFE);
    EXPECT_EQ(escena.Molestar(), Diario{});
    EXPECT_EQ(escena.escritorio.Leer(), Diario{});
    EXPECT_EQ(escena.escritorio.Pases(), pases);
    EXPECT_TRUE(escena.partida == cerrada) << Texto(escena.partida);
    Esperar_Orden(escena);
}

TEST(Interrupciones, Leave_One_Game_And_One_Turn) {
    for (const auto& fila : Tabla("computer/momentos.txt", 6)) {
        const Momento momento(fila);
        for (int pase = std::stoi(fila[3]); pase <= std::stoi(fila[4]); ++pase) {
            SCOPED_TRACE(momento.posicion + ": " + momento.accion + ", pass " +
                         std::to_string(pase));
            if (!momento.respuesta.empty()) Probar_Manos(momento, pase);
            Probar_Otro_Juego(momento, pase, DOS_PERSONAS, CAFE);
            Probar_Otro_Juego(momento, pase, PRINCIPIANTE, CAFE);
            Probar_Otro_Juego(momento, pase, PRINCIPIANTE, BLANCA);
            for (const bool otro : {false, true}) Probar_Cierre(momento, pase, otro);
        }
    }
}

// The person passes for Brown in the pause, and then for White: Brown's turn comes back while the
// first one has not yet returned.
TEST(Interrupciones, Passes_In_The_Pause_Neither_Repeat_Nor_Nest) {
    for (const int mas : {0, 1}) {
        Escena escena("B 21x14 bar1 | C 2x14 bar1", PRINCIPIANTE);
        escena.escritorio.En_El_Pase(4 + 2, [&] {
            for (int i = 0; i <= mas; ++i) escena.Hacer("pass");
        });
        escena.juego.Tirar_Dados();
        EXPECT_EQ(escena.partida.Turno, BLANCA);
        EXPECT_EQ(escena.turnos, 1 + mas);
        EXPECT_EQ(escena.escritorio.Pases(), 4 + 2 + 4 + mas * (4 + 6 + 4));
        Esperar_Orden(escena);
    }
}

}  // namespace
}  // namespace corvanda::pruebas
