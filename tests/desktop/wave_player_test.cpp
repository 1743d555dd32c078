// The player over the audio library's disk driver, which writes down what a person would have
// heard.
#include "desktop/wave_player.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>
#include <algorithm>

#include "tests/desktop/wave_bytes.h"

namespace corvanda {
namespace {

using namespace pruebas;

class WavePlayerTest : public testing::Test {
  protected:
    void SetUp() override {
        qputenv("SDL_AUDIODRIVER", "disk");
        qputenv("SDL_DISKAUDIOFILE", QFile::encodeName(heard));
        QDir().mkpath(folder.filePath("Sonidos"));
    }
    void TearDown() override {
        qputenv("SDL_AUDIODRIVER", before);
        qunsetenv("SDL_DISKAUDIOFILE");
    }

    void Sound(const char* name, const Signal& signal) const {
        WriteFile(folder.filePath(QStringLiteral("Sonidos/") + QString::fromLatin1(name)),
                  WaveBytes({}, BytesOf(signal)));
    }
    std::string PathOf(const char* name) const {
        return folder.path().toStdString() + "\\Sonidos\\" + name;
    }

    Signal Heard() const {
        QFile file(heard);
        return file.open(QIODevice::ReadOnly) ? SignalOf(file.readAll()) : Signal{};
    }
    bool HasHeard(const Signal& part) const {
        const Signal all = Heard();
        return std::search(all.begin(), all.end(), part.begin(), part.end()) != all.end();
    }
    bool ComesToHear(const Signal& part) const {
        return QTest::qWaitFor([&] { return HasHeard(part); }, 10000);
    }
    static qsizetype Threads() {
        return QDir(QStringLiteral("/proc/self/task"))
            .entryList(QDir::Dirs | QDir::NoDotAndDotDot)
            .size();
    }
    std::unique_ptr<SdlWaveOut> Player() {
        return std::make_unique<SdlWaveOut>(folder.path().toStdString(), [this] {
            ++beeps;
            beeped_in = QThread::currentThread();
        });
    }

