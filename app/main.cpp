#include <QApplication>

#include "app/aplicacion.h"
#include "desktop/heap.h"
#include "runtime/random.h"

int main(int argc, char** argv) {
    corvanda::KeepHeapSmall();
    const QApplication qt(argc, argv);
    corvanda::Random azar;
    corvanda::Aplicacion corvanda(azar);
    corvanda.Empezar();
    return QApplication::exec();
}
