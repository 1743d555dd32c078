// How long the computer's pause before a move really lasts, from the sound of its roll to its first
// chip moving, and what it costs the processor. Needs a screen, or QT_QPA_PLATFORM=offscreen.
//
//     bench_pausa
#include <QApplication>
#include <QWidget>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <initializer_list>

#include "bench/mudo.h"
#include "computer/computadora.h"
#include "desktop/event_loop.h"

namespace corvanda {
namespace {

constexpr double CICLO = 10;  // milliseconds, as intended

double Reloj(clockid_t cual) {
    timespec tiempo{};
    clock_gettime(cual, &tiempo);
    return static_cast<double>(tiempo.tv_sec) * 1e3 + static_cast<double>(tiempo.tv_nsec) / 1e6;
}

/// Lets real events run and notes the two ends of the first pause.
class Cronometro final : public Mudo {
  public:
    Cronometro() : Mudo(5) {}

    void DoEvents() override { eventos.DoEvents(); }
    void DoEventsPaced() override { eventos.DoEventsPaced(); }
    void sndPlaySound(const std::string& /*path*/) override {
        if (inicio == 0) procesador = Reloj(CLOCK_PROCESS_CPUTIME_ID);
        if (inicio == 0) inicio = Reloj(CLOCK_MONOTONIC);
    }
    void Refrescar(Control control, const Image& /*antes*/) override {
        if (inicio == 0 || duracion != 0 || control.Nombre != Arreglo::Cafe) return;
        duracion = Reloj(CLOCK_MONOTONIC) - inicio;
        procesador = Reloj(CLOCK_PROCESS_CPUTIME_ID) - procesador;
        juego->Cerrar();
    }

    Juego* juego = nullptr;
    double duracion = 0;
    double procesador = 0;

  private:
    QtEventLoop eventos;
    double inicio = 0;
};

/// Brown begins, and nobody is asked.
struct Empieza_Cafe final : Volado {
    explicit Empieza_Cafe(Partida& partida) : partida(partida) {}
    void Mostrar() override { partida.Turno = BLANCA; }
    Partida& partida;
};

void Medir(Integer velocidad) {
    Cronometro cronometro;
    Computadora computadora;
    Partida partida = Diseno();
    Juego juego(partida, cronometro.Todos(), &computadora);
    cronometro.juego = &juego;
    juego.Cargar_Controles();
    juego.Vestir_Tablero();
    partida.Sonido = True;
    partida.Velocidad = velocidad;
    Empieza_Cafe volado(partida);
    juego.Empezar(PRINCIPIANTE, volado);
    const double debida = velocidad * CICLO;
    std::printf("pause at Velocidad %3d, ms: meant %6.0f, was %8.1f (%+.1f %%), processor %6.1f\n",
                velocidad, debida, cronometro.duracion, 100 * (cronometro.duracion / debida - 1),
                cronometro.procesador);
}

}  // namespace
}  // namespace corvanda

int main(int argc, char** argv) {
    const QApplication qt(argc, argv);
    QWidget ventana;
    ventana.show();
    using Velocidades = std::initializer_list<corvanda::Integer>;
    for (const auto velocidad : Velocidades{1, 1, 1, 100, 100, 200}) corvanda::Medir(velocidad);
    return 0;
}
