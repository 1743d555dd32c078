// The pass: refused while the dice still allow a move that this looks for. It knows entering from
// the bar and plain moves between points, not bearing off.
#include <algorithm>

#include "core/bandos.h"
#include "core/comprobada.h"
#include "core/juego.h"

namespace corvanda {

void Juego::mnuPasar_Click() {
    const Comprobada accion(*this);
    if (partida.Jugando == False || Entrada_Cerrada()) return;
    const Integer mayor = std::max(partida.Dado1, partida.Dado2);
    const Integer menor = std::min(partida.Dado1, partida.Dado2);
    if (Pila_En(partida, Bando_De(partida.Turno).barra).Cuenta() > 0) {
        Pasar_Desde_Barra(mayor, menor);
    } else {
        Pasar_Desde_Puntos(mayor, menor);
    }
}

void Juego::Pasar_Desde_Barra(Integer mayor, Integer menor) {
    const Bando& bando = Bando_De(partida.Turno);
    const auto entra = [&](Integer dado) {
        const auto punto = static_cast<Integer>(bando.entrada + bando.color * dado);
        return !Cerrado(partida, punto, bando.color);
    };
    const std::string texto = "You have to play the ";
    if (entra(mayor)) {
        Negar_Pase(texto, mayor);
    } else if (menor == 0 || !entra(menor)) {
        // The article that is missing here, and the blank in the other question, are part of the
        // texts.
        Aceptar_Pase(bando.color == CAFE ? "The player with brown chips passed"
                                         : "The player with the white chips passed");
    } else {
        Negar_Pase(texto, menor);
    }
}

void Juego::Pasar_Desde_Puntos(Integer mayor, Integer menor) {
    const Integer dado = Dado_Por_Jugar(mayor, menor);
    if (dado != 0) {
        Negar_Pase("You have to play the  ", dado);
    } else {
        Aceptar_Pase(partida.Turno == CAFE ? "The player with the brown chips passed"
                                           : "The player with the white chips passed");
    }
}

// The die of the first move found from point 0 upwards, 0 for none. A point from which the larger
// die leaves the board ends the search, unless a smaller die keeps a white chip on it.
Integer Juego::Dado_Por_Jugar(Integer mayor, Integer menor) const {
    const Integer turno = partida.Turno;
    for (Integer i = 0; i < PUNTOS; ++i) {
        if (Punto_En(partida, i).Owner != turno || Pila_En(partida, i).Cuenta() == 0) continue;
        const auto lejos = static_cast<Integer>(i + turno * mayor);
        const auto cerca = static_cast<Integer>(i + turno * menor);
        if (Es_Punto(lejos)) {
            if (!Cerrado(partida, lejos, turno)) return mayor;
        } else if (menor == 0 || cerca >= PUNTOS || lejos < 0) {
            return 0;
        }
        if (menor != 0 && !Cerrado(partida, cerca, turno)) return menor;
    }
    return 0;
}

void Juego::Negar_Pase(const std::string& texto, Integer dado) {
    Beeper();
    Avisar(texto + std::to_string(static_cast<int>(dado)), style::Information, "Corvanda :");
}

void Juego::Aceptar_Pase(const std::string& texto) {
    const auto testigo = vigencia.Tomar();
    Avisar(texto, style::Information, "Corvanda");
    if (vigencia.Sigue(testigo) && partida.Jugando != False) Tirar_Dados();
}

}  // namespace corvanda
