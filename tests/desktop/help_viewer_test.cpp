#include "desktop/help_viewer.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QFileInfo>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <functional>
#include <optional>

#include "tests/desktop/help_desk.h"

namespace corvanda {
namespace {

class HelpWindowTest : public testing::Test {
  protected:
    void Ask(Integer command, Integer context = 0) {
        viewer->WinHelp(folder + "\\corvanda.HLP", command, context);
        ASSERT_EQ(HelpWindows().size(), 1U);
        ASSERT_TRUE(QTest::qWaitForWindowActive(HelpWindows().front()));
    }

    static HelpWindow& Window() { return *HelpWindows().front(); }
    template <class Kind>
    static Kind* Part(const char* name) {
        return Window().findChild<Kind*>(QLatin1String(name));
    }
    static HelpBrowser* Page() { return Part<HelpBrowser>("HelpPage"); }
    static std::string Topic() { return Page()->Topic().toStdString(); }
    static QLineEdit* Filter() { return Part<QLineEdit>("HelpFilter"); }
    static QAction* Back() { return Part<QAction>("HelpBack"); }
    static QAction* Forward() { return Part<QAction>("HelpForward"); }

    static std::vector<std::string> KeywordsShown() {
        std::vector<std::string> shown;
        auto* list = Part<QListWidget>("HelpKeywords");
        for (int row = 0; row < list->count(); ++row) {
            if (!list->item(row)->isHidden())
                shown.push_back(list->item(row)->text().toStdString());
        }
        return shown;
    }

    /// Types and clicks that take the way of a person's, which a modal window may bar.
    static void Type(const char* text) {
        for (; *text != '\0'; ++text) QTest::keyClick(Window().windowHandle(), *text);
    }
    static void Click(QWidget* where, QPoint point) {
        QTest::mouseClick(where->window()->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                          where->mapTo(where->window(), point));
    }

