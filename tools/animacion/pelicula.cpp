#include "pelicula.h"

#include <QtEndian>
#include <algorithm>

namespace animacion {

namespace {

QByteArray Numeros(std::initializer_list<qsizetype> numeros) {
    QByteArray bytes;
    for (const qsizetype numero : numeros) {
        const quint32 ordenado = qToLittleEndian(static_cast<quint32>(numero));
        bytes.append(reinterpret_cast<const char*>(&ordenado), sizeof ordenado);
    }
    return bytes;
}

// Two numbers of 16 bits in the place of one of 32.
qsizetype Par(qsizetype bajo, qsizetype alto) {
    return bajo | (alto << 16);
}

QByteArray Trozo(const char* nombre, const QByteArray& cuerpo) {
    QByteArray trozo = nombre + Numeros({cuerpo.size()}) + cuerpo;
    if (cuerpo.size() % 2 == 1) trozo.append('\0');
    return trozo;
}

QByteArray Lista(const char* clase, const QByteArray& cuerpo, const char* nombre = "LIST") {
    return Trozo(nombre, clase + cuerpo);
}

}  // namespace

QByteArray Pelicula(const std::vector<QByteArray>& fotos, QSize tamano, int fotos_por_segundo) {
    QByteArray trozos;
    QByteArray indice;
    qsizetype mayor = 0;
    constexpr qsizetype CLAVE = 0x10;  // each picture can be shown without the others
    for (const QByteArray& foto : fotos) {
        indice += "00dc" + Numeros({CLAVE, 4 + trozos.size(), foto.size()});
        trozos += Trozo("00dc", foto);
        mayor = std::max(mayor, foto.size());
    }
    const auto cuantas = static_cast<qsizetype>(fotos.size());
    const qsizetype ancho = tamano.width();
    const qsizetype alto = tamano.height();
    constexpr qsizetype CON_INDICE = 0x10;
    const QByteArray avih = Numeros({1000000 / fotos_por_segundo, mayor * fotos_por_segundo, 0,
                                     CON_INDICE, cuantas, 0, 1, mayor, ancho, alto, 0, 0, 0, 0});
    const QByteArray strh = "vidsMJPG" + Numeros({0, 0, 0, 1, fotos_por_segundo, 0, cuantas, mayor,
                                                  -1, 0, 0, Par(ancho, alto)});
    const QByteArray strf =
        Numeros({40, ancho, alto, Par(1, 24)}) + "MJPG" + Numeros({ancho * alto * 3, 0, 0, 0, 0});
    const QByteArray cabeza = Lista(
        "hdrl", Trozo("avih", avih) + Lista("strl", Trozo("strh", strh) + Trozo("strf", strf)));
    return Lista("AVI ", cabeza + Lista("movi", trozos) + Trozo("idx1", indice), "RIFF");
}

}  // namespace animacion
