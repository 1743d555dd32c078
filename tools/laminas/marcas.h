// What is drawn over a board so that a picture explains something, and how each of it looks. A mark
// has its place in twips of the board, like all on it, but the same size on the page however small
// the board is drawn.
#pragma once

#include <QPainter>
#include <QPointF>
#include <QString>
#include <vector>

namespace laminas {

/// Whose or what a mark is.
enum class Tinta { Amarilla, Blanca, Cafe, Verde, Roja };

struct Marca {
    enum class Clase {
        Numero,  ///< a number in a circle, in the middle of `puntos[0]`
        Si,      ///< a tick
        No,      ///< a cross
        Anillo,  ///< a ring around a chip
        Rotulo,  ///< a caption
        Zona,    ///< a marked area: two of its corners
        Flecha,  ///< the move of a chip: where it begins, a point that bends it, its tip. The text
                 ///< is the die that pays; a red one is refused
        Camino,  ///< the way of a side: its corners
    };

    Clase clase;
    std::vector<QPointF> puntos;
    QString texto;
    Tinta tinta = Tinta::Amarilla;
};

/// Draws a mark in logical pixels of the page, `escala` of them to a twip.
void Marcar(QPainter& pintor, const Marca& marca, double escala);

}  // namespace laminas
