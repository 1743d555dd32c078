// The dice and the hand-over of the turn.
#include "core/comprobada.h"
#include "core/juego.h"
#include "runtime/conversion.h"

namespace corvanda {

void Juego::Tirar_Dados() {
    if (Cerrando()) return;
    const Comprobada accion(*this);
    {
        const Mientras tira = vigencia.Tirar();
        Rodar();
        Jugar_Computadora();
    }
    Atender_Peticiones();
}

void Juego::Delay(Integer /*T*/) {
    const Mientras cede = vigencia.Ceder();
    if (Computadora_Juega() && !A_Medio_Tirar() && partida.Jugando != False) {
        puertos.Eventos.DoEventsPaced();
    } else {
        puertos.Eventos.DoEvents();
    }
}

bool Juego::Pasar_Eventos(Vigencia::Testigo testigo) {
    Delay(1000);
    return vigencia.Sigue(testigo);
}

Integer Juego::Tirar_Dado() {
    return CInt(puertos.Azar.Rnd() * 5 + 1);
}

void Juego::Mostrar_Dado(Integer cual, Integer valor) {
    const Control dado{Arreglo::Dado, cual};
    Dar_Estampa(dado, partida.Dados.at(static_cast<std::size_t>(valor - 1)).Shown);
    Mostrar(dado, true);
    Al_Frente(dado);
}

// The roll. A new game or the program's end interrupts it, and then it is nobody's turn to play.
void Juego::Rodar() {
    const auto testigo = vigencia.Empezar_Otra();
    if (partida.Jugando != False) vigencia.Cerrar_Entrada();
    partida.Turno = static_cast<Integer>(-partida.Turno);
    if (!Pasar_Eventos(testigo)) return;

    partida.Dado1 = Tirar_Dado();
    Mostrar_Dado(0, partida.Dado1);
    if (!Pasar_Eventos(testigo)) return;

    partida.Dado2 = Tirar_Dado();
    partida.Dobles = partida.Dado2 == partida.Dado1 ? 2 : 0;
    if (!Pasar_Eventos(testigo)) return;

    Mostrar_Dado(1, partida.Dado2);
    if (!Pasar_Eventos(testigo)) return;

    partida.Jugando = True;
    vigencia.Abrir_Entrada();
    Efecto("click1.Wav");
}

bool Juego::Le_Toca_A_La_Computadora() const {
    return computadora != nullptr && !Cerrando() && !vigencia.Hay_Peticion() &&
           partida.Jugando != False && partida.Turno == CAFE && partida.Nivel != DOS_PERSONAS;
}

// A turn that comes up while another still unwinds (a pass given in the computer's pause can lead
// there) is taken up by the loop that is running: there is never more than one.
void Juego::Jugar_Computadora() {
    if (Computadora_Juega() || !Le_Toca_A_La_Computadora()) return;
    const auto turno = vigencia.Jugar();
    Vigencia::Testigo testigo{};
    do {
        testigo = vigencia.Tomar();
        computadora->Tirar_Computer(*this);
    } while (!vigencia.Sigue(testigo) && Le_Toca_A_La_Computadora());
}

void Juego::Entregar_Turno() {
    partida.Jugando = False;
    Tirar_Dados();
}

}  // namespace corvanda
