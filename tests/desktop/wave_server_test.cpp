// The player over a real sound server of our own. Its device is a pipe that takes the samples in
// their own time, because the monitor of a device that goes nowhere drops some of them now and
// then. Left out where the server is not installed.
#include <gtest/gtest.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>
#include <csignal>
#include <memory>

#include "desktop/wave_player.h"
#include "tests/desktop/wave_bytes.h"

// The audio library forgets one small request at each of its connections to the server. Empty
// programs that only start and end it show the same.
extern "C" const char* __lsan_default_suppressions() {  // NOLINT: the sanitizer's own name
    return "leak:libpulse.so\n";
}

namespace corvanda {
namespace {

using namespace pruebas;

class WaveServerTest : public testing::Test {
  protected:
    void SetUp() override {
        for (const char* tool : {"pulseaudio", "pactl", "cat"}) {
            if (QStandardPaths::findExecutable(QString::fromLatin1(tool)).isEmpty())
                GTEST_SKIP() << tool << " is not installed";
        }
        Set("HOME", folder.path());
        Set("XDG_RUNTIME_DIR", folder.path());
        Set("PULSE_SERVER", QStringLiteral("unix:") + folder.filePath("socket"));
        Set("PULSE_COOKIE", folder.filePath("cookie"));
        Set("SDL_AUDIODRIVER", "pulseaudio");
        StartServer();
        player = std::make_unique<SdlWaveOut>(folder.path().toStdString(), [this] { ++beeps; });
    }

    void TearDown() override {
        player.reset();
        Stop(recorder);
        Stop(server);
        for (const auto& [name, value] : earlier)
            value.isNull() ? qunsetenv(name) : qputenv(name, value);
    }

    void Set(const char* name, const QString& value) {
        earlier.emplace_back(name, qgetenv(name));
        qputenv(name, QFile::encodeName(value));
    }

    void StartServer() {
        server.start("pulseaudio",
                     {"-n", "--exit-idle-time=-1", "--daemonize=no", "--use-pid-file=no",
                      "--load=module-pipe-sink rate=44100 channels=2 format=s16le "
                      "use_system_clock_for_timing=yes file=" +
                          folder.filePath("pipe"),
                      "--load=module-native-protocol-unix auth-anonymous=1 socket=" +
                          folder.filePath("socket")});
        ASSERT_TRUE(QTest::qWaitFor(Answers, 20000)) << server.readAllStandardError().constData();
    }

    static bool Answers() {
        QProcess asking;
        asking.start("pactl", {"info"});
        return asking.waitForFinished() && asking.exitCode() == 0;
    }

    void StartRecorder() {
        recorder.setStandardOutputFile(heard);
        recorder.start("cat", {folder.filePath("pipe")});
        ASSERT_TRUE(QTest::qWaitFor([this] { return QFile(heard).size() > 0; }, 20000));
    }

    static void Stop(QProcess& process) {
        if (process.state() == QProcess::NotRunning) return;
        process.kill();
        process.waitForFinished();
    }

    void Play(const char* name, const Signal& signal) {
        WriteFile(folder.filePath(QString::fromLatin1(name)), WaveBytes({}, BytesOf(signal)));
        player->sndPlaySound(folder.path().toStdString() + "\\" + name);
    }

    /// Without silence: a gap where the machine was too busy for the server is not the player's.
    Signal Heard() const {
        QFile file(heard);
        if (!file.open(QIODevice::ReadOnly)) return {};
        Signal all = SignalOf(file.readAll());
        std::erase(all, std::int16_t{0});
        return all;
    }
    bool ComesToHear(const Signal& part) const {
        return QTest::qWaitFor(
            [&] {
                const Signal all = Heard();
                return std::search(all.begin(), all.end(), part.begin(), part.end()) != all.end();
            },
            10000);
    }
    static qsizetype Threads() {
        return QDir(QStringLiteral("/proc/self/task"))
            .entryList(QDir::Dirs | QDir::NoDotAndDotDot)
            .size();
    }
    void Signalled(int number) { ::kill(static_cast<pid_t>(server.processId()), number); }

    QTemporaryDir folder;
    QString heard = folder.filePath("heard.raw");
    std::vector<std::pair<const char*, QByteArray>> earlier;
    QProcess server;
    QProcess recorder;
    std::unique_ptr<SdlWaveOut> player;
    int beeps = 0;
    const qsizetype threads = Threads();
};

TEST_F(WaveServerTest, a_sound_arrives_whole_and_replaces_another) {
    ASSERT_EQ(player->waveOutGetNumDevs(), 1U);
    StartRecorder();
    Play("short.Wav", Ramp(4000, 1));
    EXPECT_TRUE(ComesToHear(Ramp(4000, 1)));
    Play("long.Wav", Ramp(44100 * 8, 10000));
    ASSERT_TRUE(ComesToHear(Ramp(2000, 10000)));
    Play("other.Wav", Ramp(4000, 20000));
    ASSERT_TRUE(ComesToHear(Ramp(4000, 20000)));
    QTest::qWait(200);
    EXPECT_GE(Heard().back(), 20000) << "the long sound does not go on";
}

TEST_F(WaveServerTest, survives_the_servers_death_and_finds_the_next_one) {
    Play("long.Wav", Ramp(44100 * 8, 10000));
    QTest::qWait(300);
    Stop(server);
    for (int i = 0; i < 3; ++i) {
        Play("short.Wav", Ramp(4000, 1));
        QTest::qWait(100);
    }
    StartServer();
    StartRecorder();
    QTest::qWait(100);
    Play("again.Wav", Ramp(4000, 20000));
    EXPECT_TRUE(ComesToHear(Ramp(4000, 20000)));
    EXPECT_EQ(beeps, 0);
}

TEST_F(WaveServerTest, a_server_that_hangs_holds_nobody_up) {
    Play("long.Wav", Ramp(44100 * 8, 10000));
    QTest::qWait(300);
    Signalled(SIGSTOP);
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < 20; ++i) Play("short.Wav", Ramp(4000, 1));
    EXPECT_LT(timer.elapsed(), 1000) << "to ask for a sound does not wait";
    player.reset();
    EXPECT_LT(timer.elapsed(), 10000) << "the end does not wait for ever";
    Signalled(SIGCONT);
    // The thread that was left behind must be gone before the next test counts on the library.
    EXPECT_TRUE(QTest::qWaitFor([this] { return Threads() == threads; }, 20000));
}

TEST_F(WaveServerTest, a_server_that_hangs_at_the_start_has_no_device) {
    Signalled(SIGSTOP);
    QElapsedTimer timer;
    timer.start();
    EXPECT_EQ(player->waveOutGetNumDevs(), 0U);
    player.reset();
    EXPECT_LT(timer.elapsed(), 20000);
    Signalled(SIGCONT);
    EXPECT_TRUE(QTest::qWaitFor([this] { return Threads() == threads; }, 20000));
}

}  // namespace
}  // namespace corvanda
