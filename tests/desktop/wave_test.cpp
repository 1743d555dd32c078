// Wave files, and the player: over the audio library's disk driver, which writes down what a person
// would have heard, and over a real sound server that dies in the middle of a sound.
#include <fcntl.h>
#include <unistd.h>

#include <QProcess>
#include <QStandardPaths>
#include <QThread>
#include <map>

#include "desktop/wave_file.h"
#include "desktop/wave_player.h"
#include "tests/desktop/desk.h"

namespace corvanda::pruebas {
namespace {

using namespace std::chrono_literals;

struct WaveFormat {
    quint32 coding = 1;  ///< 1 is plain samples
    quint32 channels = 2, rate = 44100, bits = 16;
};

QByteArray WaveBytes(const WaveFormat& format, const QByteArray& data) {
    const quint32 frame = format.channels * format.bits / 8;
    const QByteArray head = Number(format.coding, 2) + Number(format.channels, 2) +
                            Number(format.rate) + Number(format.rate * frame) + Number(frame, 2) +
                            Number(format.bits, 2);
    return Chunk("RIFF", "WAVE" + Chunk("fmt ", head) + Chunk("data", data));
}

/// Frames of two equal samples, none of them 0, so that silence around them can be told apart.
QByteArray Ramp(int frames, int start) {
    QByteArray signal;
    for (int i = 0; i < frames; ++i)
        signal += Number(static_cast<quint16>(start + i % 5000), 2).repeated(2);
    return signal;
}

class WaveTest : public testing::Test {
  protected:
    WaveTest() {
        Set("SDL_AUDIODRIVER", "disk");
        Set("SDL_DISKAUDIOFILE", heard);
    }
    ~WaveTest() override {
        for (const auto& [name, value] : earlier)
            value.isNull() ? qunsetenv(name) : qputenv(name, value);
    }
    void Set(const char* name, const QString& value) {
        earlier.emplace(name, qgetenv(name));
        qputenv(name, QFile::encodeName(value));
    }

    QByteArray Read(const QByteArray& bytes) const {
        WriteBytes(folder.filePath("read.Wav"), bytes);
        const auto samples = wave::ReadWaveFile(folder.filePath("read.Wav"));
        if (!samples) return {};
        return QByteArray(reinterpret_cast<const char*>(samples->data()),
                          qsizetype(samples->size()));
    }
    bool ComesToHear(const QByteArray& part) const {
        return Comes([&] { return ReadBytes(heard).contains(part); });
    }
    static bool Comes(const std::function<bool()>& condition) {
        return QTest::qWaitFor(condition, 15000);
    }
    static int Threads() {
        return static_cast<int>(QDir("/proc/self/task").entryList(QDir::AllDirs).size());
    }
    /// A worker that was left behind would take the library away from the next player.
    void Start(std::chrono::milliseconds end = 20s) {
        const auto beep = [this] {
            ++beeps;
            EXPECT_EQ(QThread::currentThread(), qApp->thread());
        };
        player = std::make_unique<SdlWaveOut>(folder.path().toStdString(), beep,
                                              WavePatience{.quiet = 20ms, .end = end});
    }
    /// Plays a file by that name, which is written first when there is something to write.
    void Play(const char* name, const QByteArray& signal = {}) {
        if (!signal.isEmpty())
            WriteBytes(folder.filePath(QString("Sonidos/") + name), WaveBytes({}, signal));
        player->sndPlaySound(folder.path().toStdString() + "\\Sonidos\\" + name);
    }

