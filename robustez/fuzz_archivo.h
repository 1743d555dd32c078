// A file that holds the bytes of one fuzzing input, in a folder of its own that goes away at the
// end.
#pragma once

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <string>

namespace corvanda {

/// Writes the bytes into the one file of the run and returns its name.
inline QString Archivo_Con(const std::string& bytes) {
    static const QTemporaryDir carpeta(QDir::tempPath() + "/corvanda-fuzz-XXXXXX");
    const QString nombre = carpeta.filePath("entrada");
    QFile archivo(nombre);
    if (!archivo.open(QIODevice::WriteOnly)) std::abort();
    archivo.write(bytes.data(), static_cast<qint64>(bytes.size()));
    return nombre;
}

}  // namespace corvanda
