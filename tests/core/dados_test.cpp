// The dice and the turn.
#include <gtest/gtest.h>

#include <cmath>

#include "tests/apoyo/diario.h"
#include "tests/apoyo/mesa.h"

namespace corvanda::pruebas {
namespace {

// Turno, Jugando and the dice.
std::string Foto(const Partida& partida) {
    return std::to_string(partida.Turno) + " " + std::to_string(partida.Jugando) + ": " +
           Dados_De(partida);
}

TEST(Dados, The_Last_Die_Brings_A_Roll_In_Four_Passes) {
    const char* const filas[][3] = {{"B 0x15 | C 12x15 | dice 0 2", "0/2", "bounce"},
                                    {"B 19x4 23x10 | C 12x15 | dice 0 5", "19/A1", "Pop2"}};
    for (const auto& [posicion, accion, sonido] : filas) {
        Mesa mesa(posicion);
        mesa.partida.Sonido = True;
        Diario fotos;
        for (int pase = 1; pase <= 4; ++pase) {
            mesa.escritorio.En_El_Pase(pase, [&] { fotos.push_back(Foto(mesa.partida)); });
        }
        mesa.escritorio.Dados({4, 4});
        mesa.Hacer(accion);
        fotos.push_back(Foto(mesa.partida));
        EXPECT_EQ(fotos, (Diario{"-1 0: 0 0", "-1 0: 4* 0", "-1 0: 4* 4 x2", "-1 0: 4* 4* x2",
                                 "-1 -1: 4* 4* x2"}));
        EXPECT_EQ(mesa.escritorio.Pases(), 4);
        EXPECT_EQ(mesa.escritorio.Leer(), (Diario{Suena(sonido), Suena("click1")}));
        EXPECT_EQ(mesa.partida.Dado[1].ZOrder, mesa.partida.Frente);
        EXPECT_EQ(mesa.partida.Dado[0].ZOrder, mesa.partida.Frente - 1);
        EXPECT_EQ(Faltas(mesa.partida), Diario{});
    }
}

TEST(Dados, Every_Random_Number_Gives_Its_Face) {
    const double limites[][2] = {{0, 0.0999}, {0.1, 0.3},       {0.3001, 0.4999},
                                 {0.5, 0.7},  {0.7001, 0.8999}, {0.9, std::nextafter(1.0, 0.0)}};
    Mesa mesa;
    for (int cara = 1; cara <= 6; ++cara) {
        mesa.escritorio.Azares({limites[cara - 1][0], limites[cara - 1][1]});
        mesa.juego.Tirar_Dados();
        EXPECT_EQ(mesa.partida.Dado1, cara);
        EXPECT_EQ(mesa.partida.Dado2, cara);
        EXPECT_EQ(Faltas(mesa.partida), Diario{});
    }
}

TEST(Dados, The_Dialog_Leaves_The_Opposite_Of_The_Side_That_Starts) {
    for (const Integer turno : {BLANCA, CAFE, NADIE}) {
        Mesa mesa;
        Volado_Fijo volado(mesa.partida, turno);
        volado.mientras = [&] {
            EXPECT_EQ(mesa.partida.Nivel, AVANZADO);
            EXPECT_EQ(mesa.escritorio.diario.back(), "puntero normal");
        };
        mesa.escritorio.Dados({1, 3});
        mesa.juego.Empezar(AVANZADO, volado);
        EXPECT_EQ(mesa.partida.Turno, -turno);
        EXPECT_EQ(mesa.partida.Jugando, True);
    }
}

}  // namespace
}  // namespace corvanda::pruebas
