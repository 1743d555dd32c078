// Any sequence of handler calls, also inside the passes of the event loop and inside message boxes,
// in games of two people and against the computer at every level. Whatever comes, the position
// keeps its invariants, the computer plays one turn at a time, and a program that closes keeps
// still.
#include "bench/mudo.h"
#include "computer/computadora.h"
#include "robustez/entrada.h"

namespace corvanda {
namespace {

constexpr int PROFUNDIDAD_MAXIMA = 6;
constexpr int PASES_MAXIMOS = 20000;

/// The computer, watched.
class Vigilada final : public Oponente {
  public:
    void Tirar_Computer(Juego& juego) override {
        Exigir(!jugando, "the computer plays one turn at a time");
        const Mientras juega(jugando);
        computadora.Tirar_Computer(juego);
    }

  private:
    Computadora computadora;
    bool jugando = false;
};

class Sesion final : public Mudo {
  public:
    explicit Sesion(Entrada& entrada) : Mudo(entrada.Byte()), entrada(entrada) {
        juego.Cargar_Controles();
        juego.Ordenar();
        juego.Vestir_Tablero();
    }

    void Jugar() {
        while (!entrada.Vacia() && !juego.Cerrando() && pases < PASES_MAXIMOS) Actuar();
    }

    void DoEvents() override {
        ++pases;
        if (!entrada.Vacia() && profundidad < PROFUNDIDAD_MAXIMA && entrada.Hasta(4) == 0) Actuar();
    }
    void DoEventsPaced() override {
        Exigir(!juego.Cerrando(), "a program that closes waits for nothing");
        DoEvents();
    }
    Integer MsgBox(const std::string& /*text*/, Integer /*style*/,
                   const std::string& /*title*/) override {
        Exigir(!juego.Cerrando(), "a program that closes shows no box");
        DoEvents();
        return button::Ok;
    }
    void sndPlaySound(const std::string& /*path*/) override {
        Exigir(!juego.Cerrando(), "a program that closes makes no sound");
    }
    void Beep() override { Exigir(!juego.Cerrando(), "a program that closes does not beep"); }

  private:
    struct Dialogo final : Volado {
        explicit Dialogo(Sesion& sesion) : sesion(sesion) {}
        void Mostrar() override {
            sesion.DoEvents();
            if (sesion.entrada.Hasta(8) == 0) return;  // closed without a throw
            sesion.partida.Turno = sesion.entrada.Hasta(2) == 0 ? CAFE : BLANCA;
        }
        Sesion& sesion;
    };

    void Actuar() {
        ++profundidad;
        Uno_Cualquiera();
        --profundidad;
        Exigir(juego.A_Medio_Tirar() || Es_Valida(partida), "the position is valid");
    }

    Integer Numero() { return static_cast<Integer>(entrada.Hasta(30) - 2); }
    Control Ficha() {
        if (entrada.Hasta(4) != 0) return arrastrada;
        return {entrada.Hasta(2) == 0 ? Arreglo::Blanca : Arreglo::Cafe, Numero()};
    }

    void Uno_Cualquiera() {
        switch (entrada.Hasta(16)) {
            case 0:
                return juego.Blanca_MouseDown(Numero(), static_cast<Integer>(entrada.Hasta(3)));
            case 1:
                return juego.Cafe_MouseDown(Numero(), LeftButton);
            case 2:
                return juego.Triangle_DragDrop(Numero(), Ficha());
            case 3:
                return juego.Blanca_DragDrop(Numero(), Ficha());
            case 4:
                return juego.Cafe_DragDrop(Numero(), Ficha());
            case 5:
                return juego.Adios_DragDrop(static_cast<Integer>(entrada.Hasta(3)), Ficha());
            case 6:
                return juego.mnuPasar_Click();
            case 7:
                return juego.Empezar(static_cast<Byte>(entrada.Hasta(ULTIMO_NIVEL + 1)), dialogo);
            case 8:
                return Ajustar();
            case 9:
                return entrada.Hasta(64) == 0 ? juego.Cerrar() : juego.MsgError(Numero());
            default:
                return Jugada_Cuerda();
        }
    }

    void Ajustar() {
        partida.Velocidad = static_cast<Integer>(entrada.Hasta(5) - 1);
        partida.Sonido = entrada.Hasta(2) == 0 ? True : False;
        if (partida.Nivel != DOS_PERSONAS || entrada.Hasta(4) == 0) {
            partida.Nivel = static_cast<Byte>(PRINCIPIANTE + entrada.Hasta(ULTIMO_NIVEL));
        }
    }

    // What somebody who wants to win would do, so that games come to their end.
    void Jugada_Cuerda() {
        if (partida.Jugando == False) return juego.Empezar(partida.Nivel, dialogo);
        Jugar_Una(juego);
    }

    Entrada& entrada;
    Partida partida = Diseno();
    Vigilada computadora;
    Juego juego{partida, Todos(), &computadora};
    Dialogo dialogo{*this};
    int profundidad = 0;
    int pases = 0;
};

}  // namespace
}  // namespace corvanda

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t cuantos) {
    corvanda::Entrada entrada(datos, cuantos);
    corvanda::Sesion(entrada).Jugar();
    return 0;
}
