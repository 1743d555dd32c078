// Passes of the toolkit's event loop for code that runs inside a handler.
//
// Called by the game between the steps of a roll and during the computer's pause. Any handler may
// run inside a pass, these calls included. Both go on working after the program was told to quit;
// they then only handle what is still pending. GUI thread only.
#pragma once

#include <chrono>
#include <functional>
#include <thread>
#include <utility>

#include "runtime/ports.h"

namespace corvanda {

/// By which a pass knows the time and waits; tests turn one of their own.
struct PaceClock {
    using Point = std::chrono::steady_clock::time_point;

    std::function<Point()> now = std::chrono::steady_clock::now;
    std::function<void(Point)> sleep_until = [](Point end) { std::this_thread::sleep_until(end); };
};

class QtEventLoop final : public EventLoop {
  public:
    explicit QtEventLoop(PaceClock clock = {}) : clock(std::move(clock)) {}

    void DoEvents() override;

    /// Calls that follow each other keep a common schedule, so that three of them last ten
    /// milliseconds on average however late each sleep ends. After a gap (a message box inside the
    /// pass, or a pause between two turns) the schedule starts anew: time that was lost is not
    /// caught up.
    void DoEventsPaced() override;

    void Sleep(int milliseconds) override;

  private:
    const PaceClock clock;
    PaceClock::Point deadline{};  ///< when the last paced pass was to end
};

}  // namespace corvanda
