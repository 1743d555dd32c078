#include "desktop/system_close.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QEvent>
#include <QEventLoop>
#include <QTest>
#include <QTimer>
#include <QWidget>
#include <thread>

namespace corvanda {
namespace {

volatile std::sig_atomic_t seen_by_others = 0;
void OtherHandler(int number) {
    seen_by_others = number;
}

class SystemCloseTest : public testing::Test {
  protected:
    /// Counts the requests of `system`.
    void Count(SystemClose& system) {
        QObject::connect(&system, &SystemClose::requested, [this] { ++requests; });
    }
    bool Arrives(int number) const {
        return QTest::qWaitFor([&] { return requests >= number; }, 5000);
    }
    int requests = 0;
};

TEST_F(SystemCloseTest, each_signal_becomes_a_request) {
    SystemClose system;
    Count(system);
    int expected = 0;
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
        std::raise(number);
        EXPECT_EQ(requests, expected) << "nothing is emitted inside the signal handler";
        EXPECT_TRUE(Arrives(++expected)) << strsignal(number);
    }
}

TEST_F(SystemCloseTest, a_signal_taken_by_another_thread_is_heard_in_this_one) {
    SystemClose system;
    std::thread::id heard;
    QObject::connect(&system, &SystemClose::requested, [&] { heard = std::this_thread::get_id(); });
    Count(system);
    std::thread([] { std::raise(SIGTERM); }).join();
    ASSERT_TRUE(Arrives(1));
    EXPECT_EQ(heard, std::this_thread::get_id());
}

TEST_F(SystemCloseTest, a_flood_of_signals_neither_blocks_nor_stays_unheard) {
    SystemClose system;
    Count(system);
    for (int i = 0; i < 100000; ++i) std::raise(SIGTERM);
    EXPECT_TRUE(Arrives(1));
}

TEST_F(SystemCloseTest, a_signal_reaches_nested_loops_and_may_end_the_program) {
    SystemClose system;
    QObject::connect(&system, &SystemClose::requested, [] { QCoreApplication::exit(5); });
    QTimer::singleShot(0, [] {
        QTimer::singleShot(0, [] { std::raise(SIGTERM); });
        QEventLoop nested;
        nested.exec();
    });
    EXPECT_EQ(QApplication::exec(), 5);
}

/// A window that would ask a question at its close.
class Asking final : public QWidget {
  public:
    int asked = 0;

  protected:
    void closeEvent(QCloseEvent* event) override {
        ++asked;
        QWidget::closeEvent(event);
    }
};

TEST_F(SystemCloseTest, the_sessions_quit_event_is_a_request_and_closes_no_window) {
    SystemClose system;
    Count(system);
    Asking window;
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    QEvent quit(QEvent::Quit);
    QCoreApplication::sendEvent(qApp, &quit);
    EXPECT_EQ(requests, 1);
    EXPECT_EQ(window.asked, 0);
    EXPECT_TRUE(window.isVisible());
}

TEST_F(SystemCloseTest, puts_the_earlier_handlers_back) {
    struct sigaction others {};
    others.sa_handler = OtherHandler;
    struct sigaction before {};
    sigaction(SIGTERM, &others, &before);
    { SystemClose system; }
    std::raise(SIGTERM);
    EXPECT_EQ(seen_by_others, SIGTERM);
    SystemClose again;
    Count(again);
    std::raise(SIGTERM);
    EXPECT_TRUE(Arrives(1)) << "a second object in the same run works";
    sigaction(SIGTERM, &before, nullptr);
}

TEST_F(SystemCloseTest, a_hang_up_ignored_at_the_start_stays_ignored) {
    struct sigaction ignore {};
    ignore.sa_handler = SIG_IGN;
    struct sigaction before {};
    sigaction(SIGHUP, &ignore, &before);
    {
        SystemClose system;
        Count(system);
        std::raise(SIGHUP);
        std::raise(SIGTERM);
        EXPECT_TRUE(Arrives(1));
        QTest::qWait(20);
        EXPECT_EQ(requests, 1);
    }
    sigaction(SIGHUP, &before, nullptr);
}

}  // namespace
}  // namespace corvanda
