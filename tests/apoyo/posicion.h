// Positions as short texts, for tables of tests.
#pragma once

#include <string>

#include "core/juego.h"

namespace corvanda::pruebas {

/// Puts a position on the board of a game, complete with images, ready to be played:
///
///     "B 0x2 11x5 bar1 | C 5x5 23x2 | turn C | dice 6 4 | home BC"
///
/// B and C list White's and Brown's chips as point x count and "bar" with a count; chips of a side
/// that is listed but not fully placed are borne off; a side that is not listed stands where the
/// start of a game puts it. "turn" defaults to B and "dice" to 1 2; a die 0 is a used one, and
/// equal dice are a fresh double unless "doubles" gives the count that is left. "home" gives sides
/// the right to bear off beyond those that have borne off a chip already.
/// Jugando is on. Chips are numbered upwards in the order of the text, bar last.
void Poner(Juego& juego, Partida& partida, const std::string& texto);

}  // namespace corvanda::pruebas
