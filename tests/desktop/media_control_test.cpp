#include "desktop/media_control.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTest>
#include <random>

#include "tests/desktop/media_bytes.h"

namespace corvanda {
namespace {

using namespace pruebas;

class MediaControlTest : public testing::Test {
  protected:
    MediaControlTest() {
        box.resize(200, 150);
        box.setPalette(QPalette(Qt::black, Qt::black));
        box.setAutoFillBackground(true);
        box.show();
    }

    /// A film by the name under which commands know it.
    std::string Write(const QByteArray& bytes, const std::string& name = "Film.avi") {
        WriteBytes(folder.filePath(QString::fromStdString(name)), bytes);
        return Name(name);
    }

    std::string Name(const std::string& name) const {
        return '"' + folder.path().toStdString() + '\\' + name + '"';
    }

    long Send(const std::string& command) {
        reply = "left over";
        const long code = control.mciSendString(command, reply);
        EXPECT_TRUE(code == 0 || reply.empty()) << command;
        return code;
    }

    std::string Mode(const std::string& name) {
        return Send("Status " + name + " Mode") == 0 ? reply : "error";
    }

    std::string WindowCommand(const std::string& name) const {
        return "Window " + name + " handle  " + std::to_string(reinterpret_cast<quintptr>(&box));
    }

    /// As the start-up screen opens it.
    void Open(const std::string& name) {
        EXPECT_EQ(Send("Open " + name + " Wait"), 0);
        EXPECT_EQ(Send(WindowCommand(name)), 0);
        EXPECT_EQ(Send("Put " + name + " destination at 0 0 200 150"), 0);
    }

    QColor Seen(QPoint at) { return box.grab().toImage().pixelColor(at); }
    bool Shows(const QColor& color) { return Resembles(Seen({100, 75}), color); }

