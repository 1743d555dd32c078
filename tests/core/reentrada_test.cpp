// What may happen in the passes of a roll, under a box and in the dialog.
#include <gtest/gtest.h>

#include <set>

#include "tests/apoyo/diario.h"
#include "tests/apoyo/mesa.h"

namespace corvanda::pruebas {
namespace {

constexpr const char* INICIO = "blancas 0x2 11x5 16x3 18x5, cafes 5x5 7x3 12x5 23x2";

void Abrir(Mesa& mesa, Integer empieza) {
    Volado_Fijo volado(mesa.partida, static_cast<Integer>(-empieza));
    mesa.juego.Empezar(DOS_PERSONAS, volado);
}

// What begins a roll, from a position in which a drop in the middle of it could be paid.
struct Tirada {
    const char* nombre;
    const char* posicion;
    bool tras_jugada;
    Integer origen, destino;
    std::function<void(Mesa&)> empezar;
};

void Pasar_Con_Una_Ficha_Tomada(Mesa& mesa) {
    mesa.Tomar(12);
    mesa.juego.mnuPasar_Click();
}

std::vector<Tirada> Tiradas() {
    const auto jugar = [](Mesa& mesa) { mesa.Jugar(0, 2); };
    const auto abrir = [](Mesa& mesa) { Abrir(mesa, BLANCA); };
    const char* const ultima = "B 0x15 | C 12x15 | dice 0 2";
    const char* const sin_salida = "turn C | C 2x1 12x14 | B 0x15 | dice 5 3";
    return {{"after a move", ultima, true, 0, 2, jugar},
            {"after a pass", sin_salida, false, 12, 7, Pasar_Con_Una_Ficha_Tomada},
            {"opening a game", "dice 5 3", false, 0, 3, abrir},
            {"opening the first game", "", false, 0, 3, abrir}};
}

struct Puesta : Mesa {
    explicit Puesta(const Tirada& tirada) {
        if (*tirada.posicion != '\0') Poner(juego, partida, tirada.posicion);
        escritorio.Leer();
        escritorio.Contestar_Siempre();
        escritorio.Dados({5, 3, 5, 3, 5, 3});
    }
};

void En_Cada_Pase(const std::function<void(const Tirada&, int, Puesta&)>& prueba) {
    for (const Tirada& tirada : Tiradas()) {
        for (int pase = 1; pase <= 4; ++pase) {
            SCOPED_TRACE(std::string(tirada.nombre) + ", pass " + std::to_string(pase));
            Puesta mesa(tirada);
            mesa.partida.Sonido = True;
            prueba(tirada, pase, mesa);
        }
    }
}

// Presses of both sides, the pass command and drops; returns what the journal says of them.
Diario Molestar(Mesa& mesa, const Tirada& tirada) {
    const Diario antes = mesa.escritorio.Leer();
    const bool blanca = Punto_En(mesa.partida, tirada.origen).Owner == BLANCA;
    const Control fuente{blanca ? Arreglo::Blanca : Arreglo::Cafe,
                         Pila_En(mesa.partida, tirada.origen).Tope()};
    mesa.Presionar({Arreglo::Blanca, 0});
    mesa.Presionar({Arreglo::Cafe, 0});
    mesa.juego.mnuPasar_Click();
    for (const Arreglo nombre : {Arreglo::Blanca, Arreglo::Cafe, Arreglo::Adios}) {
        if (!tirada.tras_jugada) mesa.Soltar(fuente, {nombre, 0});
    }
    if (!tirada.tras_jugada) mesa.Soltar(fuente, {Arreglo::Triangle, tirada.destino});
    const Diario respuesta = mesa.escritorio.Leer();
    mesa.escritorio.diario = antes;
    return respuesta;
}

// After a move no game is running, and a press is told so; otherwise the old dice may be shown.
TEST(Reentrada, Hands_In_The_Passes_Of_A_Roll) {
    En_Cada_Pase([](const Tirada& tirada, int pase, Puesta& mesa) {
        Puesta tranquila(tirada);
        tranquila.partida.Sonido = True;
        tirada.empezar(tranquila);
        Diario respuesta{"no pass"};
        mesa.escritorio.En_El_Pase(pase, [&] {
            EXPECT_FALSE(mesa.juego.Se_Puede_Tomar({Arreglo::Blanca, 0}));
            EXPECT_FALSE(mesa.juego.Se_Puede_Tomar({Arreglo::Cafe, 0}));
            respuesta = Molestar(mesa, tirada);
        });
        tirada.empezar(mesa);
        const Diario dicho{Suena("strike"), SIN_JUEGO, Suena("strike"), SIN_JUEGO};
        EXPECT_EQ(respuesta, tirada.tras_jugada ? dicho : Diario{});
        EXPECT_EQ(mesa.escritorio.Pases(), 4);
        EXPECT_EQ(mesa.escritorio.diario, tranquila.escritorio.diario);
        EXPECT_TRUE(mesa.partida == tranquila.partida) << Texto(mesa.partida);
    });
}

TEST(Reentrada, Hands_While_The_Dialog_Is_Open_And_After_The_Roll) {
    const Tirada abrir = Tiradas()[2];
    Puesta mesa(abrir);
    Volado_Fijo volado(mesa.partida, CAFE);
    Diario respuesta{"no dialog"};
    volado.mientras = [&] { respuesta = Molestar(mesa, abrir); };
    mesa.juego.Empezar(DOS_PERSONAS, volado);
    EXPECT_EQ(respuesta, Diario{});
    mesa.Jugar(0, 3);
    EXPECT_EQ(Punto_En(mesa.partida, 3).Owner, BLANCA);
}

void Esperar_Un_Solo_Juego(Mesa& mesa, int pases) {
    EXPECT_EQ(mesa.escritorio.Pases(), pases);
    EXPECT_EQ(mesa.partida.Turno, CAFE);
    EXPECT_EQ(mesa.partida.Jugando, True);
    EXPECT_EQ(Faltas(mesa.partida), Diario{});
    EXPECT_NE(Texto(mesa.partida).find(INICIO), std::string::npos) << Texto(mesa.partida);
    EXPECT_TRUE(mesa.juego.Se_Puede_Tomar({Arreglo::Cafe, 0}));
}

TEST(Reentrada, A_New_Game_In_The_Passes_Of_A_Roll_Is_The_Only_One) {
    En_Cada_Pase([](const Tirada& tirada, int pase, Puesta& mesa) {
        int dialogos = 0;
        Volado_Fijo volado(mesa.partida, BLANCA);
        volado.mientras = [&] { ++dialogos; };
        mesa.escritorio.En_El_Pase(pase, [&] {
            mesa.escritorio.Leer();
            mesa.juego.Empezar(DOS_PERSONAS, volado);
        });
        tirada.empezar(mesa);
        Esperar_Un_Solo_Juego(mesa, pase + 4);
        EXPECT_EQ(dialogos, 1);
        EXPECT_EQ(mesa.escritorio.Leer(),
                  (Diario{"puntero reloj", "puntero normal", Suena("click1")}));
    });
}

// However often somebody asks for another game in the dialog or in the first roll, each begins
// where the first did, and only the last one is rolled to its end.
TEST(Reentrada, New_Games_Follow_Each_Other_And_Do_Not_Nest) {
    Mesa mesa;
    mesa.escritorio.Sembrar(1);
    Volado_Fijo volado(mesa.partida, BLANCA);
    std::set<void*> pisos;
    int juegos = 0;
    const auto otro = [&] { mesa.juego.Empezar(DOS_PERSONAS, volado); };
    volado.mientras = [&] {
        pisos.insert(__builtin_frame_address(0));
        if (++juegos == 50) return;
        if (juegos % 2 == 0) {
            otro();
        } else {
            mesa.escritorio.En_El_Pase(juegos % 4 + 1, otro);
        }
    };
    otro();
    EXPECT_EQ(juegos, 50);
    EXPECT_EQ(pisos.size(), 1U);
    Esperar_Un_Solo_Juego(mesa, 13 * 2 + 12 * 4 + 4);
}

// What opens a box.
struct Caja_Abierta {
    const char* nombre;
    const char* posicion;
    std::function<void(Mesa&)> abrir;
};

std::vector<Caja_Abierta> Cajas() {
    const auto jugar = [](Mesa& mesa) { mesa.Jugar(0, 5); };
    const auto atras = [](Mesa& mesa) { mesa.Jugar(8, 5); };
    const auto ajena = [](Mesa& mesa) { mesa.Presionar({Arreglo::Cafe, 0}); };
    const auto pasar = [](Mesa& mesa) { mesa.juego.mnuPasar_Click(); };
    const auto gana_blanca = [](Mesa& mesa) { mesa.Soltar(mesa.Tomar(23), {Arreglo::Adios, 1}); };
    const auto gana_cafe = [](Mesa& mesa) { mesa.Soltar(mesa.Tomar(0), {Arreglo::Adios, 0}); };
    return {{"closed point", "B 0x15 | C 5x15 | dice 5 1", jugar},
            {"backward", "B 8x15 | C 12x15 | dice 5 1", atras},
            {"out of turn", "dice 5 1", ajena},
            {"pass refused", "dice 5 1", pasar},
            {"pass accepted", "B bar1 0x14 | C 5x2 3x2 12x11 | dice 6 4", pasar},
            {"White wins", "B 23x1 | C 12x15 | dice 1 4", gana_blanca},
            {"Brown wins", "turn C | C 0x1 | B 12x15 | dice 1 4", gana_cafe}};
}

TEST(Reentrada, A_New_Game_Under_A_Box_Is_The_Only_One) {
    for (const Caja_Abierta& caja : Cajas()) {
        SCOPED_TRACE(caja.nombre);
        Mesa mesa(caja.posicion);
        mesa.escritorio.Dados({2, 2});
        mesa.escritorio.Contestar(button::Ok, [&] { Abrir(mesa, CAFE); });
        caja.abrir(mesa);
        EXPECT_TRUE(mesa.escritorio.Respuestas_Gastadas());
        Esperar_Un_Solo_Juego(mesa, 4);
        EXPECT_EQ(Dados_De(mesa.partida), "2* 2* x2");
    }
}

// Closes the program and returns the position as it is then.
Partida Cerrar(Mesa& mesa) {
    mesa.juego.Cerrar();
    mesa.escritorio.Leer();
    return mesa.partida;
}

void Esperar_Silencio(Mesa& mesa, int pases, const Partida& cerrada) {
    EXPECT_EQ(mesa.escritorio.Leer(), Diario{});
    EXPECT_EQ(mesa.escritorio.Pases(), pases);
    EXPECT_TRUE(mesa.partida == cerrada) << Texto(mesa.partida);
}

TEST(Reentrada, Closing_Under_A_Box_Ends_Everything) {
    for (const Caja_Abierta& caja : Cajas()) {
        SCOPED_TRACE(caja.nombre);
        Mesa mesa(caja.posicion);
        mesa.partida.Sonido = True;
        Partida cerrada;
        mesa.escritorio.Contestar(button::Ok, [&] { cerrada = Cerrar(mesa); });
        caja.abrir(mesa);
        EXPECT_TRUE(mesa.escritorio.Respuestas_Gastadas());
        Esperar_Silencio(mesa, 0, cerrada);
    }
}

TEST(Reentrada, Closing_In_The_Passes_Of_A_Roll_Ends_Everything) {
    En_Cada_Pase([](const Tirada& tirada, int pase, Puesta& mesa) {
        Partida cerrada;
        mesa.escritorio.En_El_Pase(pase, [&] { cerrada = Cerrar(mesa); });
        tirada.empezar(mesa);
        Esperar_Silencio(mesa, pase, cerrada);
    });
}

TEST(Reentrada, Closing_In_The_Dialog_Does_Not_Roll_And_Then_Nobody_Is_Answered) {
    const Tirada abrir = Tiradas()[2];
    Puesta mesa(abrir);
    Volado_Fijo volado(mesa.partida, CAFE);
    volado.mientras = [&] {
        mesa.escritorio.arrastrada = {Arreglo::Blanca, 0};
        Cerrar(mesa);
    };
    mesa.juego.Empezar(AVANZADO, volado);
    EXPECT_TRUE(mesa.juego.Cerrando());
    EXPECT_EQ(mesa.escritorio.arrastrada, Control{});
    const Partida cerrada = mesa.partida;
    mesa.juego.Beeper();
    mesa.juego.MsgError(1);
    mesa.juego.Tirar_Dados();
    EXPECT_EQ(Molestar(mesa, abrir), Diario{});
    mesa.juego.Empezar(DOS_PERSONAS, volado);
    Esperar_Silencio(mesa, 0, cerrada);
}

TEST(Reentrada, Closing_In_The_Middle_Of_A_Game_Closes_The_Board) {
    const Tirada abrir = Tiradas()[2];
    Puesta mesa(abrir);
    const Partida cerrada = Cerrar(mesa);
    EXPECT_EQ(Molestar(mesa, abrir), Diario{});
    Esperar_Silencio(mesa, 0, cerrada);
}

}  // namespace
}  // namespace corvanda::pruebas
