// Plays wave files, one at a time.
//
// Everything that can wait for a file or for the sound server happens in one worker thread, so that
// a server that hangs or dies never holds up the windows. Called by the game's sound effects and by
// the main window's start-up, GUI thread only.
//
// A file that is missing, unreadable, larger than 32 MiB, damaged or of an unknown coding is
// replaced by the beep: a short signal through the same device, because the toolkit's own is silent
// on many desktops. Where no device can be opened the toolkit's is all there is, and files are
// silence.
#pragma once

#include <QObject>
#include <chrono>
#include <functional>
#include <memory>
#include <thread>

#include "runtime/ports.h"

namespace corvanda {

class WaveWorker;

/// How long the player waits; tests have less time.
struct WavePatience {
    /// For another sound before the device is given back: the moves of one turn find it open.
    std::chrono::milliseconds quiet{2000};
    /// For the worker at the end.
    std::chrono::milliseconds end{1000};
};

class SdlWaveOut final : public WaveOut {
  public:
    /// `folder` is the program's folder as App::Path gives it; sounds are addressed below it.
    /// `beep` sounds the toolkit's beep, always in the GUI thread.
    explicit SdlWaveOut(std::string folder, std::function<void()> beep = SystemBeep,
                        WavePatience patience = {});
    /// Cuts off what still plays. A worker that the sound server does not let go in time is left
    /// behind; it touches nothing of this object any more.
    ~SdlWaveOut() override;
    SdlWaveOut(const SdlWaveOut&) = delete;
    SdlWaveOut& operator=(const SdlWaveOut&) = delete;

    /// Begins to count the devices beside the caller, so that the answer is there when it is asked
    /// for. Calling it is a matter of speed only.
    void LookForDevices();

    void sndPlaySound(const std::string& path) override;
    /// Counts the devices, once in a run. A server that does not answer within a second and a half
    /// of the first question counts as none; meanwhile windows are drawn, but no input is handled.
    unsigned waveOutGetNumDevs() override;
    void Beep() override;

  private:
    using Clock = std::chrono::steady_clock;

    static void SystemBeep();
    WaveWorker& Worker();

    std::string folder;
    std::function<void()> beep;
    const WavePatience patience;
    Clock::time_point asked_at{};  ///< for the number of devices; the epoch while nobody has
    QObject ear;                   ///< receives the worker's wish for a beep in the GUI thread
    std::shared_ptr<WaveWorker> worker;
    std::jthread thread;
};

}  // namespace corvanda
