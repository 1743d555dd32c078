// The pictures that show a part of the board, as data: what stands there, which part is cut out,
// and what is drawn over it. To add one, add a row, and its name to ayuda/ayuda.qrc.
#pragma once

#include <QRectF>
#include <vector>

#include "tools/laminas/marcas.h"

namespace laminas {

struct Lamina {
    const char* nombre;
    const char* posicion;  ///< as tests/apoyo/posicion.h reads it
    QRectF recorte;        ///< twips in the case
    double tamano;         ///< 1 is as large as the board is with 15 twips to a pixel
    std::vector<Marca> marcas;
};

std::vector<Lamina> Tabla();

}  // namespace laminas
