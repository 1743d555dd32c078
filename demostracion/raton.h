// The mouse of an X display, moved from outside the program by xdotool: what arrives at the windows
// are the events that a person's mouse would cause.
#pragma once

#include <QPoint>
#include <QStringList>

namespace corvanda {

class Raton {
  public:
    /// Places are device pixels of the screen. A display that cannot be reached leaves the pointer
    /// where it is. The calls wait until the events are sent, not until they are handled.
    void Ir(QPoint lugar);
    void Clic(QPoint lugar);
    /// Presses, moves along in some steps, and holds the button.
    void Arrastrar(QPoint desde, QPoint hasta);
    void Soltar();

    /// How long to wait after each event, milliseconds; a person watching wants more.
    void Ritmo(unsigned long milisegundos) { pausa = milisegundos; }

  private:
    void Mandar(const QStringList& orden) const;

    QPoint donde;
    unsigned long pausa = 15;
};

}  // namespace corvanda
