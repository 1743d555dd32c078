// Refusal messages and sounds. After the program began to close nothing is shown or heard.
#include "core/juego.h"

namespace corvanda {

void Juego::MsgError(Integer Codigo) {
    const std::string invalido = "¡ Invalid Movement !";
    Beeper();
    if (Codigo == 0) {
        Avisar("You can't do that move, it is already occupied by other player.", style::Critical,
               invalido);
    } else if (Codigo == 1 && partida.Jugando != False) {
        Avisar("It is not your turn.", style::Exclamation, invalido);
    } else if (Codigo == 1) {
        Avisar("You need to start a new game to move.", style::Information, "Information :");
    } else if (Codigo == 2) {
        Avisar("You can't move backwards.", style::Critical, invalido);
    }
}

void Juego::Beeper() {
    if (Cerrando()) return;
    if (partida.Sonido != False) {
        Sonar("strike.Wav");
    } else {
        puertos.Sonidos.Beep();
    }
}

void Juego::Avisar(const std::string& texto, Integer estilo, const std::string& titulo) {
    const Mientras cede = vigencia.Ceder();
    if (!Cerrando()) puertos.Mensajes.MsgBox(texto, estilo, titulo);
}

void Juego::Efecto(const char* archivo) {
    if (partida.Sonido != False) Sonar(archivo);
}

void Juego::Sonar(const char* archivo) {
    if (!Cerrando()) {
        puertos.Sonidos.sndPlaySound(puertos.Programa.Path() + "\\Sonidos\\" + archivo);
    }
}

void Juego::Cerrar() {
    vigencia.Cerrar();
    puertos.Tablero.Cancelar_Arrastre();
}

}  // namespace corvanda
