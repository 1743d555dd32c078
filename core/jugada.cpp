// The move of one chip to a point.
#include <cstdlib>

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
    if (Color == BLANCA && Destino >= 18 && partida.Blanca_En_Casa == False) {
        Checar(BLANCA);
    } else if (Color == CAFE && Destino <= 5 && partida.Cafe_En_Casa == False) {
        Checar(CAFE);
    }
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
    const bool es_cafe = Color == BLANCA;
    const Control ficha{es_cafe ? Arreglo::Cafe : Arreglo::Blanca, comida};
    Punto_En(partida, Destino).Y = Imagen(ficha).Top;

    const Image& tablero = partida.Tablero[0];
    if (es_cafe) {
        Colocar(ficha, tablero.Left - partida.Cafe[0].Width, partida.Triangle[23].Top);
    } else {
        const double top = static_cast<double>(tablero.Height) / 2 -
                           1.5 * static_cast<double>(partida.Cafe[0].Height);
        Colocar(ficha, tablero.Left - partida.Blanca[0].Width, static_cast<Single>(top));
    }
    Pila_En(partida, es_cafe ? BARRA_CAFE : BARRA_BLANCA).Poner(comida);
    pila.Quitar();
}

void Juego::Llevar_Ficha(Integer Color, Integer Ficha, Integer Destino) {
    const Control ficha{Color == BLANCA ? Arreglo::Blanca : Arreglo::Cafe, Ficha};
    if (Es_Punto(partida.Origen)) Punto_En(partida, partida.Origen).Y = Imagen(ficha).Top;
    Punto& punto = Punto_En(partida, Destino);
    Colocar(ficha, Imagen({Arreglo::Triangle, Destino}).Left, punto.Y);
    punto.Owner = Color == BLANCA ? BLANCA : CAFE;
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
    const bool cafe = Color == CAFE;
    const auto primero = static_cast<Integer>(cafe ? 0 : 18);
    Byte cuenta = 0;
    for (Integer i = primero; i < primero + 6; ++i) {
        if (Punto_En(partida, i).Owner != (cafe ? CAFE : BLANCA)) continue;
        cuenta = static_cast<Byte>(cuenta + Pila_En(partida, i).Cuenta());
    }
    // The moving chip counts once: here when it comes from outside, else where it stands.
    if (cafe ? partida.Origen >= 6 : partida.Origen < 18) ++cuenta;
    if (cuenta != FICHAS) return;
    (cafe ? partida.Cafe_En_Casa : partida.Blanca_En_Casa) = True;
    Mostrar({Arreglo::Adios, static_cast<Integer>(cafe ? 0 : 1)}, true);
}

}  // namespace corvanda
