// The main window: menus above, the board case centred on dark red below. It wires presses, drops
// and menu entries to the game, loads and saves the settings, and asks before it closes.
//
// It never closes by itself: when it may, it tells (terminada), and the application ends its event
// loop. So nothing is destroyed under a handler that still runs, however deep the close came.
#pragma once

#include <QMainWindow>
#include <functional>

#include "core/juego.h"
#include "ui/ajustes.h"
#include "ui/escala.h"
#include "ui/estampas.h"
#include "ui/estuche.h"
#include "ui/fondo.h"
#include "ui/locutor.h"
#include "ui/menus.h"
#include "ui/voz.h"

namespace corvanda {

/// What the window needs of the desktop; everything must outlive it.
struct Servicios {
    MessageBoxes& Mensajes;
    EventLoop& Eventos;
    MousePointer& Puntero;
    RandomNumbers& Azar;
    WaveOut& Sonidos;
    SettingsStore& Almacen;
    HelpViewer& Ayuda;
    const App& Programa;
};

/// Why a window is to close.
namespace razon {
inline constexpr Integer Marco = 0;     ///< the person closed it from its frame
inline constexpr Integer Programa = 1;  ///< the program's own request
inline constexpr Integer Sistema = 2;   ///< this and above: the operating system
}  // namespace razon

class FrmPrincipal final : public QMainWindow, private Volado {
    Q_OBJECT

  public:
    /// `partida` is the board as designed; `computadora` may be missing.
    FrmPrincipal(Partida& partida, const Servicios& servicios, Escala escala, Estampas& estampas,
                 Oponente* computadora);

    /// The scale at which the design size fills the window when that fills a screen of which so
    /// many logical pixels can be used. What the frame takes of them is told only once a window
    /// is shown, and is guessed.
    static Escala Escala_Para(QSizeF usable);

    /// Prepares the game and shows the window. Once.
    void Form_Load();

    /// Asks, when the close is a person's; Cancel becomes True when the window is to stay.
    void Form_QueryUnload(Boolean& Cancel, Integer UnloadMode);

    /// Closes the window for a reason, unless the person says no.
    void Descargar(Integer motivo);

    void mnuNew_Click();
    void mnuVs_Click();
    void mnuLev_Click(Integer Index);
    void mnuSonido_Click();
    void mnuVel_Click();
    void mnuCont_Click();
    void mnuIndice_Click();
    void mnuAcerca_Click();
    void mnuSalir_Click();

    /// What "About..." shows.
    void Poner_Acerca(std::function<void()> mostrar) { acerca = std::move(mostrar); }

    /// The scale of the window, its board and its dialogs.
    Escala Medida() const { return escala; }
    Estuche& Tablero() { return *estuche; }
    Locutor& Relator() { return locutor; }
    Juego& Mesa() { return juego; }

  signals:
    /// The window may close: the application should end.
    void terminada();

  protected:
    bool event(QEvent* evento) override;
    bool eventFilter(QObject* objeto, QEvent* evento) override;
    void closeEvent(QCloseEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;

  private:
    void Mostrar() override;
    void Mostrar_Ventana();
    void Conectar_Menus();
    void Poner_Icono();
    void Form_Resize();
    void Form_KeyDown(Integer KeyCode);
    void Pedir_Ayuda(Integer comando);

    Partida& partida;
    const Servicios servicios;
    const Escala escala;
    Estampas& estampas;
    Fondo* fondo;
    Estuche* estuche;
    Voz* voz;
    Locutor locutor;
    Menus menus;
    Ajustes ajustes;
    Juego juego;
    std::function<void()> acerca = [] {};
    std::string archivo_de_ayuda;
    Integer contexto_de_ayuda = 0;  ///< 0 before any game, 1 against the computer, 2 two people
    bool preguntando = false;
};

}  // namespace corvanda
