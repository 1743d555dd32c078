// Where things of the board are drawn, in logical pixels of the case: every picture stands on
// whole device pixels, so that it is sharp.
//
// A chip is drawn as one disc at the upper left of its image's box, whatever the side and the box;
// a die at the size of its faces, both alike far from the hinge and between the two rows, where
// neither a chip nor the tip of a point comes. The boxes are what the mouse meets.
#pragma once

#include <QRect>
#include <QWidget>

#include "core/control.h"
#include "ui/escala.h"

namespace corvanda {

class Trazado {
  public:
    // Twips.
    static constexpr double DISCO = 450;            ///< a chip's diameter
    static constexpr double DADO = 480;             ///< a die's side
    static constexpr double BISAGRA = 4800;         ///< Left of the case's hinge
    static constexpr double JUNTO_A_BISAGRA = 135;  ///< from there to a die
    static constexpr double ALTURA_DE_DADOS = 2865;
    static constexpr double SOMBRA = 600;         ///< side of the picture of a chip's shadow
    static constexpr double HASTA_EL_DISCO = 30;  ///< in it, from its corner to that of the disc

    /// `sobre` is what the board is painted on, whose screen has the pixels.
    Trazado(const Partida& partida, Escala escala, const QWidget& sobre)
        : partida(partida), escala(escala), sobre(sobre) {}

    const Partida& Estado() const { return partida; }
    qreal Ratio() const { return sobre.devicePixelRatioF(); }

    /// Twips to logical pixels that begin a device pixel.
    qreal En_Rejilla(double twips) const;
    QPointF En_Rejilla(QPointF twips) const;
    QRectF En_Rejilla(const QRectF& twips) const;
    double Pixeles(double twips) const { return escala.Pixeles(twips); }
    double Twips(double pixeles) const { return escala.Twips(pixeles); }

    /// The upper left of what is drawn of an image, twips.
    static QPointF Esquina(const Image& imagen);
    /// Where an image is drawn.
    QRectF Lugar(const Image& imagen) const;
    /// A square picture with its upper left corner at a place, twips.
    QRectF Cuadrado(QPointF esquina, double lado) const;
    /// All that changes when a chip or die comes to a place (twips) or leaves it.
    QRect Huella(QPointF esquina) const;
    QRect Huella(const Image& imagen) const;

    /// A place of the board (see lugares.h).
    QRect Area(Integer lugar) const;
    /// How thick each line of the keyboard's frame is.
    int Grueso() const;
    /// The frame's outer edge.
    QRect Marco(Integer lugar) const;

  private:
    const Partida& partida;
    const Escala escala;
    const QWidget& sobre;
};

}  // namespace corvanda
