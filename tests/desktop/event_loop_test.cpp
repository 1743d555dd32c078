// The passes of the event loop, and the end of the program when the system asks for it.
#include "desktop/event_loop.h"

#include <ctime>
#include <thread>

#include "desktop/system_close.h"
#include "tests/desktop/desk.h"

namespace corvanda::pruebas {
namespace {

using namespace std::chrono_literals;

std::chrono::nanoseconds TimeOf(QtEventLoop& loop, int passes) {
    const auto begin = std::chrono::steady_clock::now();
    for (int i = 0; i < passes; ++i) loop.DoEventsPaced();
    return std::chrono::steady_clock::now() - begin;
}

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

TEST(EventLoop, three_paced_passes_are_a_cycle_and_cost_no_processor_time) {
    QtEventLoop loop;
    QTimer timer;
    int ticks = 0;
    QObject::connect(&timer, &QTimer::timeout, [&] { ++ticks; });
    timer.start(10);
    loop.DoEventsPaced();
    const std::clock_t used = std::clock();
    EXPECT_GE(TimeOf(loop, 60), 190ms);
    EXPECT_LT(std::clock() - used, CLOCKS_PER_SEC / 10) << "waited by turning round and round";
    EXPECT_GE(ticks, 5);
    QTimer::singleShot(0, [] { std::this_thread::sleep_for(200ms); });
    loop.DoEventsPaced();
    EXPECT_GE(TimeOf(loop, 30), 80ms) << "time lost inside a pass is not caught up";
}

TEST(EventLoop, passes_go_on_after_the_program_was_told_to_quit) {
    QtEventLoop loop;
    bool handled = false;
    std::chrono::nanoseconds lasted{};
    QTimer::singleShot(0, [&] {
        QCoreApplication::exit(4);
        QTimer::singleShot(0, [&] { handled = true; });
        loop.DoEvents();
        lasted = TimeOf(loop, 9);
    });
    EXPECT_EQ(QApplication::exec(), 4) << "the quit is not used up by the passes";
    EXPECT_TRUE(handled);
    EXPECT_GE(lasted, 25ms);
}

class SystemCloseTest : public testing::Test {
  protected:
    SystemCloseTest() {
        QObject::connect(&system, &SystemClose::requested, [this] { ++requests; });
    }
    int requests = 0;
    SystemClose system;
};

TEST_F(SystemCloseTest, each_signal_and_the_sessions_quit_become_requests) {
    QWidget window;
    window.show();
    int expected = 0;
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
        std::thread([number] { std::raise(number); }).join();
        EXPECT_EQ(requests, expected) << "nothing is emitted inside the signal handler";
        EXPECT_TRUE(QTest::qWaitFor([&] { return requests > expected; })) << number;
        expected = requests;
    }
    for (int i = 0; i < 100000; ++i) std::raise(SIGTERM);
    EXPECT_TRUE(QTest::qWaitFor([&] { return requests > expected; })) << "a flood blocks nobody";
    expected = requests;
    QEvent quit(QEvent::Quit);
    QCoreApplication::sendEvent(qApp, &quit);
    EXPECT_EQ(requests, expected + 1);
    EXPECT_TRUE(window.isVisible());
}

}  // namespace
}  // namespace corvanda::pruebas
