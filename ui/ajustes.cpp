#include "ui/ajustes.h"

#include <algorithm>

#include "runtime/conversion.h"

namespace corvanda {

namespace {

constexpr const char* SECCION = "Config";

Byte Nivel_Guardado(const std::string& nombre) {
    const auto es = [&](const Nivel_Del_Menu& cada) { return cada.guardado == nombre; };
    const auto* fila = std::find_if(NIVELES.begin(), NIVELES.end(), es);
    return fila != NIVELES.end() ? fila->nivel : NIVEL_POR_OTRO_NOMBRE;
}

}  // namespace

Ajustes::Ajustes(SettingsStore& almacen, const App& programa)
    : almacen(almacen), aplicacion(programa.Path() + "\\Corvanda.Ini") {}

void Ajustes::Leer(Menus& menus, Modulo1& modulo) {
    leidos = true;
    const auto leer = [this](const char* clave, const char* defecto) {
        return almacen.GetSetting(aplicacion, SECCION, clave, defecto);
    };
    menus.mnuSonido->setChecked(Val(leer("Sonido", "-1")) != 0);
    const std::string nivel = leer("Nivel", NIVELES.front().guardado);
    menus.Marcar_Nivel(Marca_De(Fila_De(Nivel_Guardado(nivel))));
    modulo.Velocidad = CInt(Val(leer("Velocidad", "100")));
}

std::string Ajustes::Guardar(const Menus& menus, const Modulo1& modulo) const {
    if (!leidos) return {};
    const auto guardar = [this](const char* clave, const std::string& valor) {
        almacen.SaveSetting(aplicacion, SECCION, clave, valor);
    };
    guardar("Sonido", menus.mnuSonido->isChecked() ? "-1" : "0");
    guardar("Nivel", menus.Nivel_Marcado().guardado);
    guardar("Velocidad", std::to_string(modulo.Velocidad));
    return almacen.Commit();
}

}  // namespace corvanda
