#include "ui/anuncios.h"

#include <QStringList>
#include <array>

namespace corvanda::anuncios {

namespace {

constexpr Integer EN_EL_AIRE = -1;

using Sitios = std::array<Integer, FICHAS>;

// Where each chip of a side stands.
Sitios Sitios_De(const Partida& partida, Integer color) {
    Sitios sitios;
    sitios.fill(EN_EL_AIRE);
    const Arreglo fichas = color == BLANCA ? Arreglo::Blanca : Arreglo::Cafe;
    for (Integer lugar = 0; lugar < lugares::CUANTOS; ++lugar) {
        if (lugares::Tope(partida, lugar).Nombre != fichas) continue;
        const Pila& pila = Pila_En(partida, lugar);
        for (Integer item = 0; item < pila.Cuenta(); ++item) {
            sitios.at(static_cast<std::size_t>(pila.Ficha(item))) = lugar;
        }
    }
    return sitios;
}

// Chips never come back to these places together, so this is a game that was just set up.
bool Es_Inicio(const Partida& partida) {
    struct Monton {
        Integer punto, cuantas;
    };
    constexpr Monton MONTONES[] = {{0, 2}, {11, 5}, {16, 3}, {18, 5}, {5, 5}, {7, 3}, {12, 5}};
    for (const Monton& monton : MONTONES) {
        if (Pila_En(partida, monton.punto).Cuenta() != monton.cuantas) return false;
    }
    return Pila_En(partida, PUNTOS - 1).Cuenta() == 2;
}

QString Jugada(Integer color, Integer desde, Integer hasta) {
    const QString bando = lugares::Bando(color);
    if (!Es_Punto(hasta)) return bando + " bears off from " + lugares::Breve(desde) + '.';
    if (!Es_Punto(desde)) return bando + " enters on " + lugares::Breve(hasta) + '.';
    return QString("%1 moves from %2 to %3.")
        .arg(bando, lugares::Breve(desde), lugares::Breve(hasta));
}

void Contar(const Partida& antes, const Partida& ahora, Integer color, QStringList& jugadas,
            QStringList& golpes) {
    const Integer barra = color == BLANCA ? BARRA_BLANCA : BARRA_CAFE;
    const Sitios de = Sitios_De(antes, color);
    const Sitios a = Sitios_De(ahora, color);
    for (std::size_t i = 0; i < de.size(); ++i) {
        if (de.at(i) == a.at(i) || de.at(i) == EN_EL_AIRE || a.at(i) == EN_EL_AIRE) continue;
        if (a.at(i) == barra) {
            golpes += QString("%1's chip on %2 is hit.")
                          .arg(lugares::Bando(color), lugares::Breve(de.at(i)));
        } else {
            jugadas += Jugada(color, de.at(i), a.at(i));
        }
    }
}

}  // namespace

QString Jugadas(const Partida& antes, const Partida& ahora) {
    if (antes.LST == ahora.LST || Es_Inicio(ahora)) return {};
    QStringList jugadas;
    QStringList golpes;
    for (const Integer color : {BLANCA, CAFE}) Contar(antes, ahora, color, jugadas, golpes);
    return (jugadas + golpes).join(' ');
}

QString Tiro(const Partida& antes, const Partida& ahora) {
    const bool sobraba = antes.Dado[0].Visible || antes.Dado[1].Visible;
    const bool paso = sobraba && antes.Turno == -ahora.Turno && !Es_Inicio(ahora);
    const QString pase = paso ? lugares::Bando(antes.Turno) + " passes. " : QString();
    const QString doble = ahora.Dado1 == ahora.Dado2 ? ", a double" : "";
    return pase + QString("%1's dice: %2 and %3%4.")
                      .arg(lugares::Bando(ahora.Turno))
                      .arg(ahora.Dado1)
                      .arg(ahora.Dado2)
                      .arg(doble);
}

}  // namespace corvanda::anuncios
