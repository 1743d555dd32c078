// The help file and the window that shows it.
#include <QCryptographicHash>
#include <QScreen>
#include <QWindow>

#include "desktop/help_viewer.h"
#include "desktop/help_window.h"
#include "fuentes.h"
#include "tests/apoyo/sin_nombre.h"
#include "tests/desktop/desk.h"

namespace corvanda::pruebas {
namespace {

const QString built_help = CORVANDA_AYUDA;

QByteArray Sealed(const QByteArray& bytes) {
    return bytes + QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex();
}

/// The built file, whole, but one of its entries is called something else.
QByteArray Without(const char* name) {
    QByteArray bytes = ReadBytes(built_help).chopped(64);
    QByteArray wide;
    for (const char* each = name; *each != '\0'; ++each) wide += QByteArray(1, '\0') + *each;
    EXPECT_TRUE(bytes.contains(wide)) << name;
    bytes[bytes.indexOf(wide) + 1] = '~';
    return Sealed(bytes);
}

class HelpTest : public testing::Test, public MessageBoxes {
  protected:
    Integer MsgBox(const std::string& text, Integer style, const std::string& title) override {
        EXPECT_EQ(style, style::Exclamation);
        EXPECT_EQ(title, "Corvanda");
        said.push_back(text);
        return button::Ok;
    }

    static std::vector<HelpWindow*> Windows() {
        std::vector<HelpWindow*> found;
        for (QWidget* window : QApplication::topLevelWidgets())
            if (auto* help = qobject_cast<HelpWindow*>(window)) found.push_back(help);
        return found;
    }
    void Ask(Integer command, Integer context = 0) {
        viewer->WinHelp(of + "\\corvanda.HLP", command, context);
        if (of == folder.path().toStdString()) return;
        ASSERT_EQ(Windows().size(), 1U);
        ASSERT_TRUE(QTest::qWaitForWindowActive(Windows().front()));
    }
    void Refused(const QByteArray& bytes, const std::string& what) {
        WriteBytes(folder.filePath("corvanda.HLP"), bytes);
        said.clear();
        Ask(help::Context, 1);
        EXPECT_EQ(said, std::vector{"The help file " + of + "/corvanda.HLP is damaged."}) << what;
        EXPECT_TRUE(Windows().empty()) << what;
    }

    static HelpWindow& Window() { return *Windows().front(); }
    template <class Kind>
    static Kind* Part(const char* name) {
        return Window().findChild<Kind*>(name);
    }
    static HelpBrowser* Page() { return Part<HelpBrowser>("HelpPage"); }
    static std::string Topic() { return Page()->source().toString().mid(6).toStdString(); }
    static std::string Shown() {
        QStringList shown;
        for (const auto* item : Part<QListWidget>("HelpKeywords")->findItems("", Qt::MatchContains))
            if (!item->isHidden()) shown += item->text();
        return shown.join(';').toStdString();
    }
    /// Keys and clicks that take the way of a person's, which a modal window may bar.
    static void Type(const char* text) {
        for (; *text != '\0'; ++text) QTest::keyClick(Window().windowHandle(), *text);
    }
    static void Press(Qt::Key key) { QTest::keyClick(Window().windowHandle(), key); }

