// The move of one chip to a point.
#include <cstdlib>

#include "core/bandos.h"
#include "core/juego.h"

namespace corvanda {

void Juego::Mover(Integer Color, Integer Ficha, Integer Destino) {
    if (!Es_Punto(Destino) || Ficha < 0 || Ficha >= FICHAS) return;
    const bool colocando = partida.Origen == ORIGEN_COLOCACION;
    if (partida.Origen == Destino) return;
    if (Cerrado(partida, Destino, Color)) {
        MsgError(0);
        return;
    }
    const auto distancia = static_cast<Integer>(std::abs(partida.Origen - Destino));
    const Integer dado = Dado_Que_Paga(distancia);
    if (!colocando && dado == NINGUN_DADO) return;
    if (!colocando) {
        Gastar_Dado(dado);
        Efecto("bounce.Wav");
    }

    // Counted before the stacks change: the moving chip is still seen at Origen.
    const Bando& bando = Bando_De(Color);
    if (bando.Es_Casa(Destino) && partida.*bando.en_casa == False) Checar(bando.color);
    const bool sola = Pila_En(partida, Destino).Cuenta() == 1;
    if (!colocando && sola && Punto_En(partida, Destino).Owner != Color) Comer(Color, Destino);

    Llevar_Ficha(Color, Ficha, Destino);
    Avanzar_Altura(Ficha, Destino);
    Sacar_De_Origen();
    Pila_En(partida, Destino).Poner(Ficha);

    if (!colocando && !partida.Dado[0].Visible && !partida.Dado[1].Visible) Entregar_Turno();
}

// The die that pays the distance, the first before the second.
Integer Juego::Dado_Que_Paga(Integer distancia) const {
    if (distancia == partida.Dado1 && partida.Dado[0].Visible) return 0;
    if (distancia == partida.Dado2 && partida.Dado[1].Visible) return 1;
    return NINGUN_DADO;
}

// Only the first die counts the extra uses after a double.
void Juego::Gastar_Dado(Integer cual) {
    if (cual == 0 && partida.Dobles > 0) {
        --partida.Dobles;
        return;
    }
    Mostrar({Arreglo::Dado, cual}, false);
    (cual == 0 ? partida.Dado1 : partida.Dado2) = 0;
}

// The hit: the lone chip on Destino goes to its bar and leaves its place to the one that comes.
void Juego::Comer(Integer Color, Integer Destino) {
    Efecto("cannon.Wav");
    Pila& pila = Pila_En(partida, Destino);
    const Integer comida = pila.Tope();
    const Bando& bando = Contrario(Bando_De(Color));
    const Control ficha{bando.fichas, comida};
    Punto_En(partida, Destino).Y = Imagen(ficha).Top;
    const Esquina esquina = Esquina_De_Barra(partida, bando);
    Colocar(ficha, esquina.Left, esquina.Top);
    Pila_En(partida, bando.barra).Poner(comida);
    pila.Quitar();
}

void Juego::Llevar_Ficha(Integer Color, Integer Ficha, Integer Destino) {
    const Bando& bando = Bando_De(Color);
    const Control ficha{bando.fichas, Ficha};
    if (Es_Punto(partida.Origen)) Punto_En(partida, partida.Origen).Y = Imagen(ficha).Top;
    Punto& punto = Punto_En(partida, Destino);
    Colocar(ficha, Imagen({Arreglo::Triangle, Destino}).Left, punto.Y);
    punto.Owner = bando.color;
}

// A point's next place: one white chip's height further, whatever the colour, and back to the base
// where the stack would leave the point. Both comparisons are strict.
void Juego::Avanzar_Altura(Integer Ficha, Integer Destino) {
    const Single paso = Imagen({Arreglo::Blanca, Ficha}).Height;
    const Image& triangulo = Imagen({Arreglo::Triangle, Destino});
    Single& y = Punto_En(partida, Destino).Y;
    if (Destino < 12) {
        y += paso;
        if (triangulo.Top + triangulo.Height < y) y = Altura_Base(Destino);
    } else {
        y -= paso;
        if (y < triangulo.Top) y = Altura_Base(Destino);
    }
}

void Juego::Sacar_De_Origen() {
    const Integer origen = partida.Origen;
    if (Es_Punto(origen)) {
        if (Pila_En(partida, origen).Cuenta() == 1) Punto_En(partida, origen).Owner = NADIE;
        Pila_En(partida, origen).Quitar();
    } else if (origen == ORIGEN_BARRA_CAFE) {
        Pila_En(partida, BARRA_CAFE).Quitar();
    } else if (origen == ORIGEN_BARRA_BLANCA) {
        Pila_En(partida, BARRA_BLANCA).Quitar();
    }
}

void Juego::Checar(Integer Color) {
    const Bando& bando = Bando_De(Color == CAFE ? CAFE : BLANCA);
    Byte cuenta = 0;
    for (Integer i = bando.casa; bando.Es_Casa(i); ++i) {
        if (Punto_En(partida, i).Owner != bando.color) continue;
        cuenta = static_cast<Byte>(cuenta + Pila_En(partida, i).Cuenta());
    }
    // The moving chip counts once: here when it comes from outside, else where it stands.
    if (bando.Fuera_De_Casa(partida.Origen)) ++cuenta;
    if (cuenta != FICHAS) return;
    partida.*bando.en_casa = True;
    Mostrar({Arreglo::Adios, bando.adios}, true);
}

}  // namespace corvanda
