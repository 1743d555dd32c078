// The player over a real sound server that dies in the middle of a sound. Its device is a pipe.
#include <QProcess>
#include <QStandardPaths>

#include "desktop/wave_player.h"
#include "tests/desktop/desk.h"

namespace corvanda::pruebas {
namespace {

/// A wave file of nothing but one sample, for so many seconds.
QByteArray Tone(qint16 sample, int seconds) {
    QByteArray data;
    for (int i = 0; i < 2 * 44100 * seconds; ++i) data += Number(static_cast<quint16>(sample), 2);
    return Chunk("RIFF", "WAVE" +
                             Chunk("fmt ", Number(1, 2) + Number(2, 2) + Number(44100) +
                                               Number(176400) + Number(4, 2) + Number(16, 2)) +
                             Chunk("data", data));
}

class WaveServerTest : public testing::Test {
  protected:
    void SetUp() override {
        if (QStandardPaths::findExecutable("pulseaudio").isEmpty()) {
            GTEST_SKIP() << "pulseaudio is not installed";
        }
        Set("HOME", folder.path());
        Set("XDG_RUNTIME_DIR", folder.path());
        Set("PULSE_SERVER", "unix:" + folder.filePath("socket"));
        Set("SDL_AUDIODRIVER", "pulseaudio");
    }
    void TearDown() override {
        for (const auto& [name, value] : earlier)
            value.isNull() ? qunsetenv(name) : qputenv(name, value);
    }
    void Set(const char* name, const QString& value) {
        earlier.emplace_back(name, qgetenv(name));
        qputenv(name, QFile::encodeName(value));
    }

    /// A server, and whoever empties the pipe that is its device.
    struct Server {
        explicit Server(const QTemporaryDir& folder) {
            process.start("pulseaudio",
                          {"-n", "--exit-idle-time=-1", "--daemonize=no", "--use-pid-file=no",
                           "--load=module-pipe-sink rate=44100 channels=2 format=s16le file=" +
                               folder.filePath("pipe"),
                           "--load=module-native-protocol-unix auth-anonymous=1 socket=" +
                               folder.filePath("socket")});
            EXPECT_TRUE(
                QTest::qWaitFor([&] { return QFile::exists(folder.filePath("socket")); }, 20000));
            listener.start("cat", {folder.filePath("pipe")});
        }
        ~Server() {
            for (QProcess* each : {&process, &listener}) {
                each->kill();
                each->waitForFinished();
            }
        }
        bool ComesToHear(qint16 sample) {
            const QByteArray frames = Number(static_cast<quint16>(sample), 2).repeated(200);
            QByteArray heard;
            return QTest::qWaitFor(
                [&] { return (heard += listener.readAllStandardOutput()).contains(frames); },
                20000);
        }
        QProcess process;
        QProcess listener;
    };

    const QTemporaryDir folder;
    std::vector<std::pair<const char*, QByteArray>> earlier;
};

TEST_F(WaveServerTest, survives_the_servers_death_and_finds_the_next_one) {
    WriteBytes(folder.filePath("long.Wav"), Tone(4097, 8));
    WriteBytes(folder.filePath("again.Wav"), Tone(8225, 1));
    const std::string path = folder.path().toStdString();
    int beeps = 0;
    auto server = std::make_unique<Server>(folder);
    SdlWaveOut player(path, [&] { ++beeps; });
    player.sndPlaySound(path + "\\long.Wav");
    EXPECT_TRUE(server->ComesToHear(4097));
    server.reset();
    QFile::remove(folder.filePath("socket"));
    for (int i = 0; i < 3; ++i) {
        player.sndPlaySound(path + "\\again.Wav");
        QTest::qWait(100);
    }
    server = std::make_unique<Server>(folder);
    player.sndPlaySound(path + "\\again.Wav");
    EXPECT_TRUE(server->ComesToHear(8225));
    EXPECT_EQ(beeps, 0);
}

}  // namespace
}  // namespace corvanda::pruebas
