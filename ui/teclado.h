// The board played from the keyboard: which place is chosen, the frame that shows it, and what the
// keys do there. It presses and drops with the hand as the mouse does and knows no rule.
//
// Nothing is shown until one of its keys is pressed, and the first one only shows the frame, but
// for Tab, which at once goes to a chip that may be taken. A press of the mouse on the board takes
// the frame away again. What screen readers ask for comes here, too.
#pragma once

#include <QKeyEvent>
#include <QObject>
#include <QPainter>

#include "ui/mano.h"
#include "ui/trazado.h"

namespace corvanda {

class Teclado final : public QObject {
    Q_OBJECT

  public:
    Teclado(Mano& mano, const Trazado& trazado) : mano(mano), trazado(trazado) {}

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

  signals:
    /// A place was chosen.
    void elegida(Integer lugar);
    /// What the frame covers has to be painted.
    void tocado(QRect area);

  private:
    const Partida& Estado() const { return trazado.Estado(); }
    void Ir(int columnas, int filas);
    void Siguiente(int paso);
    Integer Siguiente_Ficha(int paso) const;
    bool Se_Puede_Tomar(Integer lugar) const;
    void Llevar();
    QRect Marco() const { return trazado.Marco(elegido); }

    Mano& mano;
    const Trazado& trazado;
    Integer elegido = 0;
    bool a_la_vista = false;
};

}  // namespace corvanda
