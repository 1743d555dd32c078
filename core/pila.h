// A stack of chip numbers: what stands at one location of the board. Item 0 is the top, the chip
// placed last; the last item is the chip that has stood there longest.
#pragma once

#include <array>
#include <string>

#include "runtime/conversion.h"
#include "runtime/types.h"

namespace corvanda {

class Pila {
  public:
    static constexpr Integer Capacidad = 30;  ///< all chips of both sides

    Integer Cuenta() const { return cuenta; }

    /// The number of the chip at an item, -1 when there is no such item.
    Integer Ficha(Integer item) const {
        return item >= 0 && item < cuenta ? fichas[static_cast<std::size_t>(cuenta - 1 - item)]
                                          : static_cast<Integer>(-1);
    }
    Integer Tope() const { return Ficha(0); }

    /// The item as text: a blank for the sign, then the digits (" 7").
    std::string Texto(Integer item) const { return Str(Ficha(item)); }

    /// Puts a chip on top; a full stack stays as it is.
    void Poner(Integer ficha) {
        if (cuenta < Capacidad)
            fichas[static_cast<std::size_t>(cuenta++)] = static_cast<std::int8_t>(ficha);
    }
    /// Takes the top chip away; an empty stack stays as it is.
    void Quitar() {
        if (cuenta > 0) fichas[static_cast<std::size_t>(--cuenta)] = 0;
    }
    void Vaciar() { *this = {}; }

    bool operator==(const Pila&) const = default;

  private:
    std::array<std::int8_t, Capacidad> fichas{};  // bottom first; 0 above the top
    Integer cuenta = 0;
};

}  // namespace corvanda
