// Makes the film of the start-up screen: three seconds that can be repeated without end.
//
//     animacion FILE.avi                writes the film
//     animacion FILE.png WIDTH FROM     writes one picture of it, as large as wanted
#include <QBuffer>
#include <QFile>
#include <QStringList>
#include <cstdio>

#include "luz.h"
#include "pelicula.h"

namespace {

constexpr int POR_SEGUNDO = 30;
constexpr int CUANTAS = 87;  // the last one ends as the start-up screen's third second does
constexpr int CALIDAD = 80;
constexpr double OBTURADOR = 0.5;  // how much of its time a picture is exposed
constexpr QSize TAMANO(800, 600);

QImage Foto(QSize tamano, int cual) {
    return animacion::Fotografiar(tamano, static_cast<double>(cual) / POR_SEGUNDO,
                                  (cual + OBTURADOR) / POR_SEGUNDO);
}

bool Filmar(const QString& archivo) {
    std::vector<QByteArray> fotos;
    for (int i = 0; i < CUANTAS; ++i) {
        QBuffer foto;
        foto.open(QIODevice::WriteOnly);
        if (!Foto(TAMANO, i).save(&foto, "JPEG", CALIDAD)) return false;
        fotos.push_back(foto.data());
    }
    const QByteArray bytes = animacion::Pelicula(fotos, TAMANO, POR_SEGUNDO);
    QFile salida(archivo);
    return salida.open(QIODevice::WriteOnly) && salida.write(bytes) == bytes.size() &&
           salida.flush();
}

}  // namespace

int main(int argc, char** argv) {
    const QStringList argumentos(argv + 1, argv + argc);
    bool hecha = false;
    if (argumentos.size() == 1) {
        hecha = Filmar(argumentos[0]);
    } else if (argumentos.size() == 3) {
        const int ancho = argumentos[1].toInt();
        hecha = Foto({ancho, ancho * 3 / 4}, argumentos[2].toInt()).save(argumentos[0]);
    }
    if (!hecha) std::fputs("animacion: could not write the film or picture\n", stderr);
    return hecha ? 0 : 1;
}
