// The help file and the window that shows it.
#include <QCryptographicHash>
#include <QScreen>
#include <QTextBlock>
#include <QToolBar>
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

class Help : public testing::Test, public MessageBoxes {
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
    template <class List, class Item>
    static void Click(List* list, Item* item) {
        list->scrollToItem(item);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                          list->visualItemRect(item).center());
    }
    static void Click(const char* button) {
        auto* bar = Window().findChild<QToolBar*>();
        QTest::mouseClick(bar->widgetForAction(Part<QAction>(button)), Qt::LeftButton);
    }
    static void Click(int place) {
        QTextCursor after(Page()->document());
        after.setPosition(place);
        Page()->setTextCursor(after);
        after.setPosition(place + 1);
        const QPoint letter = Page()->cursorRect(after).center() - QPoint(2, 0);
        QTest::mouseClick(Page()->viewport(), Qt::LeftButton, {}, letter);
    }

    /// The pieces of the page's text that lead somewhere or that something leads to, with their
    /// places in the text.
    static std::vector<std::pair<int, QTextCharFormat>> Anchors() {
        std::vector<std::pair<int, QTextCharFormat>> found;
        const QTextDocument& text = *Page()->document();
        for (QTextBlock block = text.begin(); block.isValid(); block = block.next())
            for (auto each = block.begin(); !each.atEnd(); ++each)
                if (each.fragment().charFormat().isAnchor())
                    found.emplace_back(each.fragment().position(), each.fragment().charFormat());
        return found;
    }
    /// Expects that the place of an address is what the window shows and marks.
    static void ExpectShown(const QString& address) {
        EXPECT_EQ(Topic(), address.toStdString());
        const auto* marked = Part<QTreeWidget>("HelpContents")->currentItem();
        EXPECT_EQ(marked->text(0), Page()->documentTitle());
        if (!address.contains('#')) return;
        for (const auto& [place, format] : Anchors()) {
            if (!format.anchorNames().contains(address.section('#', 1))) continue;
            QTextCursor there(Page()->document());
            there.setPosition(place);
            EXPECT_TRUE(Page()->viewport()->rect().contains(Page()->cursorRect(there).center()));
            return;
        }
        ADD_FAILURE() << "no such place";
    }
    /// The lines of a source of the help.
    static QStringList Lines(const char* name) {
        const QString text =
            QString::fromUtf8(ReadBytes(CORVANDA_FUENTES "/ayuda/" + QString(name)));
        return text.split('\n', Qt::SkipEmptyParts);
    }

    const QTemporaryDir folder;
    std::string of = QFileInfo(built_help).path().toStdString();
    std::vector<std::string> said;
    std::optional<QtHelpViewer> viewer{std::in_place, *this, of, "Corvanda"};
};

TEST_F(Help, A_File_That_Is_Not_As_It_Should_Be_Is_Named_In_One_Box) {
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

TEST_F(Help, Each_Request_Shows_Its_Page_In_The_Same_Window) {
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

TEST_F(Help, Every_Entry_Of_The_Contents_Opens_Its_Page_And_None_Is_Without_Entry) {
    Ask(help::Contents);
    const QStringList topics = Lines("contents.txt");
    EXPECT_EQ(topics.size(), QDir(CORVANDA_FUENTES "/ayuda", "*.html").entryList().size());
    auto* tree = Part<QTreeWidget>("HelpContents");
    QTreeWidgetItemIterator item(tree);
    for (const QString& topic : topics) {
        SCOPED_TRACE(topic.toStdString());
        ASSERT_NE(*item, nullptr);
        Page()->Show(topics.front());
        Click(tree, *item);
        ExpectShown(topic.trimmed());
        EXPECT_EQ((*item)->text(0), Page()->documentTitle());
        ++item;
    }
    EXPECT_EQ(*item, nullptr);
}

TEST_F(Help, Every_Link_Shows_What_It_Names_And_The_Buttons_Lead_Back_And_On) {
    Ask(help::Contents);
    Click("HelpBack");
    ExpectShown("welcome.html");
    int links = 0;
    for (const QString& topic : Lines("contents.txt")) {
        const QString page = topic.trimmed();
        const int before = links;
        Page()->Show(page);
        for (const auto& [place, format] : Anchors()) {
            QString address = format.anchorHref();
            if (address.isEmpty()) continue;
            SCOPED_TRACE((page + " to " + address).toStdString());
            if (address.startsWith('#')) address.prepend(page);
            Click(place);
            ExpectShown(address);
            Click("HelpBack");
            ExpectShown(page);
            ++links;
        }
        if (links == before) continue;  // not every page leads on
        Click("HelpForward");
        EXPECT_NE(Topic(), page.toStdString());
        Click("HelpHome");
        ExpectShown("welcome.html");
    }
    EXPECT_GT(links, 50);
}

TEST_F(Help, Every_Keyword_Opens_Its_Place_And_Contents_Leads_Away_From_The_Index) {
    Ask(help::Key);
    auto* list = Part<QListWidget>("HelpKeywords");
    const QStringList keywords = Lines("keywords.txt");
    EXPECT_EQ(list->count(), keywords.size());
    for (const QString& line : keywords) {
        SCOPED_TRACE(line.toStdString());
        const auto found = list->findItems(line.section(" = ", 0, 0), Qt::MatchExactly);
        ASSERT_EQ(found.size(), 1);
        Click(list, found.front());
        ExpectShown(line.section(" = ", 1));
    }
    Click("HelpHome");
    ExpectShown("welcome.html");
    EXPECT_EQ(Part<QTabWidget>("HelpTabs")->currentIndex(), 0);
}

TEST_F(Help, The_Filter_Narrows_The_Keywords_And_They_Open_Their_Pages) {
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

TEST_F(Help, Links_Stay_Inside_The_Help) {
    Ask(help::Context, 0);
    for (const auto key : {Qt::Key_Tab, Qt::Key_Return}) Press(key);
    EXPECT_EQ(Topic(), "aim.html") << "the first link of the welcome page, by key";
    for (const char* link :
         {"http://example.org/dice.html", "file:///etc/hostname", "help:/../x"}) {
        emit Page()->anchorClicked(QUrl(link));
        EXPECT_EQ(Topic(), "aim.html") << link;
    }
}

TEST_F(Help, Every_Entry_Of_The_Contents_Can_Be_Read_Whatever_The_Font) {
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

TEST_F(Help, Lines_Grow_No_Longer_Than_Can_Be_Read_And_Words_Stay_Whole) {
    Ask(help::Context, 0);
    for (const auto& [window, most] : {std::pair(QSize(2000, 700), 900), {QSize(400, 700), 400}}) {
        Window().resize(window);
        QCoreApplication::processEvents();
        EXPECT_LE(Page()->viewport()->width(), most);
        EXPECT_EQ(Page()->wordWrapMode(), QTextOption::WordWrap);
    }
}

TEST_F(Help, Pictures_Are_Drawn_For_The_Screen_They_Are_On) {
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
