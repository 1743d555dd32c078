// The places of the board for those who do not point at it: the 24 points, the two bars and the two
// trays, each by its location in LST. Here stands where a place lies, which is next to it, which
// chip may be taken and what takes a drop there, and what people call it. The keyboard and what
// screen readers are told ask here; it looks at the state and keeps nothing.
//
// People count the points from 1 to 24 along White's way: the top row from left to right, then the
// bottom row back to the left. So a brown chip on a home point needs that number to bear off, a
// white chip enters on the number that its die shows, and a move is a sum or a difference. For the
// home points it is also told how many steps lead from there to the tray.
#pragma once

#include <QPointF>
#include <QRectF>
#include <QString>

#include "core/control.h"

namespace corvanda::lugares {

inline constexpr Integer CUANTOS = 28;

/// The place's area, twips in the case.
QRectF Cuadro(const Partida& partida, Integer lugar);

/// The place that is so many columns to the right and rows down; the edges of the board end the
/// way. A tray and a bar stand before each row: Brown's tray and White's bar before the top one.
Integer Vecino(Integer lugar, int columnas, int filas);

/// The chip on top of a place, Arreglo::Ninguno where none stands.
Control Tope(const Partida& partida, Integer lugar);

/// The image that a drop on a place is for, Arreglo::Ninguno where nothing takes a chip: on the
/// bars, and on a tray that is closed.
Control Blanco(const Partida& partida, Integer lugar);

/// The next of some places on the way of a side's chips, or back on it: from its bar over the
/// points to its tray and round again; `lugar` itself when there is no other.
Integer Siguiente(const Lugares& entre, Integer lugar, Integer color, int paso);

/// Where the next chip put on a point or tray comes to lie: its upper left corner, twips.
QPointF Caida(const Partida& partida, Integer lugar);

/// "Point 6, 5 brown chips", "White's bar, empty", "Brown's tray, closed".
QString Nombre(const Partida& partida, Integer lugar);
/// "Bottom row, White's home board, 2 steps to the tray".
QString Descripcion(Integer lugar);
/// "Left die: 4", "Right die: played".
QString Nombre_De_Dado(const Partida& partida, Integer cual);

/// The place alone, inside a sentence: "point 6", "the bar", "the tray".
QString Breve(Integer lugar);
/// "White" or "Brown".
QString Bando(Integer color);

}  // namespace corvanda::lugares
