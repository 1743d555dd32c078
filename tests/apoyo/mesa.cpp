#include "tests/apoyo/mesa.h"

namespace corvanda::pruebas {

void Mesa::Jugar(Integer origen, Integer destino) {
    const bool blanca = partida.Turno == BLANCA;
    const Integer lugar = origen == ORIGEN_BARRA_BLANCA ? BARRA_BLANCA : origen;
    const Integer ficha = Pila_En(partida, lugar).Tope();
    if (blanca) {
        juego.Blanca_MouseDown(ficha, LeftButton);
    } else {
        juego.Cafe_MouseDown(ficha, LeftButton);
    }
    const Control fuente = escritorio.arrastrada;
    escritorio.arrastrada = {};
    if (fuente.Nombre != Arreglo::Ninguno) juego.Triangle_DragDrop(destino, fuente);
}

}  // namespace corvanda::pruebas
