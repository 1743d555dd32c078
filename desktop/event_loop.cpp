#include "desktop/event_loop.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>

namespace corvanda {

namespace {

constexpr std::chrono::nanoseconds slot{10'000'000 / 3};
constexpr std::chrono::milliseconds longest_gap{20};

void HandlePending() {
    QCoreApplication::processEvents();
    // When the program is told to quit, the loop outside is interrupted once, and a pass uses that
    // up where the toolkit runs its own dispatcher (without GLib): the loop would then wait for
    // another event before it looks whether it should end.
    QAbstractEventDispatcher::instance()->wakeUp();
}

}  // namespace

void QtEventLoop::DoEvents() {
    HandlePending();
}

void QtEventLoop::DoEventsPaced() {
    const auto now = clock.now();
    const bool anew = now - deadline > longest_gap;
    // A pass inside this one moves the member on; this pass keeps the end that it was given.
    const auto end = (anew ? now : deadline) + slot;
    deadline = end;
    HandlePending();
    // What arrives during the sleep waits for the next pass, a few milliseconds. The toolkit's own
    // way to wait (a nested loop with a timer) does not run any more once the program was told to
    // quit.
    clock.sleep_until(end);
}

// On Wayland what a repaint drew leaves the program only with the next look for events.
void QtEventLoop::Sleep(int milliseconds) {
    const auto end = clock.now() + std::chrono::milliseconds(milliseconds);
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents |
                                    QEventLoop::ExcludeSocketNotifiers);
    clock.sleep_until(end);
}

}  // namespace corvanda
