#include <gtest/gtest.h>

#include "tests/apoyo/diario.h"
#include "tests/apoyo/mesa.h"

namespace corvanda::pruebas {
namespace {

// Presses the top chip of a point, or of the mover's bar, and drops it on a tray.
void Sacar(Mesa& mesa, Integer origen, Integer bandeja) {
    const Control fuente = mesa.Tomar(origen);
    ASSERT_NE(fuente, Control{});
    mesa.escritorio.Leer();
    mesa.Soltar(fuente, {Arreglo::Adios, bandeja});
}

struct Pago {
    const char* posicion;
    Integer origen, bandeja;
    const char* dados;  // afterwards, with a die that is still to be played
};

void Probar_Pago(const Pago& pago) {
    SCOPED_TRACE(std::string(pago.posicion) + " from " + std::to_string(pago.origen));
    Mesa mesa(pago.posicion);
    mesa.partida.Sonido = True;
    const Integer pila = mesa.partida.Turno == BLANCA ? BANDEJA_BLANCA : BANDEJA_CAFE;
    const Integer fuera = Pila_En(mesa.partida, pila).Cuenta();
    const Integer ficha = Pila_En(mesa.partida, pago.origen).Tope();
    Sacar(mesa, pago.origen, pago.bandeja);
    EXPECT_EQ(mesa.escritorio.Leer(), Diario{Suena("Pop2")});
    EXPECT_EQ(Pila_En(mesa.partida, pila).Cuenta(), fuera + 1);
    EXPECT_EQ(Pila_En(mesa.partida, pila).Tope(), ficha);
    EXPECT_EQ(Dados_De(mesa.partida), pago.dados);
    EXPECT_EQ(Faltas(mesa.partida), Diario{});
}

TEST(Salida, The_Die_That_Pays) {
    const Pago pagos[] = {
        // An exact die wins, the first before the second.
        {"B 20x5 23x9 | C 12x15 | dice 4 2", 20, 1, "0 2*"},
        {"B 20x5 23x9 | C 12x15 | dice 2 4", 20, 1, "2* 0"},
        {"B 18x1 20x5 23x8 | C 12x15 | dice 2 4", 20, 1, "2* 0"},
        {"B 19x4 23x10 | C 12x15 | dice 5 5", 19, 1, "5* 5* x1"},
        {"B 19x4 23x10 | C 12x15 | dice 5 5 | doubles 1", 19, 1, "5* 5*"},
        {"B 19x4 23x10 | C 12x15 | dice 5 5 | doubles 0", 19, 1, "0 5*"},
        // Otherwise the larger one, when nobody stands farther back.
        {"B 21x5 23x9 | C 12x15 | dice 6 2", 21, 1, "0 2*"},
        {"B 21x5 23x9 | C 12x15 | dice 2 6", 21, 1, "2* 0"},
        {"B 21x5 23x9 | C 17x1 22x1 12x13 | dice 6 2", 21, 1, "0 2*"},
        {"B 21x5 23x9 | C 12x15 | dice 5 5", 21, 1, "5* 5* x1"},
        {"B 21x5 23x9 | C 12x15 | dice 5 5 | doubles 0", 21, 1, "0 5*"},
        {"B 18x1 23x13 | C 12x15 | dice 6 5", 18, 1, "0 5*"},
        {"turn C | C 2x5 0x9 | B 12x15 | dice 1 5", 2, 0, "1* 0"},
        {"turn C | C 2x5 0x9 | B 12x15 | dice 5 1", 2, 0, "0 1*"},
        {"turn C | C 2x5 0x9 | B 12x15 | dice 3 6", 2, 0, "0 6*"},
        {"turn C | C 5x1 0x13 | B 12x15 | dice 6 5", 5, 0, "0 5*"},
        {"turn C | C 4x5 0x9 | B 6x1 3x1 12x13 | dice 6 1", 4, 0, "0 1*"},
    };
    for (const Pago& pago : pagos) Probar_Pago(pago);
}

TEST(Salida, Refused_With_The_Error_Sound_Alone) {
    struct Rechazo {
        const char* posicion;
        Integer origen, bandeja;
    };
    const Rechazo rechazos[] = {
        {"B 21x5 19x1 23x8 | C 12x15 | dice 6 2", 21, 1},
        {"B 21x5 23x9 | C 19x1 12x14 | dice 6 2", 21, 1},
        {"B 21x5 18x1 23x8 | C 12x15 | dice 2 6", 21, 1},
        {"B 21x5 20x1 23x8 | C 12x15 | dice 0 6", 21, 1},
        {"B 19x5 23x9 | C 12x15 | dice 4 2", 19, 1},
        {"B 19x5 23x9 | C 12x15 | dice 2 4", 19, 1},
        {"B 10x1 23x13 | C 12x15 | dice 6 5", 10, 1},
        {"turn C | C 2x5 3x1 0x8 | B 12x15 | dice 1 5", 2, 0},
        {"turn C | C 2x5 0x9 | B 5x1 12x14 | dice 5 1", 2, 0},
        {"turn C | C 4x5 0x9 | B 12x15 | dice 4 1", 4, 0},
        {"turn C | C 6x1 0x13 | B 12x15 | dice 6 5", 6, 0},
        // From a bar, and into the tray of the side that does not move.
        {"B 23x13 bar1 | C 12x15 | dice 6 5", ORIGEN_BARRA_BLANCA, 1},
        {"turn C | C 0x13 bar1 | B 12x15 | dice 6 1", ORIGEN_BARRA_CAFE, 0},
        {"B 23x14 | C 0x14 | dice 1 2", 23, 0},
        {"B 2x1 23x13 | C 0x14 | dice 3 2", 2, 0},
        {"turn C | C 0x14 | B 23x14 | dice 1 2", 0, 1},
        {"turn C | C 21x1 0x13 | B 23x14 | dice 3 2", 21, 1},
    };
    for (const Rechazo& rechazo : rechazos) {
        SCOPED_TRACE(std::string(rechazo.posicion) + " from " + std::to_string(rechazo.origen));
        Mesa mesa(rechazo.posicion);
        mesa.juego.Poner_Origen(rechazo.origen);
        const Partida antes = mesa.partida;
        Sacar(mesa, rechazo.origen, rechazo.bandeja);
        EXPECT_TRUE(mesa.partida == antes) << Texto(mesa.partida);
        EXPECT_EQ(mesa.escritorio.Leer(), Diario{BIP});
    }
}

TEST(Salida, The_Last_Die_Ends_The_Turn) {
    Mesa mesa("B 19x4 23x10 | C 12x15 | dice 0 5");
    mesa.partida.Sonido = True;
    mesa.escritorio.Dados({3, 3});
    Boolean jugando = True;
    mesa.escritorio.En_El_Pase(1, [&] { jugando = mesa.partida.Jugando; });
    Sacar(mesa, 19, 1);
    EXPECT_EQ(mesa.escritorio.Leer(), (Diario{Suena("Pop2"), Suena("click1")}));
    EXPECT_EQ(jugando, False);
    EXPECT_EQ(Texto(mesa.partida),
              "turno C, dados 3+3 dobles 2, blancas 19x3 23x10 fuera x2, cafes 12x15");
}

// All fifteen from one point, by a double that is renewed before each.
TEST(Salida, The_Tray_Fills_From_Its_Top_Edge_Down_And_The_Last_Chip_Wins) {
    struct Lado {
        const char* posicion;
        Integer origen, bandeja;
        Arreglo fichas;
        Single left, top, paso, ultimo;
        const char* anuncio;
    };
    const Lado lados[] = {
        {"B 23x15 | C 12x15 | home B | dice 1 1", 23, 1, Arreglo::Blanca, 112.5, 3240, 151, 5354,
         GANA_BLANCA},
        {"turn C | C 0x15 | B 12x15 | home C | dice 1 1", 0, 0, Arreglo::Cafe, 150, 180, 157, 2378,
         GANA_CAFE},
    };
    for (const Lado& lado : lados) {
        SCOPED_TRACE(lado.posicion);
        Mesa mesa(lado.posicion);
        Single top = lado.top;
        for (int fuera = 0; fuera < FICHAS; ++fuera, top += lado.paso) {
            const Integer ficha = Pila_En(mesa.partida, lado.origen).Tope();
            mesa.partida.Dobles = 2;
            if (fuera == FICHAS - 1) mesa.escritorio.Contestar();
            Sacar(mesa, lado.origen, lado.bandeja);
            const Image& imagen = *Imagen_De(mesa.partida, {lado.fichas, ficha});
            EXPECT_EQ(imagen.Left, lado.left);
            EXPECT_EQ(imagen.Top, top);
            EXPECT_FALSE(imagen.Enabled);
            EXPECT_EQ(imagen.ZOrder, mesa.partida.Frente);
            EXPECT_EQ(Faltas(mesa.partida), Diario{});
        }
        EXPECT_EQ(top - lado.paso, lado.ultimo);
        EXPECT_EQ(mesa.escritorio.Leer(), (Diario{Suena("applaus"), lado.anuncio}));
        EXPECT_EQ(mesa.partida.Jugando, False);
    }
}

TEST(Salida, A_Win_Ends_The_Game_And_Leaves_The_Dice) {
    struct Final {
        const char* posicion;
        Integer origen, bandeja;
        const char* anuncio;
        const char* dados;
    };
    const Final finales[] = {
        {"B 23x1 | C 12x15 | dice 1 4", 23, 1, GANA_BLANCA, "0 4*"},
        {"B 23x1 | C 12x15 | dice 0 4", 23, 1, GANA_BLANCA, "0 0"},
        {"turn C | C 0x1 | B 12x15 | dice 1 4", 0, 0, GANA_CAFE, "0 4*"},
        {"turn C | C 0x1 | B 12x15 | dice 0 4", 0, 0, GANA_CAFE, "0 0"},
    };
    for (const Final& final : finales) {
        SCOPED_TRACE(final.posicion);
        Mesa mesa(final.posicion);
        mesa.partida.Sonido = True;
        Boolean jugando_en_la_caja = False;
        mesa.escritorio.Contestar(button::Ok, [&] { jugando_en_la_caja = mesa.partida.Jugando; });
        Sacar(mesa, final.origen, final.bandeja);
        EXPECT_EQ(mesa.escritorio.Leer(), (Diario{Suena("Pop2"), Suena("applaus"), final.anuncio}));
        EXPECT_EQ(jugando_en_la_caja, True);
        EXPECT_EQ(mesa.partida.Jugando, False);
        EXPECT_EQ(mesa.partida.Turno, BLANCA);
        EXPECT_EQ(Dados_De(mesa.partida), final.dados);
        EXPECT_EQ(mesa.escritorio.Pases(), 0);

        mesa.escritorio.Contestar();
        mesa.juego.mnuPasar_Click();
        mesa.Presionar({final.bandeja == 1 ? Arreglo::Cafe : Arreglo::Blanca, 0});
        EXPECT_EQ(mesa.escritorio.Leer(), (Diario{Suena("strike"), SIN_JUEGO}));
    }
}

}  // namespace
}  // namespace corvanda::pruebas
