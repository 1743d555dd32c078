#include "ui/mano.h"

#include <QStyle>
#include <algorithm>
#include <utility>

#include "core/bandos.h"

namespace corvanda {

namespace {

constexpr int REGRESO = 140;  // milliseconds of a refused chip's way back

}  // namespace

Mano::Mano(const Trazado& trazado, Pintura& pintura, const QWidget& estuche, QWidget* fondo)
    : trazado(trazado), pintura(pintura), estuche(estuche), flotante(fondo) {}

bool Mano::Se_Puede_Tomar(Control ficha) const {
    return juego != nullptr && juego->Se_Puede_Tomar(ficha);
}

Integer Mano::Lugar_De(Control destino) const {
    const Image* imagen = Imagen_De(trazado.Estado(), destino);
    if (imagen == nullptr || juego == nullptr) return NINGUNO;
    if (destino.Nombre == Arreglo::Triangle) return destino.Index;
    if (destino.Nombre == Arreglo::Adios) return destino.Index == 0 ? BANDEJA_CAFE : BANDEJA_BLANCA;
    return Recibe_Presiones(destino.Nombre) ? juego->GetNumber(*imagen) : NINGUNO;
}

void Mano::Presionar(Control ficha, Integer boton, QPointF donde, De quien) {
    if (juego == nullptr || tomada) return;
    presion = Presion{ficha, donde, quien};
    juego->MouseDown(ficha, boton);
    presion.reset();
}

void Mano::Iniciar(Control ficha) {
    const Image& imagen = *Imagen_De(trazado.Estado(), ficha);
    const Presion aqui{ficha, trazado.Lugar(imagen).center(), De::Raton};
    const auto [pulsada, donde, quien] = presion.value_or(aqui);
    const QPointF agarre = donde - trazado.Lugar(*Imagen_De(trazado.Estado(), pulsada)).topLeft();
    tomada = Tomada{ficha, agarre, quien};
    destinos = juego->Destinos(ficha);
    // Asked for again when the chip comes to another screen on its way.
    flotante.Aparecer([this, imagen] { return pintura.En_El_Aire(imagen); },
                      estuche.pos() + donde - agarre);
    emit cambiada(ficha, destinos);
    emit en_la_mano(ficha);
}

void Mano::Llevar(QPointF a) {
    if (!tomada) return;
    QPointF esquina = estuche.pos() + a - tomada->agarre;
    if (tomada->quien == De::Teclas) {
        const QSizeF libre =
            estuche.parentWidget()->size() -
            QSizeF(trazado.Pixeles(Trazado::DISCO), trazado.Pixeles(Trazado::DISCO));
        esquina.setX(std::clamp(esquina.x(), 0.0, std::max(0.0, libre.width())));
        esquina.setY(std::clamp(esquina.y(), 0.0, std::max(0.0, libre.height())));
    }
    flotante.Llevar(esquina);
}

// The chip leaves the hand, and is still to be seen where it was.
Control Mano::Abrir() {
    const Control ficha = std::exchange(tomada, std::nullopt)->ficha;
    soltando = volviendo = ficha;
    emit cambiada(ficha, std::exchange(destinos, {}));
    return ficha;
}

// What the drop means may take the other side's whole turn to say, so the hand watches for the chip
// to move or for a box to open, whichever comes first.
void Mano::Soltar(Control destino) {
    if (!tomada) return;
    const Control ficha = Abrir();
    const Integer lugar = Lugar_De(destino);
    const bool en_su_sitio = lugar != NINGUNO && lugar == juego->Estado().Origen;
    if (destino.Nombre != Arreglo::Ninguno) juego->DragDrop(destino, ficha);
    if (soltando != ficha) return;
    Devolver();
    if (!en_su_sitio) emit rechazada(ficha);
}

void Mano::Cancelar() {
    if (!tomada) return;
    Abrir();
    Devolver();
}

void Mano::Interrumpir() {
    Cancelar();
    Devolver();
}

void Mano::Devolver() {
    const Control ficha = std::exchange(soltando, Control{});
    const Image* imagen = Imagen_De(trazado.Estado(), ficha);
    if (imagen == nullptr) return;
    emit en_la_mano({});
    flotante.Deslizar(estuche.pos() + trazado.Lugar(*imagen).topLeft(), Regreso(),
                      [this, ficha] { Quedarse(ficha); });
}

void Mano::Movida(Control ficha) {
    if (ficha == soltando) soltando = {};
    if (ficha != volviendo) return;
    flotante.Desaparecer();
    Quedarse(ficha);
}

void Mano::Quedarse(Control ficha) {
    flotante.hide();
    if (volviendo != ficha) return;
    volviendo = {};
    emit cambiada(ficha, {});
}

int Mano::Regreso() const {
    const bool quietos = estuche.style()->styleHint(QStyle::SH_Widget_Animation_Duration) == 0;
    return quietos ? 0 : REGRESO;
}

}  // namespace corvanda
