// Draws the pictures of the help:
//
//     laminas FOLDER
//
// writes one PNG file for each into a folder that exists. Needs no screen, and a second run on the
// same machine writes the same bytes; the letters are those of its usual font.
#include <QApplication>
#include <QDir>
#include <cstdio>

#include "tools/laminas/mesa.h"
#include "tools/laminas/ventanas.h"

namespace {

bool Guardar(const QString& carpeta, const QString& nombre, const QImage& imagen) {
    const QString archivo = carpeta + '/' + nombre + ".png";
    constexpr int LO_MAS_CHICO = 0;  // of the writer's degrees: the smallest file
    if (!imagen.isNull() && imagen.save(archivo, "PNG", LO_MAS_CHICO)) return true;
    std::fprintf(stderr, "laminas: %s could not be made\n", qPrintable(archivo));
    return false;
}

bool Hacer_Todas(const QString& carpeta) {
    corvanda::Estampas estampas(QApplication::applicationDirPath() + "/imagenes");
    for (const laminas::Lamina& lamina : laminas::Tabla()) {
        if (!Guardar(carpeta, lamina.nombre, laminas::Dibujar(lamina, estampas))) return false;
    }
    return Guardar(carpeta, "startdialog", laminas::Quien_Empieza(estampas)) &&
           Guardar(carpeta, "speed", laminas::Velocidad(estampas)) &&
           Guardar(carpeta, "dice", laminas::Frecuencias(estampas));
}

}  // namespace

int main(int argc, char** argv) {
    // Whatever desktop this runs on, the dialogs look the same and at the pictures' ratio.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_SCALE_FACTOR", QByteArray::number(laminas::RATIO));
    QApplication::setStyle("Fusion");
    const QApplication qt(argc, argv);
    const QStringList palabras = QApplication::arguments();
    if (palabras.size() != 2) {
        std::fputs("usage: laminas FOLDER\n", stderr);
        return 2;
    }
    return Hacer_Todas(palabras[1]) ? 0 : 1;
}