    const QTemporaryDir folder;
    std::string of = QFileInfo(built_help).path().toStdString();
    std::vector<std::string> said;
    std::optional<QtHelpViewer> viewer{std::in_place, *this, of, "Corvanda"};
};

TEST_F(HelpTest, a_file_that_is_not_as_it_should_be_is_named_in_one_box) {
    of = folder.path().toStdString();
    viewer.emplace(*this, of, "Corvanda");
    Ask(help::Contents);
    EXPECT_EQ(said, std::vector{"The help file " + of + "/corvanda.HLP cannot be opened."});
    const QByteArray good = ReadBytes(built_help);
    const std::pair<const char*, QByteArray> table[] = {
        {"empty", {}},
        {"a seal and nothing else", Sealed({})},
        {"cut in half", good.left(good.size() / 2)},
        {"the last byte missing", good.chopped(1)},
        {"random bytes", Noise(good.size())},
        {"random bytes with a seal", Sealed(Noise(good.size()))},
        {"too large", QByteArray(17 << 20, 'x')},
        {"no contents", Without("contents.txt")},
        {"the topic of a context missing", Without("two.html")},
    };
    for (const auto& [what, bytes] : table) Refused(bytes, what);
    for (unsigned seed = 1; seed <= 60; ++seed)
        Refused(Damaged(good, seed, good.size()), std::to_string(seed));
    WriteBytes(folder.filePath("corvanda.HLP"), good);
    said.clear();
    Ask(help::Contents);
    EXPECT_TRUE(said.empty() && Windows().size() == 1) << "it opens as soon as it is good";
}

TEST_F(HelpTest, each_request_shows_its_page_in_the_same_window) {
    const struct {
        Integer command, context;
        const char* topic;
        int tab;
    } table[] = {
        {help::Context, 0, "welcome.html", 0},  {help::Context, 1, "computer.html", 0},
        {help::Context, 2, "two.html", 0},      {help::Context, 77, "welcome.html", 0},
        {help::Key, 0, "welcome.html", 1},      {help::Context, 2, "two.html", 1},
        {help::Contents, 1, "welcome.html", 0}, {4711, 2, "welcome.html", 0},
    };
    for (const auto& row : table) {
        Ask(row.command, row.context);
        EXPECT_EQ(Topic(), row.topic) << row.command << ' ' << row.context;
        EXPECT_EQ(Part<QTabWidget>("HelpTabs")->currentIndex(), row.tab) << row.command;
        EXPECT_EQ(Part<QLineEdit>("HelpFilter")->hasFocus(), row.command == help::Key);
        EXPECT_EQ(Sin_Nombre(Window()), "");
        if (row.context == 1) Press(Qt::Key_Escape);
        if (row.tab == 1) Window().showMinimized();
    }
    EXPECT_TRUE(Window().isVisible() && !Window().isMinimized());
}

TEST_F(HelpTest, the_filter_narrows_the_keywords_and_they_open_their_pages) {
    Ask(help::Key);
    Type("larger");
    EXPECT_EQ(Shown(), "bearing off, larger die;larger die");
    Type(" OFF");
    EXPECT_EQ(Shown(), "bearing off, larger die");
    Press(Qt::Key_Return);
    EXPECT_EQ(Topic(), "bearing.html#larger");
    Type("zzz");
    for (const auto key : {Qt::Key_Return, Qt::Key_Down}) Press(key);
    EXPECT_EQ(Topic(), "bearing.html#larger") << "nothing to open";
    Ask(help::Key);
    EXPECT_EQ(Part<QLineEdit>("HelpFilter")->text(), "") << "the index is asked for anew";
    viewer.emplace(*this, of, "Corvanda");
    EXPECT_TRUE(Windows().empty()) << "a window goes with its viewer";
}

TEST_F(HelpTest, links_stay_inside_the_help) {
    Ask(help::Context, 0);
    for (const auto key : {Qt::Key_Tab, Qt::Key_Return}) Press(key);
    EXPECT_EQ(Topic(), "aim.html") << "the first link of the welcome page, by key";
    for (const char* link :
         {"http://example.org/dice.html", "file:///etc/hostname", "help:/../x"}) {
        emit Page()->anchorClicked(QUrl(link));
        EXPECT_EQ(Topic(), "aim.html") << link;
    }
}

TEST_F(HelpTest, every_entry_of_the_contents_can_be_read_whatever_the_font) {
    const QFont usual = QApplication::font();
    for (const int points : {9, 24, 60}) {
        QApplication::setFont(QFont(usual.family(), points));
        viewer.emplace(*this, of, "Corvanda");
        Ask(help::Contents);
        auto* tree = Part<QTreeWidget>("HelpContents");
        for (QTreeWidgetItemIterator each(tree); *each != nullptr; ++each) {
            const QString text = (*each)->text(0);
            EXPECT_GE(tree->visualItemRect(*each).width(),
                      tree->fontMetrics().horizontalAdvance(text))
                << points << ' ' << text.toStdString();
        }
        EXPECT_GE(Page()->width(), Window().width() / 2) << "the page is what people came for";
    }
    QApplication::setFont(usual);
}

TEST_F(HelpTest, lines_grow_no_longer_than_can_be_read_and_words_stay_whole) {
    Ask(help::Context, 0);
    for (const auto& [window, most] : {std::pair(QSize(2000, 700), 900), {QSize(400, 700), 400}}) {
        Window().resize(window);
        QCoreApplication::processEvents();
        EXPECT_LE(Page()->viewport()->width(), most);
        EXPECT_EQ(Page()->wordWrapMode(), QTextOption::WordWrap);
    }
}

TEST_F(HelpTest, pictures_are_drawn_for_the_screen_they_are_on) {
    Ask(help::Context, 0);
    const auto ratio = [] {
        Window().grab();
        const auto picture = Page()->document()->resource(
            QTextDocument::ImageResource, Page()->source().resolved(QUrl("imagenes/dice.png")));
        return picture.value<QPixmap>().devicePixelRatio();
    };
    const std::pair<const char*, int> table[] = {
        {"dice.html", 1}, {"dice.html", 0}, {"bearing.html", 1}, {"dice.html", 1}, {"aim.html", 0}};
    for (const auto& [page, screen] : table) {
        Page()->Show(page);
        Window().grab();
        Window().move(QGuiApplication::screens().at(screen)->geometry().topLeft());
        ASSERT_TRUE(QTest::qWaitFor([&] { return Window().devicePixelRatioF() == 1 + screen; }));
        Window().grab();
        Page()->Show("dice.html");
        EXPECT_EQ(ratio(), 1 + screen) << "moved with " << page;
    }
}

}  // namespace
}  // namespace corvanda::pruebas
