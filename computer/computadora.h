// The computer as an opponent: plays Brown's turn one chip at a time, with a pause before each.
//
// The game calls it when it has rolled for Brown. The pause lets any event run in the middle of the
// turn; the turn ends without another move as soon as it is no longer the computer's, the game is
// over, another game was started or the program is closing.
#pragma once

#include "core/juego.h"

namespace corvanda {

class Computadora final : public Oponente {
  public:
    /// Plays until the turn is over. Does nothing when it is not Brown's turn or no game is
    /// running. A choice that the game refuses is given up by a pass, and when that is refused too
    /// by handing the turn over, so that every turn ends.
    void Tirar_Computer(Juego& juego) override;

  private:
    /// Enters the top chip of the bar with LDado1, else with Ldado2 (0 for none), else passes.
    static void Meter_Ficha(Juego& juego, Integer LDado1, Integer Ldado2);
    /// Plays one chip, or passes. A search may exchange the two dice.
    static void Jugar_Una(Juego& juego, Integer& Mayor, Integer& Menor);
};

}  // namespace corvanda
