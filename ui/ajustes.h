// The three settings that are remembered between runs: read once when the main window loads, saved
// once when the person confirms the quit. In between they live in the check marks and in Velocidad.
#pragma once

#include <string>

#include "core/partida.h"
#include "runtime/ports.h"
#include "ui/menus.h"

namespace corvanda {

class Ajustes {
  public:
    Ajustes(SettingsStore& almacen, const App& programa);

    /// Sets the Sound mark, the level marks and Velocidad; what is missing gets its default.
    void Leer(Menus& menus, Modulo1& modulo);
    /// Saves them, if they were read before. Returns an empty text, or why they could not be saved.
    std::string Guardar(const Menus& menus, const Modulo1& modulo) const;

  private:
    SettingsStore& almacen;
    const std::string aplicacion;  // every folder that the program lies in has settings of its own
    bool leidos = false;
};

}  // namespace corvanda
