// The number types of a forms runtime, by the names that the rest of the game uses.
//
// Flags are 16 bits wide with True = -1 and False = 0, so that two flags can be combined by a
// bitwise And; any value other than 0 counts as true.
#pragma once

#include <cstdint>

namespace corvanda {

using Integer = std::int16_t;
using Byte = std::uint8_t;
using Single = float;
using Boolean = Integer;

inline constexpr Boolean True = -1;
inline constexpr Boolean False = 0;

}  // namespace corvanda
