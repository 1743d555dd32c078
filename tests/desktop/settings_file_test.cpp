// The settings on the disk: whole or as before, whatever happens.
#include "desktop/settings_file.h"

#include <sys/file.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <memory>

#include "desktop/folder_lock.h"
#include "tests/desktop/desk.h"

namespace corvanda::pruebas {
namespace {

/// What a test does between the program and the kernel, each once.
struct {
    std::function<int(int file)> at_fsync;    ///< the error to report, 0 for none
    std::function<void()> at_a_refused_lock;  ///< after that the program may ask again
} meanwhile;

}  // namespace
}  // namespace corvanda::pruebas

// The program's own, in front of the C library's.
extern "C" int fsync(int file) {
    const auto asked = std::exchange(corvanda::pruebas::meanwhile.at_fsync, nullptr);
    errno = asked ? asked(file) : 0;
    return errno == 0 ? static_cast<int>(syscall(SYS_fsync, file)) : -1;
}

extern "C" int flock(int file, int operation) noexcept {
    if (syscall(SYS_flock, file, operation) == 0) return 0;
    const int why = errno;
    if (const auto asked = std::exchange(corvanda::pruebas::meanwhile.at_a_refused_lock, nullptr))
        asked();
    errno = why;
    return -1;
}

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
    const QByteArray config = qgetenv("XDG_CONFIG_HOME");
    qputenv("XDG_CONFIG_HOME", "relative");
    EXPECT_EQ(SettingsFile().FileName(), QDir::homePath() + "/.config/corvanda/settings.json");
    qputenv("XDG_CONFIG_HOME", config);
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

TEST_F(SettingsFileTest, what_others_wrote_densely_does_not_outgrow_the_reader) {
    QByteArray deep = "0";
    for (int i = 0; i < 500; ++i) deep = "[" + deep + ",0]";
    WriteBytes(file, R"({"x":)" + deep + "}");
    ExpectToStore("deep nesting");
    EXPECT_LT(ReadBytes(file).size(), deep.size() + 100);
    WriteBytes(file, R"({"x":")" + QByteArray((1 << 20) - 20, 'a') + R"("})");
    EXPECT_EQ(Store("0"), Failure("the file would become too large"));
    EXPECT_EQ(Stored("x"), "default");
}

TEST_F(SettingsFileTest, what_is_no_ordinary_file_is_neither_waited_for_nor_lost) {
    WriteBytes(file, "");
    QFile::remove(file);
    ASSERT_EQ(::mkfifo(QFile::encodeName(file).constData(), 0600), 0);
    EXPECT_EQ(Stored(), "default");
    ExpectToStore("a pipe");
    // A device or pipe behind a link is somebody else's as well.
    QFile::rename(file + ".damaged", file + ".pipe");
    QFile::remove(file);
    ASSERT_TRUE(QFile::link(file + ".pipe", file + ".link") && QFile::link(file + ".link", file));
    EXPECT_EQ(Stored(), "default");
    EXPECT_EQ(Store("0"), Failure("the link there leads to what is no ordinary file"));
    EXPECT_EQ(QFileInfo(file).canonicalFilePath(), QFileInfo(file + ".pipe").absoluteFilePath());
    EXPECT_FALSE(QFileInfo(file).isFile());
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

TEST_F(SettingsFileTest, what_another_copy_writes_while_this_one_waits_is_kept) {
    ExpectToStore("a file of this copy's");
    auto other = std::make_unique<FolderLock>(folder.filePath("corvanda"), 0ms);
    meanwhile.at_a_refused_lock = [&] {
        WriteBytes(file, R"({"other": {"Config": {"Sonido": "7"}}})");
        other.reset();
    };
    SettingsFile mine(file);
    EXPECT_EQ(mine.GetSetting(app, "Config", "Sonido", ""), "0") << "read before the other writes";
    mine.SaveSetting(app, "Config", "Nivel", "1");
    EXPECT_EQ(mine.Commit(), "");
    EXPECT_EQ(other, nullptr) << "written beside a locked folder";
    EXPECT_EQ(Stored("other"), "7");
    EXPECT_EQ(SettingsFile(file).GetSetting(app, "Config", "Nivel", ""), "1");
}

TEST_F(SettingsFileTest, the_new_file_is_on_the_disk_before_it_takes_the_old_ones_place) {
    const struct {
        int error;
        std::string told;
    } table[] = {{0, ""},
                 {EINVAL, ""},  // a file system that knows no such call is believed
                 {ENOSPC, Failure("there is no room left on the disk")},
                 {EIO, Failure("the file cannot be written")}};
    for (const auto& [error, told] : table) {
        ExpectToStore("the old file");
        const QByteArray old = ReadBytes(file);
        QByteArray written;
        meanwhile.at_fsync = [&, error = error](int descriptor) {
            written = ReadBytes(QStringLiteral("/proc/self/fd/%1").arg(descriptor));
            EXPECT_EQ(ReadBytes(file), old);
            return error;
        };
        EXPECT_EQ(Store("-1"), told) << error;
        EXPECT_FALSE(meanwhile.at_fsync) << error;
        EXPECT_TRUE(written.contains("-1") && written.endsWith("}\n")) << written.constData();
        EXPECT_EQ(ReadBytes(file), told.empty() ? written : old) << error;
    }
}

TEST_F(SettingsFileTest, a_link_stays_a_link_to_the_file_that_is_written) {
    for (const bool dangling : {false, true}) {
        const QString kept = folder.filePath("dotfiles/corvanda.json");
        WriteBytes(file, "");
        WriteBytes(kept, "{}");
        QFile::remove(file);
        ASSERT_TRUE(QFile::link("../dotfiles/corvanda.json", file));
        if (dangling) QFile::remove(kept);
        ExpectToStore(dangling ? "a link to nothing yet" : "a link");
        EXPECT_TRUE(QFileInfo(file).isSymLink());
        EXPECT_TRUE(QFileInfo(kept).isFile() && ReadBytes(kept).contains("Sonido"));
    }
}

}  // namespace
}  // namespace corvanda::pruebas
