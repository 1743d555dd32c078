#include <gtest/gtest.h>

#include "tests/apoyo/diario.h"
#include "tests/apoyo/mesa.h"

namespace corvanda::pruebas {
namespace {

constexpr Integer NINGUNA = -9;  // a value of Origen that no press gives

Control Blanca(Integer index) {
    return {Arreglo::Blanca, index};
}
Control Cafe(Integer index) {
    return {Arreglo::Cafe, index};
}
Control Punta(Integer index) {
    return {Arreglo::Triangle, index};
}

TEST(Arrastre, The_Point_Of_A_Chip_By_Its_Place_Alone) {
    struct Sitio {
        Single left, top;
        Integer punto;
    };
    const Sitio sitios[] = {
        {8100, 5355, 12}, {8100, 300, 11}, {5100, 3780, 17},   {5100, 2400, 6}, {960, 300, 0},
        {960, 5355, 23},  {3960, 2925, 5}, {3960, 2925.5, 18}, {3360, 300, 4},  {3360, 5355, 19},
        {255, 2257.5, 0}, {330, 3360, 23}, {4860, 300, 0},     {4860, 5355, 23}};
    const Mesa mesa;
    Image imagen;
    for (const Sitio& sitio : sitios) {
        imagen.Left = sitio.left;
        imagen.Top = sitio.top;
        EXPECT_EQ(mesa.juego.GetNumber(imagen), sitio.punto) << sitio.left << ", " << sitio.top;
    }
}

TEST(Arrastre, What_A_Press_Picks_Up) {
    struct Prension {
        const char* posicion;
        Control ficha;
        Diario diario;
        Integer origen;
        Integer boton = LeftButton;
        Boolean jugando = True;
    };
    const char* const blancas = "B 0x2 11x5 18x8 | C 23x15";
    const char* const cafes = "turn C | C 0x2 11x5 18x8 | B 23x15";
    const char* const barra = "B 0x2 18x11 bar2 | C 12x15";
    const char* const barra_cafe = "turn C | C 0x2 18x11 bar2 | B 12x15";
    const Prension prensiones[] = {
        {blancas, Blanca(4), {"arrastra Blanca(6)"}, 11},
        {blancas, Blanca(1), {"arrastra Blanca(1)"}, 0},
        {blancas, Blanca(7), {"arrastra Blanca(14)"}, 18},
        {cafes, Cafe(2), {"arrastra Cafe(6)"}, 11},
        {blancas, Blanca(4), {}, NINGUNA, 2},
        {blancas, Blanca(4), {}, NINGUNA, 3},
        {blancas, Cafe(0), {BIP, NO_ES_SU_TURNO}, NINGUNA},
        {cafes, Blanca(0), {BIP, NO_ES_SU_TURNO}, NINGUNA},
        {blancas, Blanca(4), {BIP, SIN_JUEGO}, NINGUNA, LeftButton, False},
        {blancas, Cafe(4), {BIP, SIN_JUEGO}, NINGUNA, LeftButton, False},
        {cafes, Cafe(4), {BIP, SIN_JUEGO}, NINGUNA, LeftButton, False},
        {barra, Blanca(14), {"arrastra Blanca(14)"}, ORIGEN_BARRA_BLANCA},
        {barra, Blanca(13), {BIP}, NINGUNA},
        {barra, Blanca(0), {BIP}, NINGUNA},
        {barra_cafe, Cafe(14), {"arrastra Cafe(14)"}, ORIGEN_BARRA_CAFE},
        {barra_cafe, Cafe(13), {BIP}, NINGUNA},
        {barra_cafe, Cafe(0), {BIP}, NINGUNA},
        // The bar of the other side binds nobody.
        {"B 0x15 | C 12x14 bar1", Blanca(3), {"arrastra Blanca(14)"}, 0},
        {"B 20x14 | C 12x15", Blanca(14), {}, NINGUNA},  // borne off
        {blancas, Blanca(15), {}, NINGUNA},
        {blancas, Blanca(-1), {}, NINGUNA},
    };
    for (const Prension& prension : prensiones) {
        SCOPED_TRACE(std::string(prension.posicion) + " chip " +
                     std::to_string(prension.ficha.Index));
        Mesa mesa(prension.posicion);
        mesa.escritorio.Contestar_Siempre();
        mesa.partida.Jugando = prension.jugando;
        mesa.partida.Origen = NINGUNA;
        const bool se_puede = mesa.juego.Se_Puede_Tomar(prension.ficha);
        mesa.Presionar(prension.ficha, prension.boton);
        EXPECT_EQ(mesa.escritorio.Leer(), prension.diario);
        EXPECT_EQ(mesa.partida.Origen, prension.origen);
        const bool tomada = prension.origen != NINGUNA;
        EXPECT_EQ(se_puede, tomada || prension.boton != LeftButton);
    }
}

TEST(Arrastre, The_Error_Sound_Follows_The_Switch) {
    Mesa mesa("B 0x14 bar1 | C 12x15");
    mesa.partida.Sonido = True;
    mesa.Presionar(Blanca(0));
    mesa.juego.MsgError(5);
    EXPECT_EQ(mesa.escritorio.Leer(), (Diario{Suena("strike"), Suena("strike")}));
    mesa.partida.Sonido = False;
    mesa.juego.MsgError(-1);
    EXPECT_EQ(mesa.escritorio.Leer(), Diario{BIP});
}

TEST(Arrastre, Where_A_Chip_May_Be_Dropped) {
    struct Caida {
        const char* posicion;
        Integer origen;
        Control blanco;
        Diario diario;
        Integer llega;  // the point the chip arrives on, or NINGUNA
    };
    const char* const centro = "B 9x2 4x1 12x1 0x11 | C 10x1 11x2 3x2 23x10 | dice 1 2";
    const char* const mirada = "turn C | C 9x2 12x1 4x1 23x11 | B 8x1 7x2 16x2 0x10 | dice 1 2";
    const Caida caidas[] = {
        {"B 9x15 | C 23x15 | dice 3 1", 9, Punta(12), {}, 12},
        {"B 9x1 12x14 | C 23x15 | dice 3 1", 9, Blanca(5), {}, 12},
        {centro, 9, Punta(4), {BIP, HACIA_ATRAS}, NINGUNA},
        {centro, 9, Blanca(2), {BIP, HACIA_ATRAS}, NINGUNA},
        {centro, 9, Punta(9), {}, NINGUNA},
        {centro, 9, Blanca(0), {}, NINGUNA},
        {centro, 9, Cafe(0), {}, 10},
        {centro, 9, Cafe(1), {BIP, OCUPADO}, NINGUNA},
        {centro, 9, Punta(11), {BIP, OCUPADO}, NINGUNA},
        // Backward is said first, also where the point is closed.
        {centro, 9, Cafe(3), {BIP, HACIA_ATRAS}, NINGUNA},
        {centro, 9, Punta(3), {BIP, HACIA_ATRAS}, NINGUNA},
        {centro, 9, Punta(24), {}, NINGUNA},
        {centro, 9, Punta(-1), {}, NINGUNA},
        {mirada, 9, Punta(8), {}, 8},
        {mirada, 9, Blanca(0), {}, 8},
        {mirada, 9, Blanca(1), {BIP, OCUPADO}, NINGUNA},
        {mirada, 9, Punta(10), {BIP, HACIA_ATRAS}, NINGUNA},
        {mirada, 9, Cafe(2), {BIP, HACIA_ATRAS}, NINGUNA},
        {mirada, 9, Blanca(3), {BIP, HACIA_ATRAS}, NINGUNA},
        {mirada, 9, Cafe(0), {}, NINGUNA},
        // Chips on a bar stand for the corner of the board that is nearest.
        {"B 12x13 bar2 | C 5x15 | dice 1 2", ORIGEN_BARRA_BLANCA, Blanca(13), {}, 0},
        {"turn C | C 1x2 12x13 | B 18x14 bar1 | dice 1 2", 1, Blanca(14), {}, 0},
        {"turn C | C 1x2 0x2 12x11 | B 18x14 bar1 | dice 1 2",
         1,
         Blanca(14),
         {BIP, OCUPADO},
         NINGUNA},
        {"turn C | C 12x13 bar2 | B 18x15 | dice 1 2", ORIGEN_BARRA_CAFE, Cafe(13), {}, 23},
        {"B 22x15 | C 12x14 bar1 | dice 1 2", 22, Cafe(14), {}, 23},
        {"turn C | C 12x14 bar1 | B 18x15 | dice 2 1", ORIGEN_BARRA_CAFE, Punta(22), {}, 22},
    };
    for (const Caida& caida : caidas) {
        SCOPED_TRACE(std::string(caida.posicion) + " drop on " +
                     std::to_string(caida.blanco.Index));
        Mesa mesa(caida.posicion);
        mesa.escritorio.Contestar_Siempre();
        const Control fuente = mesa.Tomar(caida.origen);
        ASSERT_NE(fuente, Control{});
        ASSERT_EQ(mesa.partida.Origen, caida.origen);
        mesa.escritorio.Leer();
        const Partida antes = mesa.partida;
        mesa.Soltar(fuente, caida.blanco);
        EXPECT_EQ(mesa.escritorio.Leer(), caida.diario);
        EXPECT_EQ(Faltas(mesa.partida), Diario{});
        if (caida.llega == NINGUNA) {
            EXPECT_TRUE(mesa.partida == antes) << Texto(mesa.partida);
        } else {
            EXPECT_EQ(Pila_En(mesa.partida, caida.llega).Tope(), fuente.Index);
            EXPECT_EQ(Punto_En(mesa.partida, caida.llega).Owner, mesa.partida.Turno);
        }
    }
}

TEST(Arrastre, Only_The_Chip_That_Was_Taken_Can_Be_Dropped) {
    Mesa mesa("B 0x5 9x10 | C 23x15 | dice 3 1");
    mesa.Presionar(Blanca(5));
    mesa.escritorio.Leer();
    const Partida antes = mesa.partida;
    for (const Control fuente : {Blanca(5), Blanca(4), Cafe(14), Blanca(15), Blanca(-1),
                                 Control{Arreglo::Dado, 0}, Control{}}) {
        for (const Control blanco : {Punta(12), Blanca(5), Cafe(0), Control{Arreglo::Adios, 1}}) {
            mesa.Soltar(fuente, blanco);
        }
    }
    mesa.Soltar(Blanca(14), Blanca(15));
    mesa.Soltar(Blanca(14), Cafe(-1));
    EXPECT_TRUE(mesa.partida == antes) << Texto(mesa.partida);
    EXPECT_EQ(mesa.escritorio.Leer(), Diario{});
}

TEST(Arrastre, The_Image_Under_A_Place) {
    struct Lugar {
        const char* posicion;
        Single x, y;
        Control control;
    };
    const char* const casa = "B 18x6 23x7 | C 5x6 12x9 | dice 3 1";  // two white chips are off
    const Lugar lugares[] = {
        {casa, 200, 3300, {Arreglo::Adios, 1}},  // under a borne-off chip, which is disabled
        {casa, 60, 6029, {Arreglo::Adios, 1}},
        {casa, 690, 5000, {}},
        {casa, 200, 300, {}},        // the other tray is hidden
        {casa, 4000, 400, Cafe(5)},  // the sixth lies over the first
        {casa, 4000, 900, Cafe(1)},
        {casa, 4420, 5400, Blanca(4)},  // chips overhang their point
        {casa, 4100, 3300, {Arreglo::Dado, 0}},
        {casa, 5400, 300, Punta(6)},
        {casa, 900, 300, {Arreglo::Tablero, 0}},
        {casa, 9000, 300, {}},
    };
    for (const Lugar& lugar : lugares) {
        const Mesa mesa(lugar.posicion);
        const Control hallado = Control_En(mesa.partida, lugar.x, lugar.y);
        EXPECT_EQ(hallado, lugar.control)
            << lugar.x << ", " << lugar.y << ": " << static_cast<int>(hallado.Nombre) << " "
            << hallado.Index;
    }
}

}  // namespace
}  // namespace corvanda::pruebas
