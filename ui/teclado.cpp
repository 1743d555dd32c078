#include "ui/teclado.h"

#include <algorithm>

#include "ui/estuche.h"
#include "ui/lugares.h"

namespace corvanda {

namespace {

constexpr int HASTA_EL_FIN = 99;  // columns, more than there are

}  // namespace

bool Teclado::Tecla(const QKeyEvent& evento) {
    if (evento.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) return false;
    if (estuche.Arrastrando() && !a_la_vista) return false;
    const bool primera = !a_la_vista;
    const auto hacer = [&](auto que) {
        if (primera) Elegir(elegido);
        if (!primera) que();
        return true;
    };
    switch (evento.key()) {
        case Qt::Key_Left:
            return hacer([this] { Ir(-1, 0); });
        case Qt::Key_Right:
            return hacer([this] { Ir(1, 0); });
        case Qt::Key_Up:
            return hacer([this] { Ir(0, -1); });
        case Qt::Key_Down:
            return hacer([this] { Ir(0, 1); });
        case Qt::Key_Home:
            return hacer([this] { Ir(-HASTA_EL_FIN, 0); });
        case Qt::Key_End:
            return hacer([this] { Ir(HASTA_EL_FIN, 0); });
        case Qt::Key_Tab:
            return hacer([this] { Siguiente(1); });
        case Qt::Key_Backtab:
            return hacer([this] { Siguiente(-1); });
        case Qt::Key_Space:
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Select:
            // The key that closed a box may still be down.
            return evento.isAutoRepeat() || hacer([this] { Pulsar(); });
        default:
            return false;
    }
}

void Teclado::Ir(int columnas, int filas) {
    Elegir(lugares::Vecino(elegido, columnas, filas));
}

// With free hands the next place with a chip that may be taken now, else just the next one.
void Teclado::Siguiente(int paso) {
    const auto a = [&](int pasos) {
        const int lugar = elegido + paso * pasos + lugares::CUANTOS;
        return static_cast<Integer>(lugar % lugares::CUANTOS);
    };
    int pasos = 1;
    if (!estuche.Arrastrando()) {
        while (pasos < lugares::CUANTOS && !estuche.Se_Puede_Tomar(a(pasos))) ++pasos;
        if (pasos == lugares::CUANTOS && !estuche.Se_Puede_Tomar(elegido)) pasos = 1;
    }
    Elegir(a(pasos));
}

void Teclado::Elegir(Integer lugar) {
    if (estuche.Arrastrando() && !a_la_vista) return;
    estuche.update(Marco());
    elegido = lugar;
    a_la_vista = true;
    estuche.update(Marco());
    Llevar();
    emit estuche.elegido(lugar);
}

void Teclado::Pulsar() {
    if (!a_la_vista) return;
    if (estuche.Arrastrando()) {
        estuche.Dejar(lugares::Blanco(estuche.Estado(), elegido));
    } else {
        const Control tope = lugares::Tope(estuche.Estado(), elegido);
        if (tope.Nombre != Arreglo::Ninguno) estuche.Tomar(tope);
        Llevar();
    }
}

// Over the tip of a point the chip covers none that stands there.
void Teclado::Llevar() {
    if (!estuche.Arrastrando()) return;
    const QRectF marco(Marco());
    QPointF a = marco.center();
    if (Es_Punto(elegido)) a.setY(elegido < PUNTOS / 2 ? marco.bottom() : marco.top());
    estuche.Llevar(a);
}

void Teclado::Ocultar() {
    if (a_la_vista) estuche.update(Marco());
    a_la_vista = false;
}

// Two lines, white in black, so that one of them stands out against whatever is under it.
void Teclado::Pintar(QPainter& pintor) const {
    if (!a_la_vista) return;
    const QRect marco = Marco();
    const int grueso = estuche.Grueso();
    const auto linea = [&](const QRect& por_fuera, const QColor& color) {
        const QRect por_dentro = por_fuera.adjusted(grueso, grueso, -grueso, -grueso);
        pintor.save();
        pintor.setClipRegion(QRegion(por_fuera).subtracted(por_dentro), Qt::IntersectClip);
        pintor.fillRect(por_fuera, color);
        pintor.restore();
    };
    linea(marco, Qt::black);
    linea(marco.adjusted(grueso, grueso, -grueso, -grueso), Qt::white);
}

QRect Teclado::Marco() const {
    const int grueso = 2 * estuche.Grueso();
    return estuche.Area(elegido).adjusted(-grueso, -grueso, grueso, grueso);
}

}  // namespace corvanda
