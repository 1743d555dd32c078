#include "desktop/media_command.h"

#include <gtest/gtest.h>

namespace corvanda::media {
namespace {

TEST(MediaCommandTest, commands_as_the_forms_send_them) {
    const QString name = "/home/a person/board games\\Corvanda.avi";
    const struct {
        const char* before;
        const char* after;
        Verb verb;
        std::vector<quint64> numbers;
    } table[] = {
        {"Open ", " Wait", Verb::Open, {}},
        {"Open ", "", Verb::Open, {}},
        {"Window ", " handle  94123456789012", Verb::Window, {94123456789012}},
        {"Put ", " destination at 0 0 200 150", Verb::Put, {0, 0, 200, 150}},
        {"Status ", " Mode", Verb::Status, {}},
        {"Seek ", " to 0", Verb::Seek, {0}},
        {"Play ", "", Verb::Play, {}},
        {"Close ", "", Verb::Close, {}},
        {"  cLOSE", "  ", Verb::Close, {}},
        {"STATUS\t", "\tMODE ", Verb::Status, {}},
    };
    for (const auto& row : table) {
        const auto command = Parse(row.before + ('"' + name.toStdString() + '"') + row.after);
        ASSERT_TRUE(command) << row.before << row.after;
        EXPECT_EQ(command->verb, row.verb) << row.before;
        EXPECT_EQ(command->name, name) << row.before;
        EXPECT_EQ(command->numbers, row.numbers) << row.before;
    }
}

TEST(MediaCommandTest, names_keep_every_character) {
    for (const char* name : {"a", " a  b ", R"(say "hello"\Corvanda.avi)", "¿juegos?\\ñandú.avi",
                             "open wait", "tab\there"}) {
        const auto command = Parse(std::string("Play \"") + name + '"');
        ASSERT_TRUE(command) << name;
        EXPECT_EQ(command->name.toStdString(), name);
    }
}

TEST(MediaCommandTest, anything_else_is_no_command) {
    const char* table[] = {
        "",
        " ",
        "\"",
        "\"\"",
        "Open",
        "Open a Wait",
        "Open \"\" Wait",
        "Open \"a Wait",
        "\"a\" Open",
        "Pause \"a\"",
        "Open wait \"a\"",
        "Open \"a\" Wait Wait",
        "Open \"a\" Type x",
        "Openit \"a\"",
        "Window \"a\"",
        "Window \"a\" handle",
        "Window \"a\" handle 1 2",
        "Window \"a\" handle x1",
        "Window \"a\" handle -1",
        "Window \"a\" handle 1.5",
        "Window \"a\" handle 99999999999999999999999",
        "Window \"a\" 1",
        "Put \"a\" destination at 0 0 200",
        "Put \"a\" destination at 0 0 200 150 1",
        "Put \"a\" source at 0 0 200 150",
        "Put \"a\" destination at 0 0 200 x",
        "Status \"a\"",
        "Status \"a\" length",
        "Status \"a\" Mode Mode",
        "Seek \"a\"",
        "Seek \"a\" to",
        "Seek \"a\" to start",
        "Seek \"a\" 0",
        "Play \"a\" from 0",
        "Close \"a\" now",
    };
    for (const char* text : table) EXPECT_FALSE(Parse(text)) << text;
    EXPECT_FALSE(Parse(std::string(100'000, ' ')));
    EXPECT_FALSE(Parse(std::string("Open \"a\" \0Wait", 14)));
}

}  // namespace
}  // namespace corvanda::media
