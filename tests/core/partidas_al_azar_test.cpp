// Whole games between two people who try whatever comes to mind.
#include <gtest/gtest.h>

#include <random>

#include "tests/apoyo/diario.h"
#include "tests/apoyo/mesa.h"

namespace corvanda::pruebas {
namespace {

// FNV-1a over everything that was seen.
class Firma {
  public:
    void Ver(const std::string& linea) {
        for (const char letra : linea + '\n') {
            valor = (valor ^ static_cast<unsigned char>(letra)) * 1099511628211ULL;
        }
    }
    std::uint64_t Valor() const { return valor; }

  private:
    std::uint64_t valor = 14695981039346656037ULL;
};

class Persona_Al_Azar {
  public:
    Persona_Al_Azar(Mesa& mesa, std::uint32_t semilla) : mesa(mesa), azar(semilla) {}

    // One thing that a person can do: the pass command, or a press and a drop.
    void Actuar() {
        if (Una_De(40)) {
            mesa.juego.mnuPasar_Click();
            return;
        }
        const Control fuente = Tomar();
        if (fuente.Nombre != Arreglo::Ninguno) Dejar(fuente);
    }

  private:
    Integer Hasta(int n) { return static_cast<Integer>(azar() % static_cast<unsigned>(n)); }
    bool Una_De(int n) { return Hasta(n) == 0; }

    // Mostly a chip of the side to move; on the bar the top one often enough.
    Control Tomar() {
        const bool blanca = (mesa.partida.Turno == BLANCA) != Una_De(30);
        const Pila& barra = Pila_En(mesa.partida, blanca ? BARRA_BLANCA : BARRA_CAFE);
        Integer ficha = Hasta(FICHAS);
        if (barra.Cuenta() > 0 && !Una_De(4)) ficha = barra.Tope();
        return mesa.Presionar({blanca ? Arreglo::Blanca : Arreglo::Cafe, ficha});
    }

    void Dejar(Control fuente) {
        const bool primero = mesa.partida.Dado[0].Visible && (Una_De(2) || Es_El_Ultimo());
        const Integer dado = primero ? mesa.partida.Dado1 : mesa.partida.Dado2;
        auto destino = static_cast<Integer>(mesa.partida.Origen + mesa.partida.Turno * dado);
        if (Una_De(10)) destino = Hasta(PUNTOS);
        const std::size_t bandeja = mesa.partida.Turno == BLANCA ? 1 : 0;
        if (mesa.partida.Adios.at(bandeja).Visible && (!Es_Punto(destino) || Una_De(6))) {
            mesa.Soltar(fuente, {Arreglo::Adios, static_cast<Integer>(bandeja)});
        } else if (Es_Punto(destino)) {
            Dejar_En(destino, fuente);
        }
    }

    bool Es_El_Ultimo() const { return !mesa.partida.Dado[1].Visible; }

    // On the point itself, or on its top chip.
    void Dejar_En(Integer destino, Control fuente) {
        const Integer tope = Pila_En(mesa.partida, destino).Tope();
        const bool blanca = Punto_En(mesa.partida, destino).Owner == BLANCA;
        if (tope < 0 || Una_De(2)) {
            mesa.Soltar(fuente, {Arreglo::Triangle, destino});
        } else {
            mesa.Soltar(fuente, {blanca ? Arreglo::Blanca : Arreglo::Cafe, tope});
        }
    }

    Mesa& mesa;
    std::mt19937 azar;
};

// Takes down what an action said and led to. A position that stays the same is not checked twice.
void Mirar(Mesa& mesa, const Partida& antes, Firma& firma) {
    for (const std::string& linea : mesa.escritorio.Leer()) firma.Ver(linea);
    firma.Ver(Texto(mesa.partida));
    if (mesa.partida == antes) return;
    ASSERT_EQ(Faltas(mesa.partida), Diario{}) << Texto(mesa.partida);
}

// Plays one game to its end; returns the winner, NADIE when there is none after all those actions.
Integer Jugar_Una(Mesa& mesa, std::uint32_t semilla, Firma& firma) {
    constexpr int ACCIONES = 20000;
    Persona_Al_Azar persona(mesa, semilla);
    Volado_Fijo volado(mesa.partida, semilla % 2 == 0 ? BLANCA : CAFE);
    mesa.partida.Sonido = semilla % 3 == 0 ? False : True;
    mesa.juego.Empezar(DOS_PERSONAS, volado);
    for (int i = 0; i < ACCIONES && mesa.partida.Jugando == True; ++i) {
        const Partida antes = mesa.partida;
        persona.Actuar();
        Mirar(mesa, antes, firma);
        if (::testing::Test::HasFailure()) return NADIE;
    }
    if (Pila_En(mesa.partida, BANDEJA_BLANCA).Cuenta() == FICHAS) return BLANCA;
    if (Pila_En(mesa.partida, BANDEJA_CAFE).Cuenta() == FICHAS) return CAFE;
    return NADIE;
}

// The number changes when the rules, a message or a sound do, and only then.
TEST(Partidas_Al_Azar, Every_Game_Stays_Valid_And_Has_A_Winner) {
    Firma firma;
    Mesa mesa;
    mesa.escritorio.Contestar_Siempre();
    mesa.escritorio.Sembrar(2024);
    int blancas = 0;
    int cafes = 0;
    for (std::uint32_t semilla = 1; semilla <= 12; ++semilla) {
        SCOPED_TRACE(semilla);
        const Integer ganador = Jugar_Una(mesa, semilla, firma);
        ASSERT_NE(ganador, NADIE) << Texto(mesa.partida);
        EXPECT_EQ(mesa.partida.Turno, BLANCA);
        ++(ganador == BLANCA ? blancas : cafes);
    }
    EXPECT_GT(blancas, 0);
    EXPECT_GT(cafes, 0);
    EXPECT_EQ(firma.Valor(), 12972394241478474766ULL);
}

}  // namespace
}  // namespace corvanda::pruebas
