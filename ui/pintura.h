// How the board looks: every image at its place, in whole device pixels, one over the other as
// their order says. The case with its halves and points, which stay as they are, is put together
// once.
#pragma once

#include <QPixmap>
#include <QRectF>
#include <QWidget>

#include "core/control.h"
#include "ui/escala.h"
#include "ui/estampas.h"

class QPainter;

namespace corvanda {

class Pintura {
  public:
    /// A chip that is in the air is drawn fainter at its place, or not at all.
    struct Velada {
        Control ficha;  ///< Arreglo::Ninguno for none
        qreal opacidad = 1;
    };

    /// `sobre` is what the board is painted on: as large as the case, at the ratio of its screen.
    Pintura(const Partida& partida, Escala escala, Estampas& estampas, const QWidget& sobre)
        : partida(partida), escala(escala), estampas(estampas), sobre(sobre) {}

    /// Begins to draw the pictures in the background.
    void Preparar();
    /// An image has changed.
    void Cambiar(Control control);

    /// Where an image is drawn, logical pixels.
    QRectF Lugar(const Image& imagen) const;
    QPixmap Estampa_De(const Image& imagen) const;
    /// Paints what touches a rectangle of logical pixels.
    void Pintar(QPainter& pintor, const QRectF& tocado, const Velada& velada);

  private:
    QSize Pixeles() const;
    QSize Pixeles_De(const Image& imagen) const;
    const QPixmap& Fondo();
    void Pintar_Cuenta(QPainter& pintor, Integer lugar, Control velada) const;

    const Partida& partida;
    const Escala escala;
    Estampas& estampas;
    const QWidget& sobre;
    QPixmap fondo;  // the case with its halves and points; empty before it is painted
};

}  // namespace corvanda