    const std::string folder = QFileInfo(built_help).path().toStdString();
    RememberedBoxes boxes;
    std::optional<QtHelpViewer> viewer{std::in_place, boxes, folder, "Corvanda"};
};

TEST_F(HelpWindowTest, each_request_shows_its_page_in_the_same_window) {
    const struct {
        Integer command;
        Integer context;
        const char* topic;
        int tab;
    } table[] = {
        {help::Context, 0, "welcome.html", 0},  {help::Context, 1, "computer.html", 0},
        {help::Context, 2, "two.html", 0},      {help::Context, 77, "welcome.html", 0},
        {help::Key, 0, "welcome.html", 1},      {help::Context, 2, "two.html", 1},
        {help::Contents, 1, "welcome.html", 0}, {help::Key, 2, "welcome.html", 1},
        {4711, 2, "welcome.html", 0},
    };
    QWidget* first = nullptr;
    for (const auto& row : table) {
        Ask(row.command, row.context);
        if (first == nullptr) first = &Window();
        EXPECT_EQ(&Window(), first);
        EXPECT_EQ(Topic(), row.topic) << row.command << ' ' << row.context;
        EXPECT_EQ(Part<QTabWidget>("HelpTabs")->currentIndex(), row.tab) << row.command;
        EXPECT_EQ(Filter()->hasFocus(), row.command == help::Key) << row.command;
        const auto* current = Part<QTreeWidget>("HelpContents")->currentItem();
        ASSERT_NE(current, nullptr);
        EXPECT_EQ(current->data(0, Qt::UserRole).toString().toStdString(), row.topic);
    }
    EXPECT_TRUE(boxes.said.empty());
}

TEST_F(HelpWindowTest, the_window_comes_back_after_escape_and_from_the_dock) {
    Ask(help::Context, 1);
    QTest::keyClick(Window().windowHandle(), Qt::Key_Escape);
    EXPECT_FALSE(Window().isVisible());
    Ask(help::Key);
    QTest::keyClick(Window().windowHandle(), Qt::Key_Escape);
    EXPECT_FALSE(Window().isVisible()) << "from the filter field, too";
    Ask(help::Context, 2);
    Window().showMinimized();
    Ask(help::Context, 1);
    EXPECT_FALSE(Window().isMinimized());
    EXPECT_EQ(Topic(), "computer.html");
}

TEST_F(HelpWindowTest, the_filter_narrows_the_keywords) {
    Ask(help::Key);
    const auto all = KeywordsShown().size();
    EXPECT_GE(all, 40U);
    Type("larger");
    const auto larger = KeywordsShown();
    EXPECT_EQ(larger, (std::vector<std::string>{"bearing off, larger die", "larger die"}));
    Type(" OFF");
    EXPECT_EQ(KeywordsShown(), (std::vector<std::string>{"bearing off, larger die"}));
    QTest::keyClick(Window().windowHandle(), Qt::Key_Return);
    EXPECT_EQ(Topic(), "bearing.html");
    EXPECT_EQ(Page()->source().fragment(), "larger");
    Type("zzz");
    EXPECT_TRUE(KeywordsShown().empty());
    QTest::keyClick(Window().windowHandle(), Qt::Key_Return);
    QTest::keyClick(Window().windowHandle(), Qt::Key_Down);
    EXPECT_EQ(Topic(), "bearing.html") << "nothing to open";
    Filter()->clear();
    EXPECT_EQ(KeywordsShown().size(), all);
}

TEST_F(HelpWindowTest, a_keyword_and_an_entry_of_the_contents_open_their_pages) {
    Ask(help::Key);
    Type("doubles");
    auto* list = Part<QListWidget>("HelpKeywords");
    QTest::keyClick(Window().windowHandle(), Qt::Key_Down);
    EXPECT_TRUE(list->hasFocus());
    QTest::keyClick(Window().windowHandle(), Qt::Key_Return);
    EXPECT_EQ(Topic(), "doubles.html");
    EXPECT_TRUE(Window().isVisible());

    Filter()->setText("passing");
    QApplication::processEvents();
    const auto* item = list->findItems("passing, refused", Qt::MatchExactly).value(0);
    ASSERT_NE(item, nullptr);
    Click(list->viewport(), list->visualItemRect(item).center());
    EXPECT_EQ(Page()->source().toString(), "help:/passing.html#refused");

    Ask(help::Contents);
    auto* tree = Part<QTreeWidget>("HelpContents");
    const auto* under = tree->findItems("Doubles", Qt::MatchExactly | Qt::MatchRecursive).value(0);
    ASSERT_NE(under, nullptr);
    EXPECT_NE(under->parent(), nullptr) << "the contents are nested";
    Click(tree->viewport(), tree->visualItemRect(under).center());
    EXPECT_EQ(Topic(), "doubles.html");
}

TEST_F(HelpWindowTest, back_and_forward_go_through_the_pages_that_were_read) {
    Ask(help::Context, 1);
    EXPECT_FALSE(Back()->isEnabled());
    EXPECT_FALSE(Forward()->isEnabled());
    Page()->Show("dice.html");
    Page()->Show("moving.html#closed");
    Page()->Show("nothing.html");
    EXPECT_EQ(Topic(), "moving.html") << "what does not exist is no page";
    Back()->trigger();
    EXPECT_EQ(Topic(), "dice.html");
    QTest::keyClick(Window().windowHandle(), Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(Topic(), "computer.html");
    EXPECT_FALSE(Back()->isEnabled());
    Forward()->trigger();
    Forward()->trigger();
    EXPECT_EQ(Topic(), "moving.html");
    EXPECT_EQ(Page()->source().fragment(), "closed");
    EXPECT_FALSE(Forward()->isEnabled());
    Part<QAction>("HelpHome")->trigger();
    EXPECT_EQ(Topic(), "welcome.html");
}

TEST_F(HelpWindowTest, only_links_inside_the_help_are_followed) {
    Ask(help::Context, 0);
    QTest::keyClick(Window().windowHandle(), Qt::Key_Tab);
    QTest::keyClick(Window().windowHandle(), Qt::Key_Return);
    EXPECT_EQ(Topic(), "aim.html") << "the first link of the welcome page, by key";
    emit Page()->anchorClicked(QUrl("help:/hitting.html#enter"));
    EXPECT_EQ(Page()->source().toString(), "help:/hitting.html#enter");
    for (const char* link : {"http://example.org/aim.html", "https://example.org/",
                             "file:///etc/hostname", "mailto:nobody@example.org", "qrc:/aim.html",
                             "help://host/aim.html", "help:/../aim.html", "nothing.html", ""}) {
        emit Page()->anchorClicked(QUrl(link));
        EXPECT_EQ(Topic(), "hitting.html") << link;
    }
    for (const char* name : {"http://example.org/a.png", "file:///etc/hostname", "../x"}) {
        EXPECT_FALSE(Page()->loadResource(QTextDocument::HtmlResource, QUrl(name)).toBool())
            << name;
    }
}

TEST_F(HelpWindowTest, pictures_have_the_size_of_their_place) {
    Ask(help::Context, 0);
    const auto picture =
        Page()->loadResource(QTextDocument::ImageResource, QUrl("imagenes/start.png"));
    const auto size = picture.value<QPixmap>().deviceIndependentSize();
    EXPECT_GT(size.width(), 400);
    EXPECT_LT(size.width(), 620);
}

/// A modal dialog with one button, asked for help from inside, as F1 does it.
class AskingDialog final : public QDialog {
  public:
    explicit AskingDialog(QWidget* owner) : QDialog(owner) {
        close_button = new QPushButton("Close", this);
        connect(close_button, &QPushButton::clicked, this, &QDialog::accept);
        resize(200, 100);
    }
    void Run(const std::function<void()>& inside) {
        QTimer::singleShot(0, this, inside);
        // Whatever bars the button must fail the test, not hang it.
        QTimer::singleShot(5000, this, [this] {
            ADD_FAILURE() << "the dialog took no input";
            reject();
        });
        exec();
    }
    QPushButton* close_button;
};

TEST_F(HelpWindowTest, help_and_a_modal_dialog_both_take_input) {
    for (const bool open_before : {false, true}) {
        QWidget main_window;
        main_window.show();
        if (open_before) Ask(help::Context, 1);
        {
            AskingDialog dialog(&main_window);
            dialog.Run([&] {
                Ask(help::Key);
                Filter()->clear();
                Type("doubles");
                EXPECT_EQ(Filter()->text(), "doubles") << "open before: " << open_before;
                auto* list = Part<QListWidget>("HelpKeywords");
                const auto* item = list->findItems("doubles", Qt::MatchExactly).value(0);
                Click(list->viewport(), list->visualItemRect(item).center());
                EXPECT_EQ(Topic(), "doubles.html");
                Ask(help::Context, 2);
                Click(dialog.close_button, dialog.close_button->rect().center());
            });
            EXPECT_EQ(dialog.result(), QDialog::Accepted);
            EXPECT_TRUE(Window().isVisible()) << "the help stays when the dialog goes";
        }
        QApplication::processEvents();
        EXPECT_TRUE(Window().isVisible());
        Ask(help::Context, 1);
        EXPECT_EQ(Topic(), "computer.html");
        QTest::keyClick(Window().windowHandle(), Qt::Key_Escape);
        EXPECT_FALSE(Window().isVisible());
    }
}

TEST_F(HelpWindowTest, the_viewer_may_go_while_its_window_is_open) {
    Ask(help::Contents);
    viewer.reset();
    EXPECT_TRUE(HelpWindows().empty());

    viewer.emplace(boxes, folder, "Corvanda");
    QWidget main_window;
    main_window.show();
    AskingDialog dialog(&main_window);
    dialog.Run([&] {
        Ask(help::Context, 1);
        viewer.reset();
        Click(dialog.close_button, dialog.close_button->rect().center());
    });
    EXPECT_TRUE(HelpWindows().empty());
    QApplication::processEvents();
}

}  // namespace
}  // namespace corvanda
