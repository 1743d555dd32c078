#include "desktop/help_file.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QRegularExpression>
#include <QSet>
#include <QTextDocument>
#include <memory>

#include "tests/desktop/help_desk.h"

namespace corvanda {
namespace {

class HelpFileTest : public testing::Test {
  protected:
    void SetUp() override { ASSERT_EQ(help.State(), HelpFile::Condition::Good); }

    QStringList Captured(const QString& topic, const char* pattern) const {
        QStringList all;
        auto each = QRegularExpression(QLatin1String(pattern)).globalMatch(help.ReadText(topic));
        while (each.hasNext()) all += each.next().captured(1);
        return all;
    }

    /// What is wrong with an address, empty when it leads somewhere.
    std::string Fault(const QString& address) const {
        const QString topic = TopicIn(address);
        if (!IsListed(topic)) return "no topic " + address.toStdString();
        const QString anchor = address.section(QLatin1Char('#'), 1);
        if (anchor.isEmpty() || Captured(topic, R"re( id="([^"]+)")re").contains(anchor)) return {};
        return "no anchor " + address.toStdString();
    }

    bool IsListed(const QString& name) const {
        return std::any_of(help.Contents().begin(), help.Contents().end(),
                           [&](const HelpTopic& topic) { return topic.name == name; });
    }

    HelpFile help{built_help};
};

TEST_F(HelpFileTest, every_topic_is_listed_once_and_has_a_title_of_its_own) {
    QSet<QString> names;
    QSet<QString> titles;
    for (const HelpTopic& topic : help.Contents()) {
        EXPECT_TRUE(help.Has(topic.name)) << topic.name.toStdString();
        EXPECT_FALSE(topic.title.isEmpty()) << topic.name.toStdString();
        names += topic.name;
        titles += topic.title;
    }
    EXPECT_EQ(names.size(), help.Contents().size());
    EXPECT_EQ(titles.size(), help.Contents().size());
    const QStringList sources = QDir(CORVANDA_FUENTES "/ayuda").entryList({"*.html"});
    for (const QString& source : sources) EXPECT_TRUE(IsListed(source)) << source.toStdString();
}

TEST_F(HelpFileTest, every_link_and_every_keyword_leads_somewhere) {
    for (const HelpTopic& topic : help.Contents()) {
        for (const QString& address : Captured(topic.name, R"re(<a href="([^"]*)")re")) {
            const QString whole = address.startsWith('#') ? topic.name + address : address;
            EXPECT_EQ(Fault(whole), "") << "from " << topic.name.toStdString();
        }
    }
    QSet<QString> words;
    for (const HelpKeyword& keyword : help.Keywords()) {
        EXPECT_EQ(Fault(keyword.address), "") << "keyword " << keyword.word.toStdString();
        words += keyword.word;
    }
    EXPECT_EQ(words.size(), help.Keywords().size()) << "a keyword stands there twice";
    EXPECT_GE(words.size(), 40);
}

TEST_F(HelpFileTest, every_picture_is_there_and_fits_the_page) {
    int pictures = 0;
    for (const HelpTopic& topic : help.Contents()) {
        for (const QString& name : Captured(topic.name, R"re(<img src="([^"]*)")re")) {
            const QImage image = QImage::fromData(help.Read(name));
            EXPECT_FALSE(image.isNull()) << name.toStdString();
            EXPECT_LE(image.width() / 1.5, 620) << name.toStdString();
            ++pictures;
        }
    }
    EXPECT_GE(pictures, 10);
    EXPECT_TRUE(help.Has("help.css")) << "the pages ask for it";
}

TEST_F(HelpFileTest, each_context_has_its_topic) {
    const struct {
        Integer context;
        const char* topic;
    } table[] = {{0, "welcome.html"}, {1, "computer.html"}, {2, "two.html"},
                 {3, "welcome.html"}, {-1, "welcome.html"}, {32767, "welcome.html"}};
    for (const auto& row : table) {
        EXPECT_EQ(help.TopicOf(row.context).toStdString(), row.topic) << row.context;
        EXPECT_TRUE(IsListed(help.TopicOf(row.context)));
    }
}

QString SourceText(const char* name) {
    QFile file(QStringLiteral(CORVANDA_FUENTES "/") + QLatin1String(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    return QString::fromUtf8(file.readAll());
}

// The pieces are looked for in the code as well, so that this list cannot grow old unnoticed.
TEST_F(HelpFileTest, explains_every_message_exactly_as_the_game_says_it) {
    const struct {
        const char* source;
        std::vector<const char*> pieces;  // as they stand in the code
        const char* on_the_page;
    } table[] = {
        {"core/mensajes.cpp",
         {"You can't do that move, it is already occupied by other player."},
         "You can't do that move, it is already occupied by other player."},
        {"core/mensajes.cpp", {"It is not your turn."}, "It is not your turn."},
        {"core/mensajes.cpp",
         {"You need to start a new game to move."},
         "You need to start a new game to move."},
        {"core/mensajes.cpp", {"You can't move backwards."}, "You can't move backwards."},
        {"core/mensajes.cpp", {"¡ Invalid Movement !"}, "¡ Invalid Movement !"},
        {"core/mensajes.cpp", {"Information :"}, "Information :"},
        {"core/pase.cpp", {"\"You have to play the \""}, "You have to play the 4"},
        {"core/pase.cpp", {"\"You have to play the  \""}, "You have to play the  4"},
        {"core/pase.cpp", {"Corvanda :"}, "Corvanda :"},
        {"core/pase.cpp",
         {"The player with brown chips passed"},
         "The player with brown chips passed"},
        {"core/pase.cpp",
         {"The player with the brown chips passed"},
         "The player with the brown chips passed"},
        {"core/pase.cpp",
         {"The player with the white chips passed"},
         "The player with the white chips passed"},
        {"core/salida.cpp", {"The player with White Chips Won"}, "The player with White Chips Won"},
        {"core/salida.cpp", {"The player with Brown Chips won"}, "The player with Brown Chips won"},
        {"core/salida.cpp", {"¡ You Win !"}, "¡ You Win !"},
        {"ui/frm_principal.cpp",
         {"¿ Are you sure you want to quit ?"},
         "¿ Are you sure you want to quit ?"},
        {"ui/frm_principal.cpp", {"¿ Exit ?"}, "¿ Exit ?"},
        {"ui/frm_volado.cpp", {"Player to Start"}, "Player to Start"},
        {"ui/frm_volado.cpp",
         {"\"The player with \"", "\"White Chips\"", "\" starts\""},
         "The player with White Chips starts"},
        {"ui/frm_volado.cpp",
         {"\"The player with \"", "\"Brown Chips\"", "\" starts\""},
         "The player with Brown Chips starts"},
        {"desktop/settings_file.cpp",
         {"The settings could not be saved in %1: %2."},
         "The settings could not be saved in FILE: REASON."},
        {"desktop/settings_file.cpp",
         {"there is no room left on the disk"},
         "there is no room left on the disk"},
        {"desktop/settings_file.cpp",
         {"the folder cannot be written"},
         "the folder cannot be written"},
        {"desktop/settings_file.cpp", {"the file cannot be written"}, "the file cannot be written"},
        {"desktop/settings_file.cpp",
         {"another program keeps the file locked"},
         "another program keeps the file locked"},
        {"desktop/help_viewer.cpp",
         {"The help file %1 cannot be opened."},
         "The help file FILE cannot be opened."},
        {"desktop/help_viewer.cpp",
         {"The help file %1 is damaged."},
         "The help file FILE is damaged."},
    };
    QTextDocument page;
    page.setHtml(help.ReadText("messages.html"));
    const QString text = page.toPlainText();
    for (const auto& row : table) {
        EXPECT_TRUE(text.contains(QString::fromUtf8(row.on_the_page))) << row.on_the_page;
        const QString source = SourceText(row.source);
        for (const char* piece : row.pieces) {
            EXPECT_TRUE(source.contains(QString::fromUtf8(piece))) << row.source << ": " << piece;
        }
    }
}

// Every text that the game gives to a message box by a literal must be on the page.
TEST_F(HelpFileTest, no_message_of_the_code_is_forgotten) {
    QTextDocument page;
    page.setHtml(help.ReadText("messages.html"));
    const QString text = page.toPlainText();
    const QRegularExpression call(R"re((?:Avisar|MsgBox|Terminar|Aceptar_Pase)\([^;]*?;)re");
    const QRegularExpression literal(R"re("([^"\n]+)")re");
    int found = 0;
    for (const char* folder : {"core", "computer", "ui", "app"}) {
        const QDir sources(QStringLiteral(CORVANDA_FUENTES "/") + QLatin1String(folder));
        for (const QString& name : sources.entryList({"*.cpp"})) {
            const QString path = QLatin1String(folder) + QLatin1Char('/') + name;
            auto calls = call.globalMatch(SourceText(path.toUtf8().constData()));
            while (calls.hasNext()) {
                auto literals = literal.globalMatch(calls.next().captured(0));
                for (; literals.hasNext(); ++found) {
                    const QString said = literals.next().captured(1);
                    EXPECT_TRUE(text.contains(said))
                        << path.toStdString() << " says " << said.toStdString();
                }
            }
        }
    }
    EXPECT_GE(found, 12) << "the calls are written in another way now: adapt this test";
}

TEST_F(HelpFileTest, answers_for_its_own_entries_only) {
    for (const char* name : {"", "/", ".", "..", "../welcome.html", "nothing.html", "imagenes",
                             "imagenes/../welcome.html"}) {
        EXPECT_FALSE(help.Has(name)) << name;
        EXPECT_TRUE(help.Read(name).isEmpty()) << name;
    }
}

TEST(HelpFiles, keep_apart_and_leave_nothing_behind) {
    const auto registered = [] { return QDir(":/").entryList({"help-*"}).size(); };
    const auto before = registered();
    auto one = std::make_unique<HelpFile>(built_help);
    const HelpFile two(built_help);
    EXPECT_EQ(registered(), before + 2);
    one.reset();
    EXPECT_EQ(registered(), before + 1);
    EXPECT_TRUE(two.ReadText("welcome.html").contains("<h1>"));
}

}  // namespace
}  // namespace corvanda
