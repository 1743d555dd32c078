// Who may act and who may go on, when events run in the middle of things.
//
// Every message box, dialog and pass of the event loop may run any other handler: a new game, a
// pass, the end of the program. A procedure that lets events run takes a Testigo first and asks
// Sigue afterwards; when the answer is no, the world is no longer its own and it returns without
// doing anything more. All that decides such answers is kept here, and Juego keeps the steps:
//
//   state             from, to                        meanwhile
//
//   input closed      a game is set up, or a roll     hands and the pass do nothing,
//                     begins that no move preceded;   because old dice are still shown
//                     the roll ends
//   rolling           a roll begins; the turn that    a new game waits until this has
//                     it led to returns               unwound
//   computer's turn   it begins; it ends              no second one begins
//   computer acts     its turn, when no events run    Brown's chips are its own; in the
//                                                     rest of its turn they are nobody's
//   new game waits    somebody asks; it begins        hands do nothing, the computer's
//                                                     turn ends
//   beginning a game  its set-up; its first roll      no other begins
//                     returns
//   closing           the program is to end; never    nothing goes on
#pragma once

#include <cstdint>
#include <optional>
#include <utility>

#include "runtime/types.h"

namespace corvanda {

class Volado;

/// Sets a flag for as long as a procedure runs and puts it back, whichever way that returns.
class [[nodiscard]] Mientras {
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

class Vigencia {
  public:
    using Testigo = std::uint64_t;

    /// A new game that somebody asked for; the dialog must live until it has begun.
    struct Peticion {
        Byte nivel;
        Volado* volado;
    };

    /// The computer's turn, as long as this lives.
    struct Turno_De_Computadora {
        Mientras juega, actua;
    };

    // Tokens

    /// A game was set up or the turn went on: what began before must not go on.
    Testigo Empezar_Otra() { return ++epoca; }
    Testigo Tomar() const { return epoca; }
    bool Sigue(Testigo testigo) const { return !cerrando && testigo == epoca; }

    // Changes of state

    void Cerrar_Entrada() { sin_entrada = true; }
    void Abrir_Entrada() { sin_entrada = false; }
    /// Only the last new game that was asked for begins; what runs must not go on.
    void Pedir(Peticion nueva) {
        peticion = nueva;
        Empezar_Otra();
    }
    /// The new game that may begin now, which waits no longer.
    std::optional<Peticion> Siguiente() {
        return cerrando ? std::nullopt : std::exchange(peticion, std::nullopt);
    }
    /// The program is closing: nothing goes on any more.
    void Cerrar() { cerrando = true; }

    // Scopes

    Mientras Tirar() { return Mientras(tirando); }
    Mientras Empezar() { return Mientras(empezando); }
    Turno_De_Computadora Jugar() { return {Mientras(juega), Mientras(actua)}; }
    /// Events run.
    Mientras Ceder() { return Mientras(actua, false); }

    // Questions

    bool Cerrando() const { return cerrando; }
    /// Whether presses, drops and the pass command are for nobody just now.
    bool Entrada_Cerrada() const { return cerrando || sin_entrada || peticion; }
    /// Whether a roll that no move preceded has begun and not ended.
    bool A_Medio_Tirar() const { return sin_entrada; }
    bool Hay_Peticion() const { return peticion.has_value(); }
    /// Whether a new game may begin, with nothing under it that would have to unwind.
    bool Puede_Empezar() const { return !tirando && !empezando; }
    bool Computadora_Juega() const { return juega; }
    /// Whether Brown's chips are in the computer's turn and not in its hand.
    bool Cafe_De_Nadie() const { return juega && !actua; }

  private:
    Testigo epoca = 0;
    std::optional<Peticion> peticion;
    bool sin_entrada = false;
    bool tirando = false;
    bool empezando = false;
    bool juega = false;
    bool actua = false;
    bool cerrando = false;
};

}  // namespace corvanda