    QTemporaryDir folder{QDir::tempPath() + "/a folder with blanks XXXXXX"};
    QtMediaControl control{folder.path().toStdString(), 1};
    QWidget box;
    std::string reply;
};

TEST_F(MediaControlTest, a_film_is_opened_shown_played_rewound_and_closed) {
    const std::string film = Write(FilmBytes());
    Open(film);
    EXPECT_EQ(Mode(film), "stopped");
    EXPECT_TRUE(Shows(Qt::red)) << "the first picture is there before it plays";
    EXPECT_EQ(Send("Play " + film), 0);
    EXPECT_EQ(Mode(film), "playing");
    ASSERT_TRUE(QTest::qWaitFor([&] { return Mode(film) == "stopped"; }));
    EXPECT_TRUE(Shows(Qt::blue)) << "the last picture stays";
    EXPECT_EQ(Send("Seek " + film + " to 0"), 0);
    EXPECT_TRUE(Shows(Qt::red));
    EXPECT_EQ(Send("Play " + film), 0);
    EXPECT_EQ(Mode(film), "playing");
    EXPECT_EQ(Send("Seek " + film + " to 1"), 0);
    EXPECT_EQ(Mode(film), "stopped");
    EXPECT_TRUE(Shows(Qt::green));
    EXPECT_EQ(Send("Close " + film), 0);
    EXPECT_TRUE(Shows(Qt::black));
    EXPECT_EQ(Mode(film), "error");
    EXPECT_TRUE(box.children().isEmpty());
}

TEST_F(MediaControlTest, a_film_takes_its_time) {
    const std::string film = Write(FilmBytes(100'000));
    Open(film);
    QElapsedTimer clock;
    clock.start();
    Send("Play " + film);
    ASSERT_TRUE(QTest::qWaitFor([&] { return Mode(film) == "stopped"; }));
    EXPECT_GE(clock.elapsed(), 240) << "three pictures of a tenth of a second";
}

TEST_F(MediaControlTest, commands_out_of_order_and_values_out_of_range) {
    const std::string a = Write(FilmBytes(), "a.avi");
    const std::string b = Write(FilmBytes(), "b b.avi");
    const std::string none = Name("none.avi");
    const struct {
        std::string command;
        bool done;
    } table[] = {
        {"Status " + a + " Mode", false},
        {WindowCommand(a), false},
        {"Put " + a + " destination at 0 0 200 150", false},
        {"Seek " + a + " to 0", false},
        {"Play " + a, false},
        {"Close " + a, false},
        {"Open " + none + " Wait", false},
        {"Play " + none, false},
        {"Open " + a + " Wait", true},
        {"Open " + a + " Wait", false},
        {"open " + b, true},
        {"Stop " + a, false},
        {"Play " + a, true},  // into no window: nobody sees it
        {"Put " + a + " destination at 0 0 200 150", true},
        {"Put " + a + " destination at 0 0 0 150", false},
        {"Put " + a + " destination at 0 0 200 99999", false},
        {"Put " + a + " destination at 18446744073709551615 0 200 150", false},
        {"Window " + a + " handle  0", false},
        {"Window " + a + " handle  1", false},
        {"Window " + a + " handle  18446744073709551615", false},
        {WindowCommand(a), true},
        {WindowCommand(a), true},
        {"Seek " + a + " to 3", true},
        {"Seek " + a + " to 4", false},
        {"Seek " + a + " to 18446744073709551615", false},
        {"Close " + a, true},
        {"Close " + a, false},
        {"Status " + b + " Mode", true},
        {"Open " + a + " Wait", true},
    };
    for (const auto& row : table) EXPECT_EQ(Send(row.command) == 0, row.done) << row.command;
}

TEST_F(MediaControlTest, the_place_grows_with_the_layout) {
    const std::string film = Write(FilmBytes());
    for (const double pixels : {1.0, 1.2, 1.5, 3.5}) {
        QtMediaControl scaled(folder.path().toStdString(), pixels);
        for (const std::string& command :
             {"Open " + film, WindowCommand(film), "Put " + film + " destination at 0 0 200 150"})
            EXPECT_EQ(scaled.mciSendString(command, reply), 0);
        const auto screens = box.findChildren<QWidget*>();
        ASSERT_EQ(screens.size(), 1);
        EXPECT_EQ(screens[0]->geometry(), QRect(0, 0, qRound(200 * pixels), qRound(150 * pixels)));
    }
}

TEST_F(MediaControlTest, the_picture_covers_its_place_and_lets_presses_through) {
    const std::string film = Write(FilmBytes());
    Open(film);
    for (const QPoint at : {QPoint(1, 1), QPoint(198, 1), QPoint(1, 148), QPoint(198, 148)})
        EXPECT_TRUE(Resembles(Seen(at), Qt::red));
    EXPECT_EQ(box.childAt(100, 75), nullptr);
    EXPECT_FALSE(box.testAttribute(Qt::WA_NativeWindow) && !box.isWindow());
}

TEST_F(MediaControlTest, the_widget_may_go_before_the_film_is_closed) {
    const std::string film = Write(FilmBytes(20'000));
    auto other = std::make_unique<QWidget>();
    Send("Open " + film);
    Send("Window " + film + " handle  " + std::to_string(reinterpret_cast<quintptr>(other.get())));
    Send("Play " + film);
    other.reset();
    EXPECT_TRUE(QTest::qWaitFor([&] { return Mode(film) == "stopped"; }));
    EXPECT_EQ(Send("Seek " + film + " to 0"), 0);
    EXPECT_EQ(Send("Close " + film), 0);
}

// Damage: whatever the file is, the window behaves the same.
class MediaDamageTest : public MediaControlTest {
  protected:
    void Try(const QByteArray& bytes, const std::string& what) {
        const std::string film = Write(bytes);
        const bool opened = Send("Open " + film + " Wait") == 0;
        Send(WindowCommand(film));
        Send("Put " + film + " destination at 0 0 200 150");
        const std::string idle = opened ? "stopped" : "error";
        EXPECT_EQ(Mode(film), idle) << what;
        EXPECT_EQ(Send("Seek " + film + " to 0") == 0, opened) << what;
        EXPECT_EQ(Send("Play " + film) == 0, opened) << what;
        EXPECT_EQ(Mode(film), opened ? "playing" : "error") << what;
        if (!opened) {
            EXPECT_TRUE(Shows(Qt::black)) << what;
        }
        Send("Seek " + film + " to 1");
        Send("Seek " + film + " to 2");
        EXPECT_EQ(Send("Close " + film) == 0, opened) << what;
        EXPECT_TRUE(box.children().isEmpty()) << what;
    }
};

TEST_F(MediaDamageTest, files_that_are_cut_off) {
    const QByteArray good = FilmBytes();
    for (int i = 0; i <= 8; ++i)
        Try(good.left(good.size() * i / 8), "eighths " + std::to_string(i));
    for (int i = 0; i < 120; ++i) Try(good.left(i), "bytes " + std::to_string(i));
}

TEST_F(MediaDamageTest, files_with_random_damage) {
    std::mt19937 random(20240229);
    const QByteArray good = FilmBytes();
    const auto below = [&](qsizetype n) {
        return static_cast<qsizetype>(random() % static_cast<unsigned>(n));
    };
    for (int round = 0; round < 200; ++round) {
        QByteArray bytes = good;
        // Every other time in the first bytes, where the structure is.
        const qsizetype reach = round % 2 == 0 ? 140 : bytes.size();
        for (int i = 0; i < 1 + round % 12; ++i) bytes[below(reach)] = static_cast<char>(random());
        if (round % 7 == 0) bytes.truncate(below(bytes.size()));
        Try(bytes, "round " + std::to_string(round));
    }
    for (int round = 0; round < 20; ++round) {
        QByteArray noise(1 + below(4000), '\0');
        for (char& each : noise) each = static_cast<char>(random());
        Try(noise, "noise");
        Try(Header(40'000) + noise, "noise behind a list");
        Try(AviBytes(40'000, noise), "noise for pictures");
    }
}

}  // namespace
}  // namespace corvanda
