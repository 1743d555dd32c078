#include "runtime/conversion.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

namespace corvanda {
namespace {

constexpr double INFINITO = std::numeric_limits<double>::infinity();

TEST(Conversion, Halves_Go_To_The_Even_Neighbour_And_All_Stays_In_Range) {
    for (const double v : {-0.5, 0.49999999999999994, 0.5, double{NAN}}) EXPECT_EQ(CInt(v), 0) << v;
    for (const double v : {1.5, 2.5, 2.4999, 0.1 * 5 + 1, 0.3 * 5 + 1}) EXPECT_EQ(CInt(v), 2) << v;
    for (const double v : {-1.5, -2.5, -2.49}) EXPECT_EQ(CInt(v), -2) << v;
    for (const double v : {32766.51, 32767.5, 1e9, INFINITO}) EXPECT_EQ(CInt(v), 32767) << v;
    for (const double v : {-32768.5, -1e9, -INFINITO}) EXPECT_EQ(CInt(v), -32768) << v;
    for (const double v : {-0.5, -1.0, 0.5, double{NAN}}) EXPECT_EQ(CByte(v), 0) << v;
    for (const double v : {254.6, 255.5, 300.0}) EXPECT_EQ(CByte(v), 255) << v;
}

TEST(Conversion, Val_Reads_The_Longest_Leading_Number) {
    const std::string ceros(400, '0');
    const std::pair<double, std::vector<std::string>> casos[] = {
        {0, {"", " ", "-", "+", ".", "abc", "inf", "nan", "--5", "+-5", "e5", "0x10"}},
        {7, {" 7", "007", "+7", "7.", "7,5", "7abc", "7 34", "7e", "7e+", "70e-1"}},
        {-0.25, {"  -.25", "-0.25.5"}},
        {100, {"1e2", "1E2", "1e+2"}},
        {INFINITO, {"1e999", "1" + ceros, "1" + ceros + "e-1", "1e99999999999999999999"}},
        {-INFINITO, {"-1e999"}},
        {0, {"1e-999", "0." + ceros + "1", "1e-99999999999999999999"}}};
    for (const auto& [numero, textos] : casos) {
        for (const std::string& texto : textos) EXPECT_EQ(Val(texto), numero) << texto;
    }
}

TEST(Conversion, Str_Keeps_A_Place_For_The_Sign) {
    EXPECT_EQ(Str(0), " 0");
    EXPECT_EQ(Str(14), " 14");
    EXPECT_EQ(Str(-32768), "-32768");
}

}  // namespace
}  // namespace corvanda
