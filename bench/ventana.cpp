// What the windows cost: the start-up screen up to the first picture of its film, the main window
// up to its own first picture and at rest, and one drag of 300 moves across the board. Needs a
// screen, or QT_QPA_PLATFORM=offscreen.
//
//     bench_ventana
#include <QApplication>
#include <QElapsedTimer>
#include <QMouseEvent>
#include <QTimer>
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <ctime>
#include <numbers>
#include <vector>

#include "app/aplicacion.h"
#include "bench/proceso.h"
#include "demostracion/jugador.h"
#include "runtime/random.h"

namespace corvanda {
namespace {

double Procesador() {
    timespec tiempo{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &tiempo);
    return static_cast<double>(tiempo.tv_sec) * 1e3 + static_cast<double>(tiempo.tv_nsec) / 1e6;
}

/// Notes when a widget was first painted.
class Testigo final : public QObject {
  public:
    explicit Testigo(QElapsedTimer& reloj) : reloj(reloj) {}
    double primera = -1;

  protected:
    bool eventFilter(QObject* /*objeto*/, QEvent* evento) override {
        if (evento->type() == QEvent::Paint && primera < 0) {
            primera = static_cast<double>(reloj.nsecsElapsed()) / 1e6;
        }
        return false;
    }

  private:
    QElapsedTimer& reloj;
};

/// White begins, and nobody is asked.
struct Quien_Empieza final : Volado {
    explicit Quien_Empieza(Modulo1& modulo) : modulo(modulo) {}
    void Mostrar() override { modulo.Turno = CAFE; }
    Modulo1& modulo;
};

void Mandar(QWidget& widget, QEvent::Type tipo, QPointF lugar, Qt::MouseButtons botones) {
    const auto boton = tipo == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent evento(tipo, lugar, widget.mapToGlobal(lugar), boton, botones, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &evento);
}

/// One drag in a wide loop; how long each move took from the event to the picture, milliseconds.
std::vector<double> Arrastrar(Estuche& tablero, QPointF desde, int pasos) {
    std::vector<double> tiempos;
    const QPointF centro(tablero.width() / 2.0, tablero.height() / 2.0);
    Mandar(tablero, QEvent::MouseButtonPress, desde, Qt::LeftButton);
    for (int i = 0; i < pasos; ++i) {
        const double angulo = 2 * std::numbers::pi * i / 100;
        const QPointF lugar = centro + QPointF(std::cos(angulo) * tablero.width() * 0.45,
                                               std::sin(angulo) * tablero.height() * 0.45);
        QElapsedTimer paso;
        paso.start();
        Mandar(tablero, QEvent::MouseMove, lugar, Qt::LeftButton);
        QCoreApplication::processEvents();
        tiempos.push_back(static_cast<double>(paso.nsecsElapsed()) / 1e6);
    }
    Mandar(tablero, QEvent::MouseButtonRelease, centro, Qt::NoButton);
    std::sort(tiempos.begin(), tiempos.end());
    return tiempos;
}

/// How long the start-up screen and its film take, from being asked for to being painted.
void Medir_Inicio() {
    Random azar(1);
    Aplicacion programa(azar);
    QElapsedTimer reloj;
    reloj.start();
    programa.Empezar();
    QWidget* pantalla = QApplication::topLevelWidgets().constFirst();
    for (QWidget* ventana : QApplication::topLevelWidgets()) {
        if (ventana->objectName() == "FrmAbout") pantalla = ventana;
    }
    Testigo ventana(reloj);
    Testigo pelicula(reloj);
    pantalla->installEventFilter(&ventana);
    const auto* marco = pantalla->findChild<QWidget*>("Picture1");
    const auto dentro = marco->findChildren<QWidget*>();
    if (dentro.isEmpty()) return;
    dentro.constFirst()->installEventFilter(&pelicula);
    while (pelicula.primera < 0) QCoreApplication::processEvents();
    std::printf("start-up screen, ms from being asked for to its picture  %8.1f\n",
                ventana.primera);
    std::printf("first picture of its film, ms from the screen's own      %8.1f\n",
                pelicula.primera - ventana.primera);
}

void Medir_Principal() {
    QElapsedTimer reloj;
    reloj.start();
    const double gastado = Procesador();
    Random azar(1);
    Aplicacion programa(azar);
    FrmPrincipal& ventana = programa.Ventana();
    Testigo testigo(reloj);
    ventana.Tablero().installEventFilter(&testigo);
    programa.Mostrar_Principal();
    while (testigo.primera < 0) QCoreApplication::processEvents();
    std::printf("first picture of the main window, ms from being asked for %7.1f\n",
                testigo.primera);
    std::printf("processor time spent on it, ms                           %8.1f\n",
                Procesador() - gastado);
    QElapsedTimer calma;
    calma.start();
    while (calma.elapsed() < 500) QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
    std::printf("proportional memory at rest, MiB                         %8.1f\n",
                Memoria_Proporcional());

    Quien_Empieza volado(programa.Estado());
    ventana.Mesa().Empezar(DOS_PERSONAS, volado);
    const Image& ficha = programa.Estado().Blanca[1];
    const double antes = Procesador();
    const auto tiempos = Arrastrar(ventana.Tablero(), ventana.Tablero().Lugar(ficha).center(), 300);
    std::printf("processor time of a drag of 300 moves, ms                %8.1f\n",
                Procesador() - antes);
    std::printf("one move from event to picture, ms: median               %8.2f\n",
                tiempos[tiempos.size() / 2]);
    std::printf("one move from event to picture, ms: longest              %8.2f\n", tiempos.back());
}

}  // namespace
}  // namespace corvanda

int main(int argc, char** argv) {
    const QApplication qt(argc, argv);
    // Inside the event loop, so that nothing that ends it can come before it.
    QTimer::singleShot(0, [] {
        corvanda::Medir_Inicio();
        corvanda::Medir_Principal();
        QCoreApplication::exit(0);
    });
    return QApplication::exec();
}
