// What the game costs without a screen: Mover calls, whole two-person games, the computer's
// decisions and whole games against it. Each line is a median of several runs.
//
//     bench_nucleo [RUNS]
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <vector>

#include "bench/mudo.h"
#include "computer/busqueda.h"
#include "computer/computadora.h"

namespace corvanda {
namespace {

using Reloj = std::chrono::steady_clock;

struct Mesa {
    explicit Mesa(std::uint32_t semilla, Oponente* computadora = nullptr)
        : mudo(semilla), juego(partida, mudo.Todos(), computadora) {
        juego.Cargar_Controles();
        juego.Vestir_Tablero();
        juego.Ordenar();
    }

    Mudo mudo;
    Partida partida = Diseno();
    Juego juego;
};

struct Empieza final : Volado {
    explicit Empieza(Partida& partida) : partida(partida) {}
    void Mostrar() override { partida.Turno = CAFE; }
    Partida& partida;
};

/// How often per second `obra` does its `veces` things, the median of the runs.
double Por_Segundo(int vueltas, long veces, const std::function<void()>& obra) {
    std::vector<double> ritmos;
    for (int i = 0; i < vueltas; ++i) {
        const auto inicio = Reloj::now();
        obra();
        const std::chrono::duration<double> tiempo = Reloj::now() - inicio;
        ritmos.push_back(static_cast<double>(veces) / tiempo.count());
    }
    std::sort(ritmos.begin(), ritmos.end());
    return ritmos[ritmos.size() / 2];
}

// The same chip three points up and back again; the doubles left over keep the turn from ending.
void Mover_Y_Volver(Mesa& mesa, long veces) {
    Partida& partida = mesa.partida;
    partida.Dado1 = partida.Dado2 = 3;
    partida.Dado[0].Visible = partida.Dado[1].Visible = true;
    for (long i = 0; i < veces; i += 2) {
        partida.Dobles = 2;
        partida.Origen = 0;
        mesa.juego.Mover(BLANCA, 1, 3);
        partida.Origen = 3;
        mesa.juego.Mover(BLANCA, 1, 0);
    }
}

void Jugar_Partidas(Mesa& mesa, Byte nivel, int cuantas) {
    Empieza volado(mesa.partida);
    for (int i = 0; i < cuantas; ++i) {
        mesa.juego.Empezar(nivel, volado);
        while (mesa.partida.Jugando != False) mesa.mudo.Jugar_Una(mesa.juego);
    }
}

/// Positions in which Brown has just rolled, taken from two-person games.
std::vector<Partida> Posiciones_De_Cafe(std::size_t cuantas) {
    std::vector<Partida> posiciones;
    Mesa mesa(7);
    Empieza volado(mesa.partida);
    while (posiciones.size() < cuantas) {
        if (mesa.partida.Jugando == False) mesa.juego.Empezar(DOS_PERSONAS, volado);
        const bool libre = Pila_En(mesa.partida, BARRA_CAFE).Cuenta() == 0;
        if (mesa.partida.Turno == CAFE && libre) posiciones.push_back(mesa.partida);
        mesa.mudo.Jugar_Una(mesa.juego);
    }
    return posiciones;
}

double Decisiones(Byte nivel, int vueltas) {
    const std::vector<Partida> posiciones = Posiciones_De_Cafe(2000);
    Mesa mesa(8);
    Busqueda busqueda(mesa.juego);
    return Por_Segundo(vueltas, static_cast<long>(posiciones.size()), [&] {
        for (const Partida& posicion : posiciones) {
            mesa.partida = posicion;
            mesa.partida.Nivel = nivel;
            Integer mayor = std::max(posicion.Dado1, posicion.Dado2);
            Integer menor = std::min(posicion.Dado1, posicion.Dado2);
            busqueda.Buscar_Tiro(mayor, menor);
        }
    });
}

double Partidas(Byte nivel, int cuantas, int vueltas) {
    Computadora computadora;
    Mesa mesa(11, &computadora);
    return Por_Segundo(vueltas, cuantas, [&] { Jugar_Partidas(mesa, nivel, cuantas); });
}

}  // namespace
}  // namespace corvanda

int main(int argc, char** argv) {
    using namespace corvanda;
    const int vueltas = argc > 1 ? std::max(1, std::atoi(argv[1])) : 5;
    constexpr long MOVIMIENTOS = 2000000;
    constexpr int PARTIDAS = 2000;

    Mesa mesa(1);
    const double movimientos =
        Por_Segundo(vueltas, MOVIMIENTOS, [&] { Mover_Y_Volver(mesa, MOVIMIENTOS); });
    std::printf("Mover calls per second              %12.0f\n", movimientos);
    std::printf("two-person games per second         %12.0f\n",
                Partidas(DOS_PERSONAS, PARTIDAS, vueltas));
    std::printf("decisions per second, Beginner      %12.0f\n", Decisiones(PRINCIPIANTE, vueltas));
    std::printf("decisions per second, Advanced      %12.0f\n", Decisiones(AVANZADO, vueltas));
    std::printf("games per second against Beginner   %12.0f\n",
                Partidas(PRINCIPIANTE, PARTIDAS, vueltas));
    std::printf("games per second against Advanced   %12.0f\n",
                Partidas(AVANZADO, PARTIDAS, vueltas));
    return 0;
}
