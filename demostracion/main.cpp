// Plays the game before somebody's eyes: the real windows, a real mouse, numbered screenshots.
//
//     demostracion FOLDER [--entera]
//
// Needs an X display with a window manager, and xdotool. With --entera a whole game is played up to
// the winner's box. Ends with 0 when everything happened as it should.
#include <QApplication>
#include <QDir>
#include <QTextStream>
#include <QThread>
#include <memory>

#include "demostracion/guion.h"
#include "runtime/random.h"

namespace {

constexpr std::uint32_t SEMILLA = 20260;

/// Throws the same dice in every run, whatever the time of day.
class Fija final : public corvanda::RandomNumbers {
  public:
    double Rnd() override { return suerte.Rnd(); }
    void Randomize() override {}

  private:
    corvanda::Random suerte{SEMILLA};
};

}  // namespace

int main(int argc, char** argv) {
    const QApplication qt(argc, argv);
    const QStringList palabras = QApplication::arguments();
    if (palabras.size() < 2 || !QDir().mkpath(palabras[1])) {
        QTextStream(stderr) << "usage: demostracion FOLDER [--entera]\n";
        return 2;
    }
    Fija azar;
    corvanda::Aplicacion programa(azar);
    corvanda::Guion guion(programa, palabras[1]);
    QString falta;
    const std::unique_ptr<QThread> actor(
        QThread::create([&] { falta = guion.Representar(palabras.contains("--entera")); }));
    QObject::connect(actor.get(), &QThread::finished, &programa, [&] {
        if (!falta.isEmpty()) QCoreApplication::exit(1);
    });
    // Inside the event loop, so that nothing that ends it can come before it.
    QMetaObject::invokeMethod(
        &programa,
        [&] {
            programa.Mostrar_Principal();
            actor->start();
        },
        Qt::QueuedConnection);
    const int fin = QApplication::exec();
    while (!actor->wait(10)) QApplication::processEvents();
    if (!falta.isEmpty()) QTextStream(stderr) << "demostracion: " << falta << '\n';
    return fin;
}
