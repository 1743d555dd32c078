// A game ready for tests: a board, a journal for a desktop, and the game over both.
#pragma once

#include "core/juego.h"
#include "tests/apoyo/escritorio.h"
#include "tests/apoyo/posicion.h"

namespace corvanda::pruebas {

struct Mesa {
    explicit Mesa(Oponente* computadora = nullptr)
        : juego(partida, escritorio.Todos(), computadora) {
        juego.Cargar_Controles();
        juego.Vestir_Tablero();
        juego.Ordenar();
        escritorio.Leer();
    }
    explicit Mesa(const std::string& posicion, Oponente* computadora = nullptr)
        : Mesa(computadora) {
        Poner(juego, partida, posicion);
        escritorio.Leer();
    }

    /// Presses a chip; returns the one that is dragged then, Arreglo::Ninguno for none.
    Control Presionar(Control ficha, Integer boton = LeftButton);
    /// Presses the mover's top chip at a point or on its bar (a value of Origen).
    Control Tomar(Integer origen);
    /// Drops a chip on a point, a chip or a tray.
    void Soltar(Control fuente, Control blanco);
    /// Presses the top chip of a point, or of the mover's bar, and drops it on a point image.
    void Jugar(Integer origen, Integer destino);

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
