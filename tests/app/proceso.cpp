#include "tests/app/proceso.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QThread>

namespace corvanda::pruebas {

namespace {

constexpr int PACIENCIA = 20000;  // milliseconds; the machine may be busy

}  // namespace

Programa::Programa()
    : carpeta(QCoreApplication::applicationDirPath()),
      entorno(QProcessEnvironment::systemEnvironment()) {
    QDir(casa.path()).mkdir("config");
    Poner("HOME", casa.path());
    Poner("XDG_CONFIG_HOME", casa.filePath("config"));
    Poner("XDG_RUNTIME_DIR", casa.path());
    Poner("QT_QPA_PLATFORM", "offscreen");
    Poner("SDL_AUDIODRIVER", "dummy");
}

void Programa::Copiar() {
    const QDir origen(carpeta);
    const QDir destino(copia.path());
    QFile::copy(origen.filePath("corvanda"), destino.filePath("corvanda"));
    QDirIterator archivos(carpeta, {"*.svg", "*.Wav", "*.HLP", "*.avi"}, QDir::Files,
                          QDirIterator::Subdirectories);
    while (archivos.hasNext()) {
        const QString archivo = archivos.next();
        const QString relativo = origen.relativeFilePath(archivo);
        destino.mkpath(QFileInfo(relativo).path());
        QFile::copy(archivo, destino.filePath(relativo));
    }
    carpeta = copia.path();
}

bool Programa::Escucha() const {
    QFile estado("/proc/" + QString::number(proceso.processId()) + "/status");
    if (!estado.open(QIODevice::ReadOnly)) return false;
    for (const QByteArray& linea : estado.readAll().split('\n')) {
        if (!linea.startsWith("SigCgt:")) continue;
        return ((linea.mid(7).trimmed().toULongLong(nullptr, 16) >> (SIGTERM - 1)) & 1) != 0;
    }
    return false;
}

bool Programa::Empezar() {
    proceso.setProcessEnvironment(entorno);
    proceso.setProcessChannelMode(QProcess::ForwardedChannels);
    proceso.start(carpeta + "/corvanda", QStringList());
    if (!proceso.waitForStarted(PACIENCIA)) return false;
    // Looked at closely: what a test does next is to hit a moment of the start.
    const QDeadlineTimer plazo(PACIENCIA);
    while (!Escucha() && !plazo.hasExpired()) QThread::usleep(200);
    desde.start();
    return Escucha();
}

bool Programa::Sigue_Viva_A_Los(qint64 milisegundos) {
    const qint64 faltan = milisegundos - desde.elapsed();
    if (faltan > 0) QThread::msleep(static_cast<unsigned long>(faltan));
    return !proceso.waitForFinished(0) && proceso.state() == QProcess::Running;
}

int Programa::Terminar(int senal) {
    ::kill(static_cast<pid_t>(proceso.processId()), senal);
    return Esperar_Fin();
}

int Programa::Esperar_Fin() {
    const bool terminado =
        proceso.state() == QProcess::NotRunning || proceso.waitForFinished(PACIENCIA);
    if (!terminado) {
        proceso.kill();
        proceso.waitForFinished();
        return -1;
    }
    return proceso.exitStatus() == QProcess::NormalExit ? proceso.exitCode() : -1;
}

QByteArray Programa::Leer_Ajustes() const {
    QFile archivo(Archivo_De_Ajustes());
    return archivo.open(QIODevice::ReadOnly) ? archivo.readAll() : QByteArray("(none)");
}

}  // namespace corvanda::pruebas
