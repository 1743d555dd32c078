// What hands do: a press picks a chip up, a drop moves it, hits, or bears it off.
#include <gtest/gtest.h>

#include "tests/apoyo/diario.h"
#include "tests/apoyo/mesa.h"

namespace corvanda::pruebas {
namespace {

struct Fila {
    const char* posicion;
    const char* accion;
    const char* sonidos;
    const char* dados = "";  // afterwards; empty when nothing may change
    const char* caja = "";
};

void Comprobar(const Fila& fila, Boolean efectos) {
    const std::string accion = fila.accion;
    SCOPED_TRACE(fila.posicion + (": " + accion));
    Mesa mesa(fila.posicion);
    mesa.partida.Sonido = efectos;
    mesa.escritorio.Contestar_Siempre();
    Partida antes = mesa.partida;
    const Control fuente = mesa.Hacer(accion);
    EXPECT_NE(fuente, Control{});
    EXPECT_EQ(mesa.escritorio.Leer(), Se_Oye(efectos, fila.sonidos, fila.caja));
    EXPECT_EQ(Faltas(mesa.partida), Diario{});
    if (*fila.dados == '\0') {
        antes.Origen = mesa.partida.Origen;
        EXPECT_TRUE(mesa.partida == antes) << Texto(mesa.partida);
        return;
    }
    const std::string destino = accion.substr(accion.find('/') + 1);
    const int bandeja = antes.Turno == BLANCA ? BANDEJA_BLANCA : BANDEJA_CAFE;
    const int llega = destino[0] == 'A' ? bandeja : std::stoi(destino);
    EXPECT_EQ(Pila_En(mesa.partida, static_cast<Integer>(llega)).Tope(), fuente.Index);
    EXPECT_EQ(Dados_De(mesa.partida), fila.dados);
}

TEST(Jugada, A_Chip_From_Its_Place_To_Another_Or_Off) {
    const Fila filas[] = {
        {"B 0x15 | C 23x15 | dice 5 2", "0/5", "bounce", "0 2*"},
        {"turn C | B 0x15 | C 12x15 | dice 3 1", "12/11", "bounce", "3* 0"},
        {"B bar1 0x14 | C 23x15 | dice 4 1", "bar/3", "bounce", "0 1*"},
        {"turn C | C bar1 12x14 | B 0x15 | dice 2 6", "bar/18", "bounce", "2* 0"},
        // What a double leaves is counted by the first die alone.
        {"B 0x15 | C 23x15 | dice 4 4", "0/4", "bounce", "4* 4* x1"},
        {"B 0x15 | C 23x15 | dice 4 4 | doubles 1", "0/4", "bounce", "4* 4*"},
        {"B 0x15 | C 23x15 | dice 4 4 | doubles 0", "0/4", "bounce", "0 4*"},
        // Nothing is said when no die pays, also for the sum of both.
        {"B 0x15 | C 23x15 | dice 5 2", "0/7", ""},
        {"B 0x15 | C 23x15 | dice 0 3", "0/6", ""},
        {"B 3x15 | C 23x15 | dice 0 3", "3/3", ""},
        {"B bar1 0x14 | C 23x15 | dice 4 1", "bar/4", ""},
        {"B 9x15 | C 23x15 | dice 1 2", "9/24", ""},
        {"turn C | C 9x15 | B 18x15 | dice 1 2", "9/-1", ""},
        // A lone chip goes to its bar, on top of those there.
        {"B 0x14 9x1 | C 12x1 23x14 | dice 3 1", "9/12", "bounce cannon", "0 1*"},
        {"B 0x14 9x1 | C 10x1 23x13 bar1 | dice 3 1", "9/10", "bounce cannon", "3* 0"},
        {"turn C | B 3x1 0x14 | C 5x1 23x14 | dice 2 1", "5/3", "bounce cannon", "0 1*"},
        {"turn C | B 18x1 0x12 bar2 | C 12x14 bar1 | dice 6 1", "bar/18", "bounce cannon", "0 1*"},
        {"B 0x15 | C 5x2 12x13 | dice 5 1", "0/5", "strike", "", OCUPADO},
        {"turn C | B 5x2 0x13 | C 10x15 | dice 1 5", "10/5", "strike", "", OCUPADO},
        // Backward is said first, also where the point is closed.
        {"B 9x2 4x13 | C 12x15 | dice 5 1", "9/4", "strike", "", HACIA_ATRAS},
        {"B 9x2 4x13 | C 8x15 | dice 5 1", "9/8", "strike", "", HACIA_ATRAS},
        {"turn C | C 9x15 | B 8x15 | dice 5 1", "9/10", "strike", "", HACIA_ATRAS},
        // A chip on the bar may stand for a point that the mover holds itself.
        {"turn C | C 1x2 0x2 12x11 | B 18x14 bar1", "1/B14", "strike", "", OCUPADO},
        {"B 22x2 23x2 0x11 | C 12x14 bar1", "22/C14", "strike", "", OCUPADO},
        // Off: an exact die wins, the first before the second.
        {"B 20x5 23x9 | C 12x15 | dice 2 4", "20/A1", "Pop2", "2* 0"},
        {"B 18x1 20x5 23x8 | C 12x15 | dice 2 4", "20/A1", "Pop2", "2* 0"},
        {"B 19x4 23x10 | C 12x15 | dice 5 5", "19/A1", "Pop2", "5* 5* x1"},
        {"B 19x4 23x10 | C 12x15 | dice 5 5 | doubles 0", "19/A1", "Pop2", "0 5*"},
        // Otherwise the larger one, when nobody of either side stands farther back at home.
        {"B 21x5 23x9 | C 12x15 | dice 6 2", "21/A1", "Pop2", "0 2*"},
        {"B 21x5 23x9 | C 12x15 | dice 2 6", "21/A1", "Pop2", "2* 0"},
        {"B 21x5 23x9 | C 17x1 22x1 12x13 | dice 6 2", "21/A1", "Pop2", "0 2*"},
        {"B 21x5 23x9 | C 12x15 | dice 5 5 | doubles 0", "21/A1", "Pop2", "0 5*"},
        {"B 18x1 23x13 | C 12x15 | dice 6 5", "18/A1", "Pop2", "0 5*"},
        {"turn C | C 2x5 0x9 | B 12x15 | dice 1 5", "2/A0", "Pop2", "1* 0"},
        {"turn C | C 2x5 0x9 | B 12x15 | dice 5 1", "2/A0", "Pop2", "0 1*"},
        {"turn C | C 5x1 0x13 | B 12x15 | dice 6 5", "5/A0", "Pop2", "0 5*"},
        {"turn C | C 4x5 0x9 | B 6x1 3x1 12x13 | dice 6 1", "4/A0", "Pop2", "0 1*"},
        {"B 21x5 19x1 23x8 | C 12x15 | dice 6 2", "21/A1", "strike"},
        {"B 21x5 23x9 | C 19x1 12x14 | dice 6 2", "21/A1", "strike"},
        {"B 19x5 23x9 | C 12x15 | dice 4 2", "19/A1", "strike"},
        {"B 10x1 23x13 | C 12x15 | dice 6 5", "10/A1", "strike"},
        {"turn C | C 2x5 3x1 0x8 | B 12x15 | dice 1 5", "2/A0", "strike"},
        {"turn C | C 2x5 0x9 | B 5x1 12x14 | dice 5 1", "2/A0", "strike"},
        {"turn C | C 4x5 0x9 | B 12x15 | dice 4 1", "4/A0", "strike"},
        {"turn C | C 6x1 0x13 | B 12x15 | dice 6 5", "6/A0", "strike"},
        // From a bar, and into the tray of the side that does not move.
        {"B 23x13 bar1 | C 12x15 | dice 6 5", "bar/A1", "strike"},
        {"turn C | C 0x13 bar1 | B 12x15 | dice 6 1", "bar/A0", "strike"},
        {"B 2x1 23x13 | C 0x14 | dice 3 2", "2/A0", "strike"},
        {"turn C | C 21x1 0x13 | B 23x14 | dice 3 2", "21/A1", "strike"},
    };
    for (const Fila& fila : filas) {
        for (const Boolean efectos : {True, False}) Comprobar(fila, efectos);
    }
}

TEST(Jugada, A_Drop_On_A_Chip_Is_A_Drop_On_Its_Point) {
    const char* const centro = "B 9x2 4x1 12x1 0x11 | C 10x1 11x2 3x2 23x10";
    const char* const mirada = "turn C | C 9x2 12x1 4x1 23x11 | B 8x1 7x2 16x2 0x10";
    const char* const pares[][3] = {
        {"B 9x1 12x14 | C 23x15 | dice 3 1", "9/B5", "9/12"},
        {centro, "9/C0", "9/10"},
        {centro, "9/C1", "9/11"},
        {centro, "9/C3", "9/3"},
        {mirada, "9/B0", "9/8"},
        {mirada, "9/B1", "9/7"},
        {mirada, "9/B3", "9/16"},
        {mirada, "9/C0", "9/9"},
        // Chips on a bar stand for the corner of the board that is nearest.
        {"B 12x13 bar2 | C 5x15", "bar/B13", "bar/0"},
        {"turn C | C 1x2 12x13 | B 18x14 bar1", "1/B14", "1/0"},
        {"turn C | C 12x13 bar2 | B 18x15", "bar/C13", "bar/23"},
    };
    for (const auto& [posicion, ficha, punto] : pares) {
        SCOPED_TRACE(std::string(posicion) + ": " + ficha);
        Mesa una(posicion), otra(posicion);
        for (Mesa* mesa : {&una, &otra}) mesa->escritorio.Contestar_Siempre();
        una.Hacer(ficha);
        otra.Hacer(punto);
        EXPECT_EQ(una.escritorio.Leer(), otra.escritorio.Leer());
        EXPECT_TRUE(una.partida == otra.partida) << Texto(una.partida);
    }
}

// The count is made before the stacks change; a right once given is not taken back.
TEST(Jugada, The_Fifteenth_Chip_Home_Opens_The_Tray) {
    const char* const llegadas[][3] = {
        {"B 17x1 18x14 | C 12x15 | dice 3 1", "17/20", "B"},
        {"B 17x1 18x14 | C 12x15 | dice 1 2", "17/18", "B"},
        {"B 17x1 18x14 | C 12x15 | dice 3 1", "18/21", ""},            // counted once, where it is
        {"B 16x1 17x1 18x13 | C 23x1 12x14 | dice 3 1", "17/20", ""},  // 23 is Brown's
        {"turn C | C 6x1 5x14 | B 12x15 | dice 2 1", "6/4", "C"},
        {"turn C | C 8x1 0x14 | B 12x15 | dice 3 1", "8/5", "C"},
        {"turn C | C 7x1 5x14 | B 12x15 | dice 2 1", "5/3", ""},
        {"turn C | C 7x1 6x1 5x13 | B 12x15 | dice 2 1", "6/4", ""},
        {"turn C | C 7x1 6x1 5x13 | B 0x1 12x14 | dice 2 1", "6/4", ""},
        // These hit a chip in its home board.
        {"turn C | C 22x1 5x14 | B 20x1 23x14 | home B | dice 2 1", "22/20", "B"},
        {"B 2x1 12x14 | C 3x1 5x14 | home C | dice 1 2", "2/3", "C"},
    };
    for (const auto& [posicion, accion, abiertas] : llegadas) {
        SCOPED_TRACE(posicion);
        Mesa mesa(posicion);
        mesa.Hacer(accion);
        EXPECT_EQ(std::string(mesa.partida.Blanca_En_Casa == True ? "B" : "") +
                      (mesa.partida.Cafe_En_Casa == True ? "C" : ""),
                  abiertas);
        EXPECT_FALSE(mesa.partida.Dado[0].Visible && mesa.partida.Dado[1].Visible);
        EXPECT_EQ(Faltas(mesa.partida), Diario{});  // the trays follow the flags
    }
}

// All fifteen from one point, by a double that is renewed before each: the places in the tray are
// part of what a valid position is.
TEST(Jugada, The_Last_Chip_Off_Wins_And_Leaves_The_Dice) {
    const char* const finales[][4] = {
        {"B 23x15 | C 12x15 | home B | dice 1 1", "23/A1", GANA_BLANCA, "1* 1* x1"},
        {"turn C | C 0x15 | B 12x15 | home C | dice 1 1", "0/A0", GANA_CAFE, "1* 1* x1"},
        {"B 23x1 | C 12x15 | dice 1 4", "23/A1", GANA_BLANCA, "0 4*"},
        {"turn C | C 0x1 | B 12x15 | dice 0 4", "0/A0", GANA_CAFE, "0 0"},
    };
    for (const auto& [posicion, accion, caja, dados] : finales) {
        SCOPED_TRACE(posicion);
        Mesa mesa(posicion);
        const bool doble = mesa.partida.Dobles > 0;
        mesa.escritorio.Contestar(button::Ok, [&] { EXPECT_EQ(mesa.partida.Jugando, True); });
        while (mesa.partida.Jugando != False && !testing::Test::HasFailure()) {
            EXPECT_EQ(mesa.escritorio.Leer(), Diario{});
            if (doble) mesa.partida.Dobles = 2;
            mesa.Hacer(accion);
            EXPECT_EQ(Faltas(mesa.partida), Diario{});
        }
        EXPECT_EQ(mesa.escritorio.Leer(), (Diario{Suena("applaus"), caja}));
        EXPECT_EQ(mesa.partida.Turno, BLANCA);
        EXPECT_EQ(Dados_De(mesa.partida), dados);
        EXPECT_EQ(mesa.escritorio.Pases(), 0) << "nobody rolls";
        mesa.Hacer("pass");
        EXPECT_EQ(mesa.escritorio.Leer(), Diario{});
    }
}

TEST(Arrastre, What_A_Press_Picks_Up) {
    constexpr Integer NINGUNA = 6;  // a point that no press takes a chip from
    struct Prension {
        const char *posicion, *ficha;
        Diario diario;
        Integer origen = NINGUNA;
        Boolean jugando = True;
    };
    const char* const blancas = "B 0x2 11x5 18x8 | C 23x15";
    const char* const cafes = "turn C | C 0x2 11x5 18x8 | B 23x15";
    const char* const barra = "B 0x2 18x11 bar2 | C 12x15";
    const char* const barra_cafe = "turn C | C 0x2 18x11 bar2 | B 12x15";
    const Prension prensiones[] = {
        {blancas, "B4", {"arrastra Blanca(6)"}, 11},
        {blancas, "B7", {"arrastra Blanca(14)"}, 18},
        {cafes, "C2", {"arrastra Cafe(6)"}, 11},
        {blancas, "C0", {BIP, NO_ES_SU_TURNO}},
        {cafes, "B0", {BIP, NO_ES_SU_TURNO}},
        {blancas, "B4", {BIP, SIN_JUEGO}, NINGUNA, False},
        {blancas, "C4", {BIP, SIN_JUEGO}, NINGUNA, False},
        {barra, "B14", {"arrastra Blanca(14)"}, ORIGEN_BARRA_BLANCA},
        {barra, "B13", {BIP}},
        {barra_cafe, "C14", {"arrastra Cafe(14)"}, ORIGEN_BARRA_CAFE},
        {barra_cafe, "C13", {BIP}},
        {"B 0x15 | C 12x14 bar1", "B3", {"arrastra Blanca(14)"}, 0},  // the other side's bar
        {"B 20x14 | C 12x15", "B14", {}},                             // borne off
        {blancas, "B15", {}},
    };
    for (const auto& [posicion, nombre, diario, origen, jugando] : prensiones) {
        SCOPED_TRACE(std::string(posicion) + ": " + nombre);
        Mesa mesa(posicion);
        mesa.escritorio.Contestar_Siempre();
        mesa.partida.Jugando = jugando;
        mesa.partida.Origen = NINGUNA;
        const Control ficha = Nombrado(nombre);
        EXPECT_EQ(mesa.juego.Se_Puede_Tomar(ficha), origen != NINGUNA);
        for (const Integer otro_boton : {Integer{2}, Integer{3}}) mesa.Presionar(ficha, otro_boton);
        EXPECT_EQ(mesa.partida.Origen, NINGUNA);
        mesa.Presionar(ficha);
        EXPECT_EQ(mesa.escritorio.Leer(), diario);
        EXPECT_EQ(mesa.partida.Origen, origen);
    }
}

TEST(Arrastre, Only_The_Chip_That_Was_Taken_Can_Be_Dropped_And_Only_On_What_Is_There) {
    for (const bool blanca : {true, false}) {
        Mesa mesa(blanca ? "B 0x5 9x10 | C 23x15 | dice 3 1" : "turn C | C 0x5 9x10 | B 23x15");
        const Control tomada = mesa.Hacer(blanca ? "B5" : "C5");
        mesa.escritorio.Leer();
        const Partida antes = mesa.partida;
        const Control destino = Nombrado(blanca ? "12" : "8");
        for (const Arreglo nombre : {Arreglo::Ninguno, Arreglo::Blanca, Arreglo::Cafe}) {
            for (Integer index = -1; index < 16; ++index) {
                if (tomada != Control{nombre, index}) mesa.Soltar({nombre, index}, destino);
            }
        }
        for (const char* nada : {"B15", "C-1", "A-1", "A0", "A1", "A2"}) {  // the trays are hidden
            mesa.Soltar(tomada, Nombrado(nada));
        }
        // An empty bar holds no chip, whatever its number.
        mesa.juego.Poner_Origen(blanca ? ORIGEN_BARRA_BLANCA : ORIGEN_BARRA_CAFE);
        mesa.Soltar({tomada.Nombre, -1}, Nombrado(blanca ? "2" : "21"));  // that the 3 pays
        mesa.juego.Poner_Origen(antes.Origen);
        EXPECT_TRUE(mesa.partida == antes) << Texto(mesa.partida);
        EXPECT_EQ(mesa.escritorio.Leer(), Diario{});
    }
    Mesa mesa("B bar2 9x13 | C 23x15 | dice 3 1");
    ASSERT_EQ(mesa.Hacer("B1"), Nombrado("B1"));
    const Partida antes = mesa.partida;
    mesa.Soltar(Nombrado("B0"), Nombrado("2"));
    EXPECT_TRUE(mesa.partida == antes) << "the lower one of two on the bar";
}

TEST(Arrastre, The_Image_Under_A_Place) {
    struct Lugar {
        Single x, y;
        Control control;
    };
    const Lugar lugares[] = {
        {200, 3300, {Arreglo::Adios, 1}},  // under a borne-off chip, which is disabled
        {690, 5000, {}},
        {200, 300, {}},                      // the other tray is hidden
        {4000, 400, {Arreglo::Cafe, 5}},     // the sixth lies over the first
        {4420, 5400, {Arreglo::Blanca, 4}},  // chips overhang their point
        {4100, 3300, {Arreglo::Dado, 0}},
        {900, 300, {Arreglo::Tablero, 0}},
        {9000, 300, {}},
    };
    const Mesa mesa("B 18x6 23x7 | C 5x6 12x9 | dice 3 1");  // two white chips are off
    for (const Lugar& lugar : lugares) {
        EXPECT_EQ(Control_En(mesa.partida, lugar.x, lugar.y), lugar.control)
            << lugar.x << ", " << lugar.y;
    }
}

}  // namespace
}  // namespace corvanda::pruebas
