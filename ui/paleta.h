// The colours of the game's own drawing, each in one place: what a picture file does not bring
// itself. The pictures in imagenes/ keep to the same materials.
#pragma once

#include <QColor>

namespace corvanda::paleta {

inline constexpr QColor MARFIL(0xf9, 0xf1, 0xde);  ///< ivory: White's chips and dice
inline constexpr QColor NOGAL(0x4a, 0x1d, 0x11);   ///< walnut: Brown's chips and dice
inline constexpr QColor MADERA(0xc8, 0x9b, 0x5e);  ///< the case
inline constexpr QColor CAOBA(0x4a, 0x28, 0x14);   ///< what lies under the case's rims
inline constexpr QColor FIELTRO(0x3f, 0x84, 0x62);
inline constexpr QColor BARRO(0xbd, 0x5c, 0x3e);
inline constexpr QColor OCRE(0xa8, 0x79, 0x3a);
inline constexpr QColor LATON(0xd0, 0xa5, 0x4a);
inline constexpr QColor ROJO_OSCURO(0x80, 0, 0);  ///< the ground around the case

inline constexpr QColor LUZ(0xff, 0xdd, 0x66);      ///< where a chip in the hand may be dropped
inline constexpr QColor RECHAZO(0xe2, 0x28, 0x1c);  ///< the rim of a chip that was refused
inline constexpr QColor SOMBRA(0, 0, 0);

}  // namespace corvanda::paleta
