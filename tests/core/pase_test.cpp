// The pass: when it is accepted, and which die is named when it is not.
#include <gtest/gtest.h>

#include "tests/apoyo/diario.h"
#include "tests/apoyo/mesa.h"

namespace corvanda::pruebas {
namespace {

struct Peticion_De_Pase {
    const char* posicion;
    int dado;  // that must be played first, 0 for an accepted pass
};

void Probar(const Peticion_De_Pase& caso, const std::string& negado, const std::string& blanca,
            const std::string& cafe) {
    SCOPED_TRACE(caso.posicion);
    for (const Boolean efectos : {True, False}) {
        Mesa mesa(caso.posicion);
        mesa.partida.Sonido = efectos;
        const Partida antes = mesa.partida;
        Integer turno_en_la_caja = NADIE;
        mesa.escritorio.Contestar(button::Ok, [&] { turno_en_la_caja = mesa.partida.Turno; });
        mesa.escritorio.Dados({2, 3});
        mesa.Hacer("pass");
        EXPECT_EQ(turno_en_la_caja, antes.Turno);
        if (caso.dado != 0) {
            const std::string caja = "caja 64 [Corvanda :] " + negado + std::to_string(caso.dado);
            EXPECT_EQ(mesa.escritorio.Leer(), Se_Oye(efectos, "strike", caja));
            EXPECT_TRUE(mesa.partida == antes) << Texto(mesa.partida);
            continue;
        }
        Diario esperado{"caja 64 [Corvanda] " + (antes.Turno == BLANCA ? blanca : cafe)};
        if (efectos == True) esperado.push_back(Suena("click1"));
        EXPECT_EQ(mesa.escritorio.Leer(), esperado);
        EXPECT_EQ(mesa.partida.Turno, -antes.Turno);
        EXPECT_EQ(Dados_De(mesa.partida), "2* 3*");
        EXPECT_EQ(mesa.partida.Jugando, True);
    }
}

// A lone chip closes nothing; a used die does not count.
TEST(Pase, From_The_Bar_Is_Refused_While_A_Chip_Can_Enter) {
    const Peticion_De_Pase casos[] = {{"B bar1 | C 5x2 | dice 6 4", 4},
                                      {"B bar1 | C 3x2 | dice 6 4", 6},
                                      {"B bar1 | C 5x1 3x2 | dice 4 6", 6},
                                      {"B bar1 | C 12x15 | dice 0 1", 1},
                                      {"turn C | C bar1 | B 18x2 | dice 6 4", 4},
                                      {"turn C | C bar1 | B 22x1 | dice 0 2", 2},
                                      {"B bar1 | C 5x2 3x2 | dice 6 4", 0},
                                      {"B bar1 | C 5x2 | dice 6 0", 0},
                                      {"B bar1 | C 2x2 | dice 3 3", 0},
                                      {"turn C | C bar1 | B 22x2 | dice 0 2", 0},
                                      {"turn C | C bar1 | B 18x2 20x3 | dice 4 6", 0}};
    for (const auto& caso : casos) {
        Probar(caso, "You have to play the ", "The player with the white chips passed",
               "The player with brown chips passed");
    }
}

// From the lowest point up. A larger die that leads off the board leaves the smaller one to White;
// Brown's lowest chip then ends the search. The bar of the other side does not count.
TEST(Pase, From_The_Points_Is_Refused_While_A_Chip_Can_Move) {
    const Peticion_De_Pase casos[] = {{"B 10x2 20x13 | C 5x15 | dice 5 2", 5},
                                      {"B 20x15 | C 5x15 | dice 6 1", 1},
                                      {"B 10x9 | C 15x2 | dice 5 2", 2},
                                      {"B 10x4 11x1 | C 15x2 12x2 | dice 5 2", 5},
                                      {"B 10x4 11x1 | C 15x2 | dice 0 5", 5},
                                      {"B 18x15 | C 5x15 | dice 5 0", 5},
                                      {"B 21x15 | C 5x15 | dice 6 2", 2},
                                      {"B 20x15 | C 5x15 | dice 4 2", 2},
                                      {"B 19x7 20x8 | C 21x2 | dice 5 2", 2},
                                      {"B 10x15 | C bar1 | dice 5 2", 5},
                                      {"turn C | C 5x2 10x9 | B 12x5 | dice 5 3", 5},
                                      {"turn C | C 12x9 | B 7x2 | dice 5 3", 3},
                                      {"turn C | C 12x9 15x1 | B 7x2 9x2 | dice 5 3", 5},
                                      {"B 10x9 | C 15x2 12x2 | dice 5 2", 0},
                                      {"B 10x9 | C 15x2 | dice 5 0", 0},
                                      {"B 20x7 22x8 | C 5x15 | dice 6 5", 0},
                                      {"B 22x15 | C 5x15 | dice 6 2", 0},
                                      {"B 19x7 20x8 | C 21x2 22x2 | dice 5 2", 0},
                                      {"turn C | C 12x9 | B 7x2 9x2 | dice 5 3", 0},
                                      {"turn C | C 2x1 12x9 | B 23x9 | dice 5 3", 0},
                                      {"turn C | C 4x1 12x9 | B 23x9 | dice 1 5", 0},
                                      {"turn C | C 3x1 12x9 | B 23x9 | dice 4 1", 0},
                                      {"turn C | C 4x9 | B 23x9 | dice 4 1", 4}};
    for (const auto& caso : casos) {
        Probar(caso, "You have to play the  ", "The player with the white chips passed",
               "The player with the brown chips passed");
    }
}

TEST(Pase, Nothing_While_No_Game_Runs) {
    Mesa mesa("B bar1 0x14 | C 5x2 3x2 12x11 | dice 6 4");
    mesa.partida.Jugando = False;
    mesa.Hacer("pass");
    EXPECT_EQ(mesa.escritorio.Leer(), Diario{});
}

}  // namespace
}  // namespace corvanda::pruebas
