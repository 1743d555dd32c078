// The control arrays of the board and how one member of them is named.
#pragma once

#include "core/partida.h"

namespace corvanda {

enum class Arreglo : Byte { Ninguno, Tablero, Triangle, Blanca, Cafe, Adios, Dado };

struct Control {
    Arreglo Nombre = Arreglo::Ninguno;
    Integer Index = 0;

    bool operator==(const Control&) const = default;
};

/// The image of a member, nullptr when there is no such member.
const Image* Imagen_De(const Partida& partida, Control control);
Image* Imagen_De(Partida& partida, Control control);

/// The frontmost image under a place (twips, in the case) that is shown and enabled: the one that
/// a press or a drop there is for. Arreglo::Ninguno when there is none.
Control Control_En(const Partida& partida, Single x, Single y);

/// Whether presses on the members of an array mean anything.
bool Recibe_Presiones(Arreglo nombre);

}  // namespace corvanda
