// The script of the demonstration: what a person would do with the mouse, step by step, at the real
// windows of the running program. It runs in a thread of its own and looks at windows and state
// only in the GUI thread, so that the program goes on as if somebody outside were playing.
#pragma once

#include <QDir>
#include <QString>
#include <functional>

#include "app/aplicacion.h"
#include "demostracion/jugador.h"
#include "demostracion/raton.h"

namespace corvanda {

class Guion {
  public:
    /// Screenshots go into `carpeta` as 01-name.png and so on.
    Guion(Aplicacion& programa, const QString& carpeta) : programa(programa), carpeta(carpeta) {}

    /// Plays: a start from the menu, the throw for the start, moves of both sides, a wrong move
    /// with its message, and either a short game or, when `entera`, a whole one up to the winner's
    /// box. Returns an empty text, or at which step something did not happen.
    QString Representar(bool entera);

  private:
    void Foto(const QString& nombre);
    void En_La_Ventana(const std::function<void()>& accion) const;
    bool Esperar(const std::function<bool()>& condicion) const;

    void Elegir_Menu(const char* menu, const char* entrada);
    QString Sortear();
    void Pulsar_Boton(const char* texto = nullptr);
    void Equivocarse();
    QString Jugar_Una();
    QString Jugar_Varias(int cuantas);
    QString Salir();

    QPoint En_Pantalla(Lugar lugar) const;
    QPoint Centro_De(QWidget* widget) const;

    Aplicacion& programa;
    QDir carpeta;
    Raton raton;
    int fotos = 0;
    bool ganada = false;
    bool vista_la_salida = false;
};

}  // namespace corvanda
