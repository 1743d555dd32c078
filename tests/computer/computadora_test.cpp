// What the computer finds, scores and plays, and its pause.
#include "computer/computadora.h"

#include <gtest/gtest.h>

#include "computer/busqueda.h"
#include "tests/apoyo/diario.h"
#include "tests/apoyo/mesa.h"
#include "tests/apoyo/tabla.h"

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

void Comprobar(Byte nivel, const std::string& posicion, const std::string& moves,
               const Cambio& cambio = {}) {
    EXPECT_EQ(Turno_Jugado(posicion, nivel, cambio), moves) << posicion << ", level " << int{nivel};
}

TEST(Busqueda, Scores_Every_Candidate) {
    for (const auto& fila : Tabla("computer/candidatos.txt", 3)) {
        Mesa mesa(fila[0]);
        std::string hallados;
        const Lista_Ordenada lista =
            Busqueda(mesa.juego).Candidatos(static_cast<Integer>(std::stoi(fila[1])));
        for (const std::string& texto : lista.Textos())
            hallados += (hallados.empty() ? "" : " ") + texto;
        EXPECT_EQ(hallados, fila[2]) << fila[0] << ", die " << fila[1];
    }
}

TEST(Computadora, Plays_The_Move_Of_Its_Level) {
    for (const auto& fila : Tabla("computer/turnos.txt", 3)) {
        if (fila[0] != "A") Comprobar(PRINCIPIANTE, fila[1], fila[2]);
        if (fila[0] != "B") Comprobar(AVANZADO, fila[1], fila[2]);
    }
}

TEST(Computadora, Reads_The_Dice_Before_The_Pause_And_The_Rest_After_It) {
    Comprobar(PRINCIPIANTE, "dice 2 0", "7/5", [](Partida& p) { p.Nivel = AVANZADO; });
    Comprobar(AVANZADO, "dice 2 0", "23/21", [](Partida& p) { p.Nivel = PRINCIPIANTE; });
    const auto otro_dado = [](Partida& p) {
        p.Dado1 = 4;
        p.Dado[0].Shown = Picture::Dado4;
    };
    Comprobar(PRINCIPIANTE, "B 18x2 bar13 | C 23x1 0x14 | dice 5 3", "23/20 20/16", otro_dado);
    Comprobar(AVANZADO, "B bar15 | C 5x15 | dice 6 0", "5/off", [](Partida& p) {
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
