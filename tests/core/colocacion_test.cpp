#include <gtest/gtest.h>

#include "tests/apoyo/mesa.h"

namespace corvanda::pruebas {
namespace {

TEST(Colocacion, The_Starting_Position_Is_Valid) {
    Mesa mesa;
    EXPECT_EQ(Faltas(mesa.partida), std::vector<std::string>{});
    EXPECT_EQ(Texto(mesa.partida), "turno -, dados 0+0, blancas 0x2 11x5 16x3 18x5, cafes 5x5 7x3 12x5 23x2");
}

}  // namespace
}  // namespace corvanda::pruebas
