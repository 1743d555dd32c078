// The hand over the board: which chip it holds, by the mouse or by the keys, where that could be
// dropped, and the chip's way back when nothing takes it. Both hands press and drop through here;
// what a press or a drop means is the game's to say. It handles no events itself.
//
// Places are logical pixels in the case.
#pragma once

#include <QObject>
#include <QPointF>
#include <optional>

#include "core/juego.h"
#include "ui/ficha_flotante.h"
#include "ui/pintura.h"
#include "ui/trazado.h"

namespace corvanda {

class Mano final : public QObject {
    Q_OBJECT

  public:
    enum class De { Raton, Teclas };

    /// No place of the board (see lugares.h).
    static constexpr Integer NINGUNO = -1;

    /// `fondo` is what the case lies on, and what a chip may be dragged over.
    Mano(const Trazado& trazado, Pintura& pintura, const QWidget& estuche, QWidget* fondo);
    /// Whose game it plays. Before that it takes nothing.
    void Sentar(Juego& mesa) { juego = &mesa; }

    /// The chip that it holds, Arreglo::Ninguno for none.
    Control Ficha() const { return tomada ? tomada->ficha : Control{}; }
    bool Ocupada() const { return tomada.has_value(); }
    bool Es(De quien) const { return tomada && tomada->quien == quien; }
    /// Whether a press on this chip would pick one up now.
    bool Se_Puede_Tomar(Control ficha) const;
    /// Where the chip that it holds could be dropped.
    const Lugares& Destinos() const { return destinos; }
    /// The place of the board that a drop on an image is for, NINGUNO for none.
    Integer Lugar_De(Control destino) const;
    /// The chip that is away from its place, held or on its way back.
    Control En_El_Aire() const { return tomada ? tomada->ficha : volviendo; }

    /// A press on an image, at a place in it. The game may answer with Iniciar.
    void Presionar(Control ficha, Integer boton, QPointF donde, De quien);
    /// The game picks a chip up: the top one of the stack that was pressed, held as if it were the
    /// one pressed.
    void Iniciar(Control ficha);
    /// The chip is brought to a place; in the keyboard's hand it stays on the window's ground.
    void Llevar(QPointF a);
    /// The chip is dropped. Where nothing takes it, it goes back.
    void Soltar(Control destino);
    /// The chip goes back without effect.
    void Cancelar();
    /// Cancelar, also for a chip that was dropped and has not moved: a box has opened.
    void Interrumpir();
    /// The game has moved a chip, so it need not go back.
    void Movida(Control ficha);
    /// What the case lies on has moved, or the case on it.
    void Acompanar(QPoint paso) { flotante.Acompanar(paso); }

  signals:
    /// A chip was picked up or, with Arreglo::Ninguno, put back.
    void en_la_mano(Control ficha);
    /// It holds another chip, or none: that chip and the places of `antes` look different.
    void cambiada(Control ficha, const Lugares& antes);
    /// A drop was not accepted.
    void rechazada(Control ficha);

  private:
    struct Presion {
        Control ficha;
        QPointF donde;
        De quien;
    };
    struct Tomada {
        Control ficha;
        QPointF agarre;  // from the chip's corner to where it is held
        De quien;
    };

    Control Abrir();
    void Devolver();
    void Quedarse(Control ficha);
    int Regreso() const;

    const Trazado& trazado;
    Pintura& pintura;
    const QWidget& estuche;
    FichaFlotante flotante;
    Juego* juego = nullptr;

    std::optional<Presion> presion;  // while the game is asked what it means
    std::optional<Tomada> tomada;
    Lugares destinos;
    Control soltando;   // dropped and not yet seen to have moved
    Control volviendo;  // on its way back
};

}  // namespace corvanda
