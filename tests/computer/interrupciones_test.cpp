// What other hands do in the middle of the computer's turn: in a pass of its pause, and under its
// own message boxes.
#include <gtest/gtest.h>

#include "tests/computer/turno_cafe.h"

namespace corvanda::pruebas {
namespace {

/// The computer, watched for two turns at once.
class Vigilada final : public Oponente {
  public:
    void Tirar_Computer(Juego& juego) override {
        ++dentro;
        maximo = std::max(maximo, dentro);
        computadora.Tirar_Computer(juego);
        --dentro;
    }

    int maximo = 0;

  private:
    Computadora computadora;
    int dentro = 0;
};

struct Escena {
    explicit Escena(const std::string& posicion) : mesa(posicion, &vigilada) {}

    void Empezar(Byte nivel, Integer empieza) {
        volado.turno = static_cast<Integer>(-empieza);
        mesa.juego.Empezar(nivel, volado);
    }
    void Cerrar() {
        mesa.juego.Cerrar();
        mesa.escritorio.Leer();
        al_cerrar = Texto(mesa.partida);
    }

    Vigilada vigilada;
    Mesa mesa;
    Volado_Fijo volado{mesa.partida, BLANCA};
    std::string al_cerrar;
};

/// When something happens in a turn of Brown's, and what stands on the board at its end otherwise.
struct Momento {
    const char* cuando;
    const char* posicion;
    int dado1, dado2;
    int pase;  ///< of the pause, from 1; 0 is under the box that says the computer passed
    const char* sin_mas;
    const char* con_otro_nivel;
};

/// What happens, and what is left of the turn then.
struct Suceso {
    const char* que;
    std::function<void(Escena&)> accion;
    int cajas;  ///< boxes that answer it
    enum { SIN_MAS, CON_OTRO_NIVEL, COMO_ESTABA, FIJO } termina;
    const char* como = "";  ///< for FIJO: the end whatever the moment
};

using Lineas = std::vector<std::string>;

constexpr int PASES_DE_UN_TIRO = 4;

const char* const TIRADA = "turno B, dados 4+2, ";
const char* const BLOQUEADA = "blancas 19x2 21x13, cafes 12x14 barra x1";
const char* const NEGADA = "blancas 5x1 barra x14, cafes 2x2 fuera x13";
const char* const JUGADA = "blancas 0x2 11x5 16x3 18x5, cafes 5x5 7x3 12x5 19x1 21x1";
const char* const MEJOR = "blancas 0x2 11x5 16x3 18x5, cafes 5x6 7x2 12x5 19x1 23x1";

const Momento MOMENTOS[] = {
    {"in the first pass", "turn B", 4, 2, 1, JUGADA, MEJOR},
    {"in the last pass before a move", "turn B", 4, 2, 6, JUGADA, MEJOR},
    {"in the first pass after a move", "turn B", 4, 2, 7, JUGADA, MEJOR},
    {"in the last pass of the turn", "turn B", 4, 2, 12, JUGADA, MEJOR},
    {"under the box of its pass", "B 19x2 21x13 | C bar1 12x14 | turn B", 5, 3, 0, BLOQUEADA,
     BLOQUEADA},
    {"under the box after a refused bear-off", "B 5x1 bar14 | C 2x2 | turn B", 6, 5, 0, NEGADA,
     NEGADA},
};

const Suceso SUCESOS[] = {
    {"nothing", [](Escena&) {}, 0, Suceso::SIN_MAS},
    {"a press on a white chip", [](Escena& e) { e.mesa.juego.Blanca_MouseDown(0, LeftButton); }, 1,
     Suceso::SIN_MAS},
    {"a press on a brown chip", [](Escena& e) { e.mesa.juego.Cafe_MouseDown(0, LeftButton); }, 1,
     Suceso::SIN_MAS},
    {"the pass command", [](Escena& e) { e.mesa.juego.mnuPasar_Click(); }, 1, Suceso::SIN_MAS},
    {"another level", [](Escena& e) { e.mesa.partida.Nivel = AVANZADO; }, 0,
     Suceso::CON_OTRO_NIVEL},
    {"a game of two people, White begins", [](Escena& e) { e.Empezar(DOS_PERSONAS, BLANCA); }, 0,
     Suceso::FIJO, "turno B, dados 4+2, blancas 0x2 11x5 16x3 18x5, cafes 5x5 7x3 12x5 23x2"},
    {"a game of two people, Brown begins", [](Escena& e) { e.Empezar(DOS_PERSONAS, CAFE); }, 0,
     Suceso::FIJO, "turno C, dados 4+2, blancas 0x2 11x5 16x3 18x5, cafes 5x5 7x3 12x5 23x2"},
    {"a game with the computer, White begins", [](Escena& e) { e.Empezar(PRINCIPIANTE, BLANCA); },
     0, Suceso::FIJO, "turno B, dados 4+2, blancas 0x2 11x5 16x3 18x5, cafes 5x5 7x3 12x5 23x2"},
    {"a game with the computer, Brown begins", [](Escena& e) { e.Empezar(PRINCIPIANTE, CAFE); }, 0,
     Suceso::FIJO, "turno B, dados 1+2, blancas 0x2 11x5 16x3 18x5, cafes 5x5 7x3 12x5 19x1 21x1"},
    {"two new games, the second counts",
     [](Escena& e) {
         e.Empezar(PRINCIPIANTE, CAFE);
         e.Empezar(DOS_PERSONAS, CAFE);
     },
     0, Suceso::FIJO, "turno C, dados 4+2, blancas 0x2 11x5 16x3 18x5, cafes 5x5 7x3 12x5 23x2"},
    {"the end of the program", [](Escena& e) { e.Cerrar(); }, 0, Suceso::COMO_ESTABA},
    {"a new game and the end of the program",
     [](Escena& e) {
         e.Empezar(PRINCIPIANTE, CAFE);
         e.Cerrar();
     },
     0, Suceso::COMO_ESTABA},
};

std::string Final(const Momento& momento, const Suceso& suceso, const Escena& escena) {
    switch (suceso.termina) {
        case Suceso::SIN_MAS:
            return TIRADA + std::string(momento.sin_mas);
        case Suceso::CON_OTRO_NIVEL:
            return TIRADA + std::string(momento.con_otro_nivel);
        case Suceso::COMO_ESTABA:
            return escena.al_cerrar;
        case Suceso::FIJO:
            break;
    }
    return suceso.como;
}

void Preparar(const Momento& momento, const Suceso& suceso, Escena& escena) {
    Escritorio& escritorio = escena.mesa.escritorio;
    escena.mesa.partida.Nivel = PRINCIPIANTE;
    escena.mesa.partida.Velocidad = momento.pase > 0 ? 2 : 0;
    escritorio.Dados({momento.dado1, momento.dado2, 4, 2, 1, 2});
    const auto accion = [&] { suceso.accion(escena); };
    if (momento.pase > 0) {
        escritorio.En_El_Pase(PASES_DE_UN_TIRO + momento.pase, accion);
    } else {
        escritorio.Contestar(button::Ok, accion);
    }
    for (int i = 0; i < suceso.cajas; ++i) escritorio.Contestar();
}

TEST(Interrupciones, Leave_One_Game_And_One_Turn) {
    for (const Momento& momento : MOMENTOS) {
        for (const Suceso& suceso : SUCESOS) {
            SCOPED_TRACE(std::string(suceso.que) + ", " + momento.cuando);
            Escena escena(momento.posicion);
            Preparar(momento, suceso, escena);
            escena.mesa.juego.Tirar_Dados();
            EXPECT_EQ(Texto(escena.mesa.partida), Final(momento, suceso, escena));
            EXPECT_EQ(Faltas(escena.mesa.partida), Lineas{});
            EXPECT_TRUE(escena.mesa.escritorio.Respuestas_Gastadas());
            EXPECT_FALSE(escena.mesa.escritorio.reloj_de_arena);
            EXPECT_FALSE(escena.mesa.juego.Computadora_Juega());
            EXPECT_EQ(escena.vigilada.maximo, 1);
            if (escena.mesa.juego.Cerrando()) {
                EXPECT_EQ(escena.mesa.escritorio.Leer(), Lineas{});
            }
        }
    }
}

TEST(Interrupciones, A_Pass_In_The_Pause_Is_The_Only_One) {
    Escena escena("B 19x2 21x13 | C bar1 12x14 | turn B");
    escena.mesa.partida.Nivel = PRINCIPIANTE;
    escena.mesa.partida.Velocidad = 2;
    escena.mesa.escritorio.Dados({5, 3, 4, 2});
    escena.mesa.escritorio.Contestar();
    escena.mesa.escritorio.En_El_Pase(PASES_DE_UN_TIRO + 2,
                                      [&] { escena.mesa.juego.mnuPasar_Click(); });
    escena.mesa.juego.Tirar_Dados();
    EXPECT_EQ(Texto(escena.mesa.partida), TIRADA + std::string(BLOQUEADA));
    EXPECT_EQ(escena.mesa.escritorio.Pases(), 2 * PASES_DE_UN_TIRO + 2) << "the pause goes on";
    EXPECT_EQ(escena.mesa.escritorio.Leer().size(), 1U);
}

TEST(Interrupciones, A_New_Game_Under_The_Winners_Box_Is_Played) {
    Escena escena("B 18x15 | C 0x1 | turn B");
    escena.mesa.partida.Nivel = AVANZADO;
    escena.mesa.escritorio.Dados({1, 2, 4, 2, 1, 2});
    escena.mesa.escritorio.Contestar(button::Ok, [&] { escena.Empezar(PRINCIPIANTE, CAFE); });
    escena.mesa.juego.Tirar_Dados();
    EXPECT_EQ(Texto(escena.mesa.partida), "turno B, dados 1+2, " + std::string(JUGADA));
    EXPECT_TRUE(Es_Valida(escena.mesa.partida));
    EXPECT_EQ(escena.vigilada.maximo, 1);
}

}  // namespace
}  // namespace corvanda::pruebas
