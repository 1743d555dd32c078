// The game's procedures and event handlers over one Partida: set-up, dice and turns, moves and
// hits, picking up and dropping chips, bearing off, passing, and the messages of all these. The
// window calls the handlers; the computer calls the same procedures as a person's hands do.
//
// A procedure that ends a turn calls Tirar_Dados as its last step, because the other side's whole
// turn may run inside that call: a caller must not rely on the position or the dice after it.
// Message boxes, dialogs and passes of the event loop may run any other handler; vigencia.h says
// who may go on afterwards.
//
// Bad input of the handlers (a chip, point or tray that does not exist, a tray that is hidden, a
// drop of a chip that is not on top of its stack or not of the side to move) is quietly refused and
// changes nothing.
#pragma once

#include <string>

#include "core/control.h"
#include "core/oponente.h"
#include "core/pantalla.h"
#include "core/partida.h"
#include "core/vigencia.h"
#include "core/volado.h"
#include "runtime/ports.h"

namespace corvanda {

/// What a game needs from outside; everything must outlive the game.
struct Puertos {
    MessageBoxes& Mensajes;
    EventLoop& Eventos;
    MousePointer& Puntero;
    RandomNumbers& Azar;
    WaveOut& Sonidos;
    const App& Programa;
    Pantalla& Tablero;
};

class Juego {
  public:
    /// Without a computer Brown is always played by a person.
    Juego(Partida& partida, const Puertos& puertos, Oponente* computadora = nullptr);

    // Set-up (colocacion.cpp)

    /// Creates the members of the chip arrays as copies of member 0. Once, before Ordenar.
    void Cargar_Controles();
    /// Vestir, told to the board.
    void Vestir_Tablero();
    /// Clears the board and places the starting position. Leaves Turno, Jugando, the dice values,
    /// Dobles, Nivel, Sonido and Velocidad alone.
    void Ordenar();
    /// A new game: starting position, start-player dialog, first roll. In the middle of a roll or
    /// of the computer's turn it begins as soon as that has unwound, which it makes happen; so the
    /// dialog must live as long as the game.
    void Empezar(Byte nivel, Volado& volado);

    // Dice and turns (dados.cpp)

    /// Gives the turn to the other side and throws its dice; when the computer has that side, its
    /// whole turn runs before this returns.
    void Tirar_Dados();
    /// One pass of the event loop, whatever T says; in the computer's pause it takes its time.
    void Delay(Integer T);

    // Moves (jugada.cpp)

    /// Moves the chip Ficha, top of the stack at Origen, to the point Destino if the point is not
    /// closed and a die pays; hits a lone opposing chip. Any Color but 1 counts as Brown. Knows
    /// neither turn nor direction: those are the callers' checks.
    void Mover(Integer Color, Integer Ficha, Integer Destino);
    /// Home-board count before a move into the home board; the fifteenth chip opens the tray.
    void Checar(Integer Color);

    // Picking up and dropping (arrastre.cpp)

    void Blanca_MouseDown(Integer Index, Integer Button);
    void Cafe_MouseDown(Integer Index, Integer Button);
    void Triangle_DragDrop(Integer Index, Control Source);
    void Blanca_DragDrop(Integer Index, Control Source);
    void Cafe_DragDrop(Integer Index, Control Source);
    /// The handlers above and Adios_DragDrop, by the image that was pressed or dropped on. Other
    /// images take no presses and no drops.
    void MouseDown(Control ficha, Integer Button);
    void DragDrop(Control destino, Control Source);
    /// The point (0..23) a chip image stands on, by its position alone.
    Integer GetNumber(const Image& Imagen) const;
    /// Whether a press on this chip would pick one up now.
    bool Se_Puede_Tomar(Control ficha) const;
    /// Where a drop of this chip would be accepted now: points that a shown die pays and that are
    /// open, and the own tray. Nowhere for a chip that was not picked up.
    Lugares Destinos(Control ficha) const;

