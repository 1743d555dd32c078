#include "tests/apoyo/retrato.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFileInfo>
#include <sstream>

#include "fuentes.h"
#include "tests/apoyo/parecido.h"

namespace corvanda::pruebas {

namespace {

void Guardar(const QImage& imagen, const QString& archivo) {
    constexpr int LO_MAS_CHICO = 0;  // of the writer's degrees: the smallest file
    EXPECT_TRUE(QDir().mkpath(QFileInfo(archivo).path()) &&
                imagen.save(archivo, "PNG", LO_MAS_CHICO))
        << archivo.toStdString() << " cannot be written";
}

/// Whether this one is to be approved: "" nothing, else names with wildcards.
bool Se_Aprueba(const QString& nombre) {
    const QString cuales = qEnvironmentVariable("CORVANDA_APROBAR");
    return QDir::match(cuales.split(' ', Qt::SkipEmptyParts), nombre);
}

std::string Donde(const std::vector<QRect>& areas) {
    std::ostringstream texto;
    for (const QRect& area : areas) {
        texto << "\n    " << area.width() << " x " << area.height() << " pixels at (" << area.left()
              << ", " << area.top() << ')';
    }
    return texto.str();
}

}  // namespace

void Retratar(const QString& archivo, const QImage& imagen) {
    const QString aprobado = QDir(CORVANDA_FUENTES).filePath(archivo + ".png");
    const QString nombre = QFileInfo(archivo).fileName();
    const QImage antes(aprobado);
    const Diferencia diferencia = Comparar(imagen, antes);
    if (diferencia.areas.empty()) return;
    if (Se_Aprueba(nombre)) {
        Guardar(imagen, aprobado);
        std::printf("approved %s.png\n", qPrintable(archivo));
        return;
    }
    const QString resto = QString(CORVANDA_RETRATOS) + nombre;
    Guardar(imagen, resto + ".new.png");
    if (!antes.isNull()) {
        Guardar(antes, resto + ".approved.png");
        Guardar(diferencia.vista, resto + ".difference.png");
    }
    ADD_FAILURE() << archivo.toStdString() << ".png is not what is drawn now; they differ in"
                  << Donde(diferencia.areas) << "\nLook at " << resto.toStdString()
                  << ".{new,approved,difference}.png\nand, when the new one is right, run "
                  << "tools/aprobar.sh " << nombre.toStdString();
}

}  // namespace corvanda::pruebas
