// The thread behind the wave player: what is asked of it, and its loop.
//
// The wave player and the thread own it together, so that a thread that hangs in the sound server
// can be left behind. Of several requests that wait, the newest sound is the only one played. All
// members may be called from any thread; only Run waits for files and for the sound server.
#pragma once

#include <QObject>
#include <QString>
#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <optional>
#include <stop_token>
#include <utility>

namespace corvanda {

class WaveDevice;

class WaveWorker {
  public:
    using Milliseconds = std::chrono::milliseconds;

    /// `beep` is called in the thread of `ear`, by an event to it; `ear` must live until ForgetEar.
    /// `quiet` is for the device.
    WaveWorker(QObject& ear, std::function<void()> beep, Milliseconds quiet)
        : ear(&ear), beep(std::move(beep)), quiet(quiet) {}

    /// The thread's function; returns soon after a stop was requested. A second run is not
    /// possible.
    void Run(const std::stop_token& stop);

    /// A file that cannot be played is replaced by the signal, and that by the system beep where no
    /// device plays.
    void Play(const QString& file);
    void CountDevices();
    /// The number of devices, or nothing when it is not known in time. CountDevices must have been
    /// called.
    std::optional<unsigned> WaitForCount(Milliseconds patience);

    /// No beep is asked for after this returns.
    void ForgetEar();
    /// Whether Run has returned in time.
    bool WaitForEnd(Milliseconds patience);

  private:
    struct Task {
        std::optional<QString> sound;
        bool count = false;
    };

    Task Next(const std::stop_token& stop, const WaveDevice& device);
    void Do(const Task& task, WaveDevice& device);
    void AskForBeep();

    std::mutex mutex;
    std::condition_variable_any wake;    ///< the worker waits for a task
    std::condition_variable_any answer;  ///< the player waits for the worker
    Task task;
    std::optional<unsigned> devices;
    bool ended = false;
    QObject* ear;
    std::function<void()> beep;
    const Milliseconds quiet;
};

}  // namespace corvanda
