#include <gtest/gtest.h>

#include <algorithm>

#include "tests/apoyo/mesa.h"

namespace corvanda::pruebas {
namespace {

constexpr const char* MEDIO = "B 0x2 11x3 20x6 bar2 | C 5x6 12x4 bar1 | dice 3 1 | home BC";

TEST(Validez, Every_Kind_Of_Fault_Is_Named) {
    struct Caso {
        const char* falta;
        std::function<void(Partida&)> romper;
    };
    const Caso casos[] = {
        {"Blanca(20) does not exist", [](Partida& p) { p.LST[0].Poner(20); }},
        {"the white chip 1 stands in 0 places", [](Partida& p) { p.LST[0].Quitar(); }},
        {"the white chip 1 stands in 2 places", [](Partida& p) { p.LST[11].Poner(1); }},
        {"the brown chip 0 stands in 2 places", [](Partida& p) { p.LST[24].Poner(0); }},
        {"Blanca(0) is misplaced", [](Partida& p) { p.Blanca[0].Left += 1; }},
        {"Cafe(5) is misplaced", [](Partida& p) { p.Cafe[5].Top = 825; }},
        {"Blanca(12) is misplaced", [](Partida& p) { p.Blanca[12].Top += 0.5F; }},
        {"Cafe(10) is misplaced", [](Partida& p) { p.Cafe[10].Left = 255; }},
        {"Blanca(13) is misplaced", [](Partida& p) { p.Blanca[13].Top = 3391; }},
        {"Cafe(0) is wrongly enabled", [](Partida& p) { p.Cafe[0].Enabled = false; }},
        {"Cafe(14) is wrongly enabled", [](Partida& p) { p.Cafe[14].Enabled = true; }},
        {"Cafe(1) is hidden", [](Partida& p) { p.Cafe[1].Visible = false; }},
        {"point 0: wrong owner", [](Partida& p) { p.Puntos[0].Owner = NADIE; }},
        {"point 3: wrong owner", [](Partida& p) { p.Puntos[3].Owner = CAFE; }},
        {"point 5: wrong height", [](Partida& p) { p.Puntos[5].Y = 300; }},
        {"point 3: wrong height", [](Partida& p) { p.Puntos[3].Y = 0; }},
        {"Cafe(4) is drawn over", [](Partida& p) { p.Cafe[4].ZOrder = p.Frente + 1; }},
        {"Blanca(11) is drawn over", [](Partida& p) { p.Blanca[11].ZOrder = p.Frente + 1; }},
        {"tray 0: wrong height", [](Partida& p) { p.Altura_Cafe = 0; }},
        {"tray 1: wrong height", [](Partida& p) { p.Altura_Blanca = 5; }},
        {"tray 1 is shown without", [](Partida& p) { p.Adios[1].Visible = false; }},
        {"tray 0 is shown without", [](Partida& p) { p.Adios[0].Visible = false; }},
        {"tray 0 holds chips before", [](Partida& p) { p.Cafe_En_Casa = False; }},
        {"Dado1 is out of range", [](Partida& p) { p.Dado1 = 7; }},
        {"Dado2 is out of range", [](Partida& p) { p.Dado2 = -1; }},
        {"Dado1 shows another face", [](Partida& p) { p.Dado1 = 0; }},
        {"Dado2 shows another face", [](Partida& p) { p.Dado[1].Shown = Picture::Dado2; }},
        {"a flag is neither", [](Partida& p) { p.Jugando = 1; }},
        {"a flag is neither", [](Partida& p) { p.Sonido = 2; }},
        {"Turno is no colour", [](Partida& p) { p.Turno = 2; }},
        {"Nivel is no level", [](Partida& p) { p.Nivel = 3; }},
        {"Dobles is above 2", [](Partida& p) { p.Dobles = 3; }},
        {"Origen is no place", [](Partida& p) { p.Origen = ORIGEN_COLOCACION; }},
        {"Origen is no place", [](Partida& p) { p.Origen = 25; }},
    };
    const Mesa mesa(MEDIO);
    for (const Caso& caso : casos) {
        SCOPED_TRACE(caso.falta);
        Partida rota = mesa.partida;
        caso.romper(rota);
        const auto faltas = Faltas(rota);
        EXPECT_TRUE(std::any_of(faltas.begin(), faltas.end(), [&](const std::string& falta) {
            return falta.starts_with(caso.falta);
        })) << ::testing::PrintToString(faltas);
        EXPECT_FALSE(Es_Valida(rota));
    }
}

TEST(Validez, A_Position_In_One_Line) {
    Mesa mesa(MEDIO);
    EXPECT_TRUE(Es_Valida(mesa.partida));
    EXPECT_EQ(Texto(mesa.partida),
              "turno B, dados 3+1, blancas 0x2 11x3 20x6 barra x2 fuera x2, "
              "cafes 5x6 12x4 barra x1 fuera x4");
    Poner(mesa.juego, mesa.partida, "turn C | dice 2 2 | doubles 1");
    EXPECT_EQ(Texto(mesa.partida),
              "turno C, dados 2+2 dobles 1, blancas 0x2 11x5 16x3 18x5, cafes 5x5 7x3 12x5 23x2");
}

}  // namespace
}  // namespace corvanda::pruebas