    // Bearing off (salida.cpp): Index 0 is Brown's tray, 1 White's

    void Adios_DragDrop(Integer Index, Control Source);

    // Passing (pase.cpp)

    void mnuPasar_Click();

    // Messages and sounds (mensajes.cpp)

    /// Error sound and message of a refusal code; an unknown code only sounds.
    void MsgError(Integer Codigo);
    /// The error sound, or the system beep when the effects are off.
    void Beeper();

    /// The program is closing: nothing goes on, no sound or box follows.
    void Cerrar();
    bool Cerrando() const { return vigencia.Cerrando(); }

    /// For a procedure that lets events run: see vigencia.h.
    const Vigencia& Reglas() const { return vigencia; }

    /// Whether a roll that no move preceded has begun and not ended: a die may still show what it
    /// showed before, so the position need not be valid.
    bool A_Medio_Tirar() const { return vigencia.A_Medio_Tirar(); }

    const Partida& Estado() const { return partida; }
    /// For the computer, which says where its chip comes from before each move.
    void Poner_Origen(Integer origen) { partida.Origen = origen; }
    /// Whether the computer's turn is running.
    bool Computadora_Juega() const { return vigencia.Computadora_Juega(); }

  private:
    // Images (imagenes.cpp): each change is told to the board.
    Image& Imagen(Control control);
    void Colocar(Control control, Single left, Single top);
    void Mostrar(Control control, bool visible);
    void Habilitar(Control control, bool enabled);
    void Dar_Estampa(Control control, Picture estampa);
    void Al_Frente(Control control);

    Single Altura_Base(Integer punto) const;
    void Despejar();
    void Colocar_Fichas();
    void Atender_Peticiones();
    void Abrir(const Vigencia::Peticion& nueva);

    void Rodar();
    bool Pasar_Eventos(Vigencia::Testigo testigo);
    Integer Tirar_Dado();
    void Mostrar_Dado(Integer cual, Integer valor);
    void Jugar_Computadora();
    bool Le_Toca_A_La_Computadora() const;
    void Entregar_Turno();

    static constexpr Integer NINGUN_DADO = -1;
    Integer Dado_Que_Paga(Integer distancia) const;
    void Gastar_Dado(Integer cual);
    void Comer(Integer Color, Integer Destino);
    void Llevar_Ficha(Integer Color, Integer Ficha, Integer Destino);
    void Avanzar_Altura(Integer Ficha, Integer Destino);
    void Sacar_De_Origen();

    bool Entrada_Cerrada() const;
    bool Puede_Jugar(Integer color) const;
    void Presionar(Integer color, Integer Index, Integer Button);
    void Soltar(Control fuente, Integer destino);
    void Soltar_En_Ficha(Control blanco, Control fuente);
    bool Puede_Soltar(Control fuente) const;
    bool Es_Tope_De_Origen(Control fuente) const;

    Integer Dado_Que_Saca(Integer bandeja) const;
    bool Hay_Ficha_Atras() const;
    void Llevar_A_Bandeja(Integer ficha);
    bool Hay_Ganador() const;
    void Terminar(const std::string& anuncio);

    void Negar_Pase(const std::string& texto, Integer dado);
    void Aceptar_Pase(const std::string& texto);
    Integer Dado_Por_Jugar(Integer mayor, Integer menor) const;
    void Pasar_Desde_Barra(Integer mayor, Integer menor);
    void Pasar_Desde_Puntos(Integer mayor, Integer menor);

    void Avisar(const std::string& texto, Integer estilo, const std::string& titulo);
    /// Plays a sound of Sonidos/, if the person wants sounds.
    void Efecto(const char* archivo);
    /// Plays it in any case.
    void Sonar(const char* archivo);

    Partida& partida;
    const Puertos puertos;
    Oponente* const computadora;

    Vigencia vigencia;
};

}  // namespace corvanda
