// The settings on the disk: whole or as before, whatever happens.
#include "desktop/settings_file.h"

#include <sys/resource.h>

#include <csignal>
#include <memory>

#include "desktop/folder_lock.h"
#include "tests/desktop/desk.h"

namespace corvanda::pruebas {
namespace {

using namespace std::chrono_literals;

const std::string app = "/opt/juegos\\Corvanda.Ini";

class SettingsFileTest : public testing::Test {
  protected:
    std::string Stored(const std::string& of = app) const {
        return SettingsFile(file).GetSetting(of, "Config", "Sonido", "default");
    }
    std::string Store(const std::string& value, const std::string& of = app) const {
        SettingsFile settings(file, 0ms);
        settings.SaveSetting(of, "Config", "Sonido", value);
        return settings.Commit();
    }
    std::string Failure(const char* reason) const {
        return "The settings could not be saved in " + file.toStdString() + ": " + reason + ".";
    }
    void ExpectToStore(const char* what) const {
        EXPECT_EQ(Store("0"), "") << what;
        EXPECT_EQ(Stored(), "0") << what;
    }

    const QTemporaryDir folder;
    const QString file = folder.filePath("corvanda/settings.json");
};

TEST_F(SettingsFileTest, a_later_run_reads_what_was_committed_and_others_wrote_meanwhile) {
    EXPECT_EQ(SettingsFile().FileName(),
              qEnvironmentVariable("XDG_CONFIG_HOME") + "/corvanda/settings.json");
    SettingsFile mine(file);
    EXPECT_EQ(mine.Commit(), "");
    mine.SaveSetting(app, "Config", "Sonido", "0");
    EXPECT_EQ(mine.GetSetting(app, "Config", "Sonido", "-1"), "-1") << "not before the commit";
    EXPECT_FALSE(QFile::exists(file));
    for (const char* text : {"-1", "", " 100", "línea \"uno\"\n\tdos\\tres", "null"}) {
        ASSERT_EQ(Store(text, "/opt/otra"), "");
        EXPECT_EQ(Stored("/opt/otra"), text);
    }
    EXPECT_EQ(mine.Commit(), "");
    EXPECT_EQ(Stored(), "0");
    EXPECT_EQ(Stored("/opt/otra"), "null");
    EXPECT_EQ(QDir(folder.filePath("corvanda")).entryList(QDir::Files | QDir::Hidden),
              QStringList{"settings.json"});
}

TEST_F(SettingsFileTest, whatever_stands_there_gives_defaults_and_gives_way) {
    const QByteArray name = R"({"x":[1], "/opt/juegos\\Corvanda.Ini":)";
    const struct {
        QByteArray bytes;
        bool damaged;
    } table[] = {
        {name + "5}", false},
        {name + R"({"Config":{"Sonido":-1}}})", false},
        {R"({"x":{"Config":)", true},
        {"[1,2]", true},
        {"", true},
        {QByteArray(100000, '['), true},
        {R"({"x":")" + QByteArray(1 << 20, 'a') + R"("})", true},
        {Noise(5000), true},
    };
    for (const auto& row : table) {
        QFile::remove(file + ".damaged");
        WriteBytes(file, row.bytes);
        EXPECT_EQ(Stored(), "default") << row.bytes.left(80).constData();
        EXPECT_EQ(ReadBytes(file), row.bytes) << "reading changes nothing";
        ExpectToStore(row.bytes.left(80).constData());
        EXPECT_EQ(ReadBytes(file + ".damaged"), row.damaged ? row.bytes : "(none)");
        EXPECT_EQ(ReadBytes(file).contains(R"("x")"), !row.damaged) << "the rest is kept";
    }
}

TEST_F(SettingsFileTest, what_is_no_ordinary_file_is_neither_waited_for_nor_lost) {
    WriteBytes(file, "");
    QFile::remove(file);
    ASSERT_EQ(::mkfifo(QFile::encodeName(file).constData(), 0600), 0);
    EXPECT_EQ(Stored(), "default");
    ExpectToStore("a pipe");
    QFile::remove(file);
    QDir().mkpath(file);
    EXPECT_EQ(Store("0"), Failure("the file cannot be written"));
    QDir(folder.filePath("corvanda")).removeRecursively();
    WriteBytes(folder.filePath("corvanda"), "a file in the folder's place");
    EXPECT_EQ(Store("0"), Failure("the folder cannot be written"));
}

TEST_F(SettingsFileTest, a_full_disk_is_told_and_leaves_the_old_file) {
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit narrow{500, before.rlim_max};
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    for (const QByteArray& old : {QByteArray("{}"), QByteArray("damaged")}) {
        // The short text stays in a buffer until the end, the long one does not.
        for (const std::size_t length : {1000U, 100000U}) {
            WriteBytes(file, old);
            setrlimit(RLIMIT_FSIZE, &narrow);
            const std::string told = Store(std::string(length, 'x'));
            setrlimit(RLIMIT_FSIZE, &before);
            EXPECT_EQ(told, Failure("the disk is full or cannot be written")) << length;
            EXPECT_EQ(ReadBytes(file), old) << length;
        }
    }
    EXPECT_EQ(QDir(folder.filePath("corvanda")).entryList(QDir::Files | QDir::Hidden).size(), 1);
    std::signal(SIGXFSZ, handler);
}

TEST_F(SettingsFileTest, another_program_counts_while_it_lives_and_its_remains_are_swept_up) {
    ExpectToStore("no lock");
    auto other = std::make_unique<FolderLock>(folder.filePath("corvanda"), 0ms);
    ASSERT_TRUE(other->Held());
    EXPECT_EQ(Store("-1"), Failure("another program keeps the file locked"));
    EXPECT_EQ(Stored(), "0");
    // What programs that were killed in the middle have left, and what only looks like it.
    for (const char* end : {".aBcDeF", ".lock", ".mine", ".mine42"}) WriteBytes(file + end, "");
    other.reset();
    ExpectToStore("the other let go");
    EXPECT_EQ(QDir(folder.filePath("corvanda")).entryList(QDir::Files),
              (QStringList{"settings.json", "settings.json.lock", "settings.json.mine",
                           "settings.json.mine42"}));
}

}  // namespace
}  // namespace corvanda::pruebas
