// Watching the computer: what it plays, written as in "23/17 12/11 pass".
#pragma once

#include <string>

#include "computer/computadora.h"
#include "tests/apoyo/mesa.h"

namespace corvanda::pruebas {

/// Writes down every brown move of a game by looking at the board in each pass of the event loop:
/// with a pause before each of the computer's moves none is missed. "bar/21" enters, "2/off" bears
/// off, "*" is a hit, "?" two moves between two looks.
class Cronista {
  public:
    explicit Cronista(Mesa& mesa) : mesa(mesa), antes(mesa.partida) { Vigilar(); }

    /// The moves so far, separated by blanks.
    std::string Leer();

  private:
    void Vigilar();
    void Mirar();

    Mesa& mesa;
    Partida antes;
    std::string moves;
};

/// Lets the computer play the turn of a position ("... | turn C | dice 6 4") to its end; returns
/// its moves, and "pass" where it said that it passed. White's next dice are 1 and 2.
std::string Turno_Jugado(const std::string& posicion, Byte nivel);

}  // namespace corvanda::pruebas
