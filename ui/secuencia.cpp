#include "ui/secuencia.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace corvanda {

namespace {

constexpr int VUELO_MAS_CORTO = 350;
constexpr int VUELO_DE_ANTES = 200;  // the longest where the pause leaves no time for a slow one
constexpr int PAUSA_SIN_VUELO = 60;  // a shorter pause leaves no time to follow a chip
constexpr double LARGO = 6000;       // twips of a way that takes the longest time
constexpr int SACUDIDA = 240;        // milliseconds
constexpr double AMPLITUD = 45;      // twips
constexpr double CAIDA = 330;        // twips that a die comes from beside its place

qreal Suave(qreal t) {
    return t < 0.5 ? 2 * t * t : 1 - 2 * (1 - t) * (1 - t);
}

qreal Frenando(qreal t) {
    return 1 - std::pow(1 - t, 3);
}

// It swings to both sides of its place and comes to rest there.
QPointF Sacudida(qreal milisegundos) {
    if (milisegundos >= SACUDIDA) return {};
    const qreal t = milisegundos / SACUDIDA;
    return {AMPLITUD * (1 - t) * std::sin(t * 6 * std::numbers::pi), 0};
}

}  // namespace

int Secuencia::Vuelo_Para(int pausa, double distancia) {
    if (pausa < PAUSA_SIN_VUELO) return 0;
    if (pausa / 2 < VUELO_MAS_CORTO) return std::min(VUELO_DE_ANTES, pausa / 2);
    const double parte = std::min(1.0, distancia / LARGO);
    const int dura = VUELO_MAS_CORTO + static_cast<int>(parte * (VUELO - VUELO_MAS_CORTO));
    return std::min(dura, pausa / 2);
}

void Secuencia::Poner(const Paso& nuevo) {
    Terminar(nuevo.que);
    pasos.push_back(nuevo);
}

Secuencia::Tiempo Secuencia::Fin_De_Las_Fichas() const {
    Tiempo fin = ahora;
    for (const Paso& paso : pasos) {
        const bool ficha = paso.clase == Clase::Vuelo || paso.clase == Clase::Comida;
        if (ficha) fin = std::max(fin, paso.Acaba());
    }
    return fin;
}

// The game tells of the chip that was hit first.
void Secuencia::Volar(Control ficha, QPointF desde, QPointF hasta, int dura) {
    if (dura <= 0) return;
    for (Paso& paso : pasos) {
        if (paso.clase == Clase::Comida && paso.empieza == ahora) paso.empieza = ahora + dura;
    }
    Poner({ficha, Clase::Vuelo, desde, hasta, ahora, dura});
}

void Secuencia::Comer(Control ficha, QPointF desde, QPointF hasta, int dura) {
    if (dura > 0) Poner({ficha, Clase::Comida, desde, hasta, ahora, dura});
}

void Secuencia::Tirar(Control dado, QPointF hasta) {
    const QPointF desde = hasta + QPointF(dado.Index == 0 ? -CAIDA : CAIDA, 0);
    Poner({dado, Clase::Tiro, desde, hasta, Fin_De_Las_Fichas(), TIRO});
}

void Secuencia::Rechazar(Control ficha, QPointF donde, bool quieta) {
    Poner({ficha, Clase::Rechazo, donde, donde, ahora, RECHAZO, quieta});
}

void Secuencia::Avanzar(Tiempo nuevo) {
    ahora = nuevo;
    std::erase_if(pasos, [this](const Paso& paso) { return paso.Acaba() <= ahora; });
}

void Secuencia::Terminar(Control que) {
    std::erase_if(pasos, [&](const Paso& paso) { return paso.que == que; });
}

std::vector<Control> Secuencia::Presentes() const {
    std::vector<Control> todos;
    for (const Paso& paso : pasos) todos.push_back(paso.que);
    return todos;
}

std::optional<Secuencia::Pose> Secuencia::Pose_De(Control que) const {
    const auto paso =
        std::find_if(pasos.begin(), pasos.end(), [&](const Paso& uno) { return uno.que == que; });
    if (paso == pasos.end()) return {};
    const auto pasado =
        static_cast<qreal>(std::clamp<Tiempo>(ahora - paso->empieza, 0, paso->dura));
    const qreal t = pasado / paso->dura;
    const QPointF camino = paso->hasta - paso->desde;
    switch (paso->clase) {
        case Clase::Tiro:
            return Pose{paso->desde + camino * Frenando(t), (1 - Frenando(t)) * -270,
                        ahora < paso->empieza ? 0 : std::min(1.0, 4 * t)};
        case Clase::Rechazo:
            return Pose{paso->hasta + (paso->quieta ? QPointF() : Sacudida(pasado)), 0, 1, true};
        default:
            return Pose{paso->desde + camino * Suave(t)};
    }
}

}  // namespace corvanda
