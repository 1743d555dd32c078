#include "tests/apoyo/mesa.h"

#include <sstream>

namespace corvanda::pruebas {

Control Nombrado(const std::string& texto) {
    const auto nombre = std::string("..PBCAD").find(texto[0]);  // in the order of Arreglo
    if (nombre == std::string::npos) {
        return {Arreglo::Triangle, static_cast<Integer>(std::stoi(texto))};
    }
    return {static_cast<Arreglo>(nombre), static_cast<Integer>(std::stoi(texto.substr(1)))};
}

Mesa::Mesa(const std::string& posicion, Oponente* computadora)
    : juego(partida, escritorio.Todos(), computadora) {
    juego.Cargar_Controles();
    juego.Vestir_Tablero();
    juego.Ordenar();
    if (!posicion.empty()) Poner(juego, partida, posicion);
    escritorio.Leer();
}

Control Mesa::Presionar(Control ficha, Integer boton) {
    escritorio.arrastrada = {};
    juego.MouseDown(ficha, boton);
    return escritorio.arrastrada;
}

void Mesa::Soltar(Control fuente, Control blanco) {
    if (blanco.Nombre == Arreglo::Blanca) return juego.Blanca_DragDrop(blanco.Index, fuente);
    if (blanco.Nombre == Arreglo::Cafe) return juego.Cafe_DragDrop(blanco.Index, fuente);
    juego.DragDrop(blanco, fuente);
}

Control Mesa::Hacer(const std::string& accion) {
    const auto corte = accion.find('/');
    if (accion == "pass") {
        juego.mnuPasar_Click();
        return {};
    }
    if (corte == std::string::npos) return Presionar(Nombrado(accion));
    const bool blanca = partida.Turno == BLANCA;
    const int lugar = accion[0] != 'b' ? std::stoi(accion) : blanca ? BARRA_BLANCA : BARRA_CAFE;
    const Integer tope = Pila_En(partida, static_cast<Integer>(lugar)).Tope();
    const Control fuente = Presionar({blanca ? Arreglo::Blanca : Arreglo::Cafe, tope});
    if (fuente.Nombre == Arreglo::Ninguno) return {};
    escritorio.diario.pop_back();
    Soltar(fuente, Nombrado(accion.substr(corte + 1)));
    return fuente;
}

std::string Dados_De(const Partida& partida) {
    std::ostringstream dados;
    dados << partida.Dado1 << (partida.Dado[0].Visible ? "*" : "") << " " << partida.Dado2
          << (partida.Dado[1].Visible ? "*" : "");
    if (partida.Dobles > 0) dados << " x" << int{partida.Dobles};
    return dados.str();
}

}  // namespace corvanda::pruebas
