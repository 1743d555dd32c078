// The turn: entering, the pause and what is read before and after it, and that every turn ends.
#include "computer/computadora.h"

#include <gtest/gtest.h>

#include "tests/computer/turno_cafe.h"

namespace corvanda::pruebas {
namespace {

using Lineas = std::vector<std::string>;

TEST(Computadora, Enters_From_The_Bar_Before_Anything_Else) {
    struct Fila {
        const char* que;
        const char* posicion;
        const char* moves;
    };
    const Fila filas[] = {
        {"with the smaller die where the larger is closed", "B 19x2 bar13 | C bar1 0x14 | dice 5 3",
         "bar/21 21/16"},
        {"with the larger die first", "B bar15 | C bar1 0x14 | dice 3 5", "bar/19 19/16"},
        {"not at all with the last die", "B 22x2 bar13 | C bar1 12x14 | dice 0 2", "pass"},
        {"not at all with either", "B 19x2 21x2 bar11 | C bar1 12x14 | dice 5 3", "pass"},
        {"onto a lone white chip", "B 20x1 bar14 | C bar1 0x14 | dice 4 0", "bar/20*"},
        {"onto our own chips", "B bar15 | C 19x2 bar1 0x12 | dice 5 0", "bar/19"},
        {"with a 1", "B bar15 | C bar1 0x14 | dice 1 0", "bar/23"},
        {"with a 6", "B bar15 | C bar1 0x14 | dice 6 0", "bar/18"},
        {"two with a double, then the others", "B bar15 | C bar2 0x13 | dice 4 4",
         "bar/20 bar/20 20/16 20/16"},
        {"a closed double", "B 20x2 bar13 | C bar1 12x14 | dice 4 4", "pass"},
        {"one of two", "B 21x2 bar13 | C bar2 12x13 | dice 5 3", "bar/19 pass"},
    };
    for (const Fila& fila : filas) {
        for (const Byte nivel : {PRINCIPIANTE, AVANZADO}) {
            EXPECT_EQ(Turno_Jugado(fila.posicion + std::string(" | turn C"), nivel), fila.moves)
                << fila.que << ", level " << int{nivel};
        }
    }
}

TEST(Computadora, Pauses_Three_Passes_For_Each_Cycle_Before_Each_Move) {
    struct Fila {
        Integer velocidad;
        std::initializer_list<int> dados;
        int pases;
    };
    const Fila filas[] = {{4, {6, 5, 1, 2}, 24},        {1, {2, 2, 1, 2}, 12},
                          {200, {6, 5, 1, 2}, 1200},    {0, {6, 5, 1, 2}, 0},
                          {-1, {2, 2, 1, 2}, 0},        {-32768, {6, 5, 1, 2}, 0},
                          {32767, {6, 5, 1, 2}, 196602}};
    for (const Fila& fila : filas) {
        Computadora computadora;
        Mesa mesa("turn B | B bar15 | C 23x15", &computadora);
        mesa.partida.Nivel = PRINCIPIANTE;
        mesa.partida.Velocidad = fila.velocidad;
        mesa.escritorio.Dados(fila.dados);
        mesa.juego.Tirar_Dados();
        EXPECT_EQ(mesa.partida.Turno, BLANCA);
        EXPECT_EQ(mesa.escritorio.Pases_De_Pausa(), fila.pases) << fila.velocidad;
        EXPECT_EQ(mesa.escritorio.Pases(), fila.pases + 8) << "two rolls of four passes each";
    }
}

TEST(Computadora, Reads_The_Dice_Before_The_Pause_And_The_Rest_After_It) {
    struct Fila {
        const char* que;
        const char* posicion;
        Byte nivel;
        std::function<void(Partida&)> cambio;
        const char* moves;
    };
    const auto a_nivel = [](Byte nivel) { return [nivel](Partida& p) { p.Nivel = nivel; }; };
    const Fila filas[] = {
        {"a harder level", "dice 2 0", PRINCIPIANTE, a_nivel(AVANZADO), "7/5"},
        {"an easier level", "dice 2 0", AVANZADO, a_nivel(PRINCIPIANTE), "23/21"},
        {"another larger die", "B 18x2 bar13 | C 23x1 0x14 | dice 5 3", PRINCIPIANTE,
         [](Partida& p) {
             p.Dado1 = 4;
             p.Dado[0].Shown = Picture::Dado4;
         },
         "23/20 20/16"},
        {"the right to bear off", "B bar15 | C 5x15 | dice 6 0", PRINCIPIANTE,
         [](Partida& p) {
             p.Cafe_En_Casa = True;
             p.Adios[0].Visible = true;
         },
         "5/off"},
    };
    for (const Fila& fila : filas) {
        Mesa mesa(std::string(fila.posicion) + " | turn C");
        mesa.partida.Nivel = fila.nivel;
        mesa.partida.Velocidad = 1;
        mesa.escritorio.Dados({1, 2});
        mesa.escritorio.En_El_Pase(3, [&] { fila.cambio(mesa.partida); });
        Cronista cronista(mesa);
        Computadora().Tirar_Computer(mesa.juego);
        EXPECT_EQ(cronista.Leer(), fila.moves) << fila.que;
    }
}

TEST(Computadora, Ends_Its_Turn_With_The_Winning_Chip) {
    Mesa mesa("B bar15 | C 0x1 | turn C | dice 1 1");
    mesa.partida.Nivel = AVANZADO;
    mesa.partida.Velocidad = 1;
    mesa.escritorio.Contestar();
    Computadora().Tirar_Computer(mesa.juego);
    EXPECT_EQ(mesa.escritorio.Leer().back(),
              "caja 48 [¡ You Win !] The player with Brown Chips won");
    EXPECT_EQ(mesa.partida.Jugando, False);
    EXPECT_EQ(mesa.escritorio.Pases(), 3) << "one pause, and no roll for White";
    EXPECT_TRUE(Es_Valida(mesa.partida));
}

TEST(Computadora, Does_Nothing_Out_Of_Its_Turn) {
    const std::function<void(Mesa&)> razones[] = {
        [](Mesa& mesa) { mesa.partida.Turno = BLANCA; },
        [](Mesa& mesa) { mesa.partida.Jugando = False; },
        [](Mesa& mesa) { mesa.juego.Cerrar(); },
    };
    for (const auto& razon : razones) {
        Mesa mesa("turn C | dice 6 5");
        mesa.partida.Nivel = PRINCIPIANTE;
        mesa.partida.Velocidad = 1;
        razon(mesa);
        const Partida antes = mesa.partida;
        Computadora().Tirar_Computer(mesa.juego);
        EXPECT_EQ(mesa.partida, antes);
        EXPECT_EQ(mesa.escritorio.Pases(), 0);
    }
}

TEST(Computadora, Says_That_It_Passed_After_A_Refused_Bear_Off) {
    Mesa mesa("B 5x1 bar14 | C 2x2 | turn C | dice 6 5");
    mesa.partida.Nivel = PRINCIPIANTE;
    mesa.escritorio.Dados({1, 2});
    mesa.escritorio.Contestar();
    Computadora().Tirar_Computer(mesa.juego);
    EXPECT_EQ(mesa.escritorio.Leer(),
              (Lineas{"bip", "caja 64 [Corvanda] The player with the brown chips passed"}));
    EXPECT_EQ(Texto(mesa.partida),
              "turno B, dados 1+2, blancas 5x1 barra x14, cafes 2x2 fuera x13");
}

// No play leads here: dice with a value whose images are hidden pay nothing, and yet the pass
// command counts on them.
TEST(Computadora, Hands_The_Turn_Over_When_Move_And_Pass_Are_Refused) {
    for (const bool cierra : {false, true}) {
        Mesa mesa("B bar15 | C 23x15 | turn C | dice 6 5");
        mesa.partida.Dado[0].Visible = mesa.partida.Dado[1].Visible = false;
        mesa.partida.Nivel = PRINCIPIANTE;
        mesa.escritorio.Dados({1, 2});
        mesa.escritorio.Contestar(button::Ok, [&] {
            if (cierra) mesa.juego.Cerrar();
        });
        Computadora().Tirar_Computer(mesa.juego);
        EXPECT_EQ(mesa.escritorio.Leer(),
                  (Lineas{"bip", "caja 64 [Corvanda :] You have to play the  6"}));
        EXPECT_EQ(Texto(mesa.partida),
                  std::string(cierra ? "turno C, dados 6+5" : "turno B, dados 1+2") +
                      ", blancas barra x15, cafes 23x15");
    }
}

}  // namespace
}  // namespace corvanda::pruebas
