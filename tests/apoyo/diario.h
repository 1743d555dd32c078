// The lines that tests expect in a journal, and a computer that does what a test tells it.
#pragma once

#include <algorithm>
#include <functional>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "core/juego.h"

namespace corvanda::pruebas {

using Diario = std::vector<std::string>;

inline std::string Suena(const std::string& archivo) {
    return "sonido /opt/juegos de mesa/corvanda\\Sonidos\\" + archivo + ".Wav";
}

inline constexpr const char* BIP = "bip";
inline constexpr const char* OCUPADO =
    "caja 16 [¡ Invalid Movement !] "
    "You can't do that move, it is already occupied by other player.";
inline constexpr const char* NO_ES_SU_TURNO = "caja 48 [¡ Invalid Movement !] It is not your turn.";
inline constexpr const char* SIN_JUEGO =
    "caja 64 [Information :] You need to start a new game to move.";
inline constexpr const char* HACIA_ATRAS =
    "caja 16 [¡ Invalid Movement !] You can't move backwards.";
inline constexpr const char* GANA_BLANCA = "caja 48 [¡ You Win !] The player with White Chips Won";
inline constexpr const char* GANA_CAFE = "caja 48 [¡ You Win !] The player with Brown Chips won";

/// The journal of some sounds and a box. With the effects off the error sound is a beep and only
/// the applause is heard.
inline Diario Se_Oye(Boolean efectos, const std::string& sonidos, const std::string& caja = "") {
    Diario lineas;
    std::istringstream nombres(sonidos);
    for (std::string nombre; nombres >> nombre;) {
        if (efectos != False || nombre == "applaus") {
            lineas.push_back(Suena(nombre));
        } else if (nombre == "strike") {
            lineas.emplace_back(BIP);
        }
    }
    if (!caja.empty()) lineas.push_back(caja);
    return lineas;
}

/// A computer whose turns are written by the test; it counts them.
struct Guion : Oponente {
    void Tirar_Computer(Juego& juego) override {
        ++turnos;
        if (turno) turno(juego);
    }
    std::function<void(Juego&)> turno;
    int turnos = 0;
};

}  // namespace corvanda::pruebas
