// The game's source of chance: a Mersenne twister behind the port, seeded from the time of day or,
// for a repeatable game, by a number.
#pragma once

#include <cstdint>
#include <random>

#include "runtime/ports.h"

namespace corvanda {

class Random final : public RandomNumbers {
  public:
    Random() { Randomize(); }
    explicit Random(std::uint32_t seed) : twister(seed) {}

    double Rnd() override;
    /// Seeds from the milliseconds since midnight, local time.
    void Randomize() override;

  private:
    std::mt19937 twister;
};

}  // namespace corvanda
