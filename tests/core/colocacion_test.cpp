// The board as it is set up, and what a valid position is.
#include <gtest/gtest.h>

#include "tests/apoyo/diario.h"
#include "tests/apoyo/mesa.h"

namespace corvanda::pruebas {
namespace {

// The Tops of a point's chips, the lowest of the stack first.
std::vector<Single> Alturas(const Partida& partida, Integer punto) {
    const auto& fichas = Punto_En(partida, punto).Owner == BLANCA ? partida.Blanca : partida.Cafe;
    const Pila& pila = Pila_En(partida, punto);
    std::vector<Single> alturas;
    for (int item = pila.Cuenta() - 1; item >= 0; --item) {
        const Integer ficha = pila.Ficha(static_cast<Integer>(item));
        alturas.push_back(fichas.at(static_cast<std::size_t>(ficha)).Top);
    }
    return alturas;
}

// One number over every image of the board.
std::uint64_t Firma(const Partida& partida) {
    std::uint64_t firma = 0;
    for (const Arreglo nombre : {Arreglo::Tablero, Arreglo::Triangle, Arreglo::Blanca,
                                 Arreglo::Cafe, Arreglo::Adios, Arreglo::Dado}) {
        for (Control c{nombre, 0}; Imagen_De(partida, c) != nullptr; ++c.Index) {
            const Image& i = *Imagen_De(partida, c);
            for (const Single valor : {i.Left, i.Top, i.Width, i.Height, Single(i.Shown),
                                       Single(i.ZOrder), Single(i.Visible), Single(i.Enabled)}) {
                firma = firma * 1099511628211U + static_cast<std::uint64_t>(valor);
            }
        }
    }
    for (const Image& i : partida.Dados) {
        firma = firma * 1099511628211U +
                static_cast<std::uint64_t>(i.Width + 2 * i.Left + 3 * i.Height + 5 * i.Top);
    }
    return firma;
}

// The numbers change only when the layout or the starting position does.
TEST(Colocacion, The_Board_As_Designed_And_As_A_Game_Begins) {
    const Mesa mesa;
    EXPECT_EQ(Firma(Diseno()), 18124513156546931162U);
    EXPECT_EQ(Firma(mesa.partida), 13873015798595479297U);
    EXPECT_EQ(mesa.partida.Jugando, False);
    EXPECT_EQ(mesa.partida.Tablero[1].Width, 3960);
    EXPECT_EQ(mesa.partida.Tablero[1].Height, 5820);
}

// A picture that the board has kept from before would stay as it was.
TEST(Colocacion, Dressing_The_Board_Tells_Of_What_Changed_And_Of_Nothing_Else) {
    Escritorio escritorio;
    Partida partida = Diseno();
    const Partida antes = partida;
    Juego juego(partida, escritorio.Todos());
    for (const bool otra_vez : {false, true}) {
        escritorio.refrescados.clear();
        juego.Vestir_Tablero();
        for (const Control control : escritorio.refrescados) {
            EXPECT_NE(*Imagen_De(partida, control), *Imagen_De(antes, control));
        }
        // Both halves, and the points but for the four that have pictures from the beginning.
        EXPECT_EQ(escritorio.refrescados.size(), otra_vez ? 0U : 22U);
    }
}

TEST(Colocacion, Stacks_Climb_In_Layers_And_A_Leaving_Chip_Gives_Its_Place_Back) {
    const std::tuple<const char*, const char*, Integer, std::vector<Single>> columnas[] = {
        {"B 5x6 18x9 | C 12x15", "5/6", 5, {300, 825, 1350, 1875, 2400, 300}},
        {"B 5x5 18x10 | C 12x15", "5/6", 5, {300, 825, 1350, 1875, 2400}},
        {"B 12x5 18x10 | C 5x15", "12/13", 12, {5355, 4830, 4305, 3780, 5355}},
        {"B 22x4 0x11 | C 5x15", "22/23", 22, {5355, 4830, 4305, 3780}},
        {"turn C | C 3x2 12x13 | B 18x15", "3/2", 3, {300, 825}},
    };
    for (const auto& [posicion, accion, punto, alturas] : columnas) {
        SCOPED_TRACE(posicion);
        Mesa mesa(posicion);
        EXPECT_EQ(Alturas(mesa.partida, punto), alturas);
        mesa.Hacer(accion);
        EXPECT_EQ(Punto_En(mesa.partida, punto).Y, alturas.back());
    }
}

// On points as high as two chips and their margin, the third place begins just at the edge.
TEST(Colocacion, A_Place_That_Begins_At_The_Edge_Of_The_Point_Is_Taken) {
    Mesa mesa("B 0x15 | C 12x15 | dice 6 6");
    mesa.partida.Triangle[6].Height = 300 + 2 * 525 - 240;
    mesa.partida.Triangle[18].Top = 5355 - 2 * 525;
    mesa.juego.Poner_Origen(ORIGEN_COLOCACION);
    for (Integer ficha = 0; ficha < 8; ++ficha) mesa.juego.Mover(BLANCA, ficha, ficha < 4 ? 6 : 18);
    EXPECT_EQ(Alturas(mesa.partida, 6), (std::vector<Single>{300, 825, 1350, 300}));
    EXPECT_EQ(Alturas(mesa.partida, 18), (std::vector<Single>{5355, 4830, 4305, 5355}));
}

// A new game in the middle of another takes every chip back and touches nothing that the first
// roll or the person decides.
TEST(Colocacion, Setting_Up_In_The_Middle_Of_A_Game) {
    Mesa mesa("B 20x8 12x2 bar2 | C 3x13 bar1 | turn C | dice 4 4 | doubles 1 | home BC");
    Partida& partida = mesa.partida;
    partida.Nivel = AVANZADO;
    partida.Sonido = True;
    partida.Velocidad = 37;
    mesa.Hacer("C13");
    EXPECT_EQ(mesa.escritorio.Leer(), Diario{"arrastra Cafe(13)"});
    const auto testigo = mesa.juego.Reglas().Tomar();

    mesa.juego.Ordenar();

    EXPECT_EQ(mesa.escritorio.Leer(), (Diario{"puntero reloj", "puntero normal"}));
    EXPECT_EQ(mesa.escritorio.arrastrada, Control{});
    EXPECT_FALSE(mesa.juego.Reglas().Sigue(testigo));
    EXPECT_EQ(Texto(partida),
              "turno C, dados 4+4 dobles 1, blancas 0x2 11x5 16x3 18x5, cafes 5x5 7x3 12x5 23x2");
    EXPECT_EQ(Dados_De(partida), "4 4 x1");
    EXPECT_EQ((std::array{partida.Origen, partida.Blanca_En_Casa, partida.Cafe_En_Casa}),
              (std::array{Integer{0}, False, False}));
    EXPECT_EQ(
        (std::array{partida.Jugando, Integer{partida.Nivel}, partida.Sonido, partida.Velocidad}),
        (std::array{True, Integer{AVANZADO}, True, Integer{37}}));

    // Hidden dice do not pay, although they keep their values.
    partida.Turno = BLANCA;
    mesa.Hacer("0/4");
    EXPECT_EQ(Pila_En(partida, 0).Cuenta(), 2);
}

TEST(Colocacion, A_Placed_Chip_Neither_Pays_Nor_Hits_Nor_Leaves_A_Stack) {
    Mesa mesa("B 0x15 | C 5x1 12x14 | dice 5 1");
    mesa.partida.Sonido = True;
    mesa.juego.Poner_Origen(ORIGEN_COLOCACION);
    mesa.juego.Mover(BLANCA, 14, 5);
    EXPECT_EQ(mesa.escritorio.Leer(), Diario{});
    EXPECT_EQ(Pila_En(mesa.partida, 5).Cuenta(), 2);
    EXPECT_EQ(Pila_En(mesa.partida, 0).Cuenta(), 15);
    EXPECT_EQ(Pila_En(mesa.partida, BARRA_CAFE).Cuenta(), 0);
    EXPECT_EQ(Dados_De(mesa.partida), "5* 1*");

    // A point that the other side holds is closed even so.
    mesa.escritorio.Contestar();
    mesa.juego.Mover(BLANCA, 13, 12);
    EXPECT_EQ(mesa.escritorio.Leer(), (Diario{Suena("strike"), OCUPADO}));
    EXPECT_EQ(Pila_En(mesa.partida, 12).Cuenta(), 14);
}

constexpr const char* MEDIO = "B 0x2 11x3 20x6 bar2 | C 5x6 12x4 bar1 | dice 3 1 | home BC";

TEST(Validez, Every_Kind_Of_Fault_Is_Named) {
    const std::pair<const char*, std::function<void(Partida&)>> casos[] = {
        {"Blanca(20) does not exist", [](Partida& p) { p.LST[0].Poner(20); }},
        {"the white chip 1 stands in 2 places", [](Partida& p) { p.LST[11].Poner(1); }},
        {"Blanca(0) is misplaced", [](Partida& p) { p.Blanca[0].Left += 1; }},
        {"Cafe(10) is misplaced", [](Partida& p) { p.Cafe[10].Left = 255; }},
        {"Blanca(13) is misplaced", [](Partida& p) { p.Blanca[13].Top = 3391; }},
        {"Cafe(14) is wrongly enabled", [](Partida& p) { p.Cafe[14].Enabled = true; }},
        {"Cafe(1) is hidden", [](Partida& p) { p.Cafe[1].Visible = false; }},
        {"point 0: wrong owner", [](Partida& p) { p.Puntos[0].Owner = NADIE; }},
        {"point 5: wrong height", [](Partida& p) { p.Puntos[5].Y = 300; }},
        {"Cafe(4) is drawn over", [](Partida& p) { p.Cafe[4].ZOrder = p.Frente + 1; }},
        {"tray 0: wrong height", [](Partida& p) { p.Altura_Cafe = 0; }},
        {"tray 1 is shown without", [](Partida& p) { p.Adios[1].Visible = false; }},
        {"tray 0 holds chips before", [](Partida& p) { p.Cafe_En_Casa = False; }},
        {"Dado1 is out of range", [](Partida& p) { p.Dado1 = 7; }},
        {"Dado1 shows another face", [](Partida& p) { p.Dado1 = 0; }},
        {"a flag is neither", [](Partida& p) { p.Jugando = 1; }},
        {"Turno is no colour", [](Partida& p) { p.Turno = 2; }},
        {"Nivel is no level", [](Partida& p) { p.Nivel = ULTIMO_NIVEL + 1; }},
        {"Dobles is above 2", [](Partida& p) { p.Dobles = 3; }},
        {"Origen is no place", [](Partida& p) { p.Origen = ORIGEN_COLOCACION; }},
    };
    const Mesa mesa(MEDIO);
    for (const auto& [nombre, romper] : casos) {
        SCOPED_TRACE(nombre);
        Partida rota = mesa.partida;
        romper(rota);
        const auto faltas = Faltas(rota);
        EXPECT_TRUE(std::any_of(
            faltas.begin(), faltas.end(),
            [&, inicio = nombre](const std::string& falta) { return falta.starts_with(inicio); }))
            << ::testing::PrintToString(faltas);
    }
}

TEST(Validez, A_Position_In_One_Line) {
    Mesa mesa(MEDIO);
    EXPECT_TRUE(Es_Valida(mesa.partida));
    EXPECT_EQ(Texto(mesa.partida),
              "turno B, dados 3+1, blancas 0x2 11x3 20x6 barra x2 fuera x2, "
              "cafes 5x6 12x4 barra x1 fuera x4");
    Poner(mesa.juego, mesa.partida, "turn C | dice 2 2 | doubles 1");
    EXPECT_EQ(Texto(mesa.partida),
              "turno C, dados 2+2 dobles 1, blancas 0x2 11x5 16x3 18x5, cafes 5x5 7x3 12x5 23x2");
}

}  // namespace
}  // namespace corvanda::pruebas
