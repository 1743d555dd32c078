// The board as it is set up, and what a valid position is.
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "fuentes.h"
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

// Every image of a position, a line each: its place and size, picture, order, shown and enabled.
std::string Listado(const Partida& partida) {
    std::ostringstream lista;
    const auto linea = [&lista](const Image& i) {
        lista << i.Left << ' ' << i.Top << ' ' << i.Width << ' ' << i.Height << " picture "
              << static_cast<int>(i.Shown) << " order " << i.ZOrder
              << (i.Visible ? " shown" : " hidden") << (i.Enabled ? "\n" : " disabled\n");
    };
    constexpr const char* NOMBRES[] = {"",     "Tablero", "Triangle", "Blanca",
                                       "Cafe", "Adios",   "Dado"};
    for (int n = 1; n <= static_cast<int>(Arreglo::Dado); ++n) {
        for (Control c{static_cast<Arreglo>(n), 0}; Imagen_De(partida, c) != nullptr; ++c.Index) {
            lista << NOMBRES[n] << '(' << c.Index << ") ";
            linea(*Imagen_De(partida, c));
        }
    }
    for (const Image& cara : partida.Dados) linea(cara);
    return lista.str();
}

// The layout before and after a game is set up, as it was approved.
TEST(Colocacion, The_Board_As_Designed_And_As_A_Game_Begins) {
    const Mesa mesa;
    std::ifstream archivo(CORVANDA_FUENTES "/tests/core/tablero.txt");
    std::stringstream aprobado;
    aprobado << archivo.rdbuf();
    EXPECT_EQ("designed\n" + Listado(Diseno()) + "set up\n" + Listado(mesa.partida),
              aprobado.str());
    EXPECT_EQ(mesa.partida.Jugando, False);
}

// A picture that the board has kept from before would stay as it was.
TEST(Colocacion, Dressing_The_Board_Tells_Of_What_Changed) {
    Escritorio escritorio;
    Partida partida = Diseno();
    Juego juego(partida, escritorio.Todos());
    // Both halves, and the points but for the four that have pictures from the beginning.
    for (const std::size_t cambios : {22U, 0U}) {
        escritorio.refrescados.clear();
        juego.Vestir_Tablero();
        EXPECT_EQ(escritorio.refrescados.size(), cambios);
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

// A new game in the middle of another takes every chip back and touches nothing that the first
// roll or the person decides.
TEST(Colocacion, Setting_Up_In_The_Middle_Of_A_Game) {
    Mesa mesa("B 20x8 12x2 bar2 | C 3x13 bar1 | turn C | dice 4 4 | doubles 1 | home BC");
    Partida& partida = mesa.partida;
    static_cast<Modulo1&>(partida) = {partida.Puntos, CAFE, True, AVANZADO, 37};
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
    EXPECT_EQ(Faltas(partida), Diario{});
    EXPECT_EQ(
        (std::array{partida.Origen, partida.Blanca_En_Casa, partida.Cafe_En_Casa, partida.Jugando,
                    Integer{partida.Nivel}, partida.Sonido, partida.Velocidad}),
        (std::array{Integer{0}, False, False, True, Integer{AVANZADO}, True, Integer{37}}));
    // Hidden dice do not pay, although they keep their values.
    partida.Turno = BLANCA;
    mesa.Hacer("0/4");
    EXPECT_EQ(Pila_En(partida, 0).Cuenta(), 2);
}

constexpr const char* MEDIO = "B 0x2 11x3 20x6 bar2 | C 5x6 12x4 bar1 | dice 3 1 | home BC";

TEST(Validez, Every_Kind_Of_Fault_Is_Named) {
    const std::pair<const char*, std::function<void(Partida&)>> casos[] = {
        {"Blanca(20) does not exist", [](Partida& p) { p.LST[0].Poner(20); }},
        {"Blanca(1) stands in several places", [](Partida& p) { p.LST[11].Poner(1); }},
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
        {"Dado2 is out of range", [](Partida& p) { p.Dado2 = -1; }},
        {"Dado1 shows another face", [](Partida& p) { p.Dado1 = 0; }},
        {"a flag is neither", [](Partida& p) { p.Jugando = 1; }},
        {"Turno is no colour", [](Partida& p) { p.Turno = 2; }},
        {"Turno is no colour", [](Partida& p) { p.Turno = -2; }},
        {"Nivel is no level", [](Partida& p) { p.Nivel = ULTIMO_NIVEL + 1; }},
        {"Dobles is above 2", [](Partida& p) { p.Dobles = 3; }},
        {"Origen is no place", [](Partida& p) { p.Origen = ORIGEN_COLOCACION; }},
        {"Origen is no place", [](Partida& p) { p.Origen = BARRA_BLANCA; }},
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

}  // namespace
}  // namespace corvanda::pruebas