    const QTemporaryDir folder;
    const QString heard = folder.filePath("heard.raw");
    std::map<const char*, QByteArray> earlier;
    int beeps = 0;
    std::unique_ptr<SdlWaveOut> player;
};

TEST_F(WaveTest, a_file_is_heard_as_it_is_or_not_at_all) {
    const QByteArray signal = Ramp(1000, 1);
    EXPECT_EQ(Read(WaveBytes({}, signal)), signal);
    EXPECT_EQ(Read(WaveBytes({}, signal).left(44 + 4 * 600)), signal.left(4 * 600)) << "cut off";
    EXPECT_EQ(Read(WaveBytes({.channels = 1}, signal)).size(), 2 * signal.size());
    const QByteArray second(44100, '\x21');
    const struct {
        const char* what;
        QByteArray bytes;
        double seconds;  // 0 for what cannot be played
    } table[] = {
        {"telephone", WaveBytes({1, 1, 8000, 8}, second.left(8000)), 1},
        {"floating point", WaveBytes({3, 1, 44100, 32}, second), 0.25},
        {"an empty file", {}, 0},
        {"a text", "This is a text and not a sound at all, however long it goes on.", 0},
        {"an unknown coding", WaveBytes({0x55, 2, 44100, 16}, second), 0},
        {"a thousand channels", WaveBytes({1, 1000, 44100, 16}, second), 0},
        {"more than 32 MiB", WaveBytes({}, QByteArray(32 << 20, 'x')), 0},
        {"an hour", WaveBytes({1, 1, 8000, 8}, QByteArray(28'800'000, 'x')), 0},
    };
    for (const auto& row : table) {
        const auto size = static_cast<double>(Read(row.bytes).size());
        EXPECT_NEAR(size / wave::BytesPerSecond, row.seconds, 0.01) << row.what;
    }
}

TEST_F(WaveTest, a_new_sound_takes_the_place_of_the_one_that_plays) {
    Start();
    EXPECT_EQ(player->waveOutGetNumDevs(), 1U);
    Play("long.Wav", Ramp(44100 * 8, 10000));
    ASSERT_TRUE(ComesToHear(Ramp(1000, 10000)));
    const QByteArray shorter = Ramp(9000, 1);
    Play("short.Wav", shorter);
    ASSERT_TRUE(ComesToHear(shorter));
    const QByteArray all = ReadBytes(heard);
    const auto begin = all.indexOf(shorter);
    const auto before = [&](int frames) {
        return qFromLittleEndian<qint16>(all.data() + begin - 4 * frames);
    };
    EXPECT_NE(before(1), 0) << "no gap between the two";
    EXPECT_GE(before(100), 10000) << "the fall takes two milliseconds, 88 frames";
    for (int i = 88; i > 1; --i) EXPECT_GE(before(i), before(i - 1)) << "without a tick";
    EXPECT_EQ(all.mid(begin + shorter.size()).count('\0'), all.size() - begin - shorter.size());
    for (int i = 0; i < 200; ++i) Play("long.Wav");
    Play("short.Wav", Ramp(9000, 20000));
    EXPECT_TRUE(ComesToHear(Ramp(9000, 20000))) << "the newest of many, as it is on the disk now";
    EXPECT_EQ(beeps, 0);
}

TEST_F(WaveTest, the_device_is_given_back_when_it_was_quiet_and_opened_again) {
    const int threads = Threads();
    Start();
    for (const int start : {1, 10000}) {
        Play("click.Wav", Ramp(2000, start));
        ASSERT_TRUE(ComesToHear(Ramp(2000, start)));
        EXPECT_TRUE(Comes([&] { return Threads() == threads + 1; })) << "a worker that sleeps";
    }
    Play("long.Wav", Ramp(44100 * 30, 1));
    EXPECT_TRUE(Comes([&] { return Threads() == threads + 2; }));
    player.reset();
    // The system lists a thread for a moment more after it was joined.
    EXPECT_TRUE(Comes([&] { return Threads() == threads; })) << "ends in the middle of a sound";
}

TEST_F(WaveTest,
       a_file_that_cannot_be_played_is_a_tone_or_the_toolkits_beep_and_no_device_is_silence) {
    WriteBytes(folder.filePath("Sonidos/damaged.Wav"), "RIFFxxxxWAVE");
    // Its beginning is enough.
    const wave::Samples samples = wave::Signal();
    const QByteArray tone(reinterpret_cast<const char*>(samples.data()), wave::BytesPerSecond / 25);
    const std::pair<const char*, unsigned> drivers[] = {{"disk", 1}, {"no such driver", 0}};
    for (const auto& [driver, devices] : drivers) {
        Set("SDL_AUDIODRIVER", driver);
        beeps = 0;
        Start();
        EXPECT_EQ(player->waveOutGetNumDevs(), devices) << driver;
        Play("click.Wav", Ramp(100, 1));
        int expected = 0;
        for (const char* name : {"missing.Wav", "damaged.Wav", "", "beep"}) {
            QFile::resize(heard, 0);
            name == std::string("beep") ? player->Beep() : Play(name);
            EXPECT_EQ(beeps, expected) << "the call itself does not beep";
            if (devices > 0) {
                EXPECT_TRUE(ComesToHear(tone)) << name;
                continue;
            }
            ASSERT_TRUE(Comes([&] { return beeps == expected + 1; })) << driver << name;
            ++expected;
        }
    }
    Play("missing.Wav");
    beeps = 0;
    player.reset();
    QCoreApplication::processEvents();
    EXPECT_EQ(beeps, 0) << "no beep comes after the player is gone";
}

TEST_F(WaveTest, a_device_that_hangs_holds_nobody_up) {
    // Nobody reads this pipe yet, so to open it for writing takes for ever.
    ASSERT_EQ(::mkfifo(QFile::encodeName(heard).constData(), 0600), 0);
    const int threads = Threads();
    Start(100ms);
    for (int i = 0; i < 3; ++i) Play("click.Wav", Ramp(100, 1));
    EXPECT_TRUE(Comes([&] { return Threads() == threads + 1; }));
    player.reset();
    // The thread that was left behind must be gone before another test counts on the library.
    const int reader = ::open(QFile::encodeName(heard).constData(), O_RDWR | O_NONBLOCK);
    EXPECT_TRUE(Comes([&] { return Threads() == threads; }));
    ::close(reader);
}

/// A sound server whose device is a pipe, and who empties that.
struct Server {
    explicit Server(const QTemporaryDir& folder) {
        const QString socket = folder.filePath("socket"), pipe = folder.filePath("pipe");
        process.start("pulseaudio",
                      {"-n", "--exit-idle-time=-1", "--daemonize=no", "--use-pid-file=no",
                       "--load=module-pipe-sink rate=44100 channels=2 format=s16le file=" + pipe,
                       "--load=module-native-protocol-unix auth-anonymous=1 socket=" + socket});
        EXPECT_TRUE(QTest::qWaitFor([&] { return QFile::exists(socket); }, 20000));
        listener.start("cat", {pipe});
    }
    ~Server() {
        for (QProcess* each : {&process, &listener}) {
            each->kill();
            each->waitForFinished();
        }
    }
    bool ComesToHear(const QByteArray& part) {
        QByteArray all;
        return QTest::qWaitFor(
            [&] { return (all += listener.readAllStandardOutput()).contains(part); }, 20000);
    }
    QProcess process, listener;
};

TEST_F(WaveTest, a_server_that_dies_holds_nobody_up_and_the_next_one_is_found) {
    ASSERT_NE(QStandardPaths::findExecutable("pulseaudio"), "") << "tools/instalar.sh test";
    for (const char* name : {"HOME", "XDG_RUNTIME_DIR"}) Set(name, folder.path());
    Set("PULSE_SERVER", "unix:" + folder.filePath("socket"));
    Set("SDL_AUDIODRIVER", "pulseaudio");
    auto server = std::make_unique<Server>(folder);
    Start();
    Play("long.Wav", Ramp(44100 * 8, 10000));
    EXPECT_TRUE(server->ComesToHear(Ramp(200, 10000)));
    server.reset();
    QFile::remove(folder.filePath("socket"));
    Play("again.Wav", Ramp(44100, 1));
    for (int i = 0; i < 3; ++i) Play("again.Wav");
    server = std::make_unique<Server>(folder);
    Play("again.Wav");
    EXPECT_TRUE(server->ComesToHear(Ramp(200, 1)));
    EXPECT_EQ(beeps, 0);
}

}  // namespace
}  // namespace corvanda::pruebas
