#include "core/control.h"

namespace corvanda {

namespace {

template <typename Miembros>
auto Miembro(Miembros& miembros, Integer index) -> decltype(miembros.data()) {
    const bool existe = index >= 0 && static_cast<std::size_t>(index) < miembros.size();
    return existe ? &miembros[static_cast<std::size_t>(index)] : nullptr;
}

// One switch for the reading and the writing of a member.
template <typename Estado>
auto Hallar(Estado& partida, Control control) -> decltype(partida.Dado.data()) {
    switch (control.Nombre) {
        case Arreglo::Tablero:
            return Miembro(partida.Tablero, control.Index);
        case Arreglo::Triangle:
            return Miembro(partida.Triangle, control.Index);
        case Arreglo::Blanca:
            return Miembro(partida.Blanca, control.Index);
        case Arreglo::Cafe:
            return Miembro(partida.Cafe, control.Index);
        case Arreglo::Adios:
            return Miembro(partida.Adios, control.Index);
        case Arreglo::Dado:
            return Miembro(partida.Dado, control.Index);
        case Arreglo::Ninguno:
            break;
    }
    return nullptr;
}

template <typename Miembros>
void Buscar(const Miembros& miembros, Arreglo nombre, Single x, Single y, const Image*& frente,
            Control& hallado) {
    for (std::size_t i = 0; i < miembros.size(); ++i) {
        const Image& imagen = miembros[i];
        if (!imagen.Visible || !imagen.Enabled || !imagen.Covers(x, y)) continue;
        if (frente != nullptr && imagen.ZOrder < frente->ZOrder) continue;
        frente = &imagen;
        hallado = {nombre, static_cast<Integer>(i)};
    }
}

}  // namespace

const Image* Imagen_De(const Partida& partida, Control control) {
    return Hallar(partida, control);
}

Image* Imagen_De(Partida& partida, Control control) {
    return Hallar(partida, control);
}

Control Control_En(const Partida& partida, Single x, Single y) {
    const Image* frente = nullptr;
    Control hallado;
    Buscar(partida.Tablero, Arreglo::Tablero, x, y, frente, hallado);
    Buscar(partida.Triangle, Arreglo::Triangle, x, y, frente, hallado);
    Buscar(partida.Adios, Arreglo::Adios, x, y, frente, hallado);
    Buscar(partida.Blanca, Arreglo::Blanca, x, y, frente, hallado);
    Buscar(partida.Cafe, Arreglo::Cafe, x, y, frente, hallado);
    Buscar(partida.Dado, Arreglo::Dado, x, y, frente, hallado);
    return hallado;
}

bool Recibe_Presiones(Arreglo nombre) {
    return nombre == Arreglo::Blanca || nombre == Arreglo::Cafe;
}

}  // namespace corvanda
