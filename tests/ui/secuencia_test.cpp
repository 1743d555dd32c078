// What moves on the board by itself, and when.
#include "ui/secuencia.h"

#include <gtest/gtest.h>

namespace corvanda::pruebas {
namespace {

constexpr Control FICHA{Arreglo::Cafe, 3};
constexpr Control COMIDA{Arreglo::Blanca, 8};
constexpr Control DADO{Arreglo::Dado, 0};
constexpr QPointF AQUI(1000, 300);
constexpr QPointF ALLA(5000, 4830);
constexpr QPointF BARRA(255, 2257.5);

TEST(Secuencia, A_Glide_Is_Slow_Enough_To_Follow_And_Never_Longer_Than_Half_The_Pause) {
    const std::tuple<int, double, int> tabla[] = {
        {0, 9000, 0},   {59, 9000, 0},     {60, 9000, 30},    {500, 9000, 200}, {700, 9000, 350},
        {1000, 0, 350}, {1000, 9000, 450}, {2000, 9000, 450}, {860, 9000, 430},
    };
    for (const auto& [pausa, distancia, dura] : tabla)
        EXPECT_EQ(Secuencia::Vuelo_Para(pausa, distancia), dura) << pausa << ' ' << distancia;
}

// The game tells of the hit chip, of the one that hit it, and of the dice of the next turn, all in
// one moment.
TEST(Secuencia, The_Hit_Chip_Waits_For_The_Other_And_The_Dice_For_Both) {
    Secuencia secuencia;
    secuencia.Avanzar(100);
    secuencia.Comer(COMIDA, ALLA, BARRA, 200);
    secuencia.Volar(FICHA, AQUI, ALLA, 400);
    secuencia.Tirar(DADO, {4185, 2865});
    const struct {
        Secuencia::Tiempo cuando;
        bool vuela, comida_fuera, dado;
    } tabla[] = {
        {100, true, false, false}, {499, true, false, false}, {500, false, false, false},
        {600, false, true, false}, {700, false, true, false}, {800, false, true, true},
    };
    for (const auto& fila : tabla) {
        secuencia.Avanzar(fila.cuando);
        EXPECT_EQ(secuencia.Pose_De(FICHA).has_value(), fila.vuela) << fila.cuando;
        const auto comida = secuencia.Pose_De(COMIDA);
        EXPECT_EQ(!comida || comida->esquina != ALLA, fila.comida_fuera) << fila.cuando;
        ASSERT_TRUE(secuencia.Pose_De(DADO)) << fila.cuando;
        EXPECT_EQ(secuencia.Pose_De(DADO)->opacidad > 0, fila.dado) << fila.cuando;
    }
    secuencia.Avanzar(700 + Secuencia::TIRO);
    EXPECT_TRUE(secuencia.Quieta());
}

TEST(Secuencia, Each_Way_Begins_And_Ends_Where_It_Should_And_Is_Half_Done_At_Half_Time) {
    Secuencia secuencia;
    secuencia.Volar(FICHA, AQUI, ALLA, 400);
    EXPECT_EQ(secuencia.Pose_De(FICHA)->esquina, AQUI);
    secuencia.Avanzar(200);
    EXPECT_EQ(secuencia.Pose_De(FICHA)->esquina, (AQUI + ALLA) / 2);
    secuencia.Volar(FICHA, ALLA, AQUI, 400);  // moved again before it has landed
    EXPECT_EQ(secuencia.Pose_De(FICHA)->esquina, ALLA);
    secuencia.Terminar();
    EXPECT_FALSE(secuencia.Pose_De(FICHA));
}

TEST(Secuencia, A_Refused_Chip_Shakes_Or_Only_Shows_It_And_Comes_To_Rest) {
    for (const bool quieta : {false, true}) {
        Secuencia secuencia;
        secuencia.Rechazar(FICHA, AQUI, quieta);
        secuencia.Avanzar(20);
        EXPECT_EQ(secuencia.Pose_De(FICHA)->esquina == AQUI, quieta);
        EXPECT_TRUE(secuencia.Pose_De(FICHA)->rechazo);
        secuencia.Avanzar(300);
        EXPECT_EQ(secuencia.Pose_De(FICHA)->esquina, AQUI);
        secuencia.Avanzar(Secuencia::RECHAZO);
        EXPECT_TRUE(secuencia.Quieta());
    }
}

}  // namespace
}  // namespace corvanda::pruebas
