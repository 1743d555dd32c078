#include "ui/locutor.h"

#include "ui/anuncios.h"
#include "ui/estuche.h"
#include "ui/estuche_accesible.h"
#include "ui/voz.h"

namespace corvanda {

namespace {

QString Nombre(const Partida& partida, int hijo) {
    const auto cual = static_cast<Integer>(hijo);
    if (cual < lugares::CUANTOS) return lugares::Nombre(partida, cual);
    return lugares::Nombre_De_Dado(partida, static_cast<Integer>(cual - lugares::CUANTOS));
}

}  // namespace

Locutor::Locutor(Estuche& estuche, Voz& voz)
    : estuche(estuche), voz(voz), partida(estuche.Estado()) {
    mirada.setSingleShot(true);
    connect(&mirada, &QTimer::timeout, this, &Locutor::Mirar);
    connect(&estuche, &Estuche::cambiada, this, &Locutor::Cambiada);
    connect(&estuche.Teclas(), &Teclado::elegida, this, &Locutor::Elegido);
    connect(&estuche.La_Mano(), &Mano::en_la_mano, this, &Locutor::En_La_Mano);
    QAccessible::installActivationObserver(this);
    accessibilityActiveChanged(QAccessible::isActive());
}

Locutor::~Locutor() {
    QAccessible::removeActivationObserver(this);
}

void Locutor::accessibilityActiveChanged(bool active) {
    if (active) {
        vista = partida;
    } else {
        vista.reset();
    }
}

// Two things are told at once, because no event need be handled before the next thing happens: the
// throw, which has ended when the second die is brought to the front, and a die that was played,
// without which a turn would seem to end with a pass. All else is told when events are handled.
void Locutor::Cambiada(Control control) {
    if (!vista) return;
    const Image& imagen = *Imagen_De(partida, control);
    if (control.Nombre == Arreglo::Dado && !imagen.Visible) {
        Mirar();
    } else if (control == Control{Arreglo::Dado, 1} && imagen.ZOrder == partida.Frente) {
        Contar_Tiro();
    } else {
        mirada.start(0);
    }
}

// In the middle of a throw the dice may still be the old ones, so that has to end first.
void Locutor::Mirar() {
    if (vista && partida.Turno == vista->Turno) voz.Decir(Anotar());
}

void Locutor::Contar_Tiro() {
    const Partida antes = *vista;
    const QString jugadas = Anotar();
    const QString tiro = anuncios::Tiro(antes, partida);
    voz.Decir(jugadas.isEmpty() ? tiro : jugadas + ' ' + tiro);
}

// Tells of the names that are not what they were, and returns which moves did it.
QString Locutor::Anotar() {
    mirada.stop();
    const Partida antes = *vista;
    vista = partida;
    for (int hijo = 0; hijo < EstucheAccesible::HIJOS; ++hijo) {
        if (Nombre(antes, hijo) != Nombre(partida, hijo)) Avisar(QAccessible::NameChanged, hijo);
    }
    return anuncios::Jugadas(antes, partida);
}

void Locutor::Elegido(Integer lugar) {
    if (vista) Avisar(QAccessible::Focus, lugar);
}

void Locutor::En_La_Mano(Control ficha) {
    if (!vista) return;
    voz.Decir(ficha.Nombre == Arreglo::Ninguno ? "The chip is put back." : "Chip in hand.");
}

void Locutor::Avisar(QAccessible::Event que, int hijo) {
    QAccessibleEvent aviso(&estuche, que);
    aviso.setChild(hijo);
    QAccessible::updateAccessibility(&aviso);
    emit avisado(que, hijo);
}

}  // namespace corvanda
