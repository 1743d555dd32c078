#include "app/aplicacion.h"

#include <QGuiApplication>
#include <QScreen>

namespace corvanda {

Aplicacion::Aplicacion(RandomNumbers& azar)
    : estampas(NativePath(programa.Path(), programa.Path() + "\\imagenes")) {
    // The windows come and go; only the main window's word ends the program.
    QGuiApplication::setQuitOnLastWindowClosed(false);
    QGuiApplication::setDesktopFileName("corvanda");
    sonidos.LookForDevices();

    const Servicios servicios{mensajes, eventos, puntero, azar, sonidos, almacen, ayuda, programa};
    const Escala escala =
        Escala::Para(QGuiApplication::primaryScreen()->availableGeometry().size());
    principal = std::make_unique<FrmPrincipal>(partida, servicios, escala, estampas, &computadora);
    mensajes.SetMainWindow(principal.get());
    connect(principal.get(), &FrmPrincipal::terminada, this, [] { QCoreApplication::exit(0); });
    connect(&sistema, &SystemClose::requested, this, &Aplicacion::Cerrar_Por_El_Sistema);
}

void Aplicacion::Empezar() {
    principal->Form_Load();
}

void Aplicacion::Cerrar_Por_El_Sistema() {
    principal->Descargar(razon::Sistema);
}

}  // namespace corvanda
