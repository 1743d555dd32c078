// The dice and the hand-over of the turn.
#include "core/comprobada.h"
#include "core/juego.h"
#include "runtime/conversion.h"

namespace corvanda {

namespace {

/// Counts a level of nesting for as long as a procedure runs.
class Dentro {
  public:
    explicit Dentro(int& profundidad) : profundidad(profundidad) { ++profundidad; }
    ~Dentro() { --profundidad; }
    Dentro(const Dentro&) = delete;
    Dentro& operator=(const Dentro&) = delete;

  private:
    int& profundidad;
};

}  // namespace

void Juego::Tirar_Dados() {
    if (Cerrando()) return;
    const Comprobada accion(*this);
    {
        const Dentro dentro(profundidad);
        Rodar();
        Jugar_Computadora();
    }
    Atender_Peticiones();
}

void Juego::Delay(Integer /*T*/) {
    const Mientras ceden(computadora_actua, false);
    if (computadora_juega && !sin_entrada && partida.Jugando != False) {
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
    if (partida.Jugando != False) sin_entrada = true;
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
    sin_entrada = false;
    Efecto("click1.Wav");
}

bool Juego::Le_Toca_A_La_Computadora() const {
    return computadora != nullptr && !Cerrando() && !peticion && partida.Jugando != False &&
           partida.Turno == CAFE && partida.Nivel != DOS_PERSONAS;
}

// A turn that comes up while another still unwinds (a pass given in the computer's pause can lead
// there) is taken up by the loop that is running: there is never more than one.
void Juego::Jugar_Computadora() {
    if (computadora_juega || !Le_Toca_A_La_Computadora()) return;
    const Mientras juega(computadora_juega);
    const Mientras actua(computadora_actua);
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
