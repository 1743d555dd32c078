// The passes of the event loop, and the end of the program when the system asks for it.
#include "desktop/event_loop.h"

#include <optional>
#include <thread>

#include "desktop/system_close.h"
#include "tests/desktop/desk.h"

namespace corvanda::pruebas {
namespace {

using namespace std::chrono_literals;

/// Stands still until somebody sleeps, who then wakes up a millisecond late.
struct TurnedClock {
    PaceClock::Point now = PaceClock::Point(1h);

    PaceClock Hands() {
        return {[this] { return now; },
                [this](PaceClock::Point end) { now = std::max(now, end) + 1ms; }};
    }
    /// Whole milliseconds that so many passes last.
    auto Of(int passes, QtEventLoop& loop) {
        const auto begin = now;
        for (int i = 0; i < passes; ++i) loop.DoEventsPaced();
        return std::chrono::floor<std::chrono::milliseconds>(now - begin).count();
    }
};

TEST(EventLoop, passes_handle_what_is_pending_and_may_run_inside_passes) {
    QtEventLoop loop;
    int depth = 0;
    const std::function<void()> nest = [&] {
        if (++depth < 5) QTimer::singleShot(0, nest);
        depth % 2 != 0 ? loop.DoEventsPaced() : loop.DoEvents();
    };
    nest();
    EXPECT_EQ(depth, 5);
}

TEST(EventLoop, three_paced_passes_are_a_cycle_however_late_a_sleep_ends) {
    TurnedClock clock;
    QtEventLoop loop(clock.Hands());
    EXPECT_EQ(clock.Of(60, loop), 200);
    QTimer::singleShot(0, [&] { clock.now += 200ms; });
    loop.DoEventsPaced();
    EXPECT_EQ(clock.Of(30, loop), 100) << "time lost inside a pass is not caught up";
}

TEST(EventLoop, passes_go_on_after_the_program_was_told_to_quit) {
    TurnedClock clock;
    QtEventLoop loop(clock.Hands());
    bool handled = false;
    QTimer::singleShot(0, [&] {
        QCoreApplication::exit(4);
        QTimer::singleShot(0, [&] { handled = true; });
        EXPECT_EQ(clock.Of(9, loop), 30);
    });
    EXPECT_EQ(QApplication::exec(), 4) << "the quit is not used up by the passes";
    EXPECT_TRUE(handled);
}

TEST(SystemClose, each_signal_and_the_sessions_quit_become_requests) {
    std::optional<SystemClose> system;
    int requests = 0, expected = 0;
    const auto listen = [&] {
        QObject::connect(&system.emplace(), &SystemClose::requested, [&] { ++requests; });
    };
    listen();
    QWidget window;
    window.show();
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
        std::thread([number] { std::raise(number); }).join();
        EXPECT_EQ(requests, expected) << "nothing is emitted inside the signal handler";
        EXPECT_TRUE(QTest::qWaitFor([&] { return requests > expected; })) << number;
        expected = requests;
        EXPECT_EXIT(std::raise(SIGINT), testing::ExitedWithCode(128 + SIGINT), "")
            << "the second signal ends the program, whether anybody listens or not";
        listen();
    }
    // Both come at the end of a session, and of a terminal.
    std::raise(SIGTERM);
    for (int i = 0; i < 70000; ++i) std::raise(SIGHUP);
    EXPECT_TRUE(QTest::qWaitFor([&] { return requests > expected; })) << "a flood blocks nobody";
    expected = requests;
    QEvent quit(QEvent::Quit);
    QCoreApplication::sendEvent(qApp, &quit);
    EXPECT_EQ(requests, expected + 1);
    EXPECT_TRUE(window.isVisible());
}

}  // namespace
}  // namespace corvanda::pruebas
