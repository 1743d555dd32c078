// What the system says of this process.
#pragma once

#include <QByteArray>
#include <QFile>

namespace corvanda {

/// Proportional memory, MiB; 0 where the system does not tell.
inline double Memoria_Proporcional() {
    QFile archivo("/proc/self/smaps_rollup");
    if (!archivo.open(QIODevice::ReadOnly)) return 0;
    for (const QByteArray& linea : archivo.readAll().split('\n')) {
        if (linea.startsWith("Pss:")) {
            return linea.mid(4).simplified().split(' ')[0].toDouble() / 1024;
        }
    }
    return 0;
}

}  // namespace corvanda
