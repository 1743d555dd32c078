#include "tests/computer/turno_cafe.h"

#include <gtest/gtest.h>

namespace corvanda::pruebas {

namespace {

int Cafes_En(const Partida& partida, Integer lugar) {
    if (Es_Punto(lugar) && Punto_En(partida, lugar).Owner != CAFE) return 0;
    return Pila_En(partida, lugar).Cuenta();
}

std::string Nombre(Integer lugar) {
    if (lugar == BARRA_CAFE) return "bar";
    return lugar == BANDEJA_CAFE ? "off" : std::to_string(lugar);
}

/// The brown move between two positions, empty when there was none. A brown chip that is hit is
/// no move of Brown's.
std::string Movimiento(const Partida& antes, const Partida& despues) {
    std::string desde;
    std::string hasta;
    for (Integer lugar = 0; lugar <= BANDEJA_CAFE; ++lugar) {
        if (lugar == BARRA_BLANCA || lugar == BANDEJA_BLANCA) continue;
        const int cambio = Cafes_En(despues, lugar) - Cafes_En(antes, lugar);
        if (cambio == -1 && desde.empty()) {
            desde = Nombre(lugar);
        } else if (cambio == 1 && hasta.empty()) {
            hasta = Nombre(lugar);
        } else if (cambio != 0) {
            return "?";
        }
    }
    if (desde == hasta) return "";
    const bool golpe =
        Pila_En(despues, BARRA_BLANCA).Cuenta() > Pila_En(antes, BARRA_BLANCA).Cuenta();
    return desde + "/" + hasta + (golpe ? "*" : "");
}

void Agregar(std::string& texto, const std::string& palabra) {
    if (palabra.empty()) return;
    texto += (texto.empty() ? "" : " ") + palabra;
}

}  // namespace

void Cronista::Vigilar() {
    mesa.escritorio.En_El_Pase(1, [this] {
        Mirar();
        Vigilar();
    });
}

// In a roll the dice are between two throws; at any other time the position must be sound.
void Cronista::Mirar() {
    if (mesa.partida.Turno == CAFE) {
        EXPECT_EQ(Faltas(mesa.partida), std::vector<std::string>{}) << Texto(mesa.partida);
    }
    Agregar(moves, Movimiento(antes, mesa.partida));
    antes = mesa.partida;
}

std::string Cronista::Leer() {
    Mirar();
    return moves;
}

std::string Turno_Jugado(const std::string& posicion, Byte nivel) {
    Mesa mesa(posicion);
    mesa.partida.Nivel = nivel;
    mesa.partida.Velocidad = 1;
    mesa.escritorio.Dados({1, 2});
    mesa.escritorio.Contestar_Siempre();
    Cronista cronista(mesa);
    Computadora computadora;
    computadora.Tirar_Computer(mesa.juego);
    std::string moves = cronista.Leer();
    for (const std::string& linea : mesa.escritorio.Leer()) {
        if (linea.ends_with("passed")) Agregar(moves, "pass");
        if (linea.find("You have to play") != std::string::npos) Agregar(moves, "refused");
    }
    return moves;
}

}  // namespace corvanda::pruebas
