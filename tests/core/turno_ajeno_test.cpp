// What a person, or another game, may do while the computer's turn is running.
#include <gtest/gtest.h>

#include "tests/apoyo/diario.h"
#include "tests/apoyo/mesa.h"

namespace corvanda::pruebas {
namespace {

constexpr const char* ULTIMA_BLANCA = "B 0x15 | C 12x15 | dice 0 2";
constexpr const char* CERRADOS =  // neither side can enter
    "B 18x2 19x2 20x2 21x2 22x2 23x2 12x2 bar1 | C 0x2 1x2 2x2 3x2 4x2 5x2 11x2 bar1";

// White's roll takes the first four passes; unless told otherwise, the computer's turn is a pause
// of one pass and a look at whether the turn is still its own.
struct Contra_La_Computadora : Guion, Mesa {
    explicit Contra_La_Computadora(const char* posicion) : Mesa(posicion, this) {
        partida.Nivel = PRINCIPIANTE;
        escritorio.Contestar_Siempre();
        escritorio.Dados({1, 2, 3, 4, 5, 6});
        turno = [this](Juego& juego) {
            const auto testigo = juego.Reglas().Tomar();
            juego.Delay(32000);
            siguio = juego.Reglas().Sigue(testigo);
        };
    }
    bool siguio = false;
};

TEST(Turno_Ajeno, A_Press_On_A_Brown_Chip_Is_Out_Of_Turn) {
    Contra_La_Computadora mesa(ULTIMA_BLANCA);
    mesa.escritorio.En_El_Pase(5, [&] {
        mesa.escritorio.Leer();
        EXPECT_FALSE(mesa.juego.Se_Puede_Tomar({Arreglo::Cafe, 14}));
        mesa.Presionar({Arreglo::Cafe, 14});
    });
    mesa.Jugar(0, 2);
    EXPECT_EQ(mesa.escritorio.Leer(), (Diario{BIP, NO_ES_SU_TURNO}));
    EXPECT_EQ(mesa.partida.Origen, 0);
    EXPECT_TRUE(mesa.siguio);
}

TEST(Turno_Ajeno, A_New_Game_Waits_Until_The_Old_Turn_Has_Unwound) {
    for (const Integer empieza : {BLANCA, CAFE}) {
        Contra_La_Computadora mesa(ULTIMA_BLANCA);
        Volado_Fijo volado(mesa.partida, static_cast<Integer>(-empieza));
        int dialogos = 0;
        volado.mientras = [&] {
            ++dialogos;
            EXPECT_EQ(mesa.dentro, 0);
            EXPECT_FALSE(mesa.juego.Computadora_Juega());
        };
        mesa.escritorio.En_El_Pase(5, [&] {
            mesa.juego.Empezar(AVANZADO, volado);
            EXPECT_EQ(dialogos, 0);
            mesa.escritorio.Leer();
            mesa.Presionar({Arreglo::Cafe, 14});
            mesa.juego.mnuPasar_Click();
            EXPECT_EQ(mesa.escritorio.Leer(), Diario{});
            mesa.turno = [](Juego& juego) { EXPECT_EQ(juego.Estado().Nivel, AVANZADO); };
        });
        mesa.Jugar(0, 2);
        EXPECT_FALSE(mesa.siguio);
        EXPECT_EQ(dialogos, 1);
        EXPECT_EQ(mesa.turnos, empieza == CAFE ? 2 : 1);
        EXPECT_EQ(mesa.partida.Turno, empieza);
        EXPECT_EQ(mesa.escritorio.Pases(), 4 + 1 + 4);
        EXPECT_EQ(Faltas(mesa.partida), Diario{});
    }
}

TEST(Turno_Ajeno, Closing_In_The_Pause_Ends_The_Turn) {
    Contra_La_Computadora mesa(ULTIMA_BLANCA);
    mesa.partida.Sonido = True;
    mesa.escritorio.En_El_Pase(5, [&] {
        mesa.juego.Cerrar();
        mesa.escritorio.Leer();
    });
    mesa.Jugar(0, 2);
    EXPECT_FALSE(mesa.siguio);
    EXPECT_EQ(mesa.turnos, 1);
    EXPECT_EQ(mesa.escritorio.Pases(), 5);
    EXPECT_EQ(mesa.escritorio.Leer(), Diario{});
}

// The person passes for Brown in the computer's pause and then for White, so that Brown's turn
// comes back while the first one has not yet returned.
TEST(Turno_Ajeno, Turns_That_Come_Back_In_The_Pause_Do_Not_Nest) {
    Contra_La_Computadora mesa(CERRADOS);
    mesa.escritorio.En_El_Pase(5, [&] {
        mesa.turno = {};
        mesa.juego.mnuPasar_Click();
        EXPECT_EQ(mesa.partida.Turno, BLANCA);
        mesa.juego.mnuPasar_Click();
        EXPECT_EQ(mesa.partida.Turno, CAFE);
        EXPECT_EQ(mesa.turnos, 1);
    });
    mesa.juego.mnuPasar_Click();
    EXPECT_FALSE(mesa.siguio);
    EXPECT_EQ(mesa.turnos, 2);
    EXPECT_EQ(mesa.hondura, 1);
    EXPECT_EQ(Dados_De(mesa.partida), "5* 6*");
}

// The computer passes; in the roll for White, inside the computer's turn, the old dice still show.
TEST(Turno_Ajeno, The_Roll_After_The_Computers_Pass) {
    for (const bool otro_juego : {false, true}) {
        Contra_La_Computadora mesa(CERRADOS);
        mesa.turno = [](Juego& juego) { juego.mnuPasar_Click(); };
        Volado_Fijo volado(mesa.partida, CAFE);
        mesa.escritorio.En_El_Pase(6, [&] {
            mesa.escritorio.Leer();
            mesa.Presionar({Arreglo::Blanca, 14});
            mesa.juego.mnuPasar_Click();
            EXPECT_EQ(mesa.escritorio.Leer(), Diario{});
            if (otro_juego) mesa.juego.Empezar(AVANZADO, volado);
        });
        mesa.juego.mnuPasar_Click();
        EXPECT_EQ(mesa.turnos, 1);
        EXPECT_EQ(mesa.partida.Turno, BLANCA);
        EXPECT_EQ(mesa.partida.Nivel, otro_juego ? AVANZADO : PRINCIPIANTE);
        EXPECT_EQ(mesa.escritorio.Pases(), otro_juego ? 4 + 2 + 4 : 4 + 4);
        EXPECT_EQ(mesa.escritorio.Pases_De_Pausa(), 0);
        EXPECT_EQ(Faltas(mesa.partida), Diario{});
    }
}

}  // namespace
}  // namespace corvanda::pruebas
