#include "desktop/message_box.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <functional>

namespace corvanda {
namespace {

using Hand = std::function<void(QMessageBox&)>;

/// What a person does with the box as soon as it is open.
void WhenOpen(const Hand& hand) {
    QTimer::singleShot(0, [hand] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        ASSERT_EQ(box->objectName(), QStringLiteral("MsgBox"));
        hand(*box);
        // A box that the hand failed to close must fail the test, not hang it.
        QTimer::singleShot(2000, box, [box] {
            ADD_FAILURE() << "the box stayed open";
            box->close();
        });
    });
}

Hand Click(QMessageBox::StandardButton which) {
    return [which](QMessageBox& box) { box.button(which)->click(); };
}

Hand Press(Qt::Key key) {
    return [key](QMessageBox& box) { QTest::keyClick(&box, key); };
}

const Hand close_frame = [](QMessageBox& box) { box.close(); };

bool HourglassShown() {
    const QCursor* cursor = QApplication::overrideCursor();
    return cursor != nullptr && cursor->shape() == Qt::WaitCursor;
}

class MessageBoxTest : public testing::Test {
  protected:
    QtMousePointer pointer;
    QtMessageBoxes boxes{pointer};
};

TEST_F(MessageBoxTest, reports_the_button_in_the_platforms_numbers) {
    const struct {
        const char* what;
        Integer style;
        Hand hand;
        Integer result;
    } table[] = {
        {"ok", style::Critical, Click(QMessageBox::Ok), button::Ok},
        {"ok by Enter", style::Exclamation, Press(Qt::Key_Return), button::Ok},
        {"ok by Esc", style::Information, Press(Qt::Key_Escape), button::Ok},
        {"ok by the frame", style::Information, close_frame, button::Ok},
        {"yes", style::QuestionYesNo, Click(QMessageBox::Yes), button::Yes},
        {"no", style::QuestionYesNo, Click(QMessageBox::No), button::No},
        {"yes is the default", style::QuestionYesNo, Press(Qt::Key_Return), button::Yes},
        {"no by Esc", style::QuestionYesNo, Press(Qt::Key_Escape), button::No},
        {"no by the frame", style::QuestionYesNo, close_frame, button::No},
        {"a style nobody knows", 4711, Click(QMessageBox::Ok), button::Ok},
    };
    for (const auto& row : table) {
        WhenOpen(row.hand);
        EXPECT_EQ(boxes.MsgBox("text", row.style, "title"), row.result) << row.what;
    }
}

TEST_F(MessageBoxTest, shows_text_title_icon_and_buttons_exactly) {
    const struct {
        Integer style;
        QMessageBox::Icon icon;
        QStringList captions;
    } table[] = {
        {style::Critical, QMessageBox::Critical, {"OK"}},
        {style::Exclamation, QMessageBox::Warning, {"OK"}},
        {style::Information, QMessageBox::Information, {"OK"}},
        {style::QuestionYesNo, QMessageBox::Question, {"&Yes", "&No"}},
        {0, QMessageBox::NoIcon, {"OK"}},
    };
    const std::string text = "¿ <b>Are</b> you & I sure ?\nReally &sure";
    for (const auto& row : table) {
        WhenOpen([&](QMessageBox& box) {
            EXPECT_EQ(box.text().toStdString(), text);
            EXPECT_EQ(box.windowTitle().toStdString(), "¿ Exit ?");
            EXPECT_EQ(box.icon(), row.icon);
            const auto* label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
            ASSERT_NE(label, nullptr);
            EXPECT_EQ(label->textFormat(), Qt::PlainText);
            EXPECT_EQ(label->textInteractionFlags(), Qt::NoTextInteraction);
            QStringList captions;
            for (const QAbstractButton* each : box.buttons()) captions += each->text();
            captions.sort();
            QStringList expected = row.captions;
            expected.sort();
            EXPECT_EQ(captions, expected);
            box.close();
        });
        boxes.MsgBox(text, row.style, "¿ Exit ?");
    }
}

TEST_F(MessageBoxTest, stands_over_the_window_in_front) {
    QWidget main_window;
    boxes.SetMainWindow(&main_window);
    const auto owner_of_box = [this] {
        QWidget* owner = nullptr;
        WhenOpen([&owner](QMessageBox& box) {
            owner = box.parentWidget();
            box.close();
        });
        boxes.MsgBox("text", style::Information, "title");
        return owner;
    };
    EXPECT_EQ(owner_of_box(), nullptr) << "a hidden window is no owner";
    main_window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&main_window));
    EXPECT_EQ(owner_of_box(), &main_window);

    QWidget dialog(&main_window, Qt::Dialog);
    dialog.setWindowModality(Qt::ApplicationModal);
    dialog.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    EXPECT_EQ(owner_of_box(), &dialog) << "a box over a dialog belongs to the dialog";
}

TEST_F(MessageBoxTest, keeps_the_hourglass_away_while_open) {
    pointer.SetShape(PointerShape::Hourglass);
    WhenOpen([](QMessageBox& box) {
        EXPECT_FALSE(HourglassShown());
        box.close();
    });
    boxes.MsgBox("text", style::Information, "title");
    EXPECT_TRUE(HourglassShown());
}

TEST_F(MessageBoxTest, a_box_inside_a_box_is_closed_first) {
    WhenOpen([this](QMessageBox& outer) {
        WhenOpen(Click(QMessageBox::No));
        EXPECT_EQ(boxes.MsgBox("inner", style::QuestionYesNo, "title"), button::No);
        outer.button(QMessageBox::Yes)->click();
    });
    EXPECT_EQ(boxes.MsgBox("outer", style::QuestionYesNo, "title"), button::Yes);
}

TEST_F(MessageBoxTest, outlives_the_window_it_stood_over) {
    auto* window = new QWidget;
    window->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window));
    pointer.SetShape(PointerShape::Hourglass);
    QTimer::singleShot(0, [window] { delete window; });
    EXPECT_EQ(boxes.MsgBox("text", style::QuestionYesNo, "title"), button::No);
    EXPECT_TRUE(HourglassShown());
}

TEST_F(MessageBoxTest, does_not_wait_once_the_program_was_told_to_quit) {
    const struct {
        const char* what;
        bool quit_before;
    } table[] = {{"told before the box", true}, {"told while the box is open", false}};
    const auto quit = [] { QCoreApplication::exit(3); };
    for (const auto& row : table) {
        Integer question = 0;
        Integer message = 0;
        QTimer::singleShot(0, [&] {
            row.quit_before ? quit() : QTimer::singleShot(0, quit);
            question = boxes.MsgBox("text", style::QuestionYesNo, "title");
            message = boxes.MsgBox("text", style::Critical, "title");
        });
        EXPECT_EQ(QApplication::exec(), 3) << row.what;
        EXPECT_EQ(question, button::No) << row.what;
        EXPECT_EQ(message, button::Ok) << row.what;
    }
}

}  // namespace
}  // namespace corvanda
