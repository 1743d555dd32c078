#include <gtest/gtest.h>

#include "tests/apoyo/diario.h"
#include "tests/apoyo/mesa.h"

namespace corvanda::pruebas {
namespace {

// The move as the game makes it, without the checks of a press and a drop.
void Mover_Tope(Mesa& mesa, Integer origen, Integer destino) {
    const Integer lugar = origen == ORIGEN_BARRA_BLANCA ? BARRA_BLANCA : origen;
    mesa.juego.Poner_Origen(origen);
    mesa.juego.Mover(mesa.partida.Turno, Pila_En(mesa.partida, lugar).Tope(), destino);
}

TEST(Jugada, A_Die_Pays_For_Each_Move) {
    struct Pago {
        const char* posicion;
        Integer origen, destino;
        const char* dados;  // afterwards
    };
    const Pago pagos[] = {
        {"B 0x15 | C 23x15 | dice 5 2", 0, 5, "0 2*"},
        {"B 0x15 | C 23x15 | dice 5 2", 0, 2, "5* 0"},
        {"B 0x15 | C 23x15 | dice 4 4", 0, 4, "4* 4* x1"},
        {"B 0x15 | C 23x15 | dice 4 4 | doubles 1", 0, 4, "4* 4*"},
        {"B 0x15 | C 23x15 | dice 4 4 | doubles 0", 0, 4, "0 4*"},
        {"turn C | B 0x15 | C 12x15 | dice 3 1", 12, 11, "3* 0"},
        {"B 5x15 | C 23x15 | dice 3 1", 5, 2,
         "0 1*"},  // backward, which only the hands are refused
        {"B bar1 0x14 | C 23x15 | dice 4 1", ORIGEN_BARRA_BLANCA, 3, "0 1*"},
        {"turn C | C bar1 12x14 | B 0x15 | dice 2 6", ORIGEN_BARRA_CAFE, 18, "2* 0"},
    };
    for (const Pago& pago : pagos) {
        SCOPED_TRACE(std::string(pago.posicion) + " to " + std::to_string(pago.destino));
        Mesa mesa(pago.posicion);
        Mover_Tope(mesa, pago.origen, pago.destino);
        EXPECT_EQ(Pila_En(mesa.partida, pago.destino).Cuenta(), 1);
        EXPECT_EQ(Punto_En(mesa.partida, pago.destino).Owner, mesa.partida.Turno);
        EXPECT_EQ(Dados_De(mesa.partida), pago.dados);
        EXPECT_EQ(Faltas(mesa.partida), Diario{});
        EXPECT_EQ(mesa.escritorio.Leer(), Diario{});
    }
}

TEST(Jugada, Nothing_Is_Said_Or_Changed_When_No_Die_Pays) {
    struct Rechazo {
        const char* posicion;
        Integer origen, destino;
    };
    const Rechazo rechazos[] = {
        {"B 0x15 | C 23x15 | dice 5 2", 0, 7},  // the sum of the dice
        {"B 0x15 | C 23x15 | dice 0 3", 0, 6},
        {"B 0x15 | C 23x15 | dice 6 0", 0, 3},
        {"B 3x15 | C 23x15 | dice 0 3", 3, 3},
        {"B bar1 0x14 | C 23x15 | dice 4 1", ORIGEN_BARRA_BLANCA, 4},
        // Points that do not exist.
        {"B 0x15 | C 23x15 | dice 5 1", 0, -1},
        {"B 19x15 | C 3x15 | dice 5 1", 19, 24},
        {"B 0x15 | C 23x15 | dice 5 2", 0, 30000},
    };
    for (const Rechazo& rechazo : rechazos) {
        SCOPED_TRACE(std::string(rechazo.posicion) + " to " + std::to_string(rechazo.destino));
        Mesa mesa(rechazo.posicion);
        mesa.partida.Sonido = True;
        mesa.juego.Poner_Origen(rechazo.origen);
        const Partida antes = mesa.partida;
        Mover_Tope(mesa, rechazo.origen, rechazo.destino);
        for (const Integer ficha : {Integer{-1}, FICHAS}) mesa.juego.Mover(BLANCA, ficha, 5);
        EXPECT_TRUE(mesa.partida == antes) << Texto(mesa.partida);
        EXPECT_EQ(mesa.escritorio.Leer(), Diario{});
    }
}

// Setting up a new game hides the dice and keeps their values.
TEST(Jugada, A_Hidden_Die_Never_Pays) {
    Mesa mesa("dice 1 2");
    mesa.juego.Ordenar();
    const Partida antes = mesa.partida;
    Mover_Tope(mesa, 0, 1);
    Mover_Tope(mesa, 0, 2);
    EXPECT_TRUE(mesa.partida == antes) << Texto(mesa.partida);
}

TEST(Jugada, A_Double_Gives_Four_Moves_And_Then_The_Turn_Goes_Over) {
    Mesa mesa("B 0x15 | C 23x15 | dice 4 4");
    mesa.partida.Sonido = True;
    for (const char* dados : {"4* 4* x1", "4* 4*", "0 4*"}) {
        Mover_Tope(mesa, 0, 4);
        EXPECT_EQ(mesa.escritorio.Leer(), Diario{Suena("bounce")});
        EXPECT_EQ(Dados_De(mesa.partida), dados);
        EXPECT_EQ(mesa.partida.Turno, BLANCA);
    }
    mesa.escritorio.Dados({3, 5});
    Mover_Tope(mesa, 4, 8);
    EXPECT_EQ(mesa.escritorio.Leer(), (Diario{Suena("bounce"), Suena("click1")}));
    EXPECT_EQ(Texto(mesa.partida), "turno C, dados 3+5, blancas 0x12 4x2 8x1, cafes 23x15");
    EXPECT_EQ(mesa.partida.Jugando, True);
    EXPECT_EQ(Faltas(mesa.partida), Diario{});
}

TEST(Jugada, A_Lone_Chip_Goes_To_Its_Bar) {
    struct Golpe {
        const char* posicion;
        Integer origen, destino, quedan;  // how many chips its bar holds then
    };
    const Golpe golpes[] = {
        {"B 0x14 9x1 | C 12x1 23x14 | dice 3 1", 9, 12, 1},
        {"B 0x14 9x1 | C 10x1 23x13 bar1 | dice 3 1", 9, 10, 2},
        {"B 18x14 bar1 | C 2x1 12x14 | dice 3 1", ORIGEN_BARRA_BLANCA, 2, 1},
        {"turn C | B 3x1 0x14 | C 5x1 23x14 | dice 2 1", 5, 3, 1},
        {"turn C | B 18x1 0x12 bar2 | C 12x14 bar1 | dice 6 1", ORIGEN_BARRA_CAFE, 18, 3},
    };
    for (const Golpe& golpe : golpes) {
        for (const Boolean sonido : {True, False}) {
            SCOPED_TRACE(golpe.posicion);
            Mesa mesa(golpe.posicion);
            mesa.partida.Sonido = sonido;
            Mover_Tope(mesa, golpe.origen, golpe.destino);
            EXPECT_EQ(mesa.escritorio.Leer(),
                      sonido == True ? (Diario{Suena("bounce"), Suena("cannon")}) : Diario{});
            const bool blanca = mesa.partida.Turno == BLANCA;
            const Pila& barra = Pila_En(mesa.partida, blanca ? BARRA_CAFE : BARRA_BLANCA);
            EXPECT_EQ(barra.Tope(), 0);
            EXPECT_EQ(barra.Cuenta(), golpe.quedan);
            EXPECT_EQ(Punto_En(mesa.partida, golpe.destino).Owner, mesa.partida.Turno);
            const Image& comida = blanca ? mesa.partida.Cafe[0] : mesa.partida.Blanca[0];
            EXPECT_EQ(comida.Left, blanca ? 330 : 255);
            EXPECT_EQ(comida.Top, blanca ? 3360 : 2257.5);
            EXPECT_EQ(Faltas(mesa.partida), Diario{});
        }
    }
}

TEST(Jugada, A_Point_Held_By_Two_Is_Closed) {
    for (const char* posicion :
         {"B 0x15 | C 5x2 12x13 | dice 5 1", "turn C | B 5x2 0x13 | C 10x15 | dice 1 5"}) {
        SCOPED_TRACE(posicion);
        Mesa mesa(posicion);
        mesa.partida.Sonido = True;
        const Integer origen = mesa.partida.Turno == BLANCA ? 0 : 10;
        mesa.juego.Poner_Origen(origen);
        const Partida antes = mesa.partida;
        mesa.escritorio.Contestar();
        Mover_Tope(mesa, origen, 5);
        EXPECT_TRUE(mesa.partida == antes) << Texto(mesa.partida);
        EXPECT_EQ(mesa.escritorio.Leer(), (Diario{Suena("strike"), OCUPADO}));
    }
}

TEST(Jugada, Any_Other_Colour_Plays_As_Brown) {
    Mesa mesa("turn C | B 0x15 | C 12x15 | dice 3 1");
    mesa.juego.Poner_Origen(12);
    mesa.juego.Mover(7, 14, 9);
    EXPECT_EQ(Punto_En(mesa.partida, 9).Owner, CAFE);
    EXPECT_EQ(Faltas(mesa.partida), Diario{});
}

TEST(Casa, The_Fifteenth_Chip_Home_Opens_The_Tray) {
    struct Llegada {
        const char* posicion;
        Integer origen, destino;
        bool blanca, cafe;
    };
    const Llegada llegadas[] = {
        {"B 17x1 18x14 | C 12x15 | dice 3 1", 17, 20, true, false},
        {"B 17x1 18x14 | C 12x15 | dice 1 2", 17, 18, true, false},
        {"B 17x1 18x14 | C 12x15 | dice 3 1", 18, 21, false, false},  // counted once, where it is
        {"B 16x1 17x1 18x13 | C 12x15 | dice 3 1", 17, 20, false, false},
        {"B 12x1 18x14 | C 5x15 | dice 5 1", 12, 17, false, false},
        {"B 16x1 17x1 18x13 | C 23x1 12x14 | dice 3 1", 17, 20, false, false},  // 23 is Brown's
        {"turn C | C 6x1 5x14 | B 12x15 | dice 2 1", 6, 4, false, true},
        {"turn C | C 8x1 0x14 | B 12x15 | dice 3 1", 8, 5, false, true},
        {"turn C | C 7x1 5x14 | B 12x15 | dice 2 1", 5, 3, false, false},
        {"turn C | C 7x1 6x1 5x13 | B 12x15 | dice 2 1", 6, 4, false, false},
        {"turn C | C 12x1 5x14 | B 18x15 | dice 6 1", 12, 6, false, false},
        {"turn C | C 7x1 6x1 5x13 | B 0x1 12x14 | dice 2 1", 6, 4, false, false},
        // Once given, the right stays: these hit a chip in its home board.
        {"turn C | C 22x1 5x14 | B 20x1 23x14 | home B | dice 2 1", 22, 20, true, false},
        {"B 2x1 12x14 | C 3x1 5x14 | home C | dice 1 2", 2, 3, false, true},
    };
    for (const Llegada& llegada : llegadas) {
        SCOPED_TRACE(llegada.posicion);
        Mesa mesa(llegada.posicion);
        mesa.Jugar(llegada.origen, llegada.destino);
        EXPECT_EQ(Punto_En(mesa.partida, llegada.destino).Owner, mesa.partida.Turno);
        EXPECT_EQ(mesa.partida.Blanca_En_Casa, llegada.blanca ? True : False);
        EXPECT_EQ(mesa.partida.Cafe_En_Casa, llegada.cafe ? True : False);
        EXPECT_EQ(Faltas(mesa.partida), Diario{});  // the trays follow the flags
    }
}

}  // namespace
}  // namespace corvanda::pruebas
