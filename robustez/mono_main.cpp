// Random play on the real windows:
//
//     mono SECONDS [SEED]
//
// Lives of the program follow each other until the time is over, each with a seed of its own that
// begins at SEED (by default the time of day). The seed of a life that fails is told; SECONDS 0
// plays the one life of SEED and nothing more. A program that does not answer for half a minute has
// failed, and so has one to which the toolkit gives a warning.
#include <QApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QThread>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <memory>

#include "robustez/mono.h"
#include "runtime/random.h"

namespace {

using corvanda::Cuentas;
using corvanda::Mono;

constexpr long ACTOS_POR_VIDA = 20000;
constexpr int PACIENCIA = 30;  // seconds

std::uint32_t semilla_de_la_vida = 0;

// Nothing that the toolkit complains of should happen.
void Oir(QtMsgType tipo, const QMessageLogContext& /*donde*/, const QString& texto) {
    std::fprintf(stderr, "%s\n", qPrintable(texto));
    const bool inocente =
        texto.startsWith("This plugin does not support") || texto.contains("XDG_RUNTIME_DIR");
    if (tipo == QtDebugMsg || tipo == QtInfoMsg || inocente) return;
    std::fprintf(stderr, "mono: seed %u: the toolkit gave a warning\n", semilla_de_la_vida);
    std::abort();
}

/// The dice of one life.
class Dados final : public corvanda::RandomNumbers {
  public:
    explicit Dados(std::uint32_t semilla) : suerte(semilla) {}
    double Rnd() override { return suerte.Rnd(); }
    void Randomize() override {}

  private:
    corvanda::Random suerte;
};

void Vivir(std::uint32_t semilla, Cuentas& cuentas) {
    semilla_de_la_vida = semilla;
    Dados dados(semilla);
    corvanda::Aplicacion programa(dados);
    Mono mono(programa, semilla, ACTOS_POR_VIDA, cuentas);
    QTimer::singleShot(0, &programa, [&] {
        if (semilla % 4 == 0) return programa.Empezar();
        programa.Mostrar_Principal();
    });
    QApplication::exec();
}

// Ends the program when it stops answering.
void Vigilar(const Cuentas& cuentas) {
    long antes = -1;
    for (int segundos = 0; !QThread::currentThread()->isInterruptionRequested(); ++segundos) {
        QThread::sleep(1);
        if (segundos % PACIENCIA != 0) continue;
        if (cuentas.actos == antes) {
            std::fprintf(stderr, "mono: seed %u: no answer\n", semilla_de_la_vida);
            std::abort();
        }
        antes = cuentas.actos;
    }
}

}  // namespace

int main(int argc, char** argv) {
    const QTemporaryDir config;
    qputenv("XDG_CONFIG_HOME", config.path().toLocal8Bit());
    if (!qEnvironmentVariableIsSet("SDL_AUDIODRIVER")) qputenv("SDL_AUDIODRIVER", "dummy");
    qInstallMessageHandler(Oir);
    const QApplication qt(argc, argv);
    if (argc < 2) {
        std::fprintf(stderr, "usage: mono SECONDS [SEED]\n");
        return 2;
    }
    const qint64 hasta = 1000LL * std::atoi(argv[1]);
    auto semilla = static_cast<std::uint32_t>(argc > 2 ? std::strtoul(argv[2], nullptr, 10)
                                                       : static_cast<unsigned long>(time(nullptr)));
    Cuentas cuentas;
    const std::unique_ptr<QThread> guardia(QThread::create([&] { Vigilar(cuentas); }));
    guardia->start();
    QElapsedTimer reloj;
    reloj.start();
    do {
        Vivir(semilla++, cuentas);
    } while (reloj.elapsed() < hasta);
    guardia->requestInterruption();
    guardia->wait();
    std::printf("seeds %u on: %ld lives, %ld events in %.0f s, %ld moves tried, %ld games won\n",
                semilla - static_cast<std::uint32_t>(cuentas.vidas), cuentas.vidas,
                cuentas.actos.load(), static_cast<double>(reloj.elapsed()) / 1e3, cuentas.jugadas,
                cuentas.partidas_ganadas);
    return 0;
}
