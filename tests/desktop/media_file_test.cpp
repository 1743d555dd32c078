#include "desktop/media_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QTemporaryDir>
#include <random>

#include "tests/desktop/media_bytes.h"

namespace corvanda {
namespace {

using namespace pruebas;

class MediaFileTest : public testing::Test {
  protected:
    QTemporaryDir folder;
    QString name = folder.filePath("Film.avi");

    std::optional<media::Film> Read(const QByteArray& bytes) const {
        WriteBytes(name, bytes);
        return media::ReadFilm(name);
    }

    /// The pictures of a file as letters: r, g, b, ? for any other, - for one that is not there.
    std::string Colors(const QByteArray& bytes) const {
        const auto film = Read(bytes);
        if (!film) return "none";
        std::string letters;
        for (std::size_t i = 0; i < film->frames.size(); ++i) {
            const QImage image = media::Decode(*film, i);
            const QColor color = image.isNull() ? QColor() : image.pixelColor(5, 5);
            letters += image.isNull()                ? '-'
                       : Resembles(color, Qt::red)   ? 'r'
                       : Resembles(color, Qt::green) ? 'g'
                       : Resembles(color, Qt::blue)  ? 'b'
                                                     : '?';
        }
        return letters;
    }
};

TEST_F(MediaFileTest, pictures_are_found_wherever_writers_put_them) {
    const QByteArray r = Chunk("00dc", JpegBytes(Qt::red));
    const QByteArray g = Chunk("00dc", JpegBytes(Qt::green));
    const QByteArray b = Chunk("00db", JpegBytes(Qt::blue));
    const QByteArray sound = Chunk("01wb", QByteArray(333, 'x'));
    const struct {
        const char* what;
        QByteArray bytes;
        const char* colors;
    } table[] = {
        {"one after the other", AviBytes(50'000, r + g + b), "rgb"},
        {"sound between them", AviBytes(50'000, sound + r + sound + g + b), "rgb"},
        {"in groups",
         AviBytes(50'000, ListChunk("LIST", "rec ", r + sound) + ListChunk("LIST", "rec ", g) + b),
         "rgb"},
        {"an empty chunk repeats", AviBytes(50'000, r + Chunk("00dc", {}) + b), "rrb"},
        {"a second stream is left out",
         AviBytes(50'000, r + Chunk("02dc", JpegBytes(Qt::blue)) + g), "rg"},
        {"a picture in between is damaged", AviBytes(50'000, r + Chunk("00dc", "no picture") + b),
         "r-b"},
        {"something before the pictures",
         ListChunk(
             "RIFF", "AVI ",
             Header(50'000) + Chunk("JUNK", QByteArray(1001, '\0')) + ListChunk("LIST", "movi", r)),
         "r"},
        {"an index after them", AviBytes(50'000, g) + Chunk("idx1", QByteArray(16, '\1')), "g"},
    };
    for (const auto& row : table) EXPECT_EQ(Colors(row.bytes), row.colors) << row.what;
}

TEST_F(MediaFileTest, what_is_no_film_gives_nothing) {
    const QByteArray r = Chunk("00dc", JpegBytes(Qt::red));
    QByteArray deep = r;
    for (int i = 0; i < 60; ++i) deep = ListChunk("LIST", "rec ", deep);
    const struct {
        const char* what;
        QByteArray bytes;
    } table[] = {
        {"an empty file", {}},
        {"a text", "This is a text and not a film at all, however long it goes on."},
        {"four letters", "RIFF"},
        {"a sound", ListChunk("RIFF", "WAVE", r)},
        {"no header", ListChunk("RIFF", "AVI ", ListChunk("LIST", "movi", r))},
        {"no pictures", AviBytes(50'000, {})},
        {"only empty pictures", AviBytes(50'000, Chunk("00dc", {}) + Chunk("00dc", {}))},
        {"no duration", AviBytes(0, r)},
        {"a duration of nothing", AviBytes(1, r)},
        {"a duration of an hour", AviBytes(3'600'000'000U, r)},
        {"lists in lists in lists", AviBytes(50'000, deep)},
        {"more than 32 MiB", FilmBytes() + QByteArray(32 << 20, 'x')},
    };
    for (const auto& row : table) EXPECT_FALSE(Read(row.bytes)) << row.what;
}

TEST_F(MediaFileTest, what_is_no_ordinary_file_gives_nothing_and_is_not_waited_for) {
    const QString pipe = folder.filePath("pipe.avi");
    ASSERT_EQ(mkfifo(pipe.toLocal8Bit().constData(), 0600), 0);
    for (const QString& each : {pipe, folder.path(), folder.filePath("missing.avi"), QString()})
        EXPECT_FALSE(media::ReadFilm(each)) << each.toStdString();
}

TEST_F(MediaFileTest, sizes_that_lead_out_of_the_file_end_the_walk) {
    const QByteArray good = FilmBytes();
    const auto movi = good.indexOf("movi");
    for (const quint32 size : {0xffffffffU, 0xfffffff7U, 0x80000000U, 0x7fffffffU, 3U, 1U, 0U}) {
        QByteArray picture = good;
        picture.replace(good.indexOf("00dc") + 4, 4, Number(size));
        QByteArray list = good;
        list.replace(movi - 4, 4, Number(size));
        QByteArray file = good;
        file.replace(4, 4, Number(size));
        for (const QByteArray& bytes : {picture, list, file}) {
            const auto film = Read(bytes);
            if (!film) continue;
            for (const auto& frame : film->frames)
                EXPECT_LE(frame.at + frame.size, film->bytes.size()) << size;
        }
    }
}

TEST_F(MediaFileTest, a_small_picture_that_claims_to_be_enormous_is_not_decoded) {
    QByteArray jpeg = JpegBytes(Qt::red);
    const auto frame_header = jpeg.indexOf("\xff\xc0");
    ASSERT_GT(frame_header, 0);
    jpeg.replace(frame_header + 5, 4, "\xf0\x00\xf0\x00", 4);
    EXPECT_EQ(Colors(AviBytes(50'000, Chunk("00dc", jpeg))), "-");
}

TEST_F(MediaFileTest, more_pictures_than_a_film_can_have_cost_no_memory) {
    QByteArray many = Chunk("00dc", JpegBytes(Qt::red));
    for (int i = 0; i < 100'000; ++i) many += Chunk("00dc", {});
    const auto film = Read(AviBytes(50'000, many));
    ASSERT_TRUE(film);
    EXPECT_LE(film->frames.size(), 20'000U);
}

TEST_F(MediaFileTest, the_games_own_film) {
    const QString own = QStringLiteral(CORVANDA_FUENTES "/Corvanda.avi");
    const auto film = media::ReadFilm(own);
    ASSERT_TRUE(film);
    EXPECT_LT(film->bytes.size(), 1 << 20);
    const double seconds = static_cast<double>(film->frames.size()) * film->microseconds / 1e6;
    EXPECT_GT(seconds, 2);
    EXPECT_LT(seconds, 4);
    for (std::size_t i = 0; i < film->frames.size(); ++i) {
        const QImage image = media::Decode(*film, i);
        ASSERT_EQ(image.size(), QSize(200, 150)) << i;
        // It stands in a black window without a border.
        int brightest = 0;
        for (int x = 0; x < 200; ++x)
            for (const int y : {0, 149})
                brightest = std::max(brightest, image.pixelColor(x, y).lightness());
        for (int y = 0; y < 150; ++y)
            for (const int x : {0, 199})
                brightest = std::max(brightest, image.pixelColor(x, y).lightness());
        EXPECT_LT(brightest, 16) << i;
    }
}

}  // namespace
}  // namespace corvanda
