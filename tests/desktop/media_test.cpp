// Films: the commands, the files, and what is seen of them. Their pictures are plain colours, so
// that a look at the window tells which of them is shown.
#include <QBuffer>
#include <QRegularExpression>

#include "desktop/media_control.h"
#include "desktop/media_file.h"
#include "tests/apoyo/tabla.h"
#include "tests/desktop/desk.h"

namespace corvanda::pruebas {
namespace {

QByteArray Jpeg(const QColor& color) {
    QImage image(40, 30, QImage::Format_RGB32);
    image.fill(color);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "JPEG", 95);
    return buffer.data();
}

QByteArray ListOf(const char* kind, const QByteArray& body) {
    return Chunk("LIST", kind + body);
}

QByteArray Header(quint32 microseconds) {
    return ListOf("hdrl", Chunk("avih", Number(microseconds) + QByteArray(52, '\0')));
}

QByteArray Avi(const QByteArray& movi, quint32 microseconds = 40'000) {
    return Chunk("RIFF", "AVI " + Header(microseconds) + ListOf("movi", movi));
}

const QByteArray r = Chunk("00dc", Jpeg(Qt::red));
const QByteArray g = Chunk("00dc", Jpeg(Qt::green));
const QByteArray b = Chunk("00db", Jpeg(Qt::blue));

/// r, g, b, k for black, ? for any other.
char Letter(const QColor& seen) {
    if (seen.value() < 24) return 'k';
    return seen.saturation() < 200 ? '?' : "rgb"[(seen.hue() + 60) % 360 / 120];
}

class MediaTest : public testing::Test {
  protected:
    MediaTest() {
        box.resize(400, 300);
        box.setPalette(QPalette(Qt::black, Qt::black));
        box.setAutoFillBackground(true);
        box.show();
    }

    /// The pictures of a file, - for one that cannot be decoded.
    std::string Pictures(const QByteArray& bytes) const {
        WriteBytes(folder.filePath("A.avi"), bytes);
        const auto film = media::ReadFilm(folder.filePath("A.avi"));
        if (!film) return "none";
        std::string letters;
        for (std::size_t i = 0; i < film->frames.size(); ++i) {
            const QImage image = media::Decode(*film, i);
            letters += image.isNull() ? '-' : Letter(image.pixelColor(5, 5));
        }
        return letters;
    }

    /// A command in which A and B are the films' names and W is the black window.
    std::string Send(const std::string& text) {
        QString command = QString::fromStdString(text);
        const QString name = '"' + folder.path() + "\\\\%1.avi\"";
        command.replace(QRegularExpression("\\bW\\b"), QString::number(quintptr(&box)));
        command.replace(QRegularExpression("\\b([AB])\\b"), name.arg("\\1"));
        std::string reply = "left over";
        const long code = control.mciSendString(command.toStdString(), reply);
        EXPECT_TRUE(code == 0 || reply.empty()) << command.toStdString();
        return code != 0 ? "error" : reply.empty() ? "ok" : "ok " + reply;
    }
    char Seen(QPoint at = {1, 1}) { return Letter(box.grab().toImage().pixelColor(at)); }

    const QTemporaryDir folder{QDir::tempPath() + "/a folder XXXXXX"};
    QtMediaControl control{folder.path().toStdString(), 2};
    QWidget box;
};

TEST_F(MediaTest, pictures_are_found_wherever_writers_put_them_and_only_there) {
    const QByteArray sound = Chunk("01wb", QByteArray(333, 'x'));
    const QByteArray empty = Chunk("00dc", {});
    QByteArray deep = r;
    for (int i = 0; i < 60; ++i) deep = ListOf("rec ", deep);
    QByteArray enormous = r;
    enormous.replace(enormous.indexOf("\xff\xc0") + 5, 4, "\xf0\x00\xf0\x00", 4);
    const struct {
        const char* what;
        QByteArray bytes;
        const char* pictures;
    } table[] = {
        {"sound between them", Avi(sound + r + sound + g + b), "rgb"},
        {"in groups", Avi(ListOf("rec ", r + sound) + ListOf("rec ", g) + b), "rgb"},
        {"an empty chunk repeats", Avi(r + empty + b), "rrb"},
        {"one in between is damaged", Avi(r + Chunk("00dc", "no picture") + b), "r-b"},
        {"cut off in the last", Avi(r + g + b).chopped(9), "rg"},
        {"a picture that claims to be enormous", Avi(r + enormous), "r-"},
        {"an empty file", {}, "none"},
        {"a text", "This is a text and not a film at all, however long it goes on.", "none"},
        {"no header", Chunk("RIFF", "AVI " + ListOf("movi", r)), "none"},
        {"only empty pictures", Avi(empty + empty), "none"},
        {"a duration of an hour", Avi(r, 3'600'000'000U), "none"},
        {"lists in lists in lists", Avi(deep), "none"},
        {"more than 32 MiB", Avi(r) + QByteArray(32 << 20, 'x'), "none"},
    };
    for (const auto& row : table) EXPECT_EQ(Pictures(row.bytes), row.pictures) << row.what;
    EXPECT_LE(Pictures(Avi(r + empty.repeated(100'000))).size(), 20'000U);
}

TEST_F(MediaTest, a_film_is_opened_shown_played_rewound_and_closed) {
    WriteBytes(folder.filePath("A.avi"), Avi(r + g + b));
    WriteBytes(folder.filePath("B.avi"), Avi(r));
    for (const auto& row : Tabla("desktop/film.txt", 3)) {
        const std::string wait = "comes to ";
        if (row[1].starts_with(wait)) {
            EXPECT_TRUE(QTest::qWaitFor([&] { return wait + Send(row[0]) == row[1]; })) << row[0];
        } else {
            EXPECT_EQ(Send(row[0]), row[1]);
        }
        if (row[2] == "*") continue;
        EXPECT_EQ(Seen(), row[2][0]) << row[0];
        EXPECT_EQ(Seen({398, 298}), row[2][0]) << row[0] << " fills its place";
        EXPECT_EQ(box.childAt(100, 75), nullptr) << "presses go through the picture";
    }
}

}  // namespace
}  // namespace corvanda::pruebas
