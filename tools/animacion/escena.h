// What the animation shows: a chip, ivory on one side and walnut on the other, that leaps, lands on
// its edge and spins out, and two dice that its landing tosses up beside it, on felt. All of it is
// at rest at the moment where the loop closes, so that a short wait there looks meant.
//
// Bodies are distance fields; lengths are in radii of the chip, the felt is the plane y = 0.
#pragma once

#include <array>

#include "vector.h"

namespace animacion {

enum class Materia { Nada, Pano, Marfil, Nogal, Filete, Punto };

struct Cuerpo {
    Vec centro;
    Giro giro;
};

/// Where everything is at a second of the loop.
struct Escena {
    explicit Escena(double segundo);

    /// How far the nearest body is, never more than it really is.
    double Distancia(Vec p) const;
    /// What the body at a place of its surface is made of there.
    Materia De_Que(Vec p) const;
    Vec Normal(Vec p) const;

    Cuerpo ficha;
    std::array<Cuerpo, 2> dados;
};

}  // namespace animacion
