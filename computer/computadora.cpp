#include "computer/computadora.h"

#include <algorithm>

#include "computer/busqueda.h"

namespace corvanda {

namespace {

constexpr int PASES_POR_CICLO = 3;
constexpr Integer ESPERA = 32000;

/// What every move, bear-off or roll changes some part of.
struct Huella {
    explicit Huella(const Partida& partida)
        : LST(partida.LST),
          dados{partida.Dado1, partida.Dado2, partida.Dobles},
          a_la_vista{partida.Dado[0].Visible, partida.Dado[1].Visible} {}

    bool operator==(const Huella&) const = default;

    std::array<Pila, 28> LST;
    std::array<Integer, 3> dados;
    std::array<bool, 2> a_la_vista;
};

/// One turn of Brown's: whether it still goes on, and what keeps it from standing still.
class Turno_De_Cafe {
  public:
    explicit Turno_De_Cafe(Juego& juego) : juego(juego), testigo(juego.Reglas().Tomar()) {}

    bool Sigue() const {
        const Partida& partida = juego.Estado();
        return juego.Reglas().Sigue(testigo) && partida.Turno == CAFE && partida.Jugando != False;
    }

    /// The pause before a move; returns whether the turn goes on after it.
    bool Esperar() const {
        const int pases = PASES_POR_CICLO * juego.Estado().Velocidad;
        for (int i = 0; i < pases && Sigue(); ++i) juego.Delay(ESPERA);
        return Sigue();
    }

    /// Ends a turn in which nothing has happened since the print was taken: the game has refused
    /// the choice and would refuse it again.
    void Destrabar(const Huella& antes) const {
        if (Quieto(antes)) juego.mnuPasar_Click();
        if (Quieto(antes)) juego.Tirar_Dados();
    }

  private:
    bool Quieto(const Huella& antes) const { return Sigue() && Huella(juego.Estado()) == antes; }

    Juego& juego;
    const Vigencia::Testigo testigo;
};

}  // namespace

// The dice are read before the pause, everything else after it.
void Computadora::Tirar_Computer(Juego& juego) {
    const Turno_De_Cafe turno(juego);
    while (turno.Sigue()) {
        auto [Menor, Mayor] = std::minmax({juego.Estado().Dado1, juego.Estado().Dado2});
        if (!turno.Esperar()) return;
        const Huella antes(juego.Estado());
        Jugar_Una(juego, Mayor, Menor);
        turno.Destrabar(antes);
    }
}

void Computadora::Jugar_Una(Juego& juego, Integer& Mayor, Integer& Menor) {
    Busqueda busqueda(juego);
    if (Pila_En(juego.Estado(), BARRA_CAFE).Cuenta() > 0) {
        Meter_Ficha(juego, Mayor, Menor);
    } else if (juego.Estado().Cafe_En_Casa != False) {
        busqueda.Sacar(Mayor, Menor);
    } else {
        busqueda.Buscar_Tiro(Mayor, Menor);
    }
}

// A die that is used up would lead back to the bar, which is no point.
void Computadora::Meter_Ficha(Juego& juego, Integer LDado1, Integer Ldado2) {
    for (const Integer dado : {LDado1, Ldado2}) {
        const auto destino = static_cast<Integer>(ORIGEN_BARRA_CAFE - dado);
        if (!Es_Punto(destino) || Cerrado(juego.Estado(), destino, CAFE)) continue;
        juego.Poner_Origen(ORIGEN_BARRA_CAFE);
        juego.Mover(CAFE, Pila_En(juego.Estado(), BARRA_CAFE).Tope(), destino);
        return;
    }
    juego.mnuPasar_Click();
}

}  // namespace corvanda
