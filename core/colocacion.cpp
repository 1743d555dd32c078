// Set-up: the members of the control arrays, the board's pictures, the starting position, and the
// beginning of a game.
#include "core/comprobada.h"
#include "core/juego.h"
#include "runtime/hourglass.h"

namespace corvanda {

Juego::Juego(Partida& partida, const Puertos& puertos, Oponente* computadora)
    : partida(partida), puertos(puertos), computadora(computadora) {}

void Juego::Cargar_Controles() {
    const auto crear = [this](Arreglo nombre, Integer i) {
        Imagen({nombre, i}) = Imagen({nombre, 0});
        Mostrar({nombre, i}, true);
        Al_Frente({nombre, i});
    };
    for (Integer i = 2; i < FICHAS; ++i) {
        crear(Arreglo::Cafe, i);
        crear(Arreglo::Blanca, i);
    }
}

void Juego::Vestir_Tablero() {
    const Partida antes = partida;
    Vestir(partida);
    const auto contar = [this](Arreglo nombre, const auto& miembros) {
        for (std::size_t i = 0; i < miembros.size(); ++i) {
            const Control control{nombre, static_cast<Integer>(i)};
            if (Imagen(control) != miembros[i]) puertos.Tablero.Refrescar(control, miembros[i]);
        }
    };
    contar(Arreglo::Tablero, antes.Tablero);
    contar(Arreglo::Triangle, antes.Triangle);
}

Single Juego::Altura_Base(Integer punto) const {
    if (punto < 12) return partida.Tablero[0].Top + 120;
    const Image& ultimo = partida.Triangle[23];
    return ultimo.Top + ultimo.Height - partida.Cafe[0].Height - 120;
}

void Juego::Despejar() {
    partida.Puntos = {};
    partida.Blanca_En_Casa = False;
    partida.Cafe_En_Casa = False;
    partida.Altura_Cafe = 0;
    partida.Altura_Blanca = 0;
    for (Integer p = 0; p < PUNTOS; ++p) Punto_En(partida, p).Y = Altura_Base(p);
    for (Pila& pila : partida.LST) pila.Vaciar();
    for (Integer i = 0; i < FICHAS; ++i) {
        Habilitar({Arreglo::Blanca, i}, true);
        Habilitar({Arreglo::Cafe, i}, true);
    }
}

void Juego::Colocar_Fichas() {
    partida.Origen = ORIGEN_COLOCACION;
    Mover(BLANCA, 0, 0);
    Mover(BLANCA, 1, 0);
    Mover(CAFE, 0, 23);
    Mover(CAFE, 1, 23);
    for (Integer i = 2; i <= 6; ++i) {
        const auto otra = static_cast<Integer>(i + 5);
        Mover(CAFE, i, 5);
        Mover(CAFE, otra, 12);
        Mover(BLANCA, i, 18);
        Mover(BLANCA, otra, 11);
    }
    for (Integer i = 12; i <= 14; ++i) {
        Mover(CAFE, i, 7);
        Mover(BLANCA, i, 16);
    }
    partida.Origen = 0;
}

void Juego::Ordenar() {
    const Comprobada accion(*this);
    const Hourglass reloj(puertos.Puntero);
    vigencia.Empezar_Otra();
    puertos.Tablero.Cancelar_Arrastre();
    Despejar();
    Colocar_Fichas();
    for (Integer i = 0; i < 2; ++i) {
        Mostrar({Arreglo::Adios, i}, false);
        Mostrar({Arreglo::Dado, i}, false);
    }
}

void Juego::Empezar(Byte nivel, Volado& volado) {
    vigencia.Pedir({nivel, &volado});
    Atender_Peticiones();
}

// Games begin here one after the other, never one inside another: what a new game interrupts
// unwinds first, so that the stack does not grow however often somebody changes their mind.
void Juego::Atender_Peticiones() {
    if (!vigencia.Puede_Empezar()) return;
    const Mientras empieza = vigencia.Empezar();
    while (const auto nueva = vigencia.Siguiente()) Abrir(*nueva);
}

void Juego::Abrir(const Vigencia::Peticion& nueva) {
    partida.Nivel = nueva.nivel;
    Ordenar();
    vigencia.Cerrar_Entrada();
    const auto testigo = vigencia.Tomar();
    nueva.volado->Mostrar();
    if (vigencia.Sigue(testigo)) Tirar_Dados();
}

}  // namespace corvanda
