// Whole games, from the start-player dialog to the winner's box, of people who press and drop
// without a plan: against each other and against the computer.
#include <gtest/gtest.h>

#include <functional>

#include "computer/computadora.h"
#include "tests/apoyo/diario.h"
#include "tests/apoyo/mesa.h"

namespace corvanda::pruebas {
namespace {

constexpr int PASES_DE_UN_TIRO = 4;
constexpr int MAXIMO_DE_TIROS = 3000;

/// Plays the side to move: of the moves that look right any, and a pass when all were refused.
class Atolondrado {
  public:
    Atolondrado(Mesa& mesa, std::uint32_t semilla) : mesa(mesa), azar(semilla) {}

    void Jugar() {
        std::vector<std::string> intentos = Intentos();
        const Partida antes = mesa.partida;
        const int pases = mesa.escritorio.Pases();
        while (!intentos.empty()) {
            const auto cual =
                static_cast<std::ptrdiff_t>(azar.Rnd() * static_cast<double>(intentos.size()));
            mesa.Hacer(intentos[static_cast<std::size_t>(cual)]);
            // A hit and the answer can lead back to the same position: then events have run.
            if (mesa.partida.LST != antes.LST || mesa.escritorio.Pases() != pases) return;
            intentos.erase(intentos.begin() + cual);
        }
        mesa.Hacer("pass");
    }

  private:
    std::vector<std::string> Intentos() const {
        std::vector<std::string> intentos;
        const Partida& p = mesa.partida;
        const bool blanca = p.Turno == BLANCA;
        const Integer barra = blanca ? ORIGEN_BARRA_BLANCA : ORIGEN_BARRA_CAFE;
        const bool en_barra = Pila_En(p, blanca ? BARRA_BLANCA : BARRA_CAFE).Cuenta() > 0;
        for (Integer i = ORIGEN_BARRA_BLANCA; i <= ORIGEN_BARRA_CAFE; ++i) {
            if (en_barra != (i == barra)) continue;
            if (i != barra && (!Es_Punto(i) || Punto_En(p, i).Owner != p.Turno)) continue;
            const std::string origen = i == barra ? "bar/" : std::to_string(i) + "/";
            for (const Integer dado : {p.Dado1, p.Dado2}) {
                const auto destino = static_cast<Integer>(i + p.Turno * dado);
                if (dado == 0) continue;
                if (Es_Punto(destino)) {
                    if (!Cerrado(p, destino, p.Turno)) intentos.push_back(origen + Meta(destino));
                } else if ((blanca ? p.Blanca_En_Casa : p.Cafe_En_Casa) != False) {
                    intentos.push_back(origen + (blanca ? "A1" : "A0"));
                }
            }
        }
        return intentos;
    }

    // A chip that lies on the point is dropped on as well as the point.
    std::string Meta(Integer punto) const {
        const Integer tope = Pila_En(mesa.partida, punto).Tope();
        if (tope < 0 || punto % 2 == 0) return std::to_string(punto);
        const bool blanca = Punto_En(mesa.partida, punto).Owner == BLANCA;
        return (blanca ? "B" : "C") + std::to_string(tope);
    }

    Mesa& mesa;
    Random azar;
};

struct Cuenta {
    int blancas = 0;                                ///< games that White won
    int cafes = 0;                                  ///< games that Brown won
    std::uint64_t firma = 14695981039346656037ULL;  ///< one number over all that was seen and said

