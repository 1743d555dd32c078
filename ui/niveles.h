// The computer's levels as the menu and the settings know them, in the order of the menu. A further
// level is a further row.
#pragma once

#include <array>

#include "core/partida.h"

namespace corvanda {

struct Nivel_Del_Menu {
    Byte nivel;            ///< as Modulo1::Nivel
    const char* titulo;    ///< its caption
    const char* guardado;  ///< its name in the settings
};

inline constexpr std::array<Nivel_Del_Menu, 2> NIVELES{{
    {PRINCIPIANTE, "&Beginner", "Principiante"},
    {AVANZADO, "&Advanced", "Avanzado"},
}};

/// The level that a name stands for which no row has.
inline constexpr Byte NIVEL_POR_OTRO_NOMBRE = AVANZADO;

/// The row of a level, the first one's for a level that no row has.
constexpr std::size_t Fila_De(Byte nivel) {
    for (std::size_t fila = 0; fila < NIVELES.size(); ++fila) {
        if (NIVELES.at(fila).nivel == nivel) return fila;
    }
    return 0;
}

/// The Index of a row's entry in the menu, where a line lies between any two.
constexpr Integer Marca_De(std::size_t fila) {
    return static_cast<Integer>(2 * fila);
}

}  // namespace corvanda
