// The pictures that show a part of the board, as data: what stands there, which part is cut out,
// and what is drawn over it. To add one, add a row, and its name to ayuda/ayuda.qrc.
#pragma once

#include <QRectF>
#include <array>
#include <vector>

#include "core/partida.h"
#include "tools/laminas/marcas.h"

namespace laminas {

struct Grupo {
    corvanda::Integer lugar;  ///< a point, a bar or a tray, by its number in LST
    int cuantas;
};

/// A position in which each side has fifteen chips.
struct Posicion {
    std::vector<Grupo> blancas, cafes;
    std::array<corvanda::Integer, 2> dados{};  ///< 0 is a die that is not shown
};

struct Lamina {
    const char* nombre;
    Posicion posicion;
    QRectF recorte;  ///< twips in the case
    double tamano;   ///< 1 is as large as the board is with 15 twips to a pixel
    std::vector<Marca> marcas;
};

std::vector<Lamina> Tabla();

}  // namespace laminas
