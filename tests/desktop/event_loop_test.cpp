#include "desktop/event_loop.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QTimer>
#include <chrono>
#include <ctime>
#include <thread>

namespace corvanda {
namespace {

using Clock = std::chrono::steady_clock;
using namespace std::chrono_literals;

/// Runs an action in the next pass.
template <class Action>
void Post(Action action) {
    QMetaObject::invokeMethod(qApp, action, Qt::QueuedConnection);
}

Clock::duration TimeOf(const std::function<void()>& action) {
    const auto begin = Clock::now();
    action();
    return Clock::now() - begin;
}

TEST(EventLoopTest, both_passes_handle_what_is_pending) {
    QtEventLoop loop;
    const std::function<void()> passes[] = {[&] { loop.DoEvents(); },
                                            [&] { loop.DoEventsPaced(); }};
    for (const auto& pass : passes) {
        int handled = 0;
        Post([&] { ++handled; });
        Post([&] { ++handled; });
        pass();
        EXPECT_EQ(handled, 2);
    }
}

TEST(EventLoopTest, timers_fire_during_paced_passes) {
    QtEventLoop loop;
    QTimer timer;
    int ticks = 0;
    QObject::connect(&timer, &QTimer::timeout, [&] { ++ticks; });
    timer.start(10);
    for (int i = 0; i < 60; ++i) loop.DoEventsPaced();
    EXPECT_GE(ticks, 5);
}

TEST(EventLoopTest, three_paced_passes_are_a_cycle_and_cost_no_processor_time) {
    QtEventLoop loop;
    loop.DoEventsPaced();
    const std::clock_t used = std::clock();
    const auto lasted = TimeOf([&] {
        for (int i = 0; i < 60; ++i) loop.DoEventsPaced();
    });
    EXPECT_GE(lasted, 190ms);
    EXPECT_LT(std::clock() - used, CLOCKS_PER_SEC / 10) << "waited by turning round and round";
}

TEST(EventLoopTest, time_lost_inside_a_pass_is_not_caught_up) {
    QtEventLoop loop;
    loop.DoEventsPaced();
    Post([] { std::this_thread::sleep_for(200ms); });
    loop.DoEventsPaced();
    EXPECT_GE(TimeOf([&] {
                  for (int i = 0; i < 30; ++i) loop.DoEventsPaced();
              }),
              80ms);
}

TEST(EventLoopTest, passes_may_run_inside_passes) {
    QtEventLoop loop;
    int depth = 0;
    int deepest = 0;
    std::function<void()> nest = [&] {
        deepest = std::max(deepest, ++depth);
        if (depth < 5) Post(nest);
        depth % 2 != 0 ? loop.DoEventsPaced() : loop.DoEvents();
        --depth;
    };
    Post(nest);
    loop.DoEvents();
    EXPECT_EQ(deepest, 5);
    EXPECT_EQ(depth, 0);
}

TEST(EventLoopTest, passes_work_after_the_program_was_told_to_quit) {
    QtEventLoop loop;
    bool handled = false;
    Clock::duration lasted{};
    QTimer::singleShot(0, [&] {
        QCoreApplication::exit(0);
        Post([&] { handled = true; });
        loop.DoEvents();
        lasted = TimeOf([&] {
            for (int i = 0; i < 9; ++i) loop.DoEventsPaced();
        });
    });
    QApplication::exec();
    EXPECT_TRUE(handled);
    EXPECT_GE(lasted, 25ms);
}

}  // namespace
}  // namespace corvanda
