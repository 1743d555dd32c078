#include <gtest/gtest.h>

#include "tests/apoyo/diario.h"
#include "tests/apoyo/mesa.h"

namespace corvanda::pruebas {
namespace {

constexpr const char* PASA_CAFE_EN_BARRA = "caja 64 [Corvanda] The player with brown chips passed";
constexpr const char* PASA_CAFE = "caja 64 [Corvanda] The player with the brown chips passed";
constexpr const char* PASA_BLANCA = "caja 64 [Corvanda] The player with the white chips passed";

std::string Desde_Barra(int dado) {
    return "caja 64 [Corvanda :] You have to play the " + std::to_string(dado);
}
std::string Desde_Punto(int dado) {
    return "caja 64 [Corvanda :] You have to play the  " + std::to_string(dado);
}

struct Peticion_De_Pase {
    const char* posicion;
    std::string caja;
};

void Probar_Negado(const Peticion_De_Pase& caso) {
    SCOPED_TRACE(caso.posicion);
    for (const Boolean sonido : {True, False}) {
        Mesa mesa(caso.posicion);
        mesa.partida.Sonido = sonido;
        const Partida antes = mesa.partida;
        mesa.escritorio.Contestar();
        mesa.juego.mnuPasar_Click();
        const Diario esperado{sonido == True ? Suena("strike") : BIP, caso.caja};
        EXPECT_EQ(mesa.escritorio.Leer(), esperado);
        EXPECT_TRUE(mesa.partida == antes) << Texto(mesa.partida);
    }
}

void Probar_Aceptado(const Peticion_De_Pase& caso) {
    SCOPED_TRACE(caso.posicion);
    Mesa mesa(caso.posicion);
    mesa.partida.Sonido = True;
    const Integer turno = mesa.partida.Turno;
    Integer turno_en_la_caja = NADIE;
    mesa.escritorio.Contestar(button::Ok, [&] { turno_en_la_caja = mesa.partida.Turno; });
    mesa.escritorio.Dados({2, 3});
    mesa.juego.mnuPasar_Click();
    EXPECT_EQ(mesa.escritorio.Leer(), (Diario{caso.caja, Suena("click1")}));
    EXPECT_EQ(turno_en_la_caja, turno);
    EXPECT_EQ(mesa.partida.Turno, -turno);
    EXPECT_EQ(mesa.partida.Dado1, 2);
    EXPECT_EQ(mesa.partida.Dado2, 3);
    EXPECT_EQ(mesa.partida.Jugando, True);
    EXPECT_EQ(Faltas(mesa.partida), Diario{});
}

TEST(Pase, Refused_While_A_Chip_On_The_Bar_Can_Enter) {
    const Peticion_De_Pase casos[] = {
        {"B bar1 0x14 | C 5x2 12x13 | dice 6 4", Desde_Barra(4)},
        {"B bar1 0x14 | C 3x2 12x13 | dice 6 4", Desde_Barra(6)},
        {"B bar1 0x14 | C 5x1 3x2 12x12 | dice 4 6", Desde_Barra(6)},  // a lone chip closes nothing
        {"B bar1 0x14 | C 12x15 | dice 0 1", Desde_Barra(1)},
        {"B bar1 0x14 | C 12x15 | dice 3 3", Desde_Barra(3)},
        {"turn C | C bar1 0x14 | B 18x2 12x13 | dice 6 4", Desde_Barra(4)},
        {"turn C | C bar1 0x14 | B 20x2 12x13 | dice 4 6", Desde_Barra(6)},
        {"turn C | C bar1 0x14 | B 22x1 12x14 | dice 0 2", Desde_Barra(2)},
    };
    for (const auto& caso : casos) Probar_Negado(caso);
}

TEST(Pase, Accepted_When_No_Chip_On_The_Bar_Can_Enter) {
    const Peticion_De_Pase casos[] = {
        {"B bar1 0x14 | C 5x2 3x2 12x11 | dice 6 4", PASA_BLANCA},
        {"B bar1 0x14 | C 5x2 12x13 | dice 6 0", PASA_BLANCA},
        {"B bar1 0x14 | C 5x2 12x13 | dice 0 6", PASA_BLANCA},
        {"B bar1 0x14 | C 2x2 12x13 | dice 3 3", PASA_BLANCA},
        {"turn C | C bar1 12x14 | B 22x2 0x13 | dice 0 2", PASA_CAFE_EN_BARRA},
        {"turn C | C bar1 12x14 | B 18x2 20x3 0x10 | dice 4 6", PASA_CAFE_EN_BARRA},
    };
    for (const auto& caso : casos) Probar_Aceptado(caso);
}

TEST(Pase, Refused_While_A_Chip_On_A_Point_Can_Move) {
    const Peticion_De_Pase casos[] = {
        {"B 10x2 20x13 | C 5x15 | dice 5 2", Desde_Punto(5)},
        {"B 10x2 20x13 | C 15x1 5x14 | dice 2 5", Desde_Punto(5)},
        {"B 10x15 | C 15x2 5x13 | dice 5 2", Desde_Punto(2)},
        {"B 10x14 11x1 | C 15x2 12x2 5x11 | dice 5 2", Desde_Punto(5)},  // from the second point
        {"B 10x14 11x1 | C 15x2 5x13 | dice 0 5", Desde_Punto(5)},
        {"B 18x15 | C 5x15 | dice 5 0", Desde_Punto(5)},
        // A larger die that leads off the board leaves the smaller one to White.
        {"B 20x15 | C 5x15 | dice 6 2", Desde_Punto(2)},
        {"B 21x15 | C 5x15 | dice 6 2", Desde_Punto(2)},
        {"B 19x7 20x8 | C 21x2 5x13 | dice 5 2", Desde_Punto(2)},
        {"turn C | C 5x2 10x13 | B 12x15 | dice 5 3", Desde_Punto(5)},
        {"turn C | C 12x15 | B 7x2 0x13 | dice 5 3", Desde_Punto(3)},
        {"turn C | C 12x14 15x1 | B 7x2 9x2 0x11 | dice 5 3", Desde_Punto(5)},
        // The bar of the other side does not count.
        {"B 10x15 | C bar1 5x14 | dice 5 2", Desde_Punto(5)},
        {"turn C | C 10x15 | B bar1 12x14 | dice 5 2", Desde_Punto(5)},
    };
    for (const auto& caso : casos) Probar_Negado(caso);
}

TEST(Pase, Accepted_When_The_Search_Finds_No_Move) {
    const Peticion_De_Pase casos[] = {
        {"B 10x15 | C 15x2 12x2 5x11 | dice 5 2", PASA_BLANCA},
        {"B 10x15 | C 15x2 5x13 | dice 5 0", PASA_BLANCA},
        {"B 20x7 22x8 | C 5x15 | dice 6 5", PASA_BLANCA},
        {"B 18x14 | C 5x15 | dice 6 0", PASA_BLANCA},
        {"B 22x15 | C 5x15 | dice 6 2", PASA_BLANCA},
        {"B 19x7 20x8 | C 21x2 22x2 5x11 | dice 5 2", PASA_BLANCA},
        {"turn C | C 12x15 | B 7x2 9x2 0x11 | dice 5 3", PASA_CAFE},
        // Brown's lowest chip ends the search when the larger die takes it off the board.
        {"turn C | C 2x1 12x14 | B 23x15 | dice 5 3", PASA_CAFE},
        {"turn C | C 4x1 12x14 | B 23x15 | dice 1 5", PASA_CAFE},
    };
    for (const auto& caso : casos) Probar_Aceptado(caso);
}

TEST(Pase, Nothing_While_No_Game_Runs) {
    Mesa mesa("B bar1 0x14 | C 5x2 3x2 12x11 | dice 6 4");
    mesa.partida.Jugando = False;
    const Partida antes = mesa.partida;
    mesa.juego.mnuPasar_Click();
    EXPECT_TRUE(mesa.partida == antes);
    EXPECT_EQ(mesa.escritorio.Leer(), Diario{});
}

}  // namespace
}  // namespace corvanda::pruebas
