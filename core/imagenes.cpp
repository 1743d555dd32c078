// Changes of the image controls. Each goes through one of these, so that the board hears of it.
#include "core/juego.h"

namespace corvanda {

namespace {

template <typename Cambio>
void Cambiar(Image& imagen, Control control, Pantalla& tablero, Cambio cambio) {
    const Image antes = imagen;
    cambio(imagen);
    if (imagen != antes) tablero.Refrescar(control, antes);
}

}  // namespace

Image& Juego::Imagen(Control control) {
    return *Imagen_De(partida, control);
}

void Juego::Colocar(Control control, Single left, Single top) {
    Cambiar(Imagen(control), control, puertos.Tablero, [&](Image& imagen) {
        imagen.Left = left;
        imagen.Top = top;
        imagen.ZOrder = ++partida.Frente;
    });
}

void Juego::Mostrar(Control control, bool visible) {
    Cambiar(Imagen(control), control, puertos.Tablero,
            [&](Image& imagen) { imagen.Visible = visible; });
}

void Juego::Habilitar(Control control, bool enabled) {
    Cambiar(Imagen(control), control, puertos.Tablero,
            [&](Image& imagen) { imagen.Enabled = enabled; });
}

void Juego::Dar_Estampa(Control control, Picture estampa) {
    Cambiar(Imagen(control), control, puertos.Tablero,
            [&](Image& imagen) { imagen.Shown = estampa; });
}

void Juego::Al_Frente(Control control) {
    Cambiar(Imagen(control), control, puertos.Tablero,
            [&](Image& imagen) { imagen.ZOrder = ++partida.Frente; });
}

}  // namespace corvanda
