// The bytes of one fuzzing input, taken one after the other; past their end there are only zeros.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace corvanda {

class Entrada {
  public:
    Entrada(const std::uint8_t* datos, std::size_t cuantos) : datos(datos), quedan(cuantos) {}

    bool Vacia() const { return quedan == 0; }

    std::uint8_t Byte() {
        if (quedan == 0) return 0;
        --quedan;
        return *datos++;
    }
    /// 0 to n - 1.
    int Hasta(int n) { return Byte() % n; }
    std::string Resto() const { return {reinterpret_cast<const char*>(datos), quedan}; }

  private:
    const std::uint8_t* datos;
    std::size_t quedan;
};

/// Ends the run with a finding when something that must hold does not.
inline void Exigir(bool cierto, const char* que) {
    if (cierto) return;
    std::fprintf(stderr, "this does not hold: %s\n", que);
    std::abort();
}

}  // namespace corvanda
