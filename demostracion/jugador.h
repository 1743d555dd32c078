// A player who knows the rules and nothing of strategy: picks the next move of the side to move by
// looking at the state alone. The demonstration and the window tests play whole games with it.
#pragma once

#include "core/partida.h"

namespace corvanda {

struct Jugada {
    enum class Clase { Mover, Sacar, Pasar };

    Clase clase = Clase::Pasar;
    Integer origen = 0;   ///< as Partida::Origen
    Integer destino = 0;  ///< a point; counts for Clase::Mover only

    bool operator==(const Jugada&) const = default;
};

/// The move with the chip farthest from home, bear-offs first; a pass when there is none.
Jugada Elegir(const Partida& partida);

struct Lugar {
    double x, y;  ///< twips in the case
};

/// Where to press to take the chip of a move, and where to drop it.
Lugar Agarre(const Partida& partida, const Jugada& jugada);
Lugar Meta(const Partida& partida, const Jugada& jugada);

}  // namespace corvanda
