// What the search finds and how it scores it. Positions keep White on its bar where White does not
// matter, and put idle brown chips on point 0, from where no die moves them.
#include "computer/busqueda.h"

#include <gtest/gtest.h>

#include "tests/computer/turno_cafe.h"

namespace corvanda::pruebas {
namespace {

std::string Unir(const std::vector<std::string>& textos) {
    std::string todo;
    for (const std::string& texto : textos) todo += (todo.empty() ? "" : " ") + texto;
    return todo;
}

TEST(Busqueda, Scores_Every_Candidate) {
    struct Fila {
        const char* que;
        const char* posicion;
        Integer dado;
        const char* candidatos;
    };
    const Fila filas[] = {
        {"closed targets and points below the die are left out",
         "B 6x2 bar13 | C 23x2 12x5 7x3 5x5", 6, "1907 2023"},
        {"one, two, three and more chips on the source", "B bar15 | C 23x3 20x1 17x2 14x3 11x4 0x2",
         1, "1817 1911 1914 2020 2023"},
        {"hit, cover, two and more of our own, empty",
         "B 18x1 bar14 | C 23x3 20x1 16x1 14x1 12x2 9x1 7x3 0x3", 2,
         "1812 1907 2023 2309 2314 2320 2516"},
        {"the first open one is the first candidate", "B 22x2 bar13 | C 23x2 20x3 10x2 0x8", 1,
         "1810 2120"},
        {"companion 7 points ahead", "B bar15 | C 23x3 16x3 0x9", 1, "1916 2123"},
        {"companion 6 points ahead", "B bar15 | C 23x3 17x3 0x9", 1, "1917 2023"},
        {"companion on point 0", "B bar15 | C 7x3 0x12", 1, "2107"},
        {"nobody ahead, far from home", "B bar15 | C 23x15", 1, "2023"},
        {"nobody ahead, seven below the mark for none", "B bar15 | C 22x15", 1, "2022"},
        {"nobody ahead, in the half with our home", "B bar15 | C 5x15", 1, "2205"},
        {"last of all on point 11", "B bar15 | C 11x3 9x12", 1, "1909 2211"},
        {"last of all on point 12", "B bar15 | C 12x3 9x12", 1, "1909 2012"},
        {"a blocked one stands behind on 23", "B 22x2 bar13 | C 23x2 11x3 9x10", 1, "1909 2011"},
        {"a blocked one stands right behind", "B 7x2 bar13 | C 10x2 9x3 8x10", 3, "1908 2009"},
        {"out of touch and last of all", "B bar15 | C 11x3 4x12", 1, "1904 2111"},
        {"onto point 0 with the exact die", "B bar15 | C 6x3 5x2 0x10", 6, "2506"},
        {"the greatest score", "B bar15 | C 11x1 9x1 0x13", 2, "2009 2811"},
        {"the smallest score", "B bar15 | C 23x2 20x2 0x11", 2, "1820 1923"},
        {"nothing to move", "B 19x2 bar13 | C 23x2 0x13", 4, ""},
        {"a used die", "B bar15 | C 23x15", 0, ""},
        {"a die below 0", "B bar15 | C 12x15", -3, ""},
        {"a die beyond the board", "B bar15 | C 23x15", 24, ""},
    };
    for (const Fila& fila : filas) {
        Mesa mesa(fila.posicion);
        EXPECT_EQ(Unir(Busqueda(mesa.juego).Candidatos(fila.dado).Textos()), fila.candidatos)
            << fila.que;
    }
}

TEST(Busqueda, Finds_The_First_Brown_Point_Of_A_Range) {
    struct Fila {
        Integer ini, fin;
        int punto;
    };
    const Fila filas[] = {{5, 5, 30},   {4, 4, 4},   {4, 0, 4},   {0, 4, 2},   {5, 0, 4},
                          {3, 0, 2},    {3, 3, 30},  {9, 23, 30}, {23, 0, 8},  {8, 23, 8},
                          {7, 8, 8},    {23, 8, 8},  {1, 0, 30},  {-5, 40, 2}, {40, -5, 8},
                          {24, 30, 30}, {-1, -9, 30}};
    Mesa mesa("B 3x2 bar13 | C 8x5 4x5 2x5");
    for (const Fila& fila : filas) {
        EXPECT_EQ(Busqueda(mesa.juego).Buscar_Cafes(fila.ini, fila.fin), fila.punto)
            << fila.ini << " to " << fila.fin;
    }
}

TEST(Busqueda, Exchanges_The_Dice_In_Place_Only_When_The_Second_Is_Played) {
    struct Fila {
        const char* que;
        const char* posicion;
        Byte nivel;
        std::array<Integer, 2> dados;
        std::array<Integer, 2> despues;
    };
    const Fila filas[] = {
        {"the first is played", "B bar15 | C 23x1 0x14", AVANZADO, {6, 1}, {6, 1}},
        {"only the second fits", "B 17x2 bar13 | C 23x1 0x14", AVANZADO, {6, 1}, {1, 6}},
        {"neither fits", "B 17x2 22x2 bar11 | C 23x1 0x14", AVANZADO, {6, 1}, {6, 1}},
        {"there is no second", "B 17x2 bar13 | C 23x1 0x14", AVANZADO, {6, 0}, {6, 0}},
        {"Beginner", "B 17x2 bar13 | C 23x1 0x14", PRINCIPIANTE, {6, 1}, {6, 1}},
    };
    for (const Fila& fila : filas) {
        Mesa mesa(std::string(fila.posicion) + " | turn C | dice " + std::to_string(fila.dados[0]) +
                  " " + std::to_string(fila.dados[1]));
        mesa.partida.Nivel = fila.nivel;
        mesa.escritorio.Sembrar(1);
        mesa.escritorio.Contestar_Siempre();
        auto [primero, segundo] = fila.dados;
        Busqueda(mesa.juego).Buscar_Tiro(primero, segundo);
        EXPECT_EQ((std::array{primero, segundo}), fila.despues) << fila.que;
    }
}

TEST(Busqueda, A_Pass_At_Beginner_Leaves_Origen_On_The_Last_Point_Looked_At) {
    for (const auto ultimo : {Integer{2}, Integer{0}}) {
        Mesa mesa("B 17x2 bar13 | turn C | dice 6 0 | C 23x1 3x13 " + std::to_string(ultimo) +
                  "x1");
        mesa.partida.Nivel = PRINCIPIANTE;
        mesa.escritorio.Dados({1, 2});
        mesa.escritorio.Contestar();
        Computadora().Tirar_Computer(mesa.juego);
        EXPECT_EQ(mesa.partida.Turno, BLANCA);
        EXPECT_EQ(mesa.partida.Origen, ultimo);
    }
}

struct Turno {
    const char* que;
    const char* posicion;
    const char* moves;
};

void Comprobar(const std::vector<Turno>& turnos, Byte nivel) {
    for (const Turno& turno : turnos) {
        EXPECT_EQ(Turno_Jugado(turno.posicion + std::string(" | turn C"), nivel), turno.moves)
            << turno.que << ", level " << int{nivel};
    }
}

TEST(Busqueda, Beginner_Plays_The_First_Move_From_The_Back) {
    Comprobar(
        {
            {"no bear-off before all were home", "B 6x2 5x2 bar11 | C 10x1 2x1 3x1 0x12 | dice 5 4",
             "pass"},
            {"both dice at the back point first", "B 17x2 bar13 | C 23x1 12x1 0x13 | dice 6 1",
             "23/22 22/16"},
            {"the larger die first", "B bar15 | C 20x1 0x14 | dice 2 5", "20/15 15/13"},
            {"the smaller die where the larger is closed", "B 18x2 bar13 | C 23x1 0x14 | dice 5 3",
             "23/20 20/15"},
            {"the second image's die alone", "B bar15 | C 23x1 12x1 0x13 | dice 0 4", "23/19"},
            {"onto a lone white chip", "B 17x1 bar14 | C 23x1 0x14 | dice 6 0", "23/17*"},
            {"down to point 0", "B 22x2 bar13 | C 23x1 1x1 0x13 | dice 1 0", "1/0"},
            {"not below point 0", "B bar15 | C 4x2 0x13 | dice 5 0", "pass"},
            {"a double, four times", "B bar15 | C 23x4 0x11 | dice 2 2", "23/21 23/21 23/21 23/21"},
            {"no look at scores", "C 23x2 12x5 7x3 5x5 | dice 2 0", "23/21"},
        },
        PRINCIPIANTE);
}

TEST(Busqueda, Advanced_Plays_The_Best_Move_Of_The_Larger_Die) {
    Comprobar(
        {
            {"the best score", "B 6x2 bar13 | C 23x2 12x5 7x3 5x5 | dice 6 0", "23/17"},
            {"the best score is not the last point", "C 23x2 12x5 7x3 5x5 | dice 2 0", "7/5"},
            {"equal scores: the higher point", "B bar15 | C 23x2 17x1 5x1 0x11 | dice 1 0",
             "17/16"},
            {"the larger die first", "B bar15 | C 23x1 0x14 | dice 3 5", "23/18 18/15"},
            {"the smaller die where the larger has no move",
             "B 17x2 bar13 | C 23x1 0x14 | dice 6 1", "23/22 22/16"},
            {"a hit with the smaller die waits", "B 21x1 bar14 | C 23x3 0x12 | dice 5 2",
             "23/18 23/21*"},
            {"one pass for a double without a move", "B 19x2 bar13 | C 23x2 0x13 | dice 4 4",
             "pass"},
            {"neither die", "B 17x2 22x2 bar11 | C 23x1 0x14 | dice 6 1", "pass"},
            {"the only die left has no move", "B 17x2 bar13 | C 23x1 0x14 | dice 0 6", "pass"},
        },
        AVANZADO);
}

TEST(Busqueda, Bears_Off_At_Either_Level) {
    const std::vector<Turno> turnos{
        {"the exact die, then the lowest", "B bar15 | C 3x2 1x2 0x2 | dice 6 1", "3/off 0/off"},
        {"exactly although a chip stands higher", "B bar15 | C 4x1 2x1 1x1 | dice 3 2",
         "2/off 1/off"},
        {"a move where the last die fits no chip", "B bar15 | C 4x1 2x1 | dice 3 2", "2/off 4/2"},
        {"moves where no chip fits", "B bar15 | C 5x2 4x2 | dice 2 1", "5/3 5/4"},
        {"the smaller die exactly", "B bar15 | C 5x1 1x1 | dice 4 2", "1/off 5/1"},
        {"the larger exactly before the smaller", "B bar15 | C 3x1 1x2 0x1 | dice 2 4",
         "3/off 1/off"},
        {"the highest chip below a die too large", "B bar15 | C 3x1 1x1 | dice 5 0", "3/off"},
        {"a chip on point 5 holds the others", "B bar15 | C 5x1 0x2 | dice 5 0", "5/0"},
        {"a six from point 5", "B bar15 | C 5x2 4x1 | dice 6 0", "5/off"},
        {"no chip fits and none can move", "B 1x2 bar13 | C 5x1 0x2 | dice 4 0", "pass"},
        {"a double, four times", "B bar15 | C 3x5 | dice 4 4", "3/off 3/off 3/off 3/off"},
        {"nobody at home any more", "B bar15 | C 10x15 | home C | dice 6 0", "10/4"},
        {"nobody at home and a one", "B bar15 | C 10x15 | home C | dice 1 0", "10/9"},
        {"one is still coming home", "B bar15 | C 6x1 3x14 | home C | dice 6 0", "3/off"},
        {"the bar first", "B bar15 | C bar1 3x14 | home C | dice 6 4", "bar/18 3/off"},
        {"refused for a white chip behind", "B 5x1 bar14 | C 2x2 | dice 6 0", "pass"},
        {"refused, and the other die is given up", "B 5x1 bar14 | C 2x3 | dice 6 5", "pass"},
        {"an exact die is not refused", "B 5x1 bar14 | C 2x3 | dice 6 3", "2/off pass"},
    };
    Comprobar(turnos, PRINCIPIANTE);
    Comprobar(turnos, AVANZADO);
}

}  // namespace
}  // namespace corvanda::pruebas
