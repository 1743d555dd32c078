#include "core/bandos.h"

namespace corvanda {

Esquina Esquina_De_Barra(const Partida& partida, const Bando& bando) {
    const Image& tablero = partida.Tablero[0];
    const auto alto = static_cast<double>(partida.Cafe[0].Height);
    const double medio = static_cast<double>(tablero.Height) / 2 - 1.5 * alto;
    if (bando.color == CAFE)
        return {tablero.Left - partida.Cafe[0].Width, partida.Triangle[23].Top};
    return {tablero.Left - partida.Blanca[0].Width, static_cast<Single>(medio)};
}

bool Esta_Abajo(const Partida& partida, const Image& imagen) {
    return imagen.Top > partida.Triangle[23].Top - partida.Cafe[0].Height;
}

}  // namespace corvanda
