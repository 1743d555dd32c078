// The program as people start it, a child process: it comes to its main window and ends in an
// orderly way, whatever has become of the files that it reads.
#include <gtest/gtest.h>
#include <sys/inotify.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <csignal>
#include <functional>
#include <memory>
#include <random>

namespace corvanda::pruebas {
namespace {

constexpr int PACIENCIA = 30000;  // milliseconds; the machine may be busy

/// A copy of the program and its data, with a home of its own, off the screen.
class Programa {
  public:
    Programa() {
        const QDir origen(QCoreApplication::applicationDirPath());
        QDirIterator archivos(origen.path(), {"corvanda", "*.svg", "*.Wav", "*.HLP", "*.avi"},
                              QDir::Files, QDirIterator::Subdirectories);
        while (archivos.hasNext()) {
            const QString relativo = origen.relativeFilePath(archivos.next());
            QDir(copia.path()).mkpath(QFileInfo(relativo).path());
            QFile::copy(origen.filePath(relativo), copia.filePath(relativo));
        }
        Escribir(ajustes, "{}");
        QProcessEnvironment entorno = QProcessEnvironment::systemEnvironment();
        entorno.insert("HOME", copia.path());
        entorno.insert("XDG_CONFIG_HOME", copia.filePath("config"));
        entorno.insert("XDG_RUNTIME_DIR", copia.path());
        entorno.insert("QT_QPA_PLATFORM", "offscreen");
        entorno.insert("SDL_AUDIODRIVER", "dummy");
        proceso.setProcessEnvironment(entorno);
        proceso.setProcessChannelMode(QProcess::ForwardedChannels);
    }
    ~Programa() { ::close(oidos); }
    Programa(const Programa&) = delete;
    Programa& operator=(const Programa&) = delete;

    static void Escribir(const QString& nombre, const QByteArray& bytes) {
        QDir().mkpath(QFileInfo(nombre).path());
        QFile archivo(nombre);
        ASSERT_TRUE(archivo.open(QIODevice::WriteOnly) && archivo.write(bytes) == bytes.size());
    }

    /// Starts and returns as soon as the program listens to signals.
    bool Empezar() {
        for (const QString& nombre : {ajustes, copia.filePath("imagenes/corvanda.svg")})
            inotify_add_watch(oidos, QFile::encodeName(nombre).constData(), IN_OPEN);
        proceso.start(copia.filePath("corvanda"), QStringList());
        proceso.waitForStarted(PACIENCIA);
        // Looked at closely: what a test does next is to hit a moment of the start.
        const QDeadlineTimer plazo(PACIENCIA);
        while (!Escucha() && !plazo.hasExpired()) ::usleep(200);
        return Escucha();
    }
    /// Whether the main window loads: it reads the settings and the icon, one of which is there.
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

    const QTemporaryDir copia;
    const QString ajustes = copia.filePath("config/corvanda/settings.json");

  private:
    bool Escucha() const {
        QFile estado("/proc/" + QString::number(proceso.processId()) + "/status");
        const QByteArray texto = estado.open(QIODevice::ReadOnly) ? estado.readAll() : QByteArray();
        const QByteArray senales = texto.mid(texto.indexOf("SigCgt:") + 7).trimmed().left(16);
        return (senales.toULongLong(nullptr, 16) >> (SIGTERM - 1) & 1) != 0;
    }

    const int oidos = inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
    QProcess proceso;
};

TEST(Programa, ends_whenever_in_its_start_the_system_asks) {
    for (const unsigned milisegundos : {0, 5, 20, 40, 80, 150}) {
        Programa programa;
        ASSERT_TRUE(programa.Empezar());
        ::usleep(milisegundos * 1000);
        EXPECT_EQ(programa.Terminar(SIGTERM), 0) << "after " << milisegundos << " ms";
    }
}

// The programs run side by side, because the start-up screen takes its time.
TEST(Programa, starts_and_ends_whatever_has_become_of_each_file) {
    const std::pair<const char*, std::function<void(const QString&)>> danos[] = {
        {"absent", [](const QString& a) { QFile::remove(a); }},
        {"empty", [](const QString& a) { QFile::resize(a, 0); }},
        {"half", [](const QString& a) { QFile::resize(a, QFileInfo(a).size() / 2); }},
        {"random",
         [](const QString& a) {
             std::mt19937 azar(4711);
             QByteArray bytes(QFileInfo(a).size() + 1000, ' ');
             for (char& octeto : bytes) octeto = static_cast<char>(azar());
             Programa::Escribir(a, bytes);
         }},
        {"a folder",
         [](const QString& a) {
             QFile::remove(a);
             QDir().mkpath(a);
         }},
    };
    std::vector<std::pair<std::string, std::unique_ptr<Programa>>> programas;
    for (const QString archivos : {"Sonidos/*.Wav", "Corvanda.avi", "corvanda.HLP",
                                   "imagenes/*.svg", "config/corvanda/settings.json"}) {
        for (const auto& [dano, danar] : danos) {
            auto programa = std::make_unique<Programa>();
            const QDir carpeta(programa->copia.filePath(QFileInfo(archivos).path()));
            const QStringList hallados = carpeta.entryList({QFileInfo(archivos).fileName()});
            EXPECT_FALSE(hallados.isEmpty()) << archivos.toStdString();
            for (const QString& uno : hallados) danar(carpeta.filePath(uno));
            ASSERT_TRUE(programa->Empezar());
            programas.emplace_back(archivos.toStdString() + " " + dano, std::move(programa));
        }
    }
    int senal = 0;
    for (const auto& [que, programa] : programas) {
        const QFileInfo ajustes(programa->ajustes);
        const auto antes = ajustes.lastModified();
        EXPECT_TRUE(programa->Llega_A_La_Ventana()) << que;
        EXPECT_EQ(programa->Terminar(std::array{SIGTERM, SIGINT, SIGHUP}.at(senal++ % 3)), 0)
            << que;
        EXPECT_EQ(QFileInfo(programa->ajustes).lastModified(), antes) << que << " saves nothing";
    }
}

}  // namespace
}  // namespace corvanda::pruebas
