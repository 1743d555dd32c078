#include <gtest/gtest.h>

#include <array>
#include <cmath>

#include "tests/apoyo/diario.h"
#include "tests/apoyo/mesa.h"

namespace corvanda::pruebas {
namespace {

std::string Foto(const Partida& partida) {
    return "turno " + std::to_string(partida.Turno) + " jugando " +
           std::to_string(partida.Jugando) + ": " + Dados_De(partida);
}

TEST(Dados, A_Roll_Goes_Step_By_Step_Between_Four_Passes) {
    Mesa mesa("B 0x15 | C 12x15 | dice 0 2");
    mesa.partida.Sonido = True;
    Diario fotos;
    for (int pase = 1; pase <= 4; ++pase) {
        mesa.escritorio.En_El_Pase(pase, [&] {
            fotos.push_back(Foto(mesa.partida));
            EXPECT_EQ(mesa.escritorio.diario.back(), Suena("bounce"));
        });
    }
    mesa.escritorio.Dados({4, 4});
    mesa.Jugar(0, 2);
    fotos.push_back(Foto(mesa.partida));
    EXPECT_EQ(fotos, (Diario{
                         "turno -1 jugando 0: 0 0",
                         "turno -1 jugando 0: 4* 0",
                         "turno -1 jugando 0: 4* 4 x2",
                         "turno -1 jugando 0: 4* 4* x2",
                         "turno -1 jugando -1: 4* 4* x2",
                     }));
    EXPECT_EQ(mesa.escritorio.Pases(), 4);
    EXPECT_EQ(mesa.escritorio.diario.back(), Suena("click1"));
    EXPECT_EQ(mesa.partida.Dado[1].ZOrder, mesa.partida.Frente);
    EXPECT_EQ(mesa.partida.Dado[0].ZOrder, mesa.partida.Frente - 1);
    EXPECT_EQ(Faltas(mesa.partida), Diario{});
}

TEST(Dados, A_Roll_Without_Double_Ends_An_Old_One_And_Is_Silent_With_The_Sound_Off) {
    Mesa mesa("dice 5 5");
    mesa.escritorio.Dados({6, 1});
    mesa.juego.Tirar_Dados();
    EXPECT_EQ(Foto(mesa.partida), "turno -1 jugando -1: 6* 1*");
    EXPECT_EQ(mesa.escritorio.Leer(), Diario{});
}

TEST(Dados, Every_Random_Number_Gives_Its_Face) {
    struct Tiro {
        double r;
        int cara;
    };
    const Tiro tiros[] = {{0, 1},      {0.0999, 1}, {0.1, 2}, {0.2999, 2},
                          {0.3, 2},    {0.3001, 3}, {0.5, 4}, {0.7, 4},
                          {0.7001, 5}, {0.8999, 5}, {0.9, 6}, {std::nextafter(1.0, 0.0), 6}};
    Mesa mesa;
    for (const auto& [r, cara] : tiros) {
        mesa.escritorio.Azares({r, r});
        mesa.juego.Tirar_Dados();
        EXPECT_EQ(mesa.partida.Dado1, cara) << r;
        EXPECT_EQ(mesa.partida.Dado2, cara) << r;
        EXPECT_EQ(Faltas(mesa.partida), Diario{});
    }
}

TEST(Dados, The_Outer_Faces_Come_Half_As_Often) {
    Mesa mesa;
    mesa.escritorio.Sembrar(20);
    std::array<int, 7> primero{};
    std::array<int, 7> segundo{};
    constexpr int TIROS = 20000;
    for (int i = 0; i < TIROS; ++i) {
        mesa.juego.Tirar_Dados();
        ++primero.at(static_cast<std::size_t>(mesa.partida.Dado1));
        ++segundo.at(static_cast<std::size_t>(mesa.partida.Dado2));
    }
    for (const auto& veces : {primero, segundo}) {
        EXPECT_EQ(veces[0], 0);
        for (std::size_t cara = 1; cara <= 6; ++cara) {
            const double esperado = cara == 1 || cara == 6 ? 0.1 : 0.2;
            EXPECT_NEAR(veces.at(cara), TIROS * esperado, TIROS * 0.01) << cara;
        }
    }
}

TEST(Dados, The_Dialog_Leaves_The_Opposite_Of_The_Side_That_Starts) {
    for (const Integer turno : {BLANCA, CAFE, NADIE}) {
        Mesa mesa;
        Volado_Fijo volado(mesa.partida, turno);
        bool puesto = false;
        volado.mientras = [&] {
            puesto = mesa.partida.Nivel == AVANZADO && mesa.escritorio.Pases() == 0 &&
                     mesa.escritorio.diario.back() == "puntero normal";
        };
        mesa.escritorio.Dados({1, 3});
        mesa.juego.Empezar(AVANZADO, volado);
        EXPECT_TRUE(puesto);
        EXPECT_EQ(mesa.partida.Turno, -turno);
        EXPECT_EQ(mesa.partida.Jugando, True);
        EXPECT_EQ(Faltas(mesa.partida), Diario{});
    }
}

TEST(Dados, The_Computer_Plays_Brown_When_The_Level_Says_So) {
    struct Caso {
        Byte nivel;
        Integer turno;
        int turnos;
    };
    const Caso casos[] = {{DOS_PERSONAS, CAFE, 0},   {PRINCIPIANTE, CAFE, 1}, {AVANZADO, CAFE, 1},
                          {PRINCIPIANTE, BLANCA, 0}, {AVANZADO, BLANCA, 0},   {AVANZADO, NADIE, 0}};
    for (const Caso& caso : casos) {
        SCOPED_TRACE(std::to_string(caso.nivel) + ", " + std::to_string(caso.turno));
        Guion guion;
        Mesa mesa(&guion);
        guion.turno = [&](Juego& juego) {
            EXPECT_TRUE(juego.Computadora_Juega());
            EXPECT_EQ(Foto(mesa.partida), "turno -1 jugando -1: 5* 6*");
            EXPECT_EQ(mesa.escritorio.diario, Diario{Suena("click1")});
        };
        mesa.partida.Sonido = True;
        mesa.partida.Nivel = caso.nivel;
        mesa.partida.Turno = static_cast<Integer>(-caso.turno);
        mesa.escritorio.Dados({5, 6});
        mesa.juego.Tirar_Dados();
        EXPECT_EQ(guion.turnos, caso.turnos);
        EXPECT_FALSE(mesa.juego.Computadora_Juega());
    }
}

TEST(Dados, A_Delay_Is_One_Pass_And_Takes_Its_Time_Only_In_The_Computers_Pause) {
    Guion guion;
    Mesa mesa("B 0x15 | C 12x15 | dice 0 2", &guion);
    for (const Integer t : std::initializer_list<Integer>{0, 1000, 32000, -1}) {
        mesa.juego.Delay(t);
    }
    EXPECT_EQ(mesa.escritorio.Pases(), 4);
    EXPECT_EQ(mesa.escritorio.Pases_De_Pausa(), 0);

    // A turn of two moves with a pause before each; the rolls before and after it take no time.
    guion.turno = [&](Juego& juego) {
        for (const Integer ficha : std::initializer_list<Integer>{14, 13}) {
            juego.Delay(32000);
            juego.Poner_Origen(12);
            juego.Mover(CAFE, ficha, ficha == 14 ? 11 : 10);
        }
    };
    mesa.partida.Nivel = PRINCIPIANTE;
    mesa.escritorio.Dados({1, 2, 3, 4});
    mesa.Jugar(0, 2);
    EXPECT_EQ(Foto(mesa.partida), "turno 1 jugando -1: 3* 4*");
    EXPECT_EQ(mesa.escritorio.Pases(), 4 + 4 + 2 + 4);
    EXPECT_EQ(mesa.escritorio.Pases_De_Pausa(), 2);
}

}  // namespace
}  // namespace corvanda::pruebas
