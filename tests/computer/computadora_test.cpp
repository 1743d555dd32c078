// What the computer finds, scores and plays, written as in "bar/21 23/17* 2/off pass", and its
// pause. Positions keep White on its bar where White does not matter, and put idle brown chips on
// point 0, from where no die moves them.
#include "computer/computadora.h"

#include <gtest/gtest.h>

#include "computer/busqueda.h"
#include "tests/apoyo/diario.h"
#include "tests/apoyo/mesa.h"

namespace corvanda::pruebas {
namespace {

int Cafes_En(const Partida& partida, Integer lugar) {
    const bool blancas = Es_Punto(lugar) ? Punto_En(partida, lugar).Owner != CAFE
                                         : lugar == BARRA_BLANCA || lugar == BANDEJA_BLANCA;
    return blancas ? 0 : Pila_En(partida, lugar).Cuenta();
}

// The brown move between two positions, with a blank before it; empty when there was none.
std::string Movimiento(const Partida& antes, const Partida& despues) {
    std::string desde, hasta;
    for (Integer lugar = 0; lugar <= BANDEJA_CAFE; ++lugar) {
        const int cambio = Cafes_En(despues, lugar) - Cafes_En(antes, lugar);
        const std::string nombre = lugar == BARRA_CAFE     ? "bar"
                                   : lugar == BANDEJA_CAFE ? "off"
                                                           : std::to_string(lugar);
        if (cambio < 0) desde += " " + nombre;
        if (cambio > 0) hasta += "/" + nombre;
    }
    const auto comidas = [](const Partida& p) { return Pila_En(p, BARRA_BLANCA).Cuenta(); };
    return desde + hasta + (comidas(despues) > comidas(antes) ? "*" : "");
}

using Cambio = std::function<void(Partida&)>;

// Lets the computer play a position to the end of its turn and looks at the board in each pass of
// the event loop: with a pause before each move none is missed. A change comes in the last pass of
// the first pause. White's next dice are 1 and 2.
std::string Turno_Jugado(const std::string& posicion, Byte nivel, const Cambio& cambio = {}) {
    Mesa mesa(posicion + " | turn C");
    mesa.partida.Nivel = nivel;
    mesa.partida.Velocidad = 1;
    mesa.escritorio.Dados({1, 2});
    mesa.escritorio.Contestar_Siempre();
    Partida antes = mesa.partida;
    std::string moves;
    std::function<void()> mirar;
    mirar = [&] {
        if (mesa.partida.Turno == CAFE) {
            EXPECT_EQ(Faltas(mesa.partida), Diario{});
        }
        moves += Movimiento(antes, mesa.partida);
        antes = mesa.partida;
        mesa.escritorio.En_El_Pase(1, mirar);
    };
    mesa.escritorio.En_El_Pase(1, mirar);
    if (cambio) mesa.escritorio.En_El_Pase(3, [&] { cambio(mesa.partida); });
    Computadora().Tirar_Computer(mesa.juego);
    mirar();
    EXPECT_EQ(mesa.partida.Turno, BLANCA);
    for (const std::string& linea : mesa.escritorio.Leer()) {
        if (linea.ends_with("passed")) moves += " pass";
        if (linea.find("You have to play") != std::string::npos) moves += " refused";
    }
    return moves.empty() ? moves : moves.substr(1);
}

constexpr Byte AMBOS = 0;  // both levels play the same

struct Turno {
    Byte nivel;
    const char *posicion, *moves;
};

void Comprobar(const Turno& turno, const Cambio& cambio = {}) {
    for (const Byte nivel : {PRINCIPIANTE, AVANZADO}) {
        if (turno.nivel != AMBOS && turno.nivel != nivel) continue;
        EXPECT_EQ(Turno_Jugado(turno.posicion, nivel, cambio), turno.moves)
            << turno.posicion << ", level " << int{nivel};
    }
}

TEST(Busqueda, Scores_Every_Candidate) {
    const std::tuple<const char*, Integer, const char*> filas[] = {
        // Closed targets and points below the die are left out.
        {"B 6x2 bar13 | C 23x2 12x5 7x3 5x5", 6, "1907 2023 "},
        // One, two, three and more chips on the source.
        {"B bar15 | C 23x3 20x1 17x2 14x3 11x4 0x2", 1, "1817 1911 1914 2020 2023 "},
        // A hit, a cover, two and more of our own, an empty point.
        {"B 18x1 bar14 | C 23x3 20x1 16x1 14x1 12x2 9x1 7x3 0x3", 2,
         "1812 1907 2023 2309 2314 2320 2516 "},
        // The first open one is the first candidate.
        {"B 22x2 bar13 | C 23x2 20x3 10x2 0x8", 1, "1810 2120 "},
        // A companion seven and six points ahead, on point 0, and none.
        {"B bar15 | C 23x3 16x3 0x9", 1, "1916 2123 "},
        {"B bar15 | C 23x3 17x3 0x9", 1, "1917 2023 "},
        {"B bar15 | C 7x3 0x12", 1, "2107 "},
        {"B bar15 | C 23x15", 1, "2023 "},
        {"B bar15 | C 5x15", 1, "2205 "},
        // Last of all on points 11 and 12, and with a blocked one behind.
        {"B bar15 | C 11x3 9x12", 1, "1909 2211 "},
        {"B bar15 | C 12x3 9x12", 1, "1909 2012 "},
        {"B 22x2 bar13 | C 23x2 11x3 9x10", 1, "1909 2011 "},
        {"B bar15 | C 11x3 4x12", 1, "1904 2111 "},  // out of touch and last of all
        {"B bar15 | C 6x3 5x2 0x10", 6, "2506 "},    // onto point 0 with the exact die
        // The greatest and the smallest score, nothing to move, and dice that are none.
        {"B bar15 | C 11x1 9x1 0x13", 2, "2009 2811 "},
        {"B bar15 | C 23x2 20x2 0x11", 2, "1820 1923 "},
        {"B 19x2 bar13 | C 23x2 0x13", 4, ""},
        {"B bar15 | C 23x15", 0, ""},
        {"B bar15 | C 12x15", -3, ""},
        {"B bar15 | C 23x15", 24, ""},
    };
    for (const auto& [posicion, dado, candidatos] : filas) {
        Mesa mesa(posicion);
        std::string hallados;
        const Lista_Ordenada lista = Busqueda(mesa.juego).Candidatos(dado);
        for (const std::string& texto : lista.Textos()) hallados += texto + " ";
        EXPECT_EQ(hallados, candidatos) << posicion << ", die " << dado;
    }
}

TEST(Computadora, Plays_The_Move_Of_Its_Level) {
    const Turno turnos[] = {
        // Beginner: the first move from the back, the larger die first, no look at scores.
        {PRINCIPIANTE, "B 17x2 bar13 | C 23x1 12x1 0x13 | dice 6 1", "23/22 22/16"},
        {PRINCIPIANTE, "B 18x2 bar13 | C 23x1 0x14 | dice 5 3", "23/20 20/15"},
        {PRINCIPIANTE, "C 23x2 12x5 7x3 5x5 | dice 2 0", "23/21"},
        {AMBOS, "B 17x1 bar14 | C 23x1 0x14 | dice 6 0", "23/17*"},
        {AMBOS, "B 22x2 bar13 | C 23x1 1x1 0x13 | dice 1 0", "1/0"},
        {AMBOS, "B bar15 | C 4x2 0x13 | dice 5 0", "pass"},  // not below point 0
        {AMBOS, "B 6x2 5x2 bar11 | C 10x1 2x1 3x1 0x12 | dice 5 4", "pass"},
        {AMBOS, "B bar15 | C 23x4 0x11 | dice 2 2", "23/21 23/21 23/21 23/21"},
        // Advanced: the best score, the higher point of equal ones, a hit by the other die waits.
        {AVANZADO, "B 6x2 bar13 | C 23x2 12x5 7x3 5x5 | dice 6 0", "23/17"},
        {AVANZADO, "C 23x2 12x5 7x3 5x5 | dice 2 0", "7/5"},
        {AVANZADO, "B bar15 | C 23x2 17x1 5x1 0x11 | dice 1 0", "17/16"},
        {AVANZADO, "B 21x1 bar14 | C 23x3 0x12 | dice 5 2", "23/18 23/21*"},
        {AMBOS, "B 19x2 bar13 | C 23x2 0x13 | dice 4 4", "pass"},
        {AMBOS, "B 17x2 bar13 | C 23x1 0x14 | dice 0 6", "pass"},
        // The bar before anything else.
        {AMBOS, "B 19x2 bar13 | C bar1 0x14 | dice 5 3", "bar/21 21/16"},
        {AMBOS, "B bar15 | C bar1 0x14 | dice 3 5", "bar/19 19/16"},
        {AMBOS, "B 22x2 bar13 | C bar1 12x14 | dice 0 2", "pass"},
        {AMBOS, "B 20x1 bar14 | C bar1 0x14 | dice 4 0", "bar/20*"},
        {AMBOS, "B bar15 | C 19x2 bar1 0x12 | dice 5 0", "bar/19"},
        {AMBOS, "B bar15 | C bar1 0x14 | dice 1 0", "bar/23"},
        {AMBOS, "B bar15 | C bar2 0x13 | dice 4 4", "bar/20 bar/20 20/16 20/16"},
        {AMBOS, "B 21x2 bar13 | C bar2 12x13 | dice 5 3", "bar/19 pass"},
        // Off: the larger die exactly, the highest below it, the smaller exactly, else a move.
        {AMBOS, "B bar15 | C 3x2 1x2 0x2 | dice 6 1", "3/off 0/off"},
        {AMBOS, "B bar15 | C 4x1 2x1 1x1 | dice 3 2", "2/off 1/off"},
        {AMBOS, "B bar15 | C 4x1 2x1 | dice 3 2", "2/off 4/2"},
        {AMBOS, "B bar15 | C 5x2 4x2 | dice 2 1", "5/3 5/4"},
        {AMBOS, "B bar15 | C 5x1 1x1 | dice 4 2", "1/off 5/1"},
        {AMBOS, "B bar15 | C 3x1 1x2 0x1 | dice 2 4", "3/off 1/off"},
        {AMBOS, "B bar15 | C 3x1 1x1 | dice 5 0", "3/off"},
        {AMBOS, "B bar15 | C 5x1 0x2 | dice 5 0", "5/0"},
        {AMBOS, "B 1x2 bar13 | C 5x1 0x2 | dice 4 0", "pass"},
        {AMBOS, "B bar15 | C 3x5 | dice 4 4", "3/off 3/off 3/off 3/off"},
        // Somebody has left home again.
        {AMBOS, "B bar15 | C 10x15 | home C | dice 6 0", "10/4"},
        {AMBOS, "B bar15 | C 6x1 3x14 | home C | dice 6 0", "3/off"},
        {AMBOS, "B bar15 | C bar1 3x14 | home C | dice 6 4", "bar/18 3/off"},
        // Refused for a white chip behind: a pass, and the other die is given up.
        {AMBOS, "B 5x1 bar14 | C 2x3 | dice 6 5", "pass"},
        {AMBOS, "B 5x1 bar14 | C 2x3 | dice 6 3", "2/off pass"},
    };
    for (const Turno& turno : turnos) Comprobar(turno);
}

TEST(Computadora, Reads_The_Dice_Before_The_Pause_And_The_Rest_After_It) {
    Comprobar({PRINCIPIANTE, "dice 2 0", "7/5"}, [](Partida& p) { p.Nivel = AVANZADO; });
    Comprobar({AVANZADO, "dice 2 0", "23/21"}, [](Partida& p) { p.Nivel = PRINCIPIANTE; });
    Comprobar({PRINCIPIANTE, "B 18x2 bar13 | C 23x1 0x14 | dice 5 3", "23/20 20/16"},
              [](Partida& p) {
                  p.Dado1 = 4;
                  p.Dado[0].Shown = Picture::Dado4;
              });
    Comprobar({AMBOS, "B bar15 | C 5x15 | dice 6 0", "5/off"}, [](Partida& p) {
        p.Cafe_En_Casa = True;
        p.Adios[0].Visible = true;
    });
}

// Three passes for each cycle; another speed holds from the next pause on.
TEST(Computadora, Pauses_Before_Each_Move) {
    struct Fila {
        Integer velocidad, nueva;  // the second from the second pass of the first pause on
        int primero, segundo;      // the dice
        int pases;
    };
    const Fila filas[] = {{4, 4, 6, 5, 24},      {1, 1, 2, 2, 12},
                          {-32768, 1, 6, 5, 0},  {32767, 32767, 6, 5, 196602},
                          {4, 7, 6, 5, 12 + 21}, {4, 0, 2, 2, 12}};
    for (const auto& [velocidad, nueva, primero, segundo, pases] : filas) {
        Computadora computadora;
        Mesa mesa("turn B | B bar15 | C 23x15", &computadora);
        mesa.partida.Nivel = PRINCIPIANTE;
        mesa.partida.Velocidad = velocidad;
        mesa.escritorio.Dados({primero, segundo, 1, 2});
        mesa.escritorio.En_El_Pase(4 + 2, [&, v = nueva] { mesa.partida.Velocidad = v; });
        mesa.juego.Tirar_Dados();
        EXPECT_EQ(mesa.partida.Turno, BLANCA);
        EXPECT_EQ(mesa.escritorio.Pases_De_Pausa(), pases) << velocidad;
        EXPECT_EQ(mesa.escritorio.Pases(), pases + 8) << "two rolls of four passes each";
    }
}

// No play leads here: dice with a value whose images are hidden pay nothing, and yet the pass
// command counts on them.
TEST(Computadora, Hands_The_Turn_Over_When_Move_And_Pass_Are_Refused) {
    Mesa mesa("B bar15 | C 23x15 | turn C | dice 6 5");
    for (Image& dado : mesa.partida.Dado) dado.Visible = false;
    mesa.escritorio.Dados({1, 2});
    mesa.escritorio.Contestar();
    Computadora().Tirar_Computer(mesa.juego);
    EXPECT_EQ(Dados_De(mesa.partida), "1* 2*");
}

}  // namespace
}  // namespace corvanda::pruebas
