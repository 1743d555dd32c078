#include "ui/teclado.h"

#include "ui/lugares.h"

namespace corvanda {

namespace {

constexpr int HASTA_EL_FIN = 99;  // columns, more than there are

}  // namespace

bool Teclado::Tecla(const QKeyEvent& evento) {
    if (evento.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) return false;
    if (mano.Es(Mano::De::Raton)) return false;
    const bool primera = !a_la_vista;
    const auto hacer = [&](auto que) {
        if (primera) Elegir(elegido);
        if (!primera) que();
        return true;
    };
    const auto pasar = [&](int paso) {
        if (!primera || !Se_Puede_Tomar(elegido)) Siguiente(paso);
        if (primera) Elegir(elegido);
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
            return pasar(1);
        case Qt::Key_Backtab:
            return pasar(-1);
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

bool Teclado::Se_Puede_Tomar(Integer lugar) const {
    return mano.Se_Puede_Tomar(lugares::Tope(Estado(), lugar));
}

// The next place with a chip that may be taken now, else just the next one.
Integer Teclado::Siguiente_Ficha(int paso) const {
    const auto a = [&](int pasos) {
        const int lugar = elegido + paso * pasos + lugares::CUANTOS;
        return static_cast<Integer>(lugar % lugares::CUANTOS);
    };
    int pasos = 1;
    while (pasos < lugares::CUANTOS && !Se_Puede_Tomar(a(pasos))) ++pasos;
    if (pasos == lugares::CUANTOS && !Se_Puede_Tomar(elegido)) pasos = 1;
    return a(pasos);
}

// With a chip in the hand the next place that takes it, on its side's way.
void Teclado::Siguiente(int paso) {
    Elegir(mano.Ocupada() ? lugares::Siguiente(mano.Destinos(), elegido, Estado().Turno, paso)
                          : Siguiente_Ficha(paso));
}

void Teclado::Elegir(Integer lugar) {
    if (mano.Es(Mano::De::Raton)) return;
    emit tocado(Marco());
    elegido = lugar;
    a_la_vista = true;
    emit tocado(Marco());
    Llevar();
    emit elegida(lugar);
}

void Teclado::Pulsar() {
    if (!a_la_vista) return;
    if (mano.Ocupada()) {
        mano.Soltar(lugares::Blanco(Estado(), elegido));
    } else {
        const Control tope = lugares::Tope(Estado(), elegido);
        if (tope.Nombre == Arreglo::Ninguno) return;
        const QPointF medio = trazado.Lugar(*Imagen_De(Estado(), tope)).center();
        mano.Presionar(tope, LeftButton, medio, Mano::De::Teclas);
        Llevar();
    }
}

// The chip is held outside the place, over the rim of the case: there it covers no chip, no die and
// nothing of the place but the middle of a line of the frame.
void Teclado::Llevar() {
    if (!mano.Es(Mano::De::Teclas)) return;
    const QRectF marco(Marco());
    const double radio = trazado.Pixeles(Trazado::DISCO) / 2;
    QPointF a = marco.center();
    if (!Es_Punto(elegido)) {
        a.setX(marco.left() - radio);
    } else if (elegido < PUNTOS / 2) {
        a.setY(marco.top() - radio);
    } else {
        a.setY(marco.bottom() + radio);
    }
    mano.Llevar(a);
}

void Teclado::Ocultar() {
    if (a_la_vista) emit tocado(Marco());
    a_la_vista = false;
}

// Two lines, white in black, so that one of them stands out against whatever is under it.
void Teclado::Pintar(QPainter& pintor) const {
    if (!a_la_vista) return;
    const QRect marco = Marco();
    const int grueso = trazado.Grueso();
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

}  // namespace corvanda
