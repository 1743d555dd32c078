#include "tests/apoyo/mesa.h"

#include <sstream>
#include <utility>

namespace corvanda::pruebas {

Control Mesa::Presionar(Control ficha, Integer boton) {
    escritorio.arrastrada = {};
    if (ficha.Nombre == Arreglo::Blanca) {
        juego.Blanca_MouseDown(ficha.Index, boton);
    } else {
        juego.Cafe_MouseDown(ficha.Index, boton);
    }
    return std::exchange(escritorio.arrastrada, {});
}

Control Mesa::Tomar(Integer origen) {
    const Arreglo fichas = partida.Turno == BLANCA ? Arreglo::Blanca : Arreglo::Cafe;
    const Integer lugar = origen == ORIGEN_BARRA_BLANCA ? BARRA_BLANCA : origen;
    return Presionar({fichas, Pila_En(partida, lugar).Tope()});
}

void Mesa::Soltar(Control fuente, Control blanco) {
    if (blanco.Nombre == Arreglo::Blanca) juego.Blanca_DragDrop(blanco.Index, fuente);
    if (blanco.Nombre == Arreglo::Cafe) juego.Cafe_DragDrop(blanco.Index, fuente);
    if (blanco.Nombre == Arreglo::Triangle) juego.Triangle_DragDrop(blanco.Index, fuente);
    if (blanco.Nombre == Arreglo::Adios) juego.Adios_DragDrop(blanco.Index, fuente);
}

void Mesa::Jugar(Integer origen, Integer destino) {
    const Control fuente = Tomar(origen);
    if (fuente.Nombre != Arreglo::Ninguno) Soltar(fuente, {Arreglo::Triangle, destino});
}

std::string Dados_De(const Partida& partida) {
    std::ostringstream dados;
    dados << partida.Dado1 << (partida.Dado[0].Visible ? "*" : "") << " " << partida.Dado2
          << (partida.Dado[1].Visible ? "*" : "");
    if (partida.Dobles > 0) dados << " x" << int{partida.Dobles};
    return dados.str();
}

}  // namespace corvanda::pruebas
