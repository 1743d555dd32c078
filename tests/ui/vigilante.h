// Somebody who looks after the modal windows that open: boxes and dialogs are handed to the test in
// the order in which it prepared for them. One that nobody prepared for fails the test and is
// closed, so that no test waits for ever.
#pragma once

#include <QMessageBox>
#include <QTimer>
#include <deque>
#include <functional>
#include <string>
#include <vector>

namespace corvanda::pruebas {

class Vigilante {
  public:
    using Mano = std::function<void(QWidget&)>;

    Vigilante();

    /// What is done with the next window; it may leave it open.
    void Esperar(Mano mano) { manos.push_back(std::move(mano)); }
    /// What is done with every further window.
    void Siempre(Mano mano) { siempre = std::move(mano); }
    bool Gastado() const { return manos.empty(); }

    /// The boxes so far, as the journal writes them: "caja 64 [title] text".
    std::vector<std::string> cajas;

  private:
    void Mirar();

    std::deque<Mano> manos;
    Mano siempre;
    QTimer reloj;
};

/// Hands for the usual cases.
void Pulsar(QWidget& ventana, const QString& boton);
Vigilante::Mano Pulsa(const QString& boton);

/// Presses the button of a start-player dialog until it closes.
void Sortear(QWidget& dialogo);

/// A box as the journal writes it, empty for other windows.
std::string Caja_De(const QWidget& ventana);

}  // namespace corvanda::pruebas
