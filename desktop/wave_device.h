// The sound device, opened when a sound comes and given back a while after the last one ended.
//
// Owns the audio library, of which only the audio part is used: it is started with the first
// question and ended by Close, so that nothing of it (threads, the connection to the sound server)
// remains while the game is quiet, and a server that was started again is found. Used by the wave
// player's worker only; any call may take as long as the sound server does. Not for two threads.
#pragma once

#include <chrono>

#include "desktop/wave_file.h"

namespace corvanda {

class WaveDevice {
  public:
    using Clock = std::chrono::steady_clock;

    /// `quiet` is how long the device is kept open without a sound.
    explicit WaveDevice(std::chrono::milliseconds quiet) : quiet(quiet) {}
    ~WaveDevice();
    WaveDevice(const WaveDevice&) = delete;
    WaveDevice& operator=(const WaveDevice&) = delete;

    /// How many devices there are; 0 when the audio library finds no server or driver at all.
    unsigned Count();

    /// Starts a sound in the place of one that still plays, which falls silent within two
    /// milliseconds. False when no device can be opened.
    bool Play(wave::Samples samples);

    bool InUse() const { return started; }
    /// When the device has been quiet long enough to be closed; of meaning while it is in use.
    Clock::time_point RestAt() const { return rest_at; }

    /// Closes the device, unless it lags and still has something to play: then it is asked again
    /// after another quiet time.
    void Rest();
    void Close();

  private:
    bool Start();
    bool Open();

    const std::chrono::milliseconds quiet;
    bool started = false;
    std::uint32_t device = 0;  ///< 0 is no device to the library as well
    Clock::time_point rest_at{};
    wave::Samples playing;  ///< the sound that was started last, whole
};

}  // namespace corvanda
