#include "ui/ajustes.h"

#include "runtime/conversion.h"

namespace corvanda {

namespace {

constexpr const char* SECCION = "Config";
constexpr const char* NIVEL_BAJO = "Principiante";
constexpr const char* NIVEL_ALTO = "Avanzado";

}  // namespace

Ajustes::Ajustes(SettingsStore& almacen, const App& programa)
    : almacen(almacen), aplicacion(programa.Path() + "\\Corvanda.Ini") {}

void Ajustes::Leer(Menus& menus, Módulo1& modulo) const {
    const auto leer = [this](const char* clave, const char* defecto) {
        return almacen.GetSetting(aplicacion, SECCION, clave, defecto);
    };
    menus.mnuSonido->setChecked(Val(leer("Sonido", "-1")) != 0);
    menus.Marcar_Nivel(leer("Nivel", NIVEL_BAJO) == NIVEL_BAJO ? 0 : 2);
    modulo.Velocidad = CInt(Val(leer("Velocidad", "100")));
}

std::string Ajustes::Guardar(const Menus& menus, const Módulo1& modulo) const {
    const auto guardar = [this](const char* clave, const std::string& valor) {
        almacen.SaveSetting(aplicacion, SECCION, clave, valor);
    };
    guardar("Sonido", menus.mnuSonido->isChecked() ? "-1" : "0");
    guardar("Nivel", menus.mnuLev[0]->isChecked() ? NIVEL_BAJO : NIVEL_ALTO);
    guardar("Velocidad", std::to_string(modulo.Velocidad));
    return almacen.Commit();
}

}  // namespace corvanda
