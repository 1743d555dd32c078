// Wave files as the samples that the device takes: 16 bits, two channels, 44100 frames a second.
//
// Free functions without state, called by the wave player's worker at every play, because a file
// that changes on the disk is to be heard at its next play.
#pragma once

#include <QString>
#include <cstdint>
#include <optional>
#include <vector>

namespace corvanda::wave {

inline constexpr int Rate = 44100;
inline constexpr int Channels = 2;
inline constexpr int BytesPerSecond = Rate * Channels * 2;

using Samples = std::vector<std::uint8_t>;

/// The samples of a file, in the machine's byte order. Nothing for a file that is missing, not an
/// ordinary file, unreadable, larger than 32 MiB, damaged, of an unknown coding, or that would
/// become longer than about twelve minutes.
std::optional<Samples> ReadWaveFile(const QString& file);

/// A short tone of our own, for what has no file.
Samples Signal();

}  // namespace corvanda::wave
