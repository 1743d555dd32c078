// The computer's levels as the menu and the settings know them. A further level is a further row.
#pragma once

#include <array>

#include "core/partida.h"

namespace corvanda {

struct Nivel_Del_Menu {
    Integer marca;         ///< index of its entry among Menus::mnuLev
    Byte nivel;            ///< as Módulo1::Nivel
    const char* guardado;  ///< its name in the settings
};

inline constexpr std::array<Nivel_Del_Menu, 2> NIVELES{{
    {0, PRINCIPIANTE, "Principiante"},
    {2, AVANZADO, "Avanzado"},
}};

}  // namespace corvanda
