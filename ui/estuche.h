// The board case on the screen. It draws the images as the state says, gives the hand (mano.h) what
// the mouse and the keys do, and shows what moves by itself (secuencia.h). It holds no rule and no
// copy of the state.
#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>

#include "core/juego.h"
#include "core/pantalla.h"
#include "ui/mano.h"
#include "ui/pintura.h"
#include "ui/secuencia.h"
#include "ui/teclado.h"
#include "ui/trazado.h"

namespace corvanda {

class Estuche final : public QWidget, public Pantalla {
    Q_OBJECT

  public:
    /// Design size, twips.
    static constexpr double ANCHO = 9135;
    static constexpr double ALTO = 6075;

    /// `fondo` is what the case lies on, and what a dragged chip may be dragged over.
    Estuche(const Partida& partida, Escala escala, Estampas& estampas, QWidget* fondo);

    /// Whose board it is. Until then it only shows.
    void Sentar(Juego& mesa);

    const Partida& Estado() const { return partida; }
    /// Whether nothing moves by itself.
    bool Quieto() const { return secuencia.Quieta(); }
    bool Arrastrando() const { return mano.Ocupada(); }
    /// Whether the top chip of a place (see lugares.h) could be picked up now.
    bool Se_Puede_Tomar(Integer lugar) const;

    const Mano& La_Mano() const { return mano; }
    /// Where the keyboard is, and what screen readers ask to be done.
    Teclado& Teclas() { return teclado; }

    /// The window is blocked by a box or loses the mouse: a drag ends without effect, and a chip
    /// that was dropped and has not moved goes back.
    void Interrumpir() { mano.Interrumpir(); }

    /// Where an image is drawn, logical pixels in this widget.
    QRectF Lugar(const Image& imagen) const { return trazado.Lugar(imagen); }
    const Trazado& Medidas() const { return trazado; }

    void Refrescar(Control control, const Image& antes) override;
    void Iniciar_Arrastre(Control ficha) override;
    void Rechazar(Control ficha) override;
    void Cancelar_Arrastre() override;

  signals:
    /// An image has changed.
    void cambiada(Control control);

  protected:
    bool focusNextPrevChild(bool adelante) override;
    void focusOutEvent(QFocusEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
    void hideEvent(QHideEvent* evento) override;
    void moveEvent(QMoveEvent* evento) override;
    void paintEvent(QPaintEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void mouseMoveEvent(QMouseEvent* evento) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;

  private:
    Control Bajo(QPointF lugar) const;
    Pintura::Escena Escena() const;
    void Tocar(Control control);
    void Tocar_Luces(const Lugares& luces);
    void Refrescar_Pila_De(const Image& ficha);
    void Mirar_Bajo(Integer lugar);

    bool Sin_Movimiento() const;
    int Pausa() const;
    void Mover_A_La_Vista(Control ficha, const Image& antes);
    void Animar();
    void Latir();
    void Terminar_Movimientos();

    bool Piensa() const;
    void Actualizar_Puntero(QPointF lugar);
    void Poner_Puntero(const QCursor& puntero);
    void Renovar();
    void Prepararse();
    QCursor Hacer_Mano(const QString& nombre, Qt::CursorShape si_falta) const;

    /// What is told beside the images.
    struct Marcas {
        Integer turno = NADIE;
        bool piensa = false;
        Byte dobles = 0;
        bool operator==(const Marcas&) const = default;
    };

    const Partida& partida;
    const Escala escala;
    Estampas& estampas;
    const Trazado trazado{partida, escala, *this};
    Pintura pintura{trazado, estampas};
    Mano mano;
    Teclado teclado{mano, trazado};
    Secuencia secuencia;
    Juego* juego = nullptr;
    QCursor abierta, cerrada;
    qreal preparada = 0;  // the device pixel ratio that the hand and the pictures were made for

    QTimer renovacion;    // of pointer and mark, once the handler that changed something has ended
    QTimer latido;        // while something moves
    QElapsedTimer reloj;  // of what moves
    Marcas vistas;
    Integer bajo_la_mano = Mano::NINGUNO;
};

}  // namespace corvanda
