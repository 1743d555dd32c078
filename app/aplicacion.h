// The program put together: the state, the desktop's answers to the game, the computer, and the
// windows over them. The demonstration and the benchmarks of the window build the same.
#pragma once

#include <QObject>
#include <memory>

#include "computer/computadora.h"
#include "core/partida.h"
#include "desktop/event_loop.h"
#include "desktop/help_viewer.h"
#include "desktop/media_control.h"
#include "desktop/message_box.h"
#include "desktop/mouse_pointer.h"
#include "desktop/program_folder.h"
#include "desktop/reduced_motion.h"
#include "desktop/settings_file.h"
#include "desktop/steady_windows.h"
#include "desktop/system_close.h"
#include "desktop/wave_player.h"
#include "ui/escala.h"
#include "ui/estampas.h"
#include "ui/frm_about.h"
#include "ui/frm_principal.h"

namespace corvanda {

class Aplicacion final : public QObject {
    Q_OBJECT

  public:
    /// After the QApplication, whose event loop it ends when the program is to end. `azar` must
    /// outlive it.
    explicit Aplicacion(RandomNumbers& azar);

    /// Shows the start-up screen, and the main window when that closes.
    void Empezar();
    /// Shows the main window at once.
    void Mostrar_Principal();

    /// The main window, which is made when it is first asked for.
    FrmPrincipal& Ventana();
    Partida& Estado() { return partida; }

  private:
    void Hacer_Principal();
    void Mostrar_Acerca();
    std::unique_ptr<FrmAbout> Hacer_Acerca(QWidget* ventana);

    RandomNumbers& azar;
    Partida partida = Diseno();
    ProgramFolder programa;
    QtEventLoop eventos;
    QtMousePointer puntero;
    QtMessageBoxes mensajes{puntero};
    SdlWaveOut sonidos{programa.Path()};
    SettingsFile almacen;
    QtHelpViewer ayuda{mensajes, programa.Path(), "Corvanda"};
    Computadora computadora;
    const Escala escala_de_acerca;  // the film is shown at it, too
    const QString imagenes;
    Estampas estampas;
    QtMediaControl medios;
    SystemClose sistema;
    ReducedMotion calma;
    SteadyWindows ventanas;
    Integer veces = 0;  // ticks of all showings of the start-up screen
    std::unique_ptr<FrmPrincipal> principal;
    std::unique_ptr<FrmAbout> inicio;
};

}  // namespace corvanda
