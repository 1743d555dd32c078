// Which chip a press picks up, and what a drop on a point or on a chip means.
#include <cstdlib>

#include "core/bandos.h"
#include "core/comprobada.h"
#include "core/juego.h"

namespace corvanda {

void Juego::Blanca_MouseDown(Integer Index, Integer Button) {
    Presionar(BLANCA, Index, Button);
}

void Juego::Cafe_MouseDown(Integer Index, Integer Button) {
    Presionar(CAFE, Index, Button);
}

void Juego::Presionar(Integer color, Integer Index, Integer Button) {
    const Comprobada accion(*this);
    const Bando& bando = Bando_De(color);
    const Image* ficha = Imagen_De(partida, {bando.fichas, Index});
    if (Button != LeftButton || ficha == nullptr || !ficha->Enabled || Entrada_Cerrada()) return;
    if (!Puede_Jugar(color)) {
        MsgError(1);
        return;
    }
    const Pila& barra = Pila_En(partida, bando.barra);
    if (barra.Cuenta() == 0) {
        partida.Origen = GetNumber(*ficha);
        const Integer tope = Pila_En(partida, partida.Origen).Tope();
        puertos.Tablero.Iniciar_Arrastre({bando.fichas, tope});
    } else if (Index == barra.Tope()) {
        partida.Origen = bando.entrada;
        puertos.Tablero.Iniciar_Arrastre({bando.fichas, Index});
    } else {
        Beeper();
        puertos.Tablero.Rechazar({bando.fichas, Index});
    }
}

void Juego::MouseDown(Control ficha, Integer Button) {
    if (Recibe_Presiones(ficha.Nombre)) Presionar(Bando_De(ficha).color, ficha.Index, Button);
}

void Juego::DragDrop(Control destino, Control Source) {
    if (destino.Nombre == Arreglo::Triangle) Triangle_DragDrop(destino.Index, Source);
    if (Recibe_Presiones(destino.Nombre)) Soltar_En_Ficha(destino, Source);
    if (destino.Nombre == Arreglo::Adios) Adios_DragDrop(destino.Index, Source);
}

// Neither does anything count while the winner is announced.
bool Juego::Entrada_Cerrada() const {
    return vigencia.Entrada_Cerrada() || Hay_Ganador();
}

// In the computer's turn Brown's chips are the computer's own, and nobody's while events run.
bool Juego::Puede_Jugar(Integer color) const {
    return partida.Turno == color && partida.Jugando != False &&
           !(color == CAFE && vigencia.Cafe_De_Nadie());
}

bool Juego::Se_Puede_Tomar(Control ficha) const {
    const Image* imagen = Imagen_De(partida, ficha);
    if (imagen == nullptr || !imagen->Enabled || !Recibe_Presiones(ficha.Nombre)) return false;
    const Bando& bando = Bando_De(ficha);
    if (Entrada_Cerrada() || !Puede_Jugar(bando.color)) return false;
    const Pila& barra = Pila_En(partida, bando.barra);
    return barra.Cuenta() == 0 || barra.Tope() == ficha.Index;
}

Lugares Juego::Destinos(Control ficha) const {
    Lugares destinos;
    if (!Puede_Soltar(ficha)) return destinos;
    const Bando& bando = Bando_De(ficha);
    for (Integer p = 0; p < PUNTOS; ++p) {
        const auto distancia = static_cast<Integer>(std::abs(partida.Origen - p));
        destinos[static_cast<std::size_t>(p)] = !bando.Hacia_Atras(partida.Origen, p) &&
                                                !Cerrado(partida, p, bando.color) &&
                                                Dado_Que_Paga(distancia) != NINGUN_DADO;
    }
    const bool abierta = Imagen_De(partida, {Arreglo::Adios, bando.adios})->Visible;
    destinos[static_cast<std::size_t>(bando.bandeja)] =
        abierta && Dado_Que_Saca(bando.adios) != NINGUN_DADO;
    return destinos;
}

void Juego::Triangle_DragDrop(Integer Index, Control Source) {
    if (Es_Punto(Index)) Soltar(Source, Index);
}

void Juego::Blanca_DragDrop(Integer Index, Control Source) {
    Soltar_En_Ficha({Arreglo::Blanca, Index}, Source);
}

void Juego::Cafe_DragDrop(Integer Index, Control Source) {
    Soltar_En_Ficha({Arreglo::Cafe, Index}, Source);
}

// A drop on a chip is a drop on its point. A chip of the other colour may lie on a bar and stand
// for a point that the mover holds itself: such a point is refused too when it has several chips.
void Juego::Soltar_En_Ficha(Control blanco, Control fuente) {
    const Comprobada accion(*this);
    const Image* imagen = Imagen_De(partida, blanco);
    if (imagen == nullptr || !Puede_Soltar(fuente)) return;
    const Integer destino = GetNumber(*imagen);
    const bool ajena = fuente.Nombre != blanco.Nombre;
    const bool atras = Bando_De(fuente).Hacia_Atras(partida.Origen, destino);
    if (ajena && !atras && Pila_En(partida, destino).Cuenta() > 1) {
        MsgError(0);
        return;
    }
    Soltar(fuente, destino);
}

void Juego::Soltar(Control fuente, Integer destino) {
    const Comprobada accion(*this);
    if (!Puede_Soltar(fuente)) return;
    const Bando& bando = Bando_De(fuente);
    if (bando.Hacia_Atras(partida.Origen, destino)) {
        MsgError(2);
        return;
    }
    Mover(bando.color, fuente.Index, destino);
}

// A drag may outlive the turn it began in; such a drop means nothing any more.
bool Juego::Puede_Soltar(Control fuente) const {
    return !Entrada_Cerrada() && Puede_Jugar(Bando_De(fuente).color) && Es_Tope_De_Origen(fuente);
}

bool Juego::Es_Tope_De_Origen(Control fuente) const {
    if (!Recibe_Presiones(fuente.Nombre)) return false;
    const Bando& bando = Bando_De(fuente);
    const Integer origen = partida.Origen;
    if (Es_Punto(origen)) {
        const bool suyo = Punto_En(partida, origen).Owner == bando.color;
        return suyo && Pila_En(partida, origen).Tope() == fuente.Index;
    }
    const Pila& pila = Pila_En(partida, bando.barra);
    return origen == bando.entrada && pila.Cuenta() > 0 && pila.Tope() == fuente.Index;
}

Integer Juego::GetNumber(const Image& Imagen) const {
    const auto primero = static_cast<Integer>(Imagen.Left < partida.Tablero[1].Left ? 0 : 6);
    Integer punto = 0;
    for (Integer k = primero; k < primero + 6; ++k) {
        if (partida.Triangle.at(static_cast<std::size_t>(k)).Left != Imagen.Left) continue;
        punto = k;
        break;
    }
    return Esta_Abajo(partida, Imagen) ? static_cast<Integer>(PUNTOS - 1 - punto) : punto;
}

}  // namespace corvanda
