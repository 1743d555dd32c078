#include "runtime/random.h"

#include <chrono>
#include <ctime>

namespace corvanda {

double Random::Rnd() {
    // All 32 bits fit a double exactly, so 1 itself can never come out.
    return static_cast<double>(twister()) / 4294967296.0;
}

void Random::Randomize() {
    using namespace std::chrono;
    const auto now = system_clock::now();
    const std::time_t seconds = system_clock::to_time_t(now);
    std::tm local{};
    localtime_r(&seconds, &local);
    const auto of_day =
        hours(local.tm_hour) + minutes(local.tm_min) + std::chrono::seconds(local.tm_sec);
    const auto rest = duration_cast<milliseconds>(now.time_since_epoch()) % 1000;
    twister.seed(
        static_cast<std::uint32_t>(duration_cast<milliseconds>(of_day).count() + rest.count()));
}

}  // namespace corvanda
