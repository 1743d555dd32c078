// Conversions between numbers and texts as a forms runtime makes them: rounding to the nearest
// whole number with halves to the even neighbour, and number texts with a place for the sign.
#pragma once

#include <string>
#include <string_view>

#include "runtime/types.h"

namespace corvanda {

/// Nearest 16-bit number, halves to the even neighbour. A value outside the range gives the
/// nearest end of the range, a value that is no number gives 0.
Integer CInt(double value);

/// Nearest number in 0..255 by the same rules.
Byte CByte(double value);

/// The number that the longest leading part of the text spells: leading blanks, an optional sign,
/// digits with an optional point and exponent ("1e2" is 100, "12abc" is 12). 0 when the text does
/// not begin with a number. The result does not depend on the user's locale.
double Val(std::string_view text);

/// The decimal form with one leading place for the sign: a blank, or a minus (" 7", "-7").
std::string Str(Integer value);

}  // namespace corvanda
