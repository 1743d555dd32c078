// What the game tells the board that shows it. The board draws the images as the state has them;
// these calls say what has changed and which chip follows the pointer. None may let events run.
#pragma once

#include "core/control.h"

namespace corvanda {

class Pantalla {
  public:
    virtual ~Pantalla() = default;

    /// One image has changed; `antes` is what it was.
    virtual void Refrescar(Control control, const Image& antes) = 0;

    /// A press took this chip: it follows the pointer until it is dropped or put back.
    virtual void Iniciar_Arrastre(Control ficha) = 0;

    /// A press on this chip was refused, and nothing but a sound tells so.
    virtual void Rechazar(Control ficha) = 0;

    /// A chip that is being dragged goes back without effect; nothing happens when there is none.
    virtual void Cancelar_Arrastre() = 0;
};

}  // namespace corvanda
