// The menu tree of the main window. Each entry and each line has a name of its own by which tests
// find it. The check marks of the levels and of the sound are state that the settings are read into
// and saved from.
#pragma once

#include <QAction>
#include <QMenuBar>
#include <array>

#include "ui/niveles.h"

namespace corvanda {

class Menus {
  public:
    /// Builds the tree on a window's menu bar, which owns the entries.
    explicit Menus(QMenuBar& barra);

    QAction* mnuNew = nullptr;
    QAction* mnuVs = nullptr;
    QAction* mnuPasar = nullptr;
    std::array<QAction*, 2 * NIVELES.size() - 1> mnuLev{};  ///< by Marca_De; the others are lines
    QAction* mnuSonido = nullptr;
    QAction* mnuVel = nullptr;
    QAction* mnuCont = nullptr;
    QAction* mnuIndice = nullptr;
    QAction* mnuAcerca = nullptr;
    QAction* mnuSalir = nullptr;

    /// Checks the level with this Index and unchecks the others.
    void Marcar_Nivel(Integer marca);
    /// The level that is checked.
    const Nivel_Del_Menu& Nivel_Marcado() const;

  private:
    void Hacer_Juego(QMenuBar& barra);
    void Hacer_Opciones(QMenuBar& barra);
    void Hacer_Ayuda(QMenuBar& barra);
};

}  // namespace corvanda
