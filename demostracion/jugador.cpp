#include "demostracion/jugador.h"

#include <cstdlib>
#include <optional>

#include "core/control.h"

namespace corvanda {

namespace {

bool Dado_Libre(const Partida& partida, int distancia) {
    return (partida.Dado[0].Visible && partida.Dado1 == distancia) ||
           (partida.Dado[1].Visible && partida.Dado2 == distancia);
}

int Dado_Mayor(const Partida& partida) {
    const int primero = partida.Dado[0].Visible ? partida.Dado1 : 0;
    const int segundo = partida.Dado[1].Visible ? partida.Dado2 : 0;
    return primero > segundo ? primero : segundo;
}

bool Tiene(const Partida& partida, Integer punto, Integer color) {
    return Punto_En(partida, punto).Owner == color && Pila_En(partida, punto).Cuenta() > 0;
}

// The points in the order in which the side's chips are far from home.
Integer Por_Lejania(Integer color, Integer i) {
    return color == BLANCA ? i : static_cast<Integer>(PUNTOS - 1 - i);
}

std::optional<Jugada> Mover_Desde(const Partida& partida, Integer origen) {
    for (int dado = 6; dado >= 1; --dado) {
        const auto destino = static_cast<Integer>(origen + partida.Turno * dado);
        if (!Dado_Libre(partida, dado) || !Es_Punto(destino)) continue;
        if (Cerrado(partida, destino, partida.Turno)) continue;
        return Jugada{Jugada::Clase::Mover, origen, destino};
    }
    return std::nullopt;
}

bool Hay_En_Casa_Detras(const Partida& partida, Integer origen) {
    const int paso = partida.Turno == BLANCA ? -1 : 1;
    for (int p = origen + paso; p >= 0 && p < PUNTOS; p += paso) {
        const bool en_casa = partida.Turno == BLANCA ? p >= 18 : p <= 5;
        if (en_casa && Pila_En(partida, static_cast<Integer>(p)).Cuenta() > 0) return true;
    }
    return false;
}

std::optional<Jugada> Sacar(const Partida& partida) {
    const bool en_casa =
        (partida.Turno == BLANCA ? partida.Blanca_En_Casa : partida.Cafe_En_Casa) != False;
    if (!en_casa) return std::nullopt;
    for (Integer i = 0; i < PUNTOS; ++i) {
        const Integer origen = Por_Lejania(partida.Turno, i);
        if (!Tiene(partida, origen, partida.Turno)) continue;
        const int distancia = partida.Turno == BLANCA ? PUNTOS - origen : origen + 1;
        const bool sobra = distancia < Dado_Mayor(partida) && !Hay_En_Casa_Detras(partida, origen);
        if (Dado_Libre(partida, distancia) || sobra) {
            return Jugada{Jugada::Clase::Sacar, origen, 0};
        }
    }
    return std::nullopt;
}

}  // namespace

Jugada Elegir(const Partida& partida) {
    const bool blanca = partida.Turno == BLANCA;
    const Integer barra = blanca ? BARRA_BLANCA : BARRA_CAFE;
    if (Pila_En(partida, barra).Cuenta() > 0) {
        const Integer origen = blanca ? ORIGEN_BARRA_BLANCA : ORIGEN_BARRA_CAFE;
        return Mover_Desde(partida, origen).value_or(Jugada{});
    }
    if (const auto fuera = Sacar(partida)) return *fuera;
    for (Integer i = 0; i < PUNTOS; ++i) {
        const Integer origen = Por_Lejania(partida.Turno, i);
        if (!Tiene(partida, origen, partida.Turno)) continue;
        if (const auto jugada = Mover_Desde(partida, origen)) return *jugada;
    }
    return {};
}

Lugar Agarre(const Partida& partida, const Jugada& jugada) {
    const bool blanca = partida.Turno == BLANCA;
    const Integer lugar = jugada.origen == ORIGEN_BARRA_BLANCA ? BARRA_BLANCA : jugada.origen;
    const Control ficha{blanca ? Arreglo::Blanca : Arreglo::Cafe, Pila_En(partida, lugar).Tope()};
    const Image& imagen = *Imagen_De(partida, ficha);
    return {static_cast<double>(imagen.Left + imagen.Width / 2),
            static_cast<double>(imagen.Top + imagen.Height / 2)};
}

// Near a point's base, which no die ever covers, and near the foot of a tray.
Lugar Meta(const Partida& partida, const Jugada& jugada) {
    constexpr double ORILLA = 200;
    const bool saca = jugada.clase == Jugada::Clase::Sacar;
    const auto bandeja = static_cast<Integer>(partida.Turno == BLANCA ? 1 : 0);
    const Control control =
        saca ? Control{Arreglo::Adios, bandeja} : Control{Arreglo::Triangle, jugada.destino};
    const Image& imagen = *Imagen_De(partida, control);
    const auto x = static_cast<double>(imagen.Left + imagen.Width / 2);
    const bool arriba = !saca && jugada.destino < 12;
    return {x, arriba ? static_cast<double>(imagen.Top) + ORILLA
                      : static_cast<double>(imagen.Top + imagen.Height) - ORILLA};
}

}  // namespace corvanda
