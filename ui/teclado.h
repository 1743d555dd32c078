// The board played from the keyboard: which place is chosen, the frame that shows it, and what the
// keys do there. It presses and drops through the board as the mouse does and knows no rule.
//
// Nothing is shown until one of its keys is pressed, and the first one only shows the frame. A
// press of the mouse on the board takes it away again. What screen readers ask for comes here, too.
#pragma once

#include <QKeyEvent>
#include <QPainter>

#include "runtime/types.h"

namespace corvanda {

class Estuche;

class Teclado {
  public:
    /// A part of the board, which it may call when that is complete.
    explicit Teclado(Estuche& estuche) : estuche(estuche) {}

    /// Whether the key was one for the board; what it asked for is done.
    bool Tecla(const QKeyEvent& evento);

    /// Chooses a place and shows the frame there; not while the mouse drags a chip.
    void Elegir(Integer lugar);
    /// Takes the top chip of the chosen place or, with a chip in hand, drops it there.
    void Pulsar();
    /// The mouse is used: no frame any more.
    void Ocultar();

    Integer Elegido() const { return elegido; }
    /// Whether the frame is shown. A drag that goes on then is the keyboard's.
    bool A_La_Vista() const { return a_la_vista; }

    void Pintar(QPainter& pintor) const;

  private:
    void Ir(int columnas, int filas);
    void Siguiente(int paso);
    void Llevar();
    QRect Marco() const;

    Estuche& estuche;
    Integer elegido = 0;
    bool a_la_vista = false;
};

}  // namespace corvanda
