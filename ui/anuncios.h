// What happened on the board, in sentences for people who do not see it. Pure functions over
// positions, called only while somebody listens (see Locutor).
#pragma once

#include "ui/lugares.h"

namespace corvanda::anuncios {

/// The moves between two positions with no throw of the dice between them: "White moves from point
/// 1 to point 5. Brown's chip on point 5 is hit." Chips that were set up for a new game have not
/// moved. Empty when nothing did.
QString Jugadas(const Partida& antes, const Partida& ahora);

/// The throw that begins a turn, with the pass before it when the other side had a die left:
/// "White passes. Brown's dice: 4 and 2."
QString Tiro(const Partida& antes, const Partida& ahora);

}  // namespace corvanda::anuncios
