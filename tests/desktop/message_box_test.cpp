// The message box with a person before it, and the hourglass that it keeps away.
#include "desktop/message_box.h"

#include <QAbstractButton>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QMessageBox>

#include "tests/desktop/desk.h"

namespace corvanda::pruebas {
namespace {

/// What a person does with the box as soon as it is open.
void WhenOpen(const std::function<void(QMessageBox&)>& hand) {
    QTimer::singleShot(0, [hand] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        // A box that the hand fails to close must fail the test, not hang it.
        QTimer::singleShot(2000, box, [box] {
            ADD_FAILURE() << "the box stayed open";
            box->close();
        });
        hand(*box);
    });
}

void Do(QMessageBox& box, const std::string& what) {
    if (what == "Enter") QTest::keyClick(&box, Qt::Key_Return);
    if (what == "Esc") QTest::keyClick(&box, Qt::Key_Escape);
    for (QAbstractButton* each : box.buttons())
        if (each->text().toStdString() == what) each->click();
}

class MessageBoxTest : public testing::Test {
  protected:
    QtMousePointer pointer;
    QtMessageBoxes boxes{pointer};
};

TEST_F(MessageBoxTest, answers_each_style_as_it_was_asked_and_shows_plain_text) {
    const std::tuple<Integer, const char*, Integer> table[] = {
        {style::Critical, "OK", button::Ok},         {style::Exclamation, "Enter", button::Ok},
        {style::Information, "Esc", button::Ok},     {4711, "OK", button::Ok},
        {style::QuestionYesNo, "&Yes", button::Yes}, {style::QuestionYesNo, "Enter", button::Yes},
        {style::QuestionYesNo, "&No", button::No},   {style::QuestionYesNo, "Esc", button::No},
    };
    const std::string text = "¿ <b>Are</b> you & I sure ?\nReally &sure";
    for (const auto& [style, what, result] : table) {
        WhenOpen([&, what = what](QMessageBox& box) {
            const auto* label = box.findChild<QLabel*>("qt_msgbox_label");
            EXPECT_EQ(label->text().toStdString(), text);
            EXPECT_EQ(label->textFormat(), Qt::PlainText);
            Do(box, what);
        });
        EXPECT_EQ(boxes.MsgBox(text, style, "¿ Exit ?"), result) << what;
    }
}

TEST_F(MessageBoxTest, stands_over_the_window_in_front_and_outlives_it) {
    auto main_window = std::make_unique<QMainWindow>();
    main_window->menuBar()->addMenu("Game");
    main_window->setCentralWidget(new QWidget);
    main_window->resize(700, 500);
    boxes.SetMainWindow(main_window.get());
    main_window->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(main_window.get()));
    WhenOpen([&](QMessageBox& box) {
        EXPECT_EQ(box.parentWidget(), main_window.get());
        const QWidget& shown = *main_window->centralWidget();
        const QPoint off = box.frameGeometry().center() - shown.mapToGlobal(shown.rect().center());
        EXPECT_LE(off.manhattanLength(), 5) << "in the middle of what the window shows";
        EXPECT_GE(box.width(), 30 * box.fontMetrics().averageCharWidth());
        main_window.reset();
    });
    EXPECT_EQ(boxes.MsgBox("text", style::QuestionYesNo, "title"), button::No);
}

TEST_F(MessageBoxTest, boxes_nest_and_keep_the_hourglass_away_while_one_is_open) {
    for (int i = 0; i < 2; ++i) pointer.SetShape(PointerShape::Hourglass);
    WhenOpen([this](QMessageBox& outer) {
        WhenOpen([](QMessageBox& inner) { Do(inner, "&No"); });
        EXPECT_EQ(boxes.MsgBox("inner", style::QuestionYesNo, "title"), button::No);
        EXPECT_EQ(QApplication::overrideCursor(), nullptr);
        Do(outer, "&Yes");
    });
    EXPECT_EQ(boxes.MsgBox("outer", style::QuestionYesNo, "title"), button::Yes);
    ASSERT_NE(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    pointer.SetShape(PointerShape::Default);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr) << "one wish ends it, however often set";
}

TEST_F(MessageBoxTest, does_not_wait_once_the_program_was_told_to_quit) {
    Integer answers[2] = {};
    QTimer::singleShot(0, [&] {
        QTimer::singleShot(0, [] { QCoreApplication::exit(3); });
        for (Integer& each : answers) each = boxes.MsgBox("text", style::QuestionYesNo, "title");
    });
    EXPECT_EQ(QApplication::exec(), 3);
    for (const Integer each : answers) EXPECT_EQ(each, button::No);
}

}  // namespace
}  // namespace corvanda::pruebas
