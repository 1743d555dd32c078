#include <gtest/gtest.h>

#include "tests/apoyo/diario.h"
#include "tests/apoyo/mesa.h"

namespace corvanda::pruebas {
namespace {

constexpr const char* INICIO = ", blancas 0x2 11x5 16x3 18x5, cafes 5x5 7x3 12x5 23x2";

std::string Textos(const Pila& pila) {
    std::string textos;
    for (Integer item = 0; item < pila.Cuenta(); ++item) textos += pila.Texto(item);
    return textos;
}

// The Tops of a point's chips, the lowest of the stack first.
std::vector<Single> Alturas(const Partida& partida, Integer punto) {
    const auto& fichas = Punto_En(partida, punto).Owner == BLANCA ? partida.Blanca : partida.Cafe;
    const Pila& pila = Pila_En(partida, punto);
    std::vector<Single> alturas;
    for (auto item = static_cast<Integer>(pila.Cuenta() - 1); item >= 0; --item) {
        alturas.push_back(fichas.at(static_cast<std::size_t>(pila.Ficha(item))).Top);
    }
    return alturas;
}

void Esperar_Nada_De_Un_Juego(const Partida& partida) {
    EXPECT_EQ(Faltas(partida), Diario{});
    EXPECT_EQ(partida.Origen, 0);
    for (std::size_t i = 0; i < 2; ++i) {
        EXPECT_FALSE(partida.Dado.at(i).Visible);
        EXPECT_FALSE(partida.Adios.at(i).Visible);
    }
}

TEST(Colocacion, The_Starting_Position) {
    struct Lugar {
        Integer punto;
        Single y;
        const char* fichas;
    };
    const Lugar lugares[] = {{0, 1350, " 1 0"},
                             {5, 300, " 6 5 4 3 2"},
                             {7, 1875, " 14 13 12"},
                             {11, 300, " 11 10 9 8 7"},
                             {12, 4830, " 11 10 9 8 7"},
                             {16, 3780, " 14 13 12"},
                             {18, 4830, " 6 5 4 3 2"},
                             {23, 4305, " 1 0"},
                             {1, 300, ""},
                             {20, 5355, ""},
                             {22, 5355, ""}};
    const Mesa mesa;
    EXPECT_EQ(Texto(mesa.partida), std::string("turno -, dados 0+0") + INICIO);
    EXPECT_EQ(mesa.partida.Jugando, False);
    Esperar_Nada_De_Un_Juego(mesa.partida);
    for (const auto& [punto, y, fichas] : lugares) {
        EXPECT_EQ(Textos(Pila_En(mesa.partida, punto)), fichas) << punto;
        EXPECT_EQ(Punto_En(mesa.partida, punto).Y, y) << punto;
    }
}

TEST(Colocacion, Stacks_Climb_In_Layers_And_A_Leaving_Chip_Gives_Its_Place_Back) {
    struct Columna {
        const char* posicion;
        Integer punto, destino;
        std::vector<Single> alturas;
    };
    const Columna columnas[] = {
        {"B 5x6 18x9 | C 12x15", 5, 6, {300, 825, 1350, 1875, 2400, 300}},
        {"B 5x5 18x10 | C 12x15", 5, 6, {300, 825, 1350, 1875, 2400}},
        {"B 12x5 18x10 | C 5x15", 12, 13, {5355, 4830, 4305, 3780, 5355}},
        {"B 22x4 0x11 | C 5x15", 22, 23, {5355, 4830, 4305, 3780}},
        {"turn C | C 3x2 12x13 | B 18x15", 3, 2, {300, 825}},
    };
    for (const Columna& columna : columnas) {
        SCOPED_TRACE(columna.posicion);
        Mesa mesa(columna.posicion);
        EXPECT_EQ(Alturas(mesa.partida, columna.punto), columna.alturas);
        mesa.Jugar(columna.punto, columna.destino);
        EXPECT_EQ(Pila_En(mesa.partida, columna.destino).Cuenta(), 1);
        EXPECT_EQ(Punto_En(mesa.partida, columna.punto).Y, columna.alturas.back());
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

TEST(Colocacion, The_Board_As_It_Was_Drawn_And_Dressed) {
    struct Sitio {
        std::size_t punto;
        Single left, top, width, height;
        Picture estampa;
    };
    const Sitio sitios[] = {{0, 960, 240, 450, 2550, Picture::Triangulo_Sup_A},
                            {5, 3960, 240, 450, 2550, Picture::Triangulo_Sup_B},
                            {6, 5100, 240, 450, 2550, Picture::Triangulo_Sup_A},
                            {11, 8100, 240, 450, 2550, Picture::Triangulo_Sup_B},
                            {12, 8100, 3360, 450, 2550, Picture::Triangulo_Inf_A},
                            {17, 5100, 3360, 450, 2550, Picture::Triangulo_Inf_B},
                            {20, 2760, 3360, 480, 2535, Picture::Triangulo_Inf_A},
                            {22, 1560, 3360, 480, 2535, Picture::Triangulo_Inf_A},
                            {23, 960, 3360, 450, 2550, Picture::Triangulo_Inf_B}};
    const auto forma = [](const Image& i) {
        return std::vector<Single>{i.Left, i.Top, i.Width, i.Height};
    };
    const Mesa mesa;
    for (const auto& [punto, left, top, width, height, estampa] : sitios) {
        const Image& imagen = mesa.partida.Triangle.at(punto);
        EXPECT_EQ(forma(imagen), (std::vector<Single>{left, top, width, height})) << punto;
        EXPECT_EQ(imagen.Shown, estampa) << punto;
    }
    EXPECT_EQ(forma(mesa.partida.Tablero[0]), (std::vector<Single>{780, 180, 3960, 5820}));
    EXPECT_EQ(forma(mesa.partida.Tablero[1]), (std::vector<Single>{4860, 180, 3960, 5820}));
    EXPECT_EQ(mesa.partida.Tablero[1].Shown, Picture::Tablero);
    for (std::size_t i = 0; i < FICHAS; ++i) {
        const Image &blanca = mesa.partida.Blanca.at(i), &cafe = mesa.partida.Cafe.at(i);
        EXPECT_TRUE(blanca.Width == 525 && blanca.Height == 525) << i;
        EXPECT_TRUE(cafe.Width == 450 && cafe.Height == 435) << i;
    }
}

// A new game in the middle of another takes every chip back and touches nothing that the first
// roll or the person decides.
TEST(Colocacion, Setting_Up_In_The_Middle_Of_A_Game) {
    Mesa mesa("B 20x8 12x2 bar2 | C 3x13 bar1 | turn C | dice 4 4 | doubles 1 | home BC");
    Partida& partida = mesa.partida;
    partida.Nivel = AVANZADO;
    partida.Sonido = True;
    partida.Velocidad = 37;
    mesa.escritorio.arrastrada = mesa.Tomar(ORIGEN_BARRA_CAFE);
    ASSERT_EQ(mesa.escritorio.Leer(), Diario{"arrastra Cafe(13)"});
    const auto testigo = mesa.juego.Reglas().Tomar();

    mesa.juego.Ordenar();

    EXPECT_EQ(mesa.escritorio.Leer(), (Diario{"puntero reloj", "puntero normal"}));
    EXPECT_EQ(mesa.escritorio.arrastrada, Control{});
    EXPECT_FALSE(mesa.juego.Reglas().Sigue(testigo));
    EXPECT_EQ(Texto(partida), std::string("turno C, dados 4+4 dobles 1") + INICIO);
    Esperar_Nada_De_Un_Juego(partida);
    EXPECT_EQ(partida.Jugando, True);
    EXPECT_EQ(partida.Nivel, AVANZADO);
    EXPECT_EQ(partida.Sonido, True);
    EXPECT_EQ(partida.Velocidad, 37);
    EXPECT_EQ(partida.Blanca_En_Casa, False);
    EXPECT_EQ(partida.Cafe_En_Casa, False);
}

TEST(Colocacion, A_Placed_Chip_Neither_Pays_Nor_Hits_Nor_Leaves_A_Stack) {
    Mesa mesa("B 0x15 | C 5x1 12x14 | dice 5 1");
    mesa.partida.Sonido = True;
    mesa.juego.Poner_Origen(ORIGEN_COLOCACION);
    mesa.juego.Mover(BLANCA, 14, 5);
    EXPECT_EQ(mesa.escritorio.Leer(), Diario{});
    EXPECT_EQ(Textos(Pila_En(mesa.partida, 5)), " 14 0");
    EXPECT_EQ(Pila_En(mesa.partida, 0).Cuenta(), 15);
    EXPECT_EQ(Pila_En(mesa.partida, BARRA_CAFE).Cuenta(), 0);
    EXPECT_EQ(Dados_De(mesa.partida), "5* 1*");

    // A point that the other side holds is closed even so.
    mesa.escritorio.Contestar();
    mesa.juego.Mover(BLANCA, 13, 12);
    EXPECT_EQ(mesa.escritorio.Leer(), (Diario{Suena("strike"), OCUPADO}));
    EXPECT_EQ(Pila_En(mesa.partida, 12).Cuenta(), 14);
}

}  // namespace
}  // namespace corvanda::pruebas