    QTemporaryDir folder;
    QString heard = folder.filePath("heard.raw");
    QByteArray before = qgetenv("SDL_AUDIODRIVER");
    int beeps = 0;
    QThread* beeped_in = nullptr;
};

TEST_F(WavePlayerTest, plays_every_sample_of_a_file_below_the_programs_folder) {
    const Signal sound = Ramp(9000, 1);
    Sound("click.Wav", sound);
    const auto player = Player();
    player->sndPlaySound(PathOf("click.Wav"));
    EXPECT_TRUE(ComesToHear(sound));
    const Signal all = Heard();
    EXPECT_EQ(std::count_if(all.begin(), all.end(), [](auto each) { return each != 0; }),
              static_cast<std::ptrdiff_t>(sound.size()))
        << "once, and nothing else";
    EXPECT_EQ(beeps, 0);
}

TEST_F(WavePlayerTest, a_new_sound_takes_the_place_of_the_one_that_plays) {
    const Signal longer = Ramp(44100 * 8, 10000);
    const Signal shorter = Ramp(4000, 1);
    Sound("long.Wav", longer);
    Sound("short.Wav", shorter);
    const auto player = Player();
    player->sndPlaySound(PathOf("long.Wav"));
    ASSERT_TRUE(ComesToHear(Ramp(1000, 10000)));
    player->sndPlaySound(PathOf("short.Wav"));
    ASSERT_TRUE(ComesToHear(shorter));
    const Signal all = Heard();
    const auto begin = std::search(all.begin(), all.end(), shorter.begin(), shorter.end());
    EXPECT_GE(*(begin - 1), 10000) << "no gap between the two";
    EXPECT_TRUE(std::none_of(begin, all.end(), [](auto each) { return each >= 10000; }));
}

TEST_F(WavePlayerTest, of_many_requests_the_newest_is_played_to_its_end) {
    const Signal last = Ramp(20000, 1);
    Sound("other.Wav", Ramp(20000, 10000));
    Sound("last.Wav", last);
    const auto player = Player();
    for (int i = 0; i < 200; ++i) player->sndPlaySound(PathOf("other.Wav"));
    player->sndPlaySound(PathOf("last.Wav"));
    EXPECT_TRUE(ComesToHear(last));
}

TEST_F(WavePlayerTest, a_file_that_changes_is_heard_at_its_next_play) {
    const auto player = Player();
    for (const int start : {1, 10000, 20000}) {
        Sound("click.Wav", Ramp(2000, start));
        player->sndPlaySound(PathOf("click.Wav"));
        EXPECT_TRUE(ComesToHear(Ramp(2000, start)));
    }
}

TEST_F(WavePlayerTest, a_file_that_cannot_be_played_is_a_beep_in_the_gui_thread) {
    WriteFile(folder.filePath("Sonidos/damaged.Wav"), "RIFFxxxxWAVE");
    const auto player = Player();
    int expected = 0;
    for (const char* name : {"missing.Wav", "damaged.Wav", ""}) {
        player->sndPlaySound(PathOf(name));
        EXPECT_EQ(beeps, expected) << "the call itself does not beep";
        ++expected;
        EXPECT_TRUE(QTest::qWaitFor([&] { return beeps == expected; }, 10000)) << name;
    }
    EXPECT_EQ(beeped_in, QThread::currentThread());
    EXPECT_TRUE(Heard().empty());
}

TEST_F(WavePlayerTest, no_beep_comes_after_the_player_is_gone) {
    for (int i = 0; i < 50; ++i) {
        const auto player = Player();
        player->sndPlaySound(PathOf("missing.Wav"));
        if (i % 2 == 0) QThread::usleep(300);
    }
    QTest::qWait(50);
    EXPECT_EQ(beeps, 0);
}

TEST_F(WavePlayerTest, counts_the_devices) {
    const struct {
        const char* driver;
        unsigned devices;
    } table[] = {{"disk", 1}, {"dummy", 1}, {"no such driver", 0}};
    for (const auto& row : table) {
        qputenv("SDL_AUDIODRIVER", row.driver);
        const auto player = Player();
        EXPECT_EQ(player->waveOutGetNumDevs(), row.devices) << row.driver;
        EXPECT_EQ(player->waveOutGetNumDevs(), row.devices) << row.driver;
    }
}

TEST_F(WavePlayerTest, without_a_device_a_sound_is_silence) {
    qputenv("SDL_AUDIODRIVER", "no such driver");
    Sound("click.Wav", Ramp(100, 1));
    const auto player = Player();
    player->sndPlaySound(PathOf("click.Wav"));
    player->sndPlaySound(PathOf("missing.Wav"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return beeps == 1; }, 10000));
    QTest::qWait(20);
    EXPECT_EQ(beeps, 1) << "only the missing file";
}

TEST_F(WavePlayerTest, the_device_is_given_back_when_it_was_quiet_and_opened_again) {
    Sound("click.Wav", Ramp(2000, 1));
    const qsizetype threads = Threads();
    const auto player = Player();
    for (int round = 0; round < 2; ++round) {
        QFile::remove(heard);
        player->sndPlaySound(PathOf("click.Wav"));
        ASSERT_TRUE(ComesToHear(Ramp(2000, 1)));
        EXPECT_GE(Threads(), threads + 2);
        EXPECT_TRUE(QTest::qWaitFor([&] { return Threads() == threads + 1; }, 15000))
            << "only the sleeping worker may be left";
    }
}

TEST_F(WavePlayerTest, ends_promptly_in_the_middle_of_a_sound) {
    Sound("long.Wav", Ramp(44100 * 30, 1));
    auto player = Player();
    player->sndPlaySound(PathOf("long.Wav"));
    ASSERT_TRUE(ComesToHear(Ramp(100, 1)));
    const qsizetype threads = Threads();
    player.reset();
    EXPECT_LE(Threads(), threads - 2) << "neither the worker nor the library's thread is left";
    EXPECT_LT(Heard().size(), std::size_t{1'764'000});
}

}  // namespace
}  // namespace corvanda
