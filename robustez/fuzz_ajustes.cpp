// A settings file with any bytes in it, and any text read as a number. The settings can always be
// asked for; what is saved afterwards is what is read next.
#include <cmath>

#include "desktop/settings_file.h"
#include "robustez/entrada.h"
#include "robustez/fuzz_archivo.h"
#include "runtime/conversion.h"

namespace {

using namespace corvanda;

const std::string APLICACION = "/opt/corvanda\\Corvanda.Ini";

void Leer_Numero(const std::string& texto) {
    const double valor = Val(texto);
    Exigir(!std::isnan(valor), "a text is never read as no number");
    Exigir(Val("  " + texto) == valor, "leading blanks do not count");
    const Integer redondo = CInt(valor);
    Exigir(Val(Str(redondo)) == redondo, "a number survives its text");
    Exigir(std::abs(valor) > 32767 || std::abs(valor - redondo) <= 0.5, "rounded to the nearest");
}

void Leer_Y_Guardar(const std::string& bytes) {
    const QString nombre = Archivo_Con(bytes);
    SettingsFile antes(nombre);
    for (const char* clave : {"Sonido", "Nivel", "Velocidad"}) {
        Leer_Numero(antes.GetSetting(APLICACION, "Config", clave, "100"));
    }
    antes.SaveSetting(APLICACION, "Config", "Velocidad", "7");
    Exigir(antes.Commit().empty(), "the settings can be saved over any file");
    SettingsFile despues(nombre);
    Exigir(despues.GetSetting(APLICACION, "Config", "Velocidad", "100") == "7",
           "what was saved is read");
    QFile::remove(nombre + ".damaged");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t cuantos) {
    Entrada entrada(datos, cuantos);
    if (entrada.Hasta(2) == 0) {
        Leer_Numero(entrada.Resto());
    } else {
        Leer_Y_Guardar(entrada.Resto());
    }
    return 0;
}
