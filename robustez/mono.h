// A monkey at the mouse and the keyboard: sends the real windows whatever a person, a desktop and a
// window manager could send them, in an order that only a seed decides, and looks after each event
// whether the game still keeps its own rules.
//
// Its events come out of timers, so that they also arrive inside every message box, dialog and pass
// of the event loop, one inside the other. What it finds wrong it tells on stderr with the seed,
// and aborts, so that the place can be seen.
#pragma once

#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QWindow>
#include <atomic>
#include <deque>
#include <random>

#include "app/aplicacion.h"
#include "demostracion/jugador.h"

namespace corvanda {

/// What happened in all lives of the program.
struct Cuentas {
    std::atomic<long> actos{0};
    long vidas = 0;
    long jugadas = 0;
    long partidas_ganadas = 0;
};

class Mono final : public QObject {
    Q_OBJECT

  public:
    /// Acts until `actos` events were sent, and then ends the program as a system does. `programa`
    /// must outlive it; `semilla` is what a failure is told with.
    Mono(Aplicacion& programa, std::uint32_t semilla, long actos, Cuentas& cuentas);

    /// Tells what is wrong, with the seed, and aborts.
    [[noreturn]] void Fallar(const QString& falta) const;

  private:
    void Dar_Cuerda();
    void Paso();
    void Actuar();
    void Revisar();

    void Jugar();
    void Soltar();
    void Mover_Raton(QWindow* ventana);
    void Clic(QWindow* ventana);
    void Tecla(QWindow* ventana);
    void Boton();
    void Menu();
    void Ventana();
    void Cerrar_Ventana();

    QWindow* Destino();
    QPointF Punto_Del_Tablero(Lugar lugar) const;
    void Raton(QWindow* ventana, QPointF lugar, QEvent::Type tipo, Qt::MouseButton boton);
    void Pulsar(QWindow* ventana, int tecla, Qt::KeyboardModifiers con);

    /// True once in `n` times.
    bool Una_De(int n) { return Hasta(n) == 0; }
    /// 0 to n - 1.
    int Hasta(int n) { return std::uniform_int_distribution<int>(0, n - 1)(suerte); }

    Aplicacion& programa;
    const std::uint32_t semilla;
    const long fin;
    Cuentas& cuentas;
    std::mt19937 suerte;
    std::deque<QTimer> relojes;  // one for each depth: none comes while its own event runs
    long hechos = 0;
    int profundidad = 0;
    int esperas_con_reloj = 0;  // events in a row at which the hourglass was shown for nobody
    Qt::MouseButtons botones;
    Lugar meta{};
    bool en_mano = false;
    bool cargada = false;  // the main window, which sets up the first position
};

}  // namespace corvanda
