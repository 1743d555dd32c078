// The program as a child process in a home of its own.
#pragma once

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
    /// Whether it still runs after its windows had the time to appear.
    bool Sigue_Viva();
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
};

}  // namespace corvanda::pruebas
