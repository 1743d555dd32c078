// What hands do: a press picks a chip up, a drop moves it, hits, or bears it off.
#include <gtest/gtest.h>

#include <map>

#include "tests/apoyo/diario.h"
#include "tests/apoyo/mesa.h"
#include "tests/apoyo/tabla.h"

namespace corvanda::pruebas {
namespace {

const std::map<std::string, std::string> CAJAS = {
    {"", ""}, {"closed", OCUPADO}, {"backwards", HACIA_ATRAS}};

void Comprobar(const std::vector<std::string>& fila, Boolean efectos) {
    const std::string &posicion = fila[0], &accion = fila[1], &dados = fila[3];
    SCOPED_TRACE(posicion + ": " + accion);
    Mesa mesa(posicion);
    mesa.partida.Sonido = efectos;
    mesa.escritorio.Contestar_Siempre();
    Partida antes = mesa.partida;
    const Control fuente = mesa.Hacer(accion);
    EXPECT_NE(fuente, Control{});
    EXPECT_EQ(mesa.escritorio.Leer(), Se_Oye(efectos, fila[2], CAJAS.at(fila[4])));
    EXPECT_EQ(Faltas(mesa.partida), Diario{});
    if (dados.empty()) {
        antes.Origen = mesa.partida.Origen;
        EXPECT_TRUE(mesa.partida == antes) << Texto(mesa.partida);
        return;
    }
    const std::string destino = accion.substr(accion.find('/') + 1);
    const int bandeja = antes.Turno == BLANCA ? BANDEJA_BLANCA : BANDEJA_CAFE;
    const int llega = destino[0] == 'A' ? bandeja : std::stoi(destino);
    EXPECT_EQ(Pila_En(mesa.partida, static_cast<Integer>(llega)).Tope(), fuente.Index);
    EXPECT_EQ(Dados_De(mesa.partida), dados);
}

TEST(Jugada, A_Chip_From_Its_Place_To_Another_Or_Off) {
    for (const auto& fila : Tabla("core/jugadas.txt", 5)) {
        for (const Boolean efectos : {True, False}) Comprobar(fila, efectos);
    }
}

TEST(Jugada, A_Drop_On_A_Chip_Is_A_Drop_On_Its_Point) {
    for (const auto& fila : Tabla("core/en_fichas.txt", 3)) {
        SCOPED_TRACE(fila[0] + ": " + fila[1]);
        Mesa una(fila[0]), otra(fila[0]);
        for (Mesa* mesa : {&una, &otra}) mesa->escritorio.Contestar_Siempre();
        una.Hacer(fila[1]);
        otra.Hacer(fila[2]);
        EXPECT_EQ(una.escritorio.Leer(), otra.escritorio.Leer());
        EXPECT_TRUE(una.partida == otra.partida) << Texto(una.partida);
    }
}

TEST(Jugada, What_Does_Not_Exist_Is_Neither_Moved_Nor_Moved_To) {
    Mesa mesa("B 5x15 | C 12x15 | dice 3 6");
    mesa.juego.Poner_Origen(5);
    const Partida antes = mesa.partida;
    for (const auto& [ficha, destino] : {std::pair(-1, 8), {15, 8}, {14, -1}})
        mesa.juego.Mover(BLANCA, static_cast<Integer>(ficha), static_cast<Integer>(destino));
    EXPECT_EQ(mesa.partida, antes) << Texto(mesa.partida);
}

// The count is made before the stacks change; a right once given is not taken back.
TEST(Jugada, The_Fifteenth_Chip_Home_Opens_The_Tray) {
    for (const auto& fila : Tabla("core/en_casa.txt", 3)) {
        SCOPED_TRACE(fila[0]);
        Mesa mesa(fila[0]);
        mesa.Hacer(fila[1]);
        EXPECT_EQ(std::string(mesa.partida.Blanca_En_Casa == True ? "B" : "") +
                      (mesa.partida.Cafe_En_Casa == True ? "C" : ""),
                  fila[2]);
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
    const std::map<std::string, Diario> negadas = {{"", {}},
                                                   {"beep", {BIP}},
                                                   {"no game", {BIP, SIN_JUEGO}},
                                                   {"not your turn", {BIP, NO_ES_SU_TURNO}}};
    for (const auto& fila : Tabla("core/presiones.txt", 4)) {
        SCOPED_TRACE(fila[0] + ": " + fila[1]);
        Mesa mesa(fila[0]);
        mesa.escritorio.Contestar_Siempre();
        if (fila[2] == "no game") mesa.partida.Jugando = False;
        mesa.partida.Origen = NINGUNA;
        const Control ficha = Nombrado(fila[1]);
        const bool negada = negadas.contains(fila[2]);
        EXPECT_EQ(mesa.juego.Se_Puede_Tomar(ficha), !negada);
        for (const Integer otro_boton : {Integer{2}, Integer{3}}) {
            if (ficha.Nombre == Arreglo::Blanca)
                mesa.juego.Blanca_MouseDown(ficha.Index, otro_boton);
            if (ficha.Nombre == Arreglo::Cafe) mesa.juego.Cafe_MouseDown(ficha.Index, otro_boton);
        }
        EXPECT_EQ(mesa.partida.Origen, NINGUNA);
        mesa.Presionar(ficha);
        EXPECT_EQ(mesa.escritorio.Leer(),
                  negada ? negadas.at(fila[2]) : Diario{"arrastra " + fila[2]});
        EXPECT_EQ(mesa.partida.Origen, negada ? NINGUNA : std::stoi(fila[3]));
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
    EXPECT_EQ(Imagen_De(mesa.partida, {}), nullptr);
    for (const Lugar& lugar : lugares) {
        EXPECT_EQ(Control_En(mesa.partida, lugar.x, lugar.y), lugar.control)
            << lugar.x << ", " << lugar.y;
    }
}

}  // namespace
}  // namespace corvanda::pruebas
