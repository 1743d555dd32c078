#include "desktop/wave_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QDir>
#include <QTemporaryDir>
#include <cstring>
#include <random>

#include "tests/desktop/wave_bytes.h"

namespace corvanda {
namespace {

using namespace pruebas;

class WaveFileTest : public testing::Test {
  protected:
    QTemporaryDir folder;
    QString name = folder.filePath("sound.Wav");

    std::optional<Signal> Read(const QByteArray& bytes) const {
        WriteFile(name, bytes);
        const auto samples = wave::ReadWaveFile(name);
        if (!samples) return {};
        return SignalOf({reinterpret_cast<const char*>(samples->data()),
                         static_cast<qsizetype>(samples->size())});
    }
};

TEST_F(WaveFileTest, samples_of_the_devices_own_form_come_through_unchanged) {
    Signal signal = Ramp(3000, -2500);
    signal.insert(signal.end(), {32767, -32768, 0, 1, -1, 0});
    EXPECT_EQ(Read(WaveBytes({}, BytesOf(signal))), signal);
}

TEST_F(WaveFileTest, one_channel_is_heard_on_both_sides) {
    const Signal mono = {0, 1, -1, 100, -12345, 32767, -32768, 7};
    const auto read = Read(WaveBytes({.channels = 1}, BytesOf(mono)));
    ASSERT_TRUE(read);
    ASSERT_EQ(read->size(), 2 * mono.size());
    for (std::size_t i = 0; i < mono.size(); ++i) {
        EXPECT_NEAR((*read)[2 * i], mono[i], 1) << i;
        EXPECT_EQ((*read)[2 * i], (*read)[2 * i + 1]) << i;
    }
}

TEST_F(WaveFileTest, other_forms_keep_their_length_in_time) {
    const struct {
        const char* what;
        WaveFormat format;
        int bytes_per_second;
    } table[] = {
        {"telephone", {.channels = 1, .rate = 8000, .bits = 8}, 8000},
        {"half rate", {.channels = 2, .rate = 22050, .bits = 16}, 88200},
        {"48 kHz", {.channels = 2, .rate = 48000, .bits = 16}, 192000},
        {"24 bits", {.channels = 1, .rate = 44100, .bits = 24}, 132300},
        {"floating point", {.coding = 3, .channels = 1, .rate = 44100, .bits = 32}, 176400},
        {"a-law", {.coding = 6, .channels = 1, .rate = 8000, .bits = 8}, 8000},
    };
    for (const auto& row : table) {
        const auto read = Read(WaveBytes(row.format, QByteArray(row.bytes_per_second / 2, '\x21')));
        ASSERT_TRUE(read) << row.what;
        EXPECT_NEAR(static_cast<double>(read->size()), wave::Rate, 100) << row.what;
    }
}

TEST_F(WaveFileTest, what_cannot_be_played_gives_nothing) {
    const QByteArray sound = BytesOf(Ramp(1000, 1));
    const QByteArray good = WaveBytes({}, sound);
    const struct {
        const char* what;
        QByteArray bytes;
    } table[] = {
        {"an empty file", {}},
        {"no wave file", "This is a text and not a sound at all, however long it goes on."},
        {"a head without a body", good.left(30)},
        {"a format without sound", good.left(36)},
        {"an unknown coding", WaveBytes({.coding = 0x55}, sound)},
        {"no channel", WaveBytes({.channels = 0}, sound)},
        {"a thousand channels", WaveBytes({.channels = 1000}, sound)},
        {"no rate", WaveBytes({.rate = 0}, sound)},
        {"one sample a second", WaveBytes({.rate = 1}, sound)},
        {"seven bits", WaveBytes({.bits = 7}, sound)},
        {"more than 32 MiB", WaveBytes({}, QByteArray(32 << 20, 'x'))},
        {"an hour of telephone",
         WaveBytes({.channels = 1, .rate = 8000, .bits = 8}, QByteArray(28'800'000, 'x'))},
    };
    for (const auto& row : table) EXPECT_FALSE(Read(row.bytes)) << row.what;
}

TEST_F(WaveFileTest, what_is_no_ordinary_file_gives_nothing_and_is_not_waited_for) {
    const QString pipe = folder.filePath("pipe.Wav");
    ASSERT_EQ(mkfifo(pipe.toLocal8Bit().constData(), 0600), 0);
    for (const QString& each : {pipe, folder.path(), folder.filePath("missing.Wav"), QString()})
        EXPECT_FALSE(wave::ReadWaveFile(each)) << each.toStdString();
}

TEST_F(WaveFileTest, a_file_cut_off_in_its_sound_plays_what_is_there) {
    const QByteArray whole = WaveBytes({}, BytesOf(Ramp(1000, 1)));
    const auto read = Read(whole.left(44 + 4 * 600));
    EXPECT_EQ(read, Ramp(600, 1));
}

TEST_F(WaveFileTest, damaged_files_do_no_harm) {
    std::mt19937 random(20240229);
    const QByteArray kinds[] = {
        WaveBytes({}, BytesOf(Ramp(300, 1))),
        WaveBytes({.coding = 2, .channels = 1, .bits = 4}, QByteArray(600, 'x')),
        WaveBytes({.coding = 17, .channels = 2, .bits = 4}, QByteArray(600, 'x')),
    };
    for (int round = 0; round < 600; ++round) {
        QByteArray bytes = kinds[round % 3];
        for (int i = 0; i < 4; ++i)
            bytes[static_cast<int>(random() % 60)] = static_cast<char>(random());
        if (round % 5 == 0) bytes.truncate(static_cast<int>(random() % 60));
        Read(bytes);
    }
}

TEST_F(WaveFileTest, the_games_own_sounds_can_be_played) {
    const QDir sounds(QStringLiteral(CORVANDA_SONIDOS));
    const auto files = sounds.entryInfoList({QStringLiteral("*.Wav")}, QDir::Files);
    EXPECT_EQ(files.size(), 6);
    for (const QFileInfo& each : files) {
        const auto samples = wave::ReadWaveFile(each.filePath());
        ASSERT_TRUE(samples) << each.fileName().toStdString();
        EXPECT_GT(samples->size(), std::size_t{wave::BytesPerSecond / 100});
    }
}

}  // namespace
}  // namespace corvanda