    void Firmar(const std::string& texto) {
        for (const char letra : texto) {
            firma = (firma ^ static_cast<unsigned char>(letra)) * 1099511628211ULL;
        }
    }
};

/// Enters what the last action brought.
void Leer_Diario(Mesa& mesa, Cuenta& cuenta) {
    for (const std::string& linea : mesa.escritorio.Leer()) {
        cuenta.Firmar(linea);
        if (linea == GANA_BLANCA) ++cuenta.blancas;
        if (linea == GANA_CAFE) ++cuenta.cafes;
        ASSERT_EQ(linea.find("You have to play"), std::string::npos);
    }
    cuenta.Firmar(Texto(mesa.partida));
}

/// Whether the board was told of every image that is not as it was.
bool Todo_Avisado(const Mesa& mesa, const Partida& antes) {
    const auto& avisos = mesa.escritorio.refrescados;
    for (const Arreglo nombre : {Arreglo::Blanca, Arreglo::Cafe, Arreglo::Adios, Arreglo::Dado}) {
        for (Control control{nombre, 0}; Imagen_De(antes, control) != nullptr; ++control.Index) {
            if (*Imagen_De(mesa.partida, control) == *Imagen_De(antes, control)) continue;
            if (std::find(avisos.begin(), avisos.end(), control) == avisos.end()) return false;
        }
    }
    return true;
}

/// `antes_de_jugar` looks at each position that the person meets.
void Jugar_Partida(std::uint32_t semilla, Byte nivel, Cuenta& cuenta,
                   const std::function<void(const Mesa&)>& antes_de_jugar = {}) {
    Computadora computadora;
    Mesa mesa("", &computadora);
    mesa.escritorio.Sembrar(semilla);
    mesa.escritorio.Contestar_Siempre();
    Atolondrado persona(mesa, semilla + 1000000);
    Volado_Fijo volado(mesa.partida, semilla % 2 == 0 ? BLANCA : CAFE);
    mesa.juego.Empezar(nivel, volado);
    while (mesa.partida.Jugando != False) {
        ASSERT_TRUE(nivel == DOS_PERSONAS || mesa.partida.Turno == BLANCA) << semilla;
        const Partida antes = mesa.partida;
        if (antes_de_jugar) antes_de_jugar(mesa);
        mesa.escritorio.refrescados.clear();
        persona.Jugar();
        ASSERT_EQ(Faltas(mesa.partida), Diario{}) << semilla;
        ASSERT_TRUE(Todo_Avisado(mesa, antes)) << semilla;
        Leer_Diario(mesa, cuenta);
        ASSERT_LT(mesa.escritorio.Pases() / PASES_DE_UN_TIRO, MAXIMO_DE_TIROS) << semilla;
    }
}

Cuenta Jugar_Partidas(int cuantas, Byte nivel) {
    Cuenta cuenta;
    for (int i = 0; i < cuantas && !testing::Test::HasFatalFailure(); ++i) {
        Jugar_Partida(static_cast<std::uint32_t>(i), nivel, cuenta);
    }
    EXPECT_EQ(cuenta.blancas + cuenta.cafes, cuantas);
    return cuenta;
}

// The signatures change only when some game goes another way: then it is for whoever changed the
// play to see that they meant to.
TEST(Partidas, Two_Hundred_At_Each_Level_Come_To_Their_Known_End) {
    EXPECT_EQ(Jugar_Partidas(200, DOS_PERSONAS).firma, 11274052876504481193U);
    EXPECT_EQ(Jugar_Partidas(200, PRINCIPIANTE).firma, 13230862187166322249U);
    const Cuenta avanzado = Jugar_Partidas(200, AVANZADO);
    EXPECT_EQ(avanzado.firma, 216473672919908251U);
    EXPECT_GT(avanzado.cafes, avanzado.blancas) << "it should beat somebody without a plan";
}

/// Takes every chip that can be taken and drops it on every point and tray, each on a copy; returns
/// how many drops were accepted.
int Probar_Destinos(const Mesa& mesa, Mesa& copia) {
    int aceptados = 0;
    const Arreglo fichas = mesa.partida.Turno == BLANCA ? Arreglo::Blanca : Arreglo::Cafe;
    for (Control ficha{fichas, 0}; ficha.Index < FICHAS; ++ficha.Index) {
        copia.partida = mesa.partida;
        if (copia.Presionar(ficha) != ficha) continue;  // not on top
        const Partida en_la_mano = copia.partida;
        const Lugares destinos = copia.juego.Destinos(ficha);
        EXPECT_EQ(copia.partida, en_la_mano);
        for (Integer i = 0; i < static_cast<Integer>(LUGARES); ++i) {
            if (i == BARRA_BLANCA || i == BARRA_CAFE) continue;
            const bool blanca = i == BANDEJA_BLANCA;
            copia.partida = en_la_mano;
            copia.Soltar(ficha, Nombrado(Es_Punto(i) ? std::to_string(i) : blanca ? "A1" : "A0"));
            const bool aceptado = copia.partida.LST != mesa.partida.LST;
            EXPECT_EQ(aceptado, destinos[static_cast<std::size_t>(i)])
                << Texto(en_la_mano) << ", from " << en_la_mano.Origen << " to " << i;
            aceptados += aceptado ? 1 : 0;
        }
        copia.escritorio.Leer();
    }
    return aceptados;
}

TEST(Partidas, A_Drop_Is_Accepted_Exactly_Where_It_Was_Said_To_Be) {
    int aceptados = 0;
    Mesa copia;
    copia.escritorio.Sembrar(1);
    copia.escritorio.Contestar_Siempre();
    for (std::uint32_t semilla = 0; semilla < 12 && !HasFailure(); ++semilla) {
        Cuenta cuenta;
        Jugar_Partida(semilla, DOS_PERSONAS, cuenta,
                      [&](const Mesa& mesa) { aceptados += Probar_Destinos(mesa, copia); });
    }
    EXPECT_GT(aceptados, 1000);
}

}  // namespace
}  // namespace corvanda::pruebas
