// Which chip a press picks up, and what a drop on a point or on a chip means.
#include <cstdlib>

#include "core/comprobada.h"
#include "core/juego.h"

namespace corvanda {

namespace {

Integer Color_De(Control ficha) {
    return ficha.Nombre == Arreglo::Blanca ? BLANCA : CAFE;
}

bool Hacia_Atras(Integer color, Integer origen, Integer destino) {
    return color == BLANCA ? destino < origen : destino > origen;
}

Integer Barra_De(Integer color) {
    return color == BLANCA ? BARRA_BLANCA : BARRA_CAFE;
}

Arreglo Fichas_De(Integer color) {
    return color == BLANCA ? Arreglo::Blanca : Arreglo::Cafe;
}

}  // namespace

void Juego::Blanca_MouseDown(Integer Index, Integer Button) {
    Presionar(BLANCA, Index, Button);
}

void Juego::Cafe_MouseDown(Integer Index, Integer Button) {
    Presionar(CAFE, Index, Button);
}

void Juego::Presionar(Integer color, Integer Index, Integer Button) {
    const Comprobada accion(*this);
    const Image* ficha = Imagen_De(partida, {Fichas_De(color), Index});
    if (Button != LeftButton || ficha == nullptr || !ficha->Enabled || Entrada_Cerrada()) return;
    if (!Puede_Jugar(color)) {
        MsgError(1);
        return;
    }
    const Pila& barra = Pila_En(partida, Barra_De(color));
    if (barra.Cuenta() == 0) {
        partida.Origen = GetNumber(*ficha);
        const Integer tope = Pila_En(partida, partida.Origen).Tope();
        puertos.Tablero.Iniciar_Arrastre({Fichas_De(color), tope});
    } else if (Index == barra.Tope()) {
        partida.Origen = color == BLANCA ? ORIGEN_BARRA_BLANCA : ORIGEN_BARRA_CAFE;
        puertos.Tablero.Iniciar_Arrastre({Fichas_De(color), Index});
    } else {
        Beeper();
    }
}

// Whether presses, drops and the pass command are for nobody just now: the old dice are still
// shown, or a new game waits for the old one to unwind.
bool Juego::Entrada_Cerrada() const {
    return Cerrando() || sin_entrada || peticion.has_value();
}

bool Juego::Puede_Jugar(Integer color) const {
    return partida.Turno == color && partida.Jugando == True &&
           !(color == CAFE && computadora_juega);
}

bool Juego::Se_Puede_Tomar(Control ficha) const {
    const Image* imagen = Imagen_De(partida, ficha);
    if (imagen == nullptr || !imagen->Enabled || !Recibe_Presiones(ficha.Nombre)) return false;
    if (Entrada_Cerrada() || !Puede_Jugar(Color_De(ficha))) return false;
    const Pila& barra = Pila_En(partida, Barra_De(Color_De(ficha)));
    return barra.Cuenta() == 0 || barra.Tope() == ficha.Index;
}

Lugares Juego::Destinos(Control ficha) const {
    Lugares destinos;
    if (!Puede_Soltar(ficha)) return destinos;
    const Integer color = Color_De(ficha);
    for (Integer p = 0; p < PUNTOS; ++p) {
        const auto distancia = static_cast<Integer>(std::abs(partida.Origen - p));
        destinos[static_cast<std::size_t>(p)] = !Hacia_Atras(color, partida.Origen, p) &&
                                                !Cerrado(partida, p, color) &&
                                                Dado_Que_Paga(distancia) != NINGUN_DADO;
    }
    const auto bandeja = static_cast<Integer>(color == BLANCA ? 1 : 0);
    const auto lugar = static_cast<std::size_t>(color == BLANCA ? BANDEJA_BLANCA : BANDEJA_CAFE);
    const bool abierta = Imagen_De(partida, {Arreglo::Adios, bandeja})->Visible;
    destinos[lugar] = abierta && Dado_Que_Saca(bandeja) != NINGUN_DADO;
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
    const bool atras = Hacia_Atras(Color_De(fuente), partida.Origen, destino);
    if (ajena && !atras && Pila_En(partida, destino).Cuenta() > 1) {
        MsgError(0);
        return;
    }
    Soltar(fuente, destino);
}

void Juego::Soltar(Control fuente, Integer destino) {
    const Comprobada accion(*this);
    if (!Puede_Soltar(fuente)) return;
    const Integer color = Color_De(fuente);
    if (Hacia_Atras(color, partida.Origen, destino)) {
        MsgError(2);
        return;
    }
    Mover(color, fuente.Index, destino);
}

// A drag may outlive the turn it began in; such a drop means nothing any more.
bool Juego::Puede_Soltar(Control fuente) const {
    if (Entrada_Cerrada() || partida.Jugando == False) return false;
    return partida.Turno == Color_De(fuente) && Es_Tope_De_Origen(fuente);
}

bool Juego::Es_Tope_De_Origen(Control fuente) const {
    if (!Recibe_Presiones(fuente.Nombre)) return false;
    const Integer color = Color_De(fuente);
    const Integer origen = partida.Origen;
    if (Es_Punto(origen)) {
        const bool suyo = Punto_En(partida, origen).Owner == color;
        return suyo && Pila_En(partida, origen).Tope() == fuente.Index;
    }
    const Integer barra = color == BLANCA ? ORIGEN_BARRA_BLANCA : ORIGEN_BARRA_CAFE;
    const Pila& pila = Pila_En(partida, Barra_De(color));
    return origen == barra && pila.Cuenta() > 0 && pila.Tope() == fuente.Index;
}

Integer Juego::GetNumber(const Image& Imagen) const {
    const auto primero = static_cast<Integer>(Imagen.Left < partida.Tablero[1].Left ? 0 : 6);
    Integer punto = 0;
    for (Integer k = primero; k < primero + 6; ++k) {
        if (partida.Triangle.at(static_cast<std::size_t>(k)).Left != Imagen.Left) continue;
        punto = k;
        break;
    }
    const bool abajo = Imagen.Top > partida.Triangle[23].Top - partida.Cafe[0].Height;
    return abajo ? static_cast<Integer>(23 - punto) : punto;
}

}  // namespace corvanda
