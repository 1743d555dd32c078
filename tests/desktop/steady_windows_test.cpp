// Windows that go to a screen with twice as many pixels, and back.
#include <QDialog>
#include <QMessageBox>
#include <QScreen>
#include <QWindow>

#include "desktop/steady_windows.h"
#include "tests/desktop/desk.h"

namespace corvanda::pruebas {
namespace {

/// What a person's mouse and the toolkit make of a window where sizes are device pixels.
void Drag(QWidget& window, int screen) {
    const QScreen* other = QGuiApplication::screens().at(screen);
    window.move(other->geometry().topLeft() + QPoint(200, 150));
    ASSERT_TRUE(QTest::qWaitFor([&] { return window.screen() == other; }));
    const QSize before = window.windowHandle()->size();
    window.windowHandle()->resize(screen == 1 ? before / 2 : before * 2);
    ASSERT_EQ(window.screen(), other);
}

TEST(SteadyWindows, a_window_keeps_its_size_and_its_place_on_every_screen) {
    const SteadyWindows steady;
    QDialog fixed;
    fixed.setFixedSize(300, 200);
    QWidget free;
    free.resize(400, 240);
    QMessageBox box(QMessageBox::Information, "Title", "A text that takes a line.");
    for (QWidget* each : {static_cast<QWidget*>(&fixed), &free, static_cast<QWidget*>(&box)}) {
        each->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(each));
        const QSize before = each->size();
        for (const int screen : {1, 0, 1}) {
            Drag(*each, screen);
            const QPoint centre = each->windowHandle()->geometry().center();
            const auto whole = [&] {
                return each->size() == before && each->windowHandle()->size() == before;
            };
            EXPECT_TRUE(QTest::qWaitFor(whole)) << before.width() << ' ' << each->width();
            const QPoint off = each->windowHandle()->geometry().center() - centre;
            EXPECT_LE(off.manhattanLength(), 2) << "or it might leave the screen again";
        }
    }
}

TEST(SteadyWindows, what_fills_a_screen_is_left_alone_and_what_does_not_fit_it_is_made_to) {
    const SteadyWindows steady;
    QWidget full;
    full.showMaximized();
    QWidget other;
    other.resize(400, 2000);
    other.show();
    for (QWidget* each : {&full, &other}) {
        ASSERT_TRUE(QTest::qWaitForWindowExposed(each));
        Drag(*each, 1);
    }
    const QSize given = full.windowHandle()->size();
    EXPECT_TRUE(QTest::qWaitFor([&] { return other.windowHandle()->width() == 400; }));
    EXPECT_EQ(full.windowHandle()->size(), given);
    const QRect screen = other.screen()->availableGeometry();
    const QRect frame = other.windowHandle()->frameGeometry();
    EXPECT_LE(frame.height(), screen.height());
    EXPECT_GE(frame.top(), screen.top());
}

}  // namespace
}  // namespace corvanda::pruebas
