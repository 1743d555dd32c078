// The start-player dialog, as the game sees it.
#pragma once

namespace corvanda {

class Volado {
  public:
    virtual ~Volado() = default;

    /// Shows the dialog modally and returns when it is closed. Leaves in Turno the opposite of the
    /// side that starts, or Turno as it was when the dialog was closed before that was decided.
    virtual void Mostrar() = 0;
};

}  // namespace corvanda
