// Saves settings as the game does at its quit, without the game around it, so that this can be
// killed, starved and raced:
//
//     guardador FILE APPLICATION FIRST [COUNT]   saves FIRST, FIRST + 1, ... under three keys each;
//                                                without COUNT until somebody ends it
//     guardador --leer FILE APPLICATION          prints the number that all three keys hold
//
// Ends with 1 and the message for the person when a save failed, with 3 when the keys differ.
#include <QTextStream>
#include <array>
#include <cstdlib>
#include <string>

#include "desktop/settings_file.h"

namespace {

using corvanda::SettingsFile;

constexpr std::array CLAVES{"Sonido", "Nivel", "Velocidad"};

int Leer(const QString& archivo, const std::string& aplicacion) {
    SettingsFile almacen(archivo);
    const std::string primera = almacen.GetSetting(aplicacion, "Config", CLAVES[0], "none");
    for (const char* clave : CLAVES) {
        if (almacen.GetSetting(aplicacion, "Config", clave, "none") != primera) return 3;
    }
    QTextStream(stdout) << QString::fromStdString(primera) << '\n';
    return 0;
}

int Guardar(const QString& archivo, const std::string& aplicacion, long desde, long hasta) {
    SettingsFile almacen(archivo);
    for (long numero = desde; hasta == 0 || numero < hasta; ++numero) {
        for (const char* clave : CLAVES) {
            almacen.SaveSetting(aplicacion, "Config", clave, std::to_string(numero));
        }
        const std::string fallo = almacen.Commit();
        if (fallo.empty()) continue;
        QTextStream(stdout) << QString::fromStdString(fallo) << '\n';
        return 1;
    }
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc == 4 && std::string(argv[1]) == "--leer") {
        return Leer(QString::fromLocal8Bit(argv[2]), argv[3]);
    }
    if (argc < 4) {
        QTextStream(stderr) << "usage: guardador FILE APPLICATION FIRST [COUNT]\n";
        return 2;
    }
    const long desde = std::atol(argv[3]);
    const long hasta = argc > 4 ? desde + std::atol(argv[4]) : 0;
    return Guardar(QString::fromLocal8Bit(argv[1]), argv[2], desde, hasta);
}
