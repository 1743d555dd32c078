#include "desktop/settings_file.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QLockFile>
#include <QTemporaryDir>
#include <csignal>
#include <functional>

namespace corvanda {
namespace {

using testing::AssertionFailure;
using testing::AssertionResult;
using testing::AssertionSuccess;

const std::string app = "/opt/juegos\\Corvanda.Ini";

class SettingsFileTest : public testing::Test {
  protected:
    QTemporaryDir folder;
    QString file = folder.filePath("corvanda/settings.json");

    void Put(const QByteArray& bytes) const {
        QDir().mkpath(QFileInfo(file).path());
        QFile out(file);
        ASSERT_TRUE(out.open(QIODevice::WriteOnly));
        out.write(bytes);
    }
    static QByteArray Bytes(const QString& name) {
        QFile in(name);
        return in.open(QIODevice::ReadOnly) ? in.readAll() : QByteArray("(none)");
    }
    std::string Stored(const std::string& application, const std::string& key) const {
        return SettingsFile(file).GetSetting(application, "Config", key, "default");
    }
    std::string Store(const std::string& application, const std::string& key,
                      const std::string& value) const {
        SettingsFile settings(file);
        settings.SaveSetting(application, "Config", key, value);
        return settings.Commit();
    }
    QStringList Files() const {
        return QDir(QFileInfo(file).path()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }
};

TEST_F(SettingsFileTest, lies_in_the_persons_configuration_folder) {
    const QString expected = qEnvironmentVariable("XDG_CONFIG_HOME") + "/corvanda/settings.json";
    EXPECT_EQ(SettingsFile().FileName(), expected);
}

TEST_F(SettingsFileTest, a_later_run_reads_what_was_committed) {
    const char* texts[] = {"-1", "", " 100", "línea \"uno\"\n\tdos\\tres", "½ 名 🎲", "null"};
    for (const char* text : texts) {
        ASSERT_EQ(Store(app, text, text), "");
        EXPECT_EQ(Stored(app, text), text);
    }
    EXPECT_EQ(Files(), QStringList{"settings.json"}) << "nothing else is left in the folder";
}

TEST_F(SettingsFileTest, nothing_is_written_or_answered_before_the_commit) {
    SettingsFile settings(file);
    settings.SaveSetting(app, "Config", "Sonido", "0");
    EXPECT_EQ(settings.GetSetting(app, "Config", "Sonido", "-1"), "-1");
    EXPECT_FALSE(QFile::exists(file));
    EXPECT_EQ(settings.Commit(), "");
    EXPECT_EQ(settings.GetSetting(app, "Config", "Sonido", "-1"), "0");
}

TEST_F(SettingsFileTest, an_empty_commit_creates_nothing) {
    EXPECT_EQ(SettingsFile(file).Commit(), "");
    EXPECT_FALSE(QFile::exists(file));
}

TEST_F(SettingsFileTest, what_other_copies_wrote_meanwhile_survives) {
    ASSERT_EQ(Store("/opt/otra\\Corvanda.Ini", "Nivel", "Avanzado"), "");
    SettingsFile mine(file);
    EXPECT_EQ(mine.GetSetting(app, "Config", "Nivel", "Principiante"), "Principiante");
    ASSERT_EQ(Store("/opt/tercera\\Corvanda.Ini", "Velocidad", "7"), "");
    mine.SaveSetting(app, "Config", "Sonido", "0");
    ASSERT_EQ(mine.Commit(), "");
    EXPECT_EQ(Stored("/opt/otra\\Corvanda.Ini", "Nivel"), "Avanzado");
    EXPECT_EQ(Stored("/opt/tercera\\Corvanda.Ini", "Velocidad"), "7");
    EXPECT_EQ(Stored(app, "Sonido"), "0");
    EXPECT_EQ(SettingsFile(file).GetSetting(app, "CONFIG", "Sonido", "none"), "none");
}

TEST_F(SettingsFileTest, parts_of_another_type_give_the_default_and_are_replaced_alone) {
    const QByteArray name = R"("/opt/juegos\\Corvanda.Ini")";
    const QByteArray wrong[] = {
        "{" + name + R"(:5, "x":[1]})",
        "{" + name + R"(:{"Config":"text"}, "x":[1]})",
        "{" + name + R"(:{"Config":{"Sonido":-1}}, "x":[1]})",
        "{" + name + R"(:{"Config":{"Sonido":null}}, "x":[1]})",
    };
    for (const QByteArray& bytes : wrong) {
        Put(bytes);
        EXPECT_EQ(Stored(app, "Sonido"), "default") << bytes.constData();
        EXPECT_EQ(Store(app, "Sonido", "0"), "");
        EXPECT_EQ(Stored(app, "Sonido"), "0") << bytes.constData();
        EXPECT_TRUE(Bytes(file).contains(R"("x")")) << Bytes(file).constData();
        EXPECT_FALSE(QFile::exists(file + ".damaged"));
    }
}

TEST_F(SettingsFileTest, a_damaged_file_gives_defaults_and_is_kept_beside_the_new_one) {
    const QByteArray damaged[] = {
        R"({"x":{"Config":)",
        "[1,2]",
        QByteArray(64, '\0'),
        "\xff\xfe{}",
        QByteArray(100000, '['),
        "garbage",
        QByteArray(R"({"x":")") + QByteArray(1 << 20, 'a') + R"("})",
    };
    for (const QByteArray& bytes : damaged) {
        Put(bytes);
        EXPECT_EQ(Stored(app, "Sonido"), "default");
        EXPECT_EQ(Bytes(file), bytes) << "reading changes nothing";
        EXPECT_EQ(Store(app, "Sonido", "0"), "");
        EXPECT_EQ(Stored(app, "Sonido"), "0");
        EXPECT_EQ(Bytes(file + ".damaged"), bytes);
    }
}

TEST_F(SettingsFileTest, what_is_no_ordinary_file_is_not_waited_for) {
    QDir().mkpath(QFileInfo(file).path());
    ASSERT_EQ(mkfifo(file.toLocal8Bit().constData(), 0600), 0);
    EXPECT_EQ(Stored(app, "Sonido"), "default");
    EXPECT_EQ(Store(app, "Sonido", "0"), "");
    EXPECT_EQ(Stored(app, "Sonido"), "0");
}

TEST_F(SettingsFileTest, a_link_is_followed_and_stays_a_link) {
    const QString real = folder.filePath("real.json");
    Put("");
    ASSERT_TRUE(QFile::remove(file));
    ASSERT_TRUE(QFile::link(real, file));
    EXPECT_EQ(Store(app, "Sonido", "0"), "");
    EXPECT_TRUE(QFileInfo(file).isSymLink());
    EXPECT_TRUE(Bytes(real).contains("Sonido"));
    EXPECT_EQ(Stored(app, "Sonido"), "0");
}

AssertionResult SaysWhy(const std::string& message, const QString& name, const char* reason) {
    const std::string expected =
        "The settings could not be saved in " + name.toStdString() + ": " + reason + ".";
    return message == expected ? AssertionSuccess()
                               : AssertionFailure() << message << "\nexpected " << expected;
}

TEST_F(SettingsFileTest, a_folder_that_cannot_be_made_is_told_and_may_be_retried) {
    const QString blocker = folder.filePath("corvanda");
    QFile plain(blocker);
    ASSERT_TRUE(plain.open(QIODevice::WriteOnly));
    SettingsFile settings(file);
    EXPECT_EQ(settings.GetSetting(app, "Config", "Sonido", "-1"), "-1");
    settings.SaveSetting(app, "Config", "Sonido", "0");
    EXPECT_TRUE(SaysWhy(settings.Commit(), file, "the folder cannot be written"));
    ASSERT_TRUE(plain.remove());
    EXPECT_EQ(settings.Commit(), "");
    EXPECT_EQ(Stored(app, "Sonido"), "0");
}

TEST_F(SettingsFileTest, a_folder_in_the_files_place_is_told) {
    QDir().mkpath(file);
    EXPECT_TRUE(SaysWhy(Store(app, "Sonido", "0"), file, "the file cannot be written"));
    EXPECT_TRUE(QFileInfo(file).isDir()) << "and it is still there";
}

/// Lets no file grow beyond a number of bytes, as a disk that is nearly full.
class NarrowDisk {
  public:
    explicit NarrowDisk(rlim_t bytes) {
        getrlimit(RLIMIT_FSIZE, &before);
        const rlimit narrow{bytes, before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &narrow);
    }
    ~NarrowDisk() {
        setrlimit(RLIMIT_FSIZE, &before);
        std::signal(SIGXFSZ, handler);
    }
    NarrowDisk(const NarrowDisk&) = delete;
    NarrowDisk& operator=(const NarrowDisk&) = delete;

  private:
    rlimit before{};
    void (*handler)(int) = std::signal(SIGXFSZ, SIG_IGN);
};

TEST_F(SettingsFileTest, a_full_disk_is_told_and_leaves_the_old_file) {
    for (const QByteArray& old : {QByteArray("{}"), QByteArray("damaged")}) {
        // The short text stays in a buffer until the end, the long one does not.
        for (const int length : {1000, 100000}) {
            Put(old);
            const NarrowDisk narrow(500);
            const std::string told = Store(app, "Nivel", std::string(length, 'x'));
            EXPECT_TRUE(SaysWhy(told, file, "the disk is full or cannot be written")) << length;
            EXPECT_EQ(Bytes(file), old) << length;
            EXPECT_EQ(Files(), QStringList{"settings.json"}) << length;
        }
    }
}

TEST_F(SettingsFileTest, a_lock_held_by_another_is_told_and_the_file_kept) {
    ASSERT_EQ(Store(app, "Sonido", "-1"), "");
    QLockFile other(file + ".lock");
    ASSERT_TRUE(other.lock());
    EXPECT_TRUE(SaysWhy(Store(app, "Sonido", "0"), file, "another program keeps the file locked"));
    EXPECT_EQ(Stored(app, "Sonido"), "-1");
}

TEST_F(SettingsFileTest, the_lock_of_a_program_that_died_does_not_count) {
    ASSERT_EQ(Store(app, "Sonido", "-1"), "");
    QFile lock(file + ".lock");
    ASSERT_TRUE(lock.open(QIODevice::WriteOnly));
    lock.write("2147483646\nsomething\n" + QSysInfo::machineHostName().toLocal8Bit() + "\n\n\n");
    lock.close();
    EXPECT_EQ(Store(app, "Sonido", "0"), "");
    EXPECT_EQ(Stored(app, "Sonido"), "0");
}

}  // namespace
}  // namespace corvanda
