// The computer, as the game sees it: somebody who plays Brown's turn when asked.
#pragma once

namespace corvanda {

class Juego;

class Oponente {
  public:
    virtual ~Oponente() = default;

    /// Plays the rest of Brown's turn, through the procedures that a person's hands use. Lets
    /// events run between its moves; returns when the turn is over or no longer its own.
    virtual void Tirar_Computer(Juego& juego) = 0;
};

}  // namespace corvanda
