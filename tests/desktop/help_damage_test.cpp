// Help files that are not what they should be: each is told in one box that names the file, opens
// no window, leaves nothing registered, and does not keep a good file from opening afterwards.
#include <gtest/gtest.h>

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <functional>
#include <random>

#include "desktop/help_viewer.h"
#include "tests/desktop/help_desk.h"

namespace corvanda {
namespace {

QByteArray GoodBytes() {
    QFile file(built_help);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << built_help.toStdString();
    return file.readAll();
}

QByteArray Sealed(const QByteArray& bytes) {
    return bytes + QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex();
}

/// A whole file whose entry of that name is called something else.
QByteArray Without(const char* name) {
    QByteArray bytes = GoodBytes().chopped(64);
    QByteArray wide;
    for (const char* each = name; *each != '\0'; ++each) wide += QByteArray(1, '\0') + *each;
    const auto at = bytes.indexOf(wide);
    EXPECT_GE(at, 0) << name;
    bytes[at + 1] = '~';
    return Sealed(bytes);
}

class HelpDamageTest : public testing::Test {
  protected:
    QString Put(const QByteArray& bytes) {
        const QString name = folder.filePath("corvanda.HLP");
        QFile::remove(name);
        QFile file(name);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        EXPECT_EQ(file.write(bytes), bytes.size());
        return name;
    }

    std::vector<std::string> Ask() {
        RememberedBoxes boxes;
        const std::string path = folder.path().toStdString();
        QtHelpViewer viewer(boxes, path, "Corvanda");
        viewer.WinHelp(path + "\\corvanda.HLP", help::Contents, 0);
        EXPECT_TRUE(HelpWindows().empty());
        EXPECT_TRUE(QDir(":/").entryList({"help-*"}).isEmpty());
        return boxes.said;
    }

    std::vector<std::string> Box(const char* end) const {
        const QString name = QDir::toNativeSeparators(folder.filePath("corvanda.HLP"));
        return {"Corvanda | 48 | The help file " + name.toStdString() + end};
    }

    const QTemporaryDir folder;
};

TEST_F(HelpDamageTest, says_that_a_file_cannot_be_opened) {
    EXPECT_EQ(Ask(), Box(" cannot be opened.")) << "no file";
    ASSERT_TRUE(QDir(folder.path()).mkdir("corvanda.HLP"));
    EXPECT_EQ(Ask(), Box(" cannot be opened.")) << "a folder";
}

TEST_F(HelpDamageTest, says_that_a_file_is_damaged) {
    const QByteArray good = GoodBytes();
    std::mt19937 random(7);
    QByteArray noise(good.size(), '\0');
    for (char& each : noise) each = static_cast<char>(random());
    const struct {
        const char* what;
        QByteArray bytes;
    } table[] = {
        {"empty", {}},
        {"one byte", good.left(1)},
        {"shorter than a seal", good.left(63)},
        {"a seal and nothing else", Sealed({})},
        {"cut in half", good.left(good.size() / 2)},
        {"the last byte missing", good.chopped(1)},
        {"one byte more", good + "0"},
        {"the seal missing", good.chopped(64)},
        {"random bytes", noise},
        {"random bytes with a seal", Sealed(noise)},
        {"text with a seal", Sealed("<html></html>")},
        {"too large", QByteArray(17 * 1024 * 1024, 'x')},
        {"no contents", Without("contents.txt")},
        {"a topic missing", Without("aim.html")},
        {"the topic of a context missing", Without("two.html")},
    };
    for (const auto& row : table) {
        Put(row.bytes);
        EXPECT_EQ(Ask(), Box(" is damaged.")) << row.what;
    }
}

TEST_F(HelpDamageTest, survives_sixty_random_damages) {
    const QByteArray good = GoodBytes();
    for (unsigned seed = 1; seed <= 60; ++seed) {
        std::mt19937 random(seed);
        const auto place = [&] {
            return static_cast<qsizetype>(random() % static_cast<unsigned long>(good.size()));
        };
        QByteArray bytes = good;
        const unsigned changes = 1 + seed % 5;
        for (unsigned i = 0; i < changes; ++i) {
            const auto at = place();
            bytes[at] = static_cast<char>(bytes.at(at) ^ static_cast<char>(1 + random() % 255));
        }
        if (seed % 3 == 0) bytes.remove(place(), 1 + place() / 2);
        if (seed % 7 == 0) bytes.insert(place() % bytes.size(), good.left(1 + place() / 9));
        ASSERT_NE(bytes, good);
        Put(bytes);
        EXPECT_EQ(Ask(), Box(" is damaged.")) << "seed " << seed;
    }
}

TEST_F(HelpDamageTest, opens_as_soon_as_the_file_is_good_and_keeps_it_open) {
    RememberedBoxes boxes;
    const std::string path = folder.path().toStdString();
    QtHelpViewer viewer(boxes, path, "Corvanda");
    const auto ask = [&] { viewer.WinHelp(path + "\\corvanda.HLP", help::Context, 1); };
    ask();
    EXPECT_EQ(boxes.said, Box(" cannot be opened."));
    const QString name = Put(GoodBytes());
    ask();
    ASSERT_EQ(HelpWindows().size(), 1U);
    EXPECT_TRUE(HelpWindows().front()->isVisible());
    ASSERT_TRUE(QFile::remove(name));
    ask();
    EXPECT_EQ(boxes.said.size(), 1U) << "what is open needs the file no more";
}

}  // namespace
}  // namespace corvanda
