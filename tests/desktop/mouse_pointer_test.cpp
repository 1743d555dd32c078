#include "desktop/mouse_pointer.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <memory>

namespace corvanda {
namespace {

/// How many override cursors the toolkit holds; they are put back afterwards.
int CursorsPushed() {
    std::vector<QCursor> held;
    while (const QCursor* cursor = QApplication::overrideCursor()) {
        held.insert(held.begin(), *cursor);
        QApplication::restoreOverrideCursor();
    }
    for (const QCursor& each : held) QApplication::setOverrideCursor(each);
    return static_cast<int>(held.size());
}

TEST(MousePointerTest, one_restore_ends_the_hourglass_however_often_it_was_set) {
    QtMousePointer pointer;
    pointer.SetShape(PointerShape::Default);
    EXPECT_EQ(CursorsPushed(), 0);
    pointer.SetShape(PointerShape::Hourglass);
    pointer.SetShape(PointerShape::Hourglass);
    EXPECT_EQ(CursorsPushed(), 1);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    pointer.SetShape(PointerShape::Default);
    EXPECT_EQ(CursorsPushed(), 0);
}

TEST(MousePointerTest, rests_may_end_in_any_order_and_the_last_wish_counts) {
    QtMousePointer pointer;
    pointer.SetShape(PointerShape::Hourglass);
    auto first = std::make_unique<QtMousePointer::Rest>(pointer);
    auto second = std::make_unique<QtMousePointer::Rest>(pointer);
    EXPECT_EQ(CursorsPushed(), 0);
    first.reset();
    EXPECT_EQ(CursorsPushed(), 0);
    second.reset();
    EXPECT_EQ(CursorsPushed(), 1);

    first = std::make_unique<QtMousePointer::Rest>(pointer);
    pointer.SetShape(PointerShape::Default);
    pointer.SetShape(PointerShape::Hourglass);
    pointer.SetShape(PointerShape::Default);
    first.reset();
    EXPECT_EQ(CursorsPushed(), 0);
}

TEST(MousePointerTest, leaves_no_hourglass_behind) {
    {
        QtMousePointer pointer;
        pointer.SetShape(PointerShape::Hourglass);
    }
    EXPECT_EQ(CursorsPushed(), 0);
}

}  // namespace
}  // namespace corvanda
