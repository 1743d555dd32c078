#include "ui/lugares.h"

#include <algorithm>

#include "core/bandos.h"

namespace corvanda::lugares {

namespace {

constexpr int COLUMNAS = 14;

bool Es_Barra(Integer lugar) {
    return lugar == BARRA_CAFE || lugar == BARRA_BLANCA;
}

// A tray's or a bar's side, or whose chips stand on a point.
Integer Color(const Partida& partida, Integer lugar) {
    if (Es_Punto(lugar)) return Punto_En(partida, lugar).Owner;
    return lugar == BARRA_BLANCA || lugar == BANDEJA_BLANCA ? BLANCA : CAFE;
}

Control Bandeja(Integer lugar) {
    return {Arreglo::Adios, static_cast<Integer>(lugar == BANDEJA_CAFE ? 0 : 1)};
}

QRectF Area(const Image& imagen) {
    return {static_cast<double>(imagen.Left), static_cast<double>(imagen.Top),
            static_cast<double>(imagen.Width), static_cast<double>(imagen.Height)};
}

// Where a chip is put that was hit, whether one lies there or not.
QRectF Area_De_Barra(const Partida& partida, Integer lugar) {
    const corvanda::Bando& bando = Bando_De(lugar == BARRA_BLANCA ? BLANCA : CAFE);
    const Esquina esquina = Esquina_De_Barra(partida, bando);
    QRectF area = Area(*Imagen_De(partida, {bando.fichas, 0}));
    area.moveTo(static_cast<double>(esquina.Left), static_cast<double>(esquina.Top));
    return area;
}

struct Casilla {
    int columna, fila;
};

Casilla Casilla_De(Integer lugar) {
    if (Es_Punto(lugar)) return {2 + (lugar < 12 ? lugar : PUNTOS - 1 - lugar), lugar < 12 ? 0 : 1};
    return {Es_Barra(lugar) ? 1 : 0, lugar == BARRA_BLANCA || lugar == BANDEJA_CAFE ? 0 : 1};
}

Integer En(Casilla casilla) {
    const bool arriba = casilla.fila == 0;
    if (casilla.columna == 0) return arriba ? BANDEJA_CAFE : BANDEJA_BLANCA;
    if (casilla.columna == 1) return arriba ? BARRA_BLANCA : BARRA_CAFE;
    const int punto = casilla.columna - 2;
    return static_cast<Integer>(arriba ? punto : PUNTOS - 1 - punto);
}

QString Mayuscula(QString texto) {
    return texto.replace(0, 1, texto.at(0).toUpper());
}

QString Fichas(int cuantas, const QString& cuales) {
    return QString("%1%2 %3").arg(cuantas).arg(cuales, cuantas == 1 ? "chip" : "chips");
}

}  // namespace

QRectF Cuadro(const Partida& partida, Integer lugar) {
    if (Es_Barra(lugar)) return Area_De_Barra(partida, lugar);
    if (!Es_Punto(lugar)) return Area(*Imagen_De(partida, Bandeja(lugar)));
    QRectF area = Area(partida.Triangle.at(static_cast<std::size_t>(lugar)));
    area.setWidth(Area(partida.Blanca[0]).width());
    return area;
}

Integer Vecino(Integer lugar, int columnas, int filas) {
    const Casilla casilla = Casilla_De(lugar);
    return En({std::clamp(casilla.columna + columnas, 0, COLUMNAS - 1),
               std::clamp(casilla.fila + filas, 0, 1)});
}

Control Tope(const Partida& partida, Integer lugar) {
    const Pila& pila = Pila_En(partida, lugar);
    if (pila.Cuenta() == 0) return {};
    const bool blanca = Color(partida, lugar) == BLANCA;
    return {blanca ? Arreglo::Blanca : Arreglo::Cafe, pila.Tope()};
}

Control Blanco(const Partida& partida, Integer lugar) {
    if (Es_Punto(lugar)) return {Arreglo::Triangle, lugar};
    if (Es_Barra(lugar)) return {};
    const Control bandeja = Bandeja(lugar);
    return Imagen_De(partida, bandeja)->Visible ? bandeja : Control{};
}

Integer Siguiente(const Lugares& entre, Integer lugar, Integer color, int paso) {
    const corvanda::Bando& bando = Bando_De(color);
    // How many of a side's steps lie behind a place, its own bar being the first.
    const auto avance = [&](Integer cual) {
        if (cual == bando.bandeja) return PUNTOS + 1;
        if (!Es_Punto(cual)) return 0;
        return color == BLANCA ? cual + 1 : PUNTOS - cual;
    };
    const int vuelta = PUNTOS + 2;
    Integer mejor = lugar;
    int menor = vuelta + 1;
    for (Integer cual = 0; cual < CUANTOS; ++cual) {
        if (!entre[static_cast<std::size_t>(cual)] || cual == lugar) continue;
        const int lejos = ((avance(cual) - avance(lugar)) * paso + vuelta) % vuelta;
        if (lejos >= menor) continue;
        menor = lejos;
        mejor = cual;
    }
    return mejor;
}

QPointF Caida(const Partida& partida, Integer lugar) {
    if (!Es_Punto(lugar)) {
        const corvanda::Bando& bando = Bando_De(lugar == BANDEJA_BLANCA ? BLANCA : CAFE);
        const Image& bandeja = *Imagen_De(partida, {Arreglo::Adios, bando.adios});
        const Image& ficha = *Imagen_De(partida, {bando.fichas, 0});
        return {static_cast<double>(bandeja.Left + (bandeja.Width - ficha.Width) / 2),
                static_cast<double>(bandeja.Top + partida.*bando.altura)};
    }
    // A lone chip of the other side makes room.
    const bool sola =
        Pila_En(partida, lugar).Cuenta() == 1 && Punto_En(partida, lugar).Owner == -partida.Turno;
    const double top = sola ? static_cast<double>(Imagen_De(partida, Tope(partida, lugar))->Top)
                            : static_cast<double>(Punto_En(partida, lugar).Y);
    return {static_cast<double>(partida.Triangle.at(static_cast<std::size_t>(lugar)).Left), top};
}

QString Nombre(const Partida& partida, Integer lugar) {
    const int cuantas = Pila_En(partida, lugar).Cuenta();
    if (Es_Punto(lugar)) {
        const QString cuales = ' ' + Bando(Color(partida, lugar)).toLower();
        return Mayuscula(Breve(lugar)) + ", " + (cuantas == 0 ? "empty" : Fichas(cuantas, cuales));
    }
    QString estado = cuantas == 0 ? "empty" : Fichas(cuantas, {});
    const bool bandeja = !Es_Barra(lugar);
    if (bandeja && Blanco(partida, lugar) == Control{}) estado = "closed";
    return Bando(Color(partida, lugar)) + "'s " + (bandeja ? "tray, " : "bar, ") + estado;
}

QString Descripcion(Integer lugar) {
    if (!Es_Punto(lugar)) return "At the left edge";
    QString fila = lugar < 12 ? "Top row" : "Bottom row";
    const bool de_cafe = lugar < PUNTOS_DE_CASA;
    if (!de_cafe && lugar < PUNTOS - PUNTOS_DE_CASA) return fila;
    const int pasos = de_cafe ? lugar + 1 : PUNTOS - lugar;
    return QString("%1, %2's home board, %3 to the tray")
        .arg(fila, Bando(de_cafe ? CAFE : BLANCA),
             pasos == 1 ? "1 step" : QString("%1 steps").arg(pasos));
}

QString Nombre_De_Dado(const Partida& partida, Integer cual) {
    const QString lado = cual == 0 ? "Left die: " : "Right die: ";
    if (!partida.Dado.at(static_cast<std::size_t>(cual)).Visible) {
        return lado + (partida.Turno == NADIE ? "not thrown" : "played");
    }
    const QString valor = QString::number(cual == 0 ? partida.Dado1 : partida.Dado2);
    if (cual != 0 || partida.Dobles == 0) return lado + valor;
    return lado + valor + QString(", for %1 moves").arg(partida.Dobles + 1);
}

QString Breve(Integer lugar) {
    if (Es_Punto(lugar)) return QString("point %1").arg(lugar + 1);
    return Es_Barra(lugar) ? "the bar" : "the tray";
}

QString Bando(Integer color) {
    return color == BLANCA ? "White" : "Brown";
}

}  // namespace corvanda::lugares
