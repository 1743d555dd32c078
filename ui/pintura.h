// How the board looks: every image at its place, one over the other as their order says, and what
// the state does not hold: shadows, how many chips a stack has, whose turn it is, where the chip in
// the hand may go. The case with its halves and points, which stay as they are, is put together
// once.
#pragma once

#include <QPixmap>
#include <QRectF>
#include <vector>

#include "core/control.h"
#include "ui/estampas.h"
#include "ui/ficha_flotante.h"
#include "ui/secuencia.h"
#include "ui/trazado.h"

class QPainter;

namespace corvanda {

/// The side to move, NADIE before the first throw of a game and after its end.
Integer De_Quien_Es_El_Turno(const Partida& partida);

class Pintura {
  public:
    /// What is shown beside the position.
    struct Escena {
        Control en_el_aire;         ///< a chip that is drawn elsewhere
        bool en_la_mano = false;    ///< its place still shows it, fainter
        Lugares luces;              ///< where the chip in the hand may be dropped
        Integer bajo_la_mano = -1;  ///< the place that it is over
        bool piensa = false;        ///< the computer is at its turn
    };

    Pintura(const Trazado& trazado, Estampas& estampas) : trazado(trazado), estampas(estampas) {}

    /// Begins to draw the pictures in the background.
    void Preparar();
    /// An image has changed.
    void Cambiar(Control control);

    /// A chip to be carried over everything else.
    FichaFlotante::Estampa En_El_Aire(const Image& imagen);
    /// Paints what touches a rectangle of logical pixels.
    void Pintar(QPainter& pintor, const QRectF& tocado, const Escena& escena,
                const Secuencia& secuencia);

    /// What the light of a place reaches.
    QRect Area_De_Luz(Integer lugar) const;
    /// The mark of the side to move, and the dice with what is told beside them.
    QRect Area_Del_Turno() const;
    QRect Area_De_Los_Dados() const;

  private:
    struct Capa {
        const Image* imagen;
        Control control;
    };

    const Partida& Estado() const { return trazado.Estado(); }
    QSize Pixeles_De(const QRectF& lugar) const;
    QSize Pixeles_Del_Estuche() const;
    QPixmap Estampa(const QString& nombre, const QRectF& lugar);
    QString Nombre_De(const Image& imagen) const;
    const QPixmap& Fondo();
    std::vector<Capa> Capas(const QRectF& tocado) const;
    void Pintar_Quieta(QPainter& pintor, const Capa& capa, const Escena& escena);
    void Pintar_En_Movimiento(QPainter& pintor, const Capa& capa, const Secuencia::Pose& pose);
    void Pintar_Pieza(QPainter& pintor, const Image& imagen, QPointF esquina);
    void Pintar_Espera(QPainter& pintor, Integer bandeja);
    void Pintar_Sombra(QPainter& pintor, QPointF esquina);
    void Pintar_Cuenta(QPainter& pintor, Integer lugar, const Escena& escena,
                       const Secuencia& secuencia) const;
    void Pintar_Turno(QPainter& pintor, const Escena& escena);
    void Pintar_Dobles(QPainter& pintor, const Secuencia& secuencia) const;
    void Pintar_Luz(QPainter& pintor, Integer lugar, bool fuerte) const;
    void Pintar_Caida(QPainter& pintor, Integer lugar, const Escena& escena) const;
    void Pintar_Texto(QPainter& pintor, const QRectF& donde, const QString& texto,
                      const QColor& tinta) const;

    const Trazado& trazado;
    Estampas& estampas;
    QPixmap fondo;  // the case with its halves and points; empty before it is painted
};

}  // namespace corvanda
