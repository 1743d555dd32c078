// The whole state of a game, as plain data: where the thirty chips are, who moves, the dice, the
// flags, and the images that show it. Everything else reads and changes this one copy; nothing
// keeps another.
//
// Colours: 1 White (Blanca), -1 Brown (Cafe), 0 nobody. Points 0..23: White moves up and has its
// home on 18..23, Brown moves down and has its home on 0..5. Lengths and positions are twips
// inside the board case.
#pragma once

#include <array>
#include <bitset>
#include <string>
#include <vector>

#include "core/pila.h"
#include "runtime/image.h"
#include "runtime/types.h"

namespace corvanda {

inline constexpr Integer BLANCA = 1;
inline constexpr Integer CAFE = -1;
inline constexpr Integer NADIE = 0;

inline constexpr Integer PUNTOS = 24;  ///< points of the board
inline constexpr Integer FICHAS = 15;  ///< chips of a side
inline constexpr Integer PUNTOS_DE_CASA = 6;

/// Locations of LST beyond the points.
inline constexpr Integer BARRA_CAFE = 24;
inline constexpr Integer BARRA_BLANCA = 25;
inline constexpr Integer BANDEJA_BLANCA = 26;
inline constexpr Integer BANDEJA_CAFE = 27;

inline constexpr std::size_t LUGARES = 28;  ///< all locations of LST
/// A set of them.
using Lugares = std::bitset<LUGARES>;

/// Values of Origen beyond the points.
inline constexpr Integer ORIGEN_BARRA_BLANCA = -1;
inline constexpr Integer ORIGEN_BARRA_CAFE = 24;
inline constexpr Integer ORIGEN_COLOCACION = -2;  ///< the starting position is being placed

/// Values of Nivel.
inline constexpr Byte DOS_PERSONAS = 0;
inline constexpr Byte PRINCIPIANTE = 1;
inline constexpr Byte AVANZADO = 2;
inline constexpr Byte ULTIMO_NIVEL = AVANZADO;

struct Punto {
    Single Y = 0;       ///< Top of the next chip put on this point
    Integer Owner = 0;  ///< colour on the point

    bool operator==(const Punto&) const = default;
};

/// What the dialogs share with the game.
struct Modulo1 {
    std::array<Punto, PUNTOS> Puntos{};
    Integer Turno = NADIE;      ///< side to move; NADIE until the first game
    Boolean Sonido = False;     ///< sound effects on
    Byte Nivel = DOS_PERSONAS;  ///< who plays Brown: a person, or the computer at a level
    Integer Velocidad = 0;      ///< the computer's pause, in cycles; below 1 there is none

    bool operator==(const Modulo1&) const = default;
};

struct Partida : Modulo1 {
    Integer Origen = 0;       ///< where the chip being moved comes from: a point or ORIGEN_...
    Boolean Jugando = False;  ///< the dice are thrown and chips may be moved
    Integer Dado1 = 0;        ///< 1..6, 0 once used
    Integer Dado2 = 0;
    Boolean Cafe_En_Casa = False;    ///< once all brown chips were home: Brown may bear off
    Boolean Blanca_En_Casa = False;  ///< the same for White; neither is taken back in a game
    Byte Dobles = 0;                 ///< further uses of the first die after a double
    Integer Altura_Cafe = 0;         ///< where the next chip goes in the tray, below the tray's Top
    Integer Altura_Blanca = 0;

    std::array<Pila, LUGARES> LST{};  ///< the chips on the points, the bars and the trays

    std::array<Image, 2> Tablero{};
    std::array<Image, PUNTOS> Triangle{};
    std::array<Image, FICHAS> Blanca{};
    std::array<Image, FICHAS> Cafe{};
    std::array<Image, 2> Adios{};  ///< trays: 0 Brown's, 1 White's
    std::array<Image, 2> Dado{};   ///< an image shown is a die that may still be used
    std::array<Image, 6> Dados{};  ///< hidden store of the six faces
    std::int32_t Frente = 0;       ///< the greatest ZOrder given so far

    bool operator==(const Partida&) const = default;
};

/// The window's layout before any chip is placed: every image at its design place, nothing shown
/// that only a game shows.
Partida Diseno();
/// Gives the board halves and points of that layout their pictures and fits the halves to the
/// points.
void Vestir(Partida& partida);

/// Bounds-checked access for index values that the game computes with 16-bit arithmetic.
inline Pila& Pila_En(Partida& partida, Integer lugar) {
    return partida.LST.at(static_cast<std::size_t>(lugar));
}
inline const Pila& Pila_En(const Partida& partida, Integer lugar) {
    return partida.LST.at(static_cast<std::size_t>(lugar));
}
inline Punto& Punto_En(Modulo1& modulo, Integer punto) {
    return modulo.Puntos.at(static_cast<std::size_t>(punto));
}
inline const Punto& Punto_En(const Modulo1& modulo, Integer punto) {
    return modulo.Puntos.at(static_cast<std::size_t>(punto));
}

inline bool Es_Punto(Integer lugar) {
    return lugar >= 0 && lugar < PUNTOS;
}

/// Whether the point is held by two or more chips of the other side.
inline bool Cerrado(const Partida& partida, Integer punto, Integer color) {
    return Punto_En(partida, punto).Owner == -color && Pila_En(partida, punto).Cuenta() > 1;
}

/// What is wrong with a position between two actions, one line each: a chip in two places or none,
/// an image where its stack does not say, a flag that no rule can set. Empty when all is right.
std::vector<std::string> Faltas(const Partida& partida);

/// Whether the position keeps every invariant.
bool Es_Valida(const Partida& partida);

/// The position in one line, for messages of tests and debug builds:
/// "turno B, dados 6+4, blancas 0x2 11x5 16x3 18x5, cafes 5x5 7x3 12x5 23x2".
std::string Texto(const Partida& partida);

}  // namespace corvanda
