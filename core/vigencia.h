// Who may go on after events have run.
//
// Every message box, dialog and pass of the event loop may run any other handler: a new game, a
// pass, the end of the program. A procedure that lets events run takes a Testigo first and asks
// Sigue afterwards; when the answer is no, the world is no longer its own and it returns without
// doing anything more. All that decides the answer is kept here.
#pragma once

#include <cstdint>
#include <utility>

namespace corvanda {

class Vigencia {
  public:
    using Testigo = std::uint64_t;

    /// A game was set up or the turn went on: what began before must not go on.
    Testigo Empezar_Otra() { return ++epoca; }

    Testigo Tomar() const { return epoca; }
    bool Sigue(Testigo testigo) const { return !cerrando && testigo == epoca; }

    /// The program is closing: nothing goes on any more.
    void Cerrar() { cerrando = true; }
    bool Cerrando() const { return cerrando; }

  private:
    Testigo epoca = 0;
    bool cerrando = false;
};

/// Sets a flag for as long as a procedure runs and puts it back, whichever way that returns.
class Mientras {
  public:
    explicit Mientras(bool& bandera, bool valor = true)
        : bandera(bandera), antes(std::exchange(bandera, valor)) {}
    ~Mientras() { bandera = antes; }
    Mientras(const Mientras&) = delete;
    Mientras& operator=(const Mientras&) = delete;

  private:
    bool& bandera;
    const bool antes;
};

}  // namespace corvanda
