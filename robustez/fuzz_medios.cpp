// Any text as a media command, and any bytes as a film, all of whose pictures are decoded.
#include <QGuiApplication>

#include "desktop/media_command.h"
#include "desktop/media_file.h"
#include "robustez/entrada.h"
#include "robustez/fuzz_archivo.h"

namespace {

using namespace corvanda;

void Leer_Orden(const std::string& texto) {
    const auto orden = media::Parse(texto);
    if (!orden) return;
    Exigir(texto.find('"') != std::string::npos, "a command names its device in quotes");
    Exigir(!orden->name.isEmpty(), "the name is not empty");
    Exigir(media::Parse("  " + texto + " ").has_value(), "blanks around a command do not count");
}

void Ver_Pelicula(const std::string& bytes) {
    const auto pelicula = media::ReadFilm(Archivo_Con(bytes));
    if (!pelicula) return;
    Exigir(!pelicula->frames.empty() && pelicula->microseconds > 0, "a film has pictures and time");
    for (std::size_t i = 0; i < pelicula->frames.size() && i < 8; ++i) {
        const auto& cuadro = pelicula->frames[i];
        Exigir(
            cuadro.at >= 0 && cuadro.size >= 0 && cuadro.at + cuadro.size <= pelicula->bytes.size(),
            "a picture stands inside its file");
        media::Decode(*pelicula, i);
    }
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // The picture decoder says on the terminal what it finds wrong.
    qputenv("QT_LOGGING_RULES", "*=false");
    static const QGuiApplication qt(*argc, *argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t cuantos) {
    Entrada entrada(datos, cuantos);
    if (entrada.Hasta(2) == 0) {
        Leer_Orden(entrada.Resto());
    } else {
        Ver_Pelicula(entrada.Resto());
    }
    return 0;
}
