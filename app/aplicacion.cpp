#include "app/aplicacion.h"

#include <QGuiApplication>
#include <QPixmapCache>
#include <QScreen>
#include <QTimer>

#include "desktop/heap.h"

namespace corvanda {

namespace {

constexpr int ESTAMPAS_DEL_ESTILO = 512;  // KiB
constexpr int VENTAJA = 100;              // milliseconds that the start-up screen has for itself
constexpr int REPOSO = 1000;              // milliseconds until the board has been painted

QSizeF Usable() {
    return QGuiApplication::primaryScreen()->availableGeometry().size();
}

}  // namespace

Aplicacion::Aplicacion(RandomNumbers& azar)
    : azar(azar),
      escala_de_acerca(FrmAbout::Escala_Para(Usable())),
      imagenes(NativePath(programa.Path(), programa.Path() + "\\imagenes")),
      estampas(imagenes),
      medios(programa.Path(), escala_de_acerca.K()) {
    // The windows come and go; only the main window's word ends the program.
    QGuiApplication::setQuitOnLastWindowClosed(false);
    QGuiApplication::setDesktopFileName("corvanda");
    // The board keeps its pictures itself; the toolkit's store would only fill up with buttons.
    QPixmapCache::setCacheLimit(ESTAMPAS_DEL_ESTILO);
    sonidos.LookForDevices();
    connect(&sistema, &SystemClose::requested, this, [this] {
        if (!principal) return QCoreApplication::exit(0);
        principal->Descargar(razon::Sistema);
    });
}

FrmPrincipal& Aplicacion::Ventana() {
    if (!principal) Hacer_Principal();
    return *principal;
}

void Aplicacion::Hacer_Principal() {
    const Servicios servicios{mensajes, eventos, puntero, azar, sonidos, almacen, ayuda, programa};
    principal = std::make_unique<FrmPrincipal>(
        partida, servicios, FrmPrincipal::Escala_Para(Usable()), estampas, &computadora);
    principal->Poner_Acerca([this] { Mostrar_Acerca(); });
    mensajes.SetMainWindow(principal.get());
    connect(principal.get(), &FrmPrincipal::terminada, this, [] { QCoreApplication::exit(0); });
}

std::unique_ptr<FrmAbout> Aplicacion::Hacer_Acerca(QWidget* ventana) {
    return std::make_unique<FrmAbout>(ventana, veces,
                                      FrmAbout::Servicios_De_Acerca{medios, puntero, programa},
                                      escala_de_acerca, imagenes, [this] { Mostrar_Principal(); });
}

void Aplicacion::Empezar() {
    inicio = Hacer_Acerca(nullptr);
    connect(inicio.get(), &QObject::destroyed, this,
            [this] { QTimer::singleShot(REPOSO, this, [] { ReturnFreeMemory(); }); });
    inicio->show();
    // The start-up screen is seen sooner when the other window is made behind it.
    QTimer::singleShot(VENTAJA, this, [this] { Ventana(); });
}

// The first showing loads the window; later ones find it where it is. The start-up screen, whose
// handler may be the caller, is not needed again.
void Aplicacion::Mostrar_Principal() {
    if (!Ventana().isVisible()) {
        principal->Form_Load();
        calma.Ask();
    }
    if (inicio) inicio.release()->deleteLater();
}

void Aplicacion::Mostrar_Acerca() {
    const auto acerca = Hacer_Acerca(principal.get());
    acerca->Mostrar_Direccion();
    acerca->setWindowModality(Qt::WindowModal);
    acerca->exec();
}

}  // namespace corvanda
