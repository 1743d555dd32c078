// The pictures that are no part of a board: two dialogs of the game as they are, and how often each
// face of a die comes up.
#pragma once

#include <QImage>

#include "ui/estampas.h"

namespace laminas {

/// White throws a 5, Brown a 3.
QImage Quien_Empieza(corvanda::Estampas& estampas);
/// At the speed of a first start, after the chip has slid across the window.
QImage Velocidad(corvanda::Estampas& estampas);
QImage Frecuencias(corvanda::Estampas& estampas);

}  // namespace laminas
