#include "demostracion/raton.h"

#include <QProcess>
#include <QThread>

namespace corvanda {

void Raton::Mandar(const QStringList& orden) const {
    QProcess::execute("xdotool", orden);
    QThread::msleep(pausa);
}

void Raton::Ir(QPoint lugar) {
    Mandar({"mousemove", QString::number(lugar.x()), QString::number(lugar.y())});
    donde = lugar;
}

void Raton::Clic(QPoint lugar) {
    Ir(lugar);
    Mandar({"click", "1"});
}

void Raton::Arrastrar(QPoint desde, QPoint hasta) {
    constexpr int PASOS = 6;
    Ir(desde);
    Mandar({"mousedown", "1"});
    for (int paso = 1; paso <= PASOS; ++paso) Ir(desde + (hasta - desde) * paso / PASOS);
}

void Raton::Soltar() {
    Mandar({"mouseup", "1"});
}

}  // namespace corvanda
