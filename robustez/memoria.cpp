// Whether whole games leave memory behind: plays against the computer on the real window and prints
// the memory after each tenth game.
//
//     memoria [GAMES]
//
// Ends with 1 when the heap has grown by more than a mebibyte between the tenth game and the last.
#include <malloc.h>

#include <QApplication>
#include <QMouseEvent>
#include <QPushButton>
#include <QScreen>
#include <QTemporaryDir>
#include <QTimer>
#include <cstdio>
#include <cstdlib>

#include "app/aplicacion.h"
#include "bench/proceso.h"
#include "demostracion/jugador.h"
#include "runtime/random.h"

namespace corvanda {
namespace {

constexpr double MEBIBYTE = 1024.0 * 1024.0;

double En_Uso() {
    return static_cast<double>(mallinfo2().uordblks) / MEBIBYTE;
}

/// Presses the default button of whatever box or dialog opens.
void Contestar() {
    QWidget* caja = QApplication::activeModalWidget();
    if (caja == nullptr) return;
    for (QPushButton* boton : caja->findChildren<QPushButton*>()) {
        if (boton->isVisible() && boton->isEnabled() && boton->isDefault()) return boton->click();
    }
}

class Jugador {
  public:
    explicit Jugador(Aplicacion& programa)
        : programa(programa), escala(programa.Ventana().Medida()) {}

    /// One game from the menu to the winner's box; the level changes from game to game.
    void Partida_Entera(int numero) {
        programa.Ventana().mnuLev_Click(static_cast<Integer>(numero % 2 == 0 ? 0 : 2));
        programa.Estado().Velocidad = 0;
        programa.Ventana().mnuVs_Click();
        while (programa.Estado().Jugando != False) Jugada_De_Blanca();
    }

  private:
    void Mandar(QEvent::Type tipo, Lugar lugar, Qt::MouseButtons botones) {
        Estuche& tablero = programa.Ventana().Tablero();
        const QPointF punto(escala.Pixeles(lugar.x), escala.Pixeles(lugar.y));
        const auto boton = tipo == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent evento(tipo, punto, tablero.mapToGlobal(punto), boton, botones, Qt::NoModifier);
        QCoreApplication::sendEvent(&tablero, &evento);
    }

    void Jugada_De_Blanca() {
        const Partida& partida = programa.Estado();
        const Jugada jugada = Elegir(partida);
        if (jugada.clase == Jugada::Clase::Pasar) return programa.Ventana().Mesa().mnuPasar_Click();
        const Lugar meta = Meta(partida, jugada);
        Mandar(QEvent::MouseButtonPress, Agarre(partida, jugada), Qt::LeftButton);
        Mandar(QEvent::MouseMove, meta, Qt::LeftButton);
        QCoreApplication::processEvents();
        Mandar(QEvent::MouseButtonRelease, meta, Qt::NoButton);
    }

    Aplicacion& programa;
    const Escala escala;
};

int Medir(int partidas) {
    Random azar(3);
    Aplicacion programa(azar);
    programa.Mostrar_Principal();
    QTimer respuesta;
    QObject::connect(&respuesta, &QTimer::timeout, &Contestar);
    respuesta.start(1);
    Jugador jugador(programa);
    double al_decimo = 0;
    for (int i = 1; i <= partidas; ++i) {
        jugador.Partida_Entera(i);
        // What a return to the program's own event loop would take away.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        if (i % 10 != 0) continue;
        malloc_trim(0);
        if (i == 10) al_decimo = En_Uso();
        std::printf("after game %4d: heap in use %7.3f MiB, proportional memory %6.1f MiB\n", i,
                    En_Uso(), Memoria_Proporcional());
        std::fflush(stdout);
    }
    const double crecida = En_Uso() - al_decimo;
    std::printf("growth after the tenth game: %.3f MiB\n", crecida);
    return crecida < 1 ? 0 : 1;
}

}  // namespace
}  // namespace corvanda

int main(int argc, char** argv) {
    const QTemporaryDir config;
    qputenv("XDG_CONFIG_HOME", config.path().toLocal8Bit());
    if (!qEnvironmentVariableIsSet("SDL_AUDIODRIVER")) qputenv("SDL_AUDIODRIVER", "dummy");
    const QApplication qt(argc, argv);
    const int partidas = argc > 1 ? std::atoi(argv[1]) : 200;
    int fin = 2;
    QTimer::singleShot(0, [&] {
        fin = corvanda::Medir(partidas);
        QCoreApplication::exit(fin);
    });
    QApplication::exec();
    return fin;
}
