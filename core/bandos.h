// What differs between the two sides, in one table: everything that is chosen by a colour is asked
// here. And what follows from the layout for both of them.
#pragma once

#include "core/control.h"

namespace corvanda {

struct Bando {
    Integer color;
    Arreglo fichas;   ///< the control array of its chips
    Integer barra;    ///< its bar in LST
    Integer bandeja;  ///< its tray in LST
    Integer adios;    ///< Index of its tray's image
    Integer entrada;  ///< the virtual point before its first: Origen of a chip on the bar
    Integer salida;   ///< the virtual point beyond its last: the tray
    Integer casa;     ///< the lowest point of its home board
    Boolean Partida::*en_casa;
    Integer Partida::*altura;

    bool Es_Casa(Integer punto) const { return punto >= casa && punto < casa + PUNTOS_DE_CASA; }
    /// Whether a chip that comes from there has its home board still before it.
    bool Fuera_De_Casa(Integer origen) const {
        return color == BLANCA ? origen < casa : origen >= casa + PUNTOS_DE_CASA;
    }
    /// Whether a way leads against the direction of the side.
    bool Hacia_Atras(Integer origen, Integer destino) const {
        return color == BLANCA ? destino < origen : destino > origen;
    }
};

inline constexpr std::array<Bando, 2> BANDOS{{
    {BLANCA, Arreglo::Blanca, BARRA_BLANCA, BANDEJA_BLANCA, 1, ORIGEN_BARRA_BLANCA, PUNTOS, 18,
     &Partida::Blanca_En_Casa, &Partida::Altura_Blanca},
    {CAFE, Arreglo::Cafe, BARRA_CAFE, BANDEJA_CAFE, 0, ORIGEN_BARRA_CAFE, -1, 0,
     &Partida::Cafe_En_Casa, &Partida::Altura_Cafe},
}};

/// Any colour but 1 counts as Brown.
constexpr const Bando& Bando_De(Integer color) {
    return BANDOS[color == BLANCA ? 0 : 1];
}
/// The side whose chip a control is; any array but Blanca counts as Brown's.
constexpr const Bando& Bando_De(Control ficha) {
    return BANDOS[ficha.Nombre == Arreglo::Blanca ? 0 : 1];
}
constexpr const Bando& Contrario(const Bando& bando) {
    return Bando_De(static_cast<Integer>(-bando.color));
}

/// Twips in the case.
struct Esquina {
    Single Left, Top;
};

/// Where a chip of a side lies that was hit.
Esquina Esquina_De_Barra(const Partida& partida, const Bando& bando);

/// Whether an image stands in the bottom row, as chips do that belong to a point there.
bool Esta_Abajo(const Partida& partida, const Image& imagen);

}  // namespace corvanda
