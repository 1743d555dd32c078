// Debug builds check the invariants of the position whenever an action ends, whichever way it
// returns. One of these stands at the top of every handler and of whatever ends a turn.
#pragma once

#include <cassert>

#include "core/juego.h"

namespace corvanda {

class Comprobada {
  public:
    explicit Comprobada(const Juego& juego) : juego(juego) {}
    ~Comprobada() { assert(juego.A_Medio_Tirar() || Es_Valida(juego.Estado())); }
    Comprobada(const Comprobada&) = delete;
    Comprobada& operator=(const Comprobada&) = delete;

  private:
    [[maybe_unused]] const Juego& juego;
};

}  // namespace corvanda
