// The program as a child process in a home of its own.
#pragma once

#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>
#include <csignal>

namespace corvanda::pruebas {

class Programa {
  public:
    /// The program beside the tests, off the screen, with an empty home.
    Programa();

    /// A copy of the program's folder, for data to be damaged in.
    void Copiar();
    QString Carpeta() const { return carpeta; }
    QString Casa() const { return casa.path(); }
    QString Archivo_De_Ajustes() const { return casa.filePath("config/corvanda/settings.json"); }
    void Poner(const QString& variable, const QString& valor) { entorno.insert(variable, valor); }

    /// Starts and returns as soon as the program listens to signals.
    bool Empezar();
    /// Whether it still runs so many milliseconds after it began to listen; waits until then.
    bool Sigue_Viva_A_Los(qint64 milisegundos);
    /// The same, when the main window has come after the start-up screen.
    bool Llega_A_La_Ventana() { return Sigue_Viva_A_Los(4500); }
    /// Sends a signal and returns the exit status; -1 when it does not end, or not by itself.
    int Terminar(int senal = SIGTERM);
    int Esperar_Fin();

    QByteArray Leer_Ajustes() const;

  private:
    bool Escucha() const;

    QTemporaryDir casa;
    QTemporaryDir copia;
    QString carpeta;
    QProcessEnvironment entorno;
    QProcess proceso;
    QElapsedTimer desde;  // it began to listen
};

}  // namespace corvanda::pruebas
