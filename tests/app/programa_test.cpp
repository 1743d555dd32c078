// The program as people start it, a child process: it comes to its main window and ends in an
// orderly way, whatever has become of the files that it reads.
#include <sys/inotify.h>
#include <unistd.h>

#include <QDirIterator>
#include <QProcess>
#include <csignal>

#include "tests/desktop/desk.h"

namespace corvanda::pruebas {
namespace {

constexpr int PACIENCIA = 30000;  // milliseconds; the machine may be busy

using Dano = void (*)(const QString&);

/// A copy of the program with a home of its own, off the screen, each of whose data files has had
/// an accident; it begins at once.
class Programa {
  public:
    explicit Programa(Dano danar) {
        const QDir origen(QCoreApplication::applicationDirPath());
        QDirIterator archivos(origen.path(), {"corvanda", "*.svg", "*.Wav", "*.HLP", "*.avi"},
                              QDir::Files, QDirIterator::Subdirectories);
        while (archivos.hasNext()) {
            const QString relativo = origen.relativeFilePath(archivos.next());
            const QString copiado = copia.filePath(relativo);
            QDir().mkpath(QFileInfo(copiado).path());
            QFile::copy(origen.filePath(relativo), copiado);
            if (relativo != "corvanda") danar(copiado);
        }
        WriteBytes(ajustes, "{}");
        inotify_add_watch(oidos, QFile::encodeName(ajustes).constData(), IN_OPEN);
        QProcessEnvironment entorno = QProcessEnvironment::systemEnvironment();
        entorno.insert("HOME", copia.path());
        entorno.insert("XDG_CONFIG_HOME", copia.filePath("config"));
        entorno.insert("XDG_RUNTIME_DIR", copia.path());
        entorno.insert("QT_QPA_PLATFORM", "offscreen");
        proceso.setProcessEnvironment(entorno);
        proceso.setProcessChannelMode(QProcess::ForwardedChannels);
        proceso.start(copia.filePath("corvanda"), QStringList());
    }
    ~Programa() { ::close(oidos); }
    Programa(const Programa&) = delete;
    Programa& operator=(const Programa&) = delete;

    /// Whether the main window loads: then it reads the settings.
    bool Llega_A_La_Ventana() {
        char suceso[1024];
        return QTest::qWaitFor([&] { return ::read(oidos, suceso, sizeof suceso) > 0; }, PACIENCIA);
    }
    /// Sends a signal and returns the exit status; -1 when it does not end, or not by itself.
    int Terminar(int senal) {
        // One that has ended has no number, and 0 would be every process around this one.
        const auto numero = static_cast<pid_t>(proceso.processId());
        if (numero > 0) ::kill(numero, senal);
        if (proceso.state() != QProcess::NotRunning && !proceso.waitForFinished(PACIENCIA))
            return -1;
        return proceso.exitStatus() == QProcess::NormalExit ? proceso.exitCode() : -1;
    }

  private:
    const QTemporaryDir copia;
    const QString ajustes = copia.filePath("config/corvanda/settings.json");
    const int oidos = inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
    QProcess proceso;
};

// The programs run side by side, because the start-up screen takes its time.
TEST(Programa, starts_and_ends_whatever_has_become_of_its_files) {
    const struct {
        const char* que;
        Dano danar;
        int senal;
    } danos[] = {
        {"whole", [](const QString&) {}, SIGTERM},
        {"absent", [](const QString& a) { QFile::remove(a); }, SIGINT},
        {"empty", [](const QString& a) { QFile::resize(a, 0); }, SIGHUP},
        {"half", [](const QString& a) { QFile::resize(a, QFileInfo(a).size() / 2); }, SIGTERM},
        {"random", [](const QString& a) { WriteBytes(a, Noise(QFileInfo(a).size())); }, SIGTERM},
        {"a folder", [](const QString& a) { QFile::remove(a) && QDir().mkpath(a); }, SIGTERM},
    };
    std::vector<std::unique_ptr<Programa>> programas;
    for (const auto& dano : danos) programas.push_back(std::make_unique<Programa>(dano.danar));
    for (std::size_t i = 0; i < programas.size(); ++i) {
        EXPECT_TRUE(programas[i]->Llega_A_La_Ventana()) << danos[i].que;
        EXPECT_EQ(programas[i]->Terminar(danos[i].senal), 0) << danos[i].que;
    }
}

TEST(Programa, answers_on_the_terminal_what_it_is_without_a_display) {
    QProcessEnvironment entorno = QProcessEnvironment::systemEnvironment();
    for (const char* pantalla : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        entorno.remove(pantalla);
    for (const auto& [pregunta, respuesta] :
         {std::pair("--version", "corvanda 0."), {"--help", "Usage: corvanda"}}) {
        QProcess proceso;
        proceso.setProcessEnvironment(entorno);
        proceso.start(QCoreApplication::applicationDirPath() + "/corvanda", {pregunta});
        ASSERT_TRUE(proceso.waitForFinished(PACIENCIA));
        EXPECT_EQ(proceso.exitCode(), 0);
        EXPECT_TRUE(proceso.readAllStandardOutput().startsWith(respuesta)) << pregunta;
        EXPECT_EQ(proceso.readAllStandardError(), "");
    }
}

}  // namespace
}  // namespace corvanda::pruebas
