// The real main window for tests, over the journaling desktop, with a mouse that arrives at it as a
// person's does: through the toolkit's window, with grabs and with blocking by what is modal. And
// somebody who looks after the modal windows that open meanwhile.
#pragma once

#include <gtest/gtest.h>

#include <QTest>
#include <QTimer>

#include "demostracion/jugador.h"
#include "desktop/message_box.h"
#include "tests/apoyo/diario.h"
#include "tests/apoyo/escritorio.h"
#include "tests/apoyo/posicion.h"
#include "ui/frm_principal.h"

namespace corvanda::pruebas {

/// The folder of the pictures that the program under test uses.
QString Carpeta_De_Imagenes();

/// A mouse over a window that shows the board.
class Raton_De_Pruebas {
  public:
    explicit Raton_De_Pruebas(FrmPrincipal& ventana) : ventana(ventana) {}

    void Ir(Lugar lugar);
    void Pulsar(Lugar lugar, Qt::MouseButton boton = Qt::LeftButton);
    void Soltar(Lugar lugar, Qt::MouseButton boton = Qt::LeftButton);
    /// Presses, goes there in some steps, and lets go.
    void Arrastrar(Lugar desde, Lugar hasta);
    /// Opens a menu of the bar and chooses an entry, by clicks; entries by their object names.
    void Elegir(const QString& menu, const QString& entrada);

    /// A place of the case in pixels of the window.
    QPoint En_Ventana(Lugar lugar) const;

  private:
    FrmPrincipal& ventana;
};

/// Hands boxes and dialogs to the test in the order in which it prepared for them. One that nobody
/// prepared for fails the test and is closed, so that no test waits for ever.
class Vigilante {
  public:
    using Mano = std::function<void(QWidget&)>;

    Vigilante();

    /// What is done with the next window; it may leave it open.
    void Esperar(Mano mano) { manos.push_back(std::move(mano)); }
    /// What is done with every further window.
    void Siempre(Mano mano) { siempre = std::move(mano); }
    bool Gastado() const { return manos.empty(); }

    /// The boxes so far, as the journal writes them: "caja 64 [title] text".
    std::vector<std::string> cajas;

  private:
    void Mirar();

    std::deque<Mano> manos;
    Mano siempre;
    QTimer reloj;
};

/// Hands for the usual cases: a button by its text, and throws until a start-player dialog closes.
void Pulsar(QWidget& ventana, const QString& boton);
void Sortear(QWidget& dialogo);

class Ventana {
  public:
    enum class Cajas { Diario, Reales };

    explicit Ventana(Cajas cajas = Cajas::Diario, Oponente* computadora = nullptr,
                     Escala escala = {});
    /// Loads the window, waits until it is active, and forgets what the journal says about that.
    void Abrir();
    /// Opens when it has not been, puts a position on the board, and turns the sound off.
    void Poner(const std::string& posicion);

    /// The journal since the last call, without pointers and seeds.
    Diario Leer();
    Lugar Centro(Control control) const;
    /// The point's image near its base.
    Lugar Base(Integer punto) const { return Meta(partida, {Jugada::Clase::Mover, 0, punto}); }
    QAction* Entrada(const char* nombre) { return frm.menuBar()->findChild<QAction*>(nombre); }
    QWidget& Flotante() { return *frm.findChild<QWidget*>("FichaFlotante"); }

    Escritorio escritorio;
    Partida partida = Diseno();
    Estampas estampas{Carpeta_De_Imagenes()};
    QtMousePointer puntero;
    QtMessageBoxes boxes{puntero};

  private:
    /// Passes that handle real events, too, and then what the test has planned.
    struct Pases final : EventLoop {
        explicit Pases(Escritorio& escritorio) : escritorio(escritorio) {}
        void DoEvents() override;
        void DoEventsPaced() override;
        void Sleep(int milliseconds) override { escritorio.Sleep(milliseconds); }
        Escritorio& escritorio;
    };
    Pases pases{escritorio};

  public:
    FrmPrincipal frm;
    Raton_De_Pruebas raton{frm};
    Vigilante vigilante;
};

inline constexpr const char* PREGUNTA = "caja 36 [¿ Exit ?] ¿ Are you sure you want to quit ?";

}  // namespace corvanda::pruebas
