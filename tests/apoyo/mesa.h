// A game ready for tests: a board, a journal for a desktop, and the game over both.
#pragma once

#include "core/juego.h"
#include "tests/apoyo/escritorio.h"
#include "tests/apoyo/posicion.h"

namespace corvanda::pruebas {

/// A control by a short name: a point's number, "B3" and "C3" for chips, "A0" and "A1" for trays.
Control Nombrado(const std::string& texto);

struct Mesa {
    /// Without a position the board is set up and no game runs.
    explicit Mesa(const std::string& posicion = "", Oponente* computadora = nullptr);

    /// Presses a chip; returns the one that is dragged then, Arreglo::Ninguno for none.
    Control Presionar(Control ficha, Integer boton = LeftButton);
    /// Drops a chip on a point, a chip or a tray.
    void Soltar(Control fuente, Control blanco);
    /// What hands do, as a text: "pass"; "B3" presses the white chip 3; "0/5" takes the mover's top
    /// chip from point 0 and drops it on point 5. The first number may be "bar"; the second may be
    /// a chip ("B3", "C3") or a tray ("A0" Brown's, "A1" White's). Returns what was picked up.
    Control Hacer(const std::string& accion);

    Partida partida = Diseno();
    Escritorio escritorio;
    Juego juego;
};

/// The dice in one line, "4* 0 x2": a star for a die that is shown, an x for what a double leaves.
std::string Dados_De(const Partida& partida);

/// A start-player dialog that leaves a value in Turno without asking anybody.
struct Volado_Fijo final : Volado {
    Volado_Fijo(Partida& partida, Integer turno) : partida(partida), turno(turno) {}
    void Mostrar() override {
        if (mientras) mientras();
        partida.Turno = turno;
    }
    Partida& partida;
    Integer turno;  ///< opposite of the side that starts
    std::function<void()> mientras;
};

}  // namespace corvanda::pruebas
