// The board case on the screen. It draws the images as the state says, reports presses and drops of
// chips, by mouse or keyboard, and shows a chip that is dragged or glides. It holds no rule and no
// copy of the state.
#pragma once

#include <QTimer>
#include <QWidget>
#include <functional>
#include <optional>

#include "core/pantalla.h"
#include "ui/escala.h"
#include "ui/ficha_flotante.h"
#include "ui/pintura.h"
#include "ui/teclado.h"

namespace corvanda {

class Estuche final : public QWidget, public Pantalla {
    Q_OBJECT

  public:
    /// Design size, twips.
    static constexpr double ANCHO = 9135;
    static constexpr double ALTO = 6075;

    /// What the board asks the window about, because only the game knows.
    struct Preguntas {
        /// Whether a press on this chip would pick one up: the pointer shows it.
        std::function<bool(Control)> se_puede_tomar = [](Control) { return false; };
        /// How long a chip that has just moved by itself may glide, milliseconds; 0 not at all.
        std::function<int(Control)> vuelo_de = [](Control) { return 0; };
    };

    /// `fondo` is what the case lies on, and what a dragged chip may be dragged over.
    Estuche(const Partida& partida, Escala escala, Estampas& estampas, QWidget* fondo);

    void Preguntar(Preguntas nuevas) { preguntas = std::move(nuevas); }

    const Partida& Estado() const { return partida; }
    bool Arrastrando() const { return arrastre.has_value(); }
    /// The chip that is being dragged, Arreglo::Ninguno for none.
    Control En_La_Mano() const { return arrastre ? arrastre->ficha : Control{}; }
    /// Whether the top chip of a place (see lugares.h) could be picked up now.
    bool Se_Puede_Tomar(Integer lugar) const;

    /// Where the keyboard is, and what screen readers ask to be done.
    Teclado& Teclas() { return teclado; }

    // What the keyboard does as a mouse would.

    /// A press of the left button on a chip, held by its centre.
    void Tomar(Control ficha);
    /// The dragged chip is dropped; where nothing takes it, it goes back.
    void Dejar(Control destino);
    /// The dragged chip is brought to a place in this widget.
    void Llevar(QPointF a);

    /// The window is blocked by a box or loses the mouse: a drag ends without effect, and a chip
    /// that was dropped and has not moved goes back.
    void Interrumpir();

    /// Where an image is drawn, logical pixels in this widget.
    QRectF Lugar(const Image& imagen) const { return pintura.Lugar(imagen); }
    /// Where a place of the board is, logical pixels in this widget.
    QRect Area(Integer lugar) const;
    /// How thick each line of the keyboard's frame is, logical pixels.
    int Grueso() const;

    void Refrescar(Control control, const Image& antes) override;
    void Iniciar_Arrastre(Control ficha) override;
    void Cancelar_Arrastre() override;

  signals:
    /// A mouse button (1 left, 2 right, 4 middle) was pressed on an enabled chip.
    void presionada(Control ficha, Integer boton);
    /// A dragged chip was dropped on an enabled image.
    void soltada(Control destino, Control fuente);
    /// An image has changed.
    void cambiada(Control control);
    /// The keyboard chose a place.
    void elegido(Integer lugar);
    /// A chip was picked up or, with Arreglo::Ninguno, put back.
    void en_la_mano(Control ficha);

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
    struct Arrastre {
        Control ficha;
        QPointF agarre;  // from the chip's corner to the pointer
    };

    Control Bajo(QPointF lugar) const;
    FichaFlotante::Estampa En_El_Aire(const Image& imagen) const;
    void Refrescar_Pila_De(const Image& ficha);
    void Soltar(QPointF lugar);
    void Devolver();
    void Volar(Control ficha, const Image& antes);
    void Ocultar(Control ficha, qreal opacidad);
    void Mostrar_Oculta();
    void Actualizar_Puntero(QPointF lugar);
    void Renovar_Puntero();
    bool Sin_Movimiento() const;
    void Prepararse();
    QCursor Hacer_Mano() const;

    const Partida& partida;
    const Escala escala;
    Estampas& estampas;
    Pintura pintura;
    Preguntas preguntas;
    FichaFlotante flotante;
    Teclado teclado{*this};
    QCursor mano;
    qreal preparada = 0;  // the device pixel ratio that the hand and the pictures were made for

    QTimer renovacion;  // of the pointer, once the handler that changed something has ended

    std::optional<Arrastre> arrastre;
    QPointF pulsado;         // where the button went down
    Control pulsada;         // the chip it went down on
    Control soltando;        // a chip dropped and not yet seen to have moved
    Pintura::Velada velada;  // the chip whose image is dimmed because it is in the air
};

}  // namespace corvanda
