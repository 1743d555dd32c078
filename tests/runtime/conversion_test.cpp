#include "runtime/conversion.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "runtime/random.h"

namespace corvanda {
namespace {

constexpr double INFINITO = std::numeric_limits<double>::infinity();
const double CASI_UNO = std::nextafter(1.0, 0.0);

template <typename Entrada, typename Salida>
struct Caso {
    Entrada entrada;
    Salida salida;
};

TEST(Conversion, CInt_Rounds_Halves_To_Even_And_Stays_In_Range) {
    const Caso<double, int> casos[] = {{1.5, 2},
                                       {2.5, 2},
                                       {3.5, 4},
                                       {-0.5, 0},
                                       {-1.5, -2},
                                       {-2.5, -2},
                                       {2.4999, 2},
                                       {-2.51, -3},
                                       {0.49999999999999994, 0},
                                       {32766.5, 32766},
                                       {32767.5, 32767},
                                       {1e9, 32767},
                                       {-32768.5, -32768},
                                       {-1e9, -32768},
                                       {INFINITO, 32767},
                                       {-INFINITO, -32768},
                                       {std::nan(""), 0},
                                       {0.1 * 5, 0},
                                       {0.1 * 5 + 1, 2},
                                       {0.3 * 5 + 1, 2},
                                       {0.5 * 5 + 1, 4},
                                       {0.9 * 5, 4},
                                       {0.9 * 5 + 1, 6},
                                       {CASI_UNO * 5, 5},
                                       {CASI_UNO * 5 + 1, 6}};
    for (const auto& [valor, entero] : casos) EXPECT_EQ(CInt(valor), entero) << valor;
}

TEST(Conversion, CByte_Brings_A_Number_To_The_Nearest_End) {
    const Caso<double, int> casos[] = {{-0.5, 0},    {-1, 0},      {0.1 * 5, 0}, {3.5, 4},
                                       {254.5, 254}, {255.5, 255}, {300, 255},   {std::nan(""), 0}};
    for (const auto& [valor, byte] : casos) EXPECT_EQ(CByte(valor), byte) << valor;
}

TEST(Conversion, Val_Reads_The_Longest_Leading_Number) {
    const Caso<std::string, double> casos[] = {{"", 0},
                                               {" ", 0},
                                               {"-", 0},
                                               {"+", 0},
                                               {".", 0},
                                               {"abc", 0},
                                               {"inf", 0},
                                               {"nan", 0},
                                               {"--5", 0},
                                               {"+-5", 0},
                                               {"e5", 0},
                                               {"0x10", 0},
                                               {" 7", 7},
                                               {"   -7", -7},
                                               {"007", 7},
                                               {"+.5", 0.5},
                                               {"-.25", -0.25},
                                               {"5.", 5},
                                               {"12abc", 12},
                                               {"12 34", 12},
                                               {"1,5", 1},
                                               {"1.5.5", 1.5},
                                               {"1e2", 100},
                                               {"1E2", 100},
                                               {"1e+2", 100},
                                               {"25e-1", 2.5},
                                               {"1e", 1},
                                               {"1e+", 1},
                                               {"1e999", INFINITO},
                                               {"-1e999", -INFINITO},
                                               {"1e-999", 0}};
    for (const auto& [texto, numero] : casos) EXPECT_EQ(Val(texto), numero) << texto;
}

TEST(Conversion, Val_Tells_Very_Small_From_Very_Large_By_The_Value) {
    const std::string ceros(400, '0');
    EXPECT_EQ(Val("0." + ceros + "1"), 0);
    EXPECT_EQ(Val("1" + ceros), INFINITO);
    EXPECT_EQ(Val("1" + ceros + "e-1"), INFINITO);
}

TEST(Conversion, Str_Keeps_A_Place_For_The_Sign) {
    const Caso<Integer, std::string> casos[] = {
        {0, " 0"}, {14, " 14"}, {-7, "-7"}, {32767, " 32767"}, {-32768, "-32768"}};
    for (const auto& [numero, texto] : casos) EXPECT_EQ(Str(numero), texto);
}

TEST(Random, A_Seed_Repeats_Its_Numbers) {
    Random uno(7), mismo(7), otro(8);
    const double r = uno.Rnd();
    EXPECT_EQ(mismo.Rnd(), r);
    EXPECT_NE(otro.Rnd(), r);
}

}  // namespace
}  // namespace corvanda
