// Whole games, from the start-player dialog to the winner's box: the computer against somebody who
// plays White by pressing and dropping without a plan.
#include <gtest/gtest.h>

#include <iostream>

#include "tests/computer/turno_cafe.h"

namespace corvanda::pruebas {
namespace {

constexpr int PASES_DE_UN_TIRO = 4;
constexpr int MAXIMO_DE_TIROS = 3000;
constexpr Integer BANDEJA = PUNTOS;  // where White's bear-off goes

/// Plays White: of the moves that look right any, and a pass when all of them were refused.
class Atolondrado {
  public:
    Atolondrado(Mesa& mesa, std::uint32_t semilla) : mesa(mesa), azar(semilla) {}

    void Jugar() {
        std::vector<Intento> intentos = Intentos();
        const Partida antes = mesa.partida;
        const int pases = mesa.escritorio.Pases();
        while (!intentos.empty()) {
            const auto cual = static_cast<std::size_t>(azar.Rnd() * Cuantos(intentos));
            Probar(intentos[cual]);
            // A hit and Brown's answer can lead back to the same position: then events have run.
            if (mesa.partida.LST != antes.LST || mesa.escritorio.Pases() != pases) return;
            intentos.erase(intentos.begin() + static_cast<std::ptrdiff_t>(cual));
        }
        mesa.juego.mnuPasar_Click();
    }

  private:
    struct Intento {
        Integer origen, destino;
    };

    static double Cuantos(const std::vector<Intento>& intentos) {
        return static_cast<double>(intentos.size());
    }

    std::vector<Intento> Intentos() const {
        std::vector<Intento> intentos;
        const Partida& p = mesa.partida;
        const bool en_barra = Pila_En(p, BARRA_BLANCA).Cuenta() > 0;
        for (Integer i = ORIGEN_BARRA_BLANCA; i < PUNTOS; ++i) {
            if (en_barra != (i == ORIGEN_BARRA_BLANCA)) continue;
            if (Es_Punto(i) && Punto_En(p, i).Owner != BLANCA) continue;
            for (const Integer dado : {p.Dado1, p.Dado2}) {
                const auto destino = std::min(BANDEJA, static_cast<Integer>(i + dado));
                const bool fuera = destino == BANDEJA;
                if (dado == 0 || (fuera && p.Blanca_En_Casa == False)) continue;
                if (fuera || !Cerrado(p, destino, BLANCA)) intentos.push_back({i, destino});
            }
        }
        return intentos;
    }

    void Probar(Intento intento) {
        if (intento.destino != BANDEJA) {
            mesa.Jugar(intento.origen, intento.destino);
            return;
        }
        mesa.juego.Blanca_MouseDown(Pila_En(mesa.partida, intento.origen).Tope(), LeftButton);
        mesa.juego.Adios_DragDrop(1, mesa.escritorio.arrastrada);
    }

    Mesa& mesa;
    Random azar;
};

/// One number over everything that was seen and said.
class Firma {
  public:
    void Sumar(const std::string& texto) {
        for (const char letra : texto) {
            valor = (valor ^ static_cast<unsigned char>(letra)) * 1099511628211ULL;
        }
    }
    std::uint64_t valor = 14695981039346656037ULL;
};

struct Cuenta {
    int blancas = 0;   ///< games that White won
    int cafes = 0;     ///< games that Brown won
    int tiros = 0;     ///< rolls of the longest game
    int rechazos = 0;  ///< bear-offs of the computer that were refused
    Firma firma;
};

/// Enters what the last action brought; a refused bear-off beeps right before the pass.
void Leer_Diario(Mesa& mesa, Cuenta& cuenta) {
    std::string anterior;
    for (const std::string& linea : mesa.escritorio.Leer()) {
        cuenta.firma.Sumar(linea);
        if (anterior == "bip" && linea.ends_with("brown chips passed")) ++cuenta.rechazos;
        if (linea.ends_with("White Chips Won")) ++cuenta.blancas;
        if (linea.ends_with("Brown Chips won")) ++cuenta.cafes;
        ASSERT_EQ(linea.find("You have to play"), std::string::npos);
        anterior = linea;
    }
    cuenta.firma.Sumar(Texto(mesa.partida));
}

void Jugar_Partida(std::uint32_t semilla, Byte nivel, Cuenta& cuenta) {
    Computadora computadora;
    Mesa mesa(&computadora);
    mesa.escritorio.Sembrar(semilla);
    mesa.escritorio.Contestar_Siempre();
    Atolondrado blancas(mesa, semilla + 1000000);
    Volado_Fijo volado(mesa.partida, semilla % 2 == 0 ? BLANCA : CAFE);
    mesa.juego.Empezar(nivel, volado);
    while (mesa.partida.Jugando != False) {
        ASSERT_EQ(mesa.partida.Turno, BLANCA) << semilla;
        blancas.Jugar();
        ASSERT_EQ(Faltas(mesa.partida), std::vector<std::string>{}) << semilla;
        Leer_Diario(mesa, cuenta);
        ASSERT_LT(mesa.escritorio.Pases() / PASES_DE_UN_TIRO, MAXIMO_DE_TIROS) << semilla;
    }
    cuenta.tiros = std::max(cuenta.tiros, mesa.escritorio.Pases() / PASES_DE_UN_TIRO);
}

Cuenta Jugar_Partidas(int cuantas, Byte nivel) {
    Cuenta cuenta;
    for (int i = 0; i < cuantas && !testing::Test::HasFatalFailure(); ++i) {
        Jugar_Partida(static_cast<std::uint32_t>(i), nivel, cuenta);
    }
    return cuenta;
}

// The signatures change only when some game goes another way: then it is for whoever changed the
// play to see that they meant to.
TEST(Partidas, Two_Hundred_At_Beginner_Come_To_Their_Known_End) {
    const Cuenta cuenta = Jugar_Partidas(200, PRINCIPIANTE);
    EXPECT_EQ(cuenta.blancas + cuenta.cafes, 200);
    EXPECT_EQ(cuenta.firma.valor, 3954764336638158175U);
}

TEST(Partidas, Two_Hundred_At_Advanced_Come_To_Their_Known_End) {
    const Cuenta cuenta = Jugar_Partidas(200, AVANZADO);
    EXPECT_EQ(cuenta.blancas + cuenta.cafes, 200);
    EXPECT_EQ(cuenta.firma.valor, 15466931188817885945U);
    EXPECT_GT(cuenta.cafes, cuenta.blancas) << "it should beat somebody without a plan";
}

TEST(Partidas, DISABLED_Ten_Thousand_At_Each_Level) {
    for (const Byte nivel : {PRINCIPIANTE, AVANZADO}) {
        const Cuenta cuenta = Jugar_Partidas(10000, nivel);
        EXPECT_EQ(cuenta.blancas + cuenta.cafes, 10000);
        std::cout << "level " << int{nivel} << ": White " << cuenta.blancas << ", Brown "
                  << cuenta.cafes << ", longest " << cuenta.tiros << " rolls, refused "
                  << cuenta.rechazos << ", signature " << cuenta.firma.valor << "\n";
    }
}

}  // namespace
}  // namespace corvanda::pruebas
