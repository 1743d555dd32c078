#include "escena.h"

#include <numbers>

namespace animacion {

namespace {

constexpr double TAU = 2 * std::numbers::pi;

// The chip, seen in a cut through its axis: a rounded slab whose faces are turned.
constexpr double GRUESO = 0.17;  // half of it
constexpr double CANTO = 0.09;   // how round its edge is
constexpr double BORDE = 0.80;   // inside it the face lies deeper

constexpr double LADO = 0.40;  // half a die
constexpr double ESQUINA = 0.11;
constexpr double HOYO = 0.082;     // radius of a pip
constexpr double ALEJADO = 0.205;  // pips beside the middle

double Surco(double r, double donde, double ancho) {
    const double d = (r - donde) / ancho;
    return std::exp(-d * d);
}

double Altura_De_La_Cara(double r) {
    return GRUESO - 0.055 * Escalon(BORDE + 0.04, BORDE - 0.04, r) - 0.022 * Surco(r, 0.55, 0.028) -
           0.022 * Surco(r, 0.33, 0.024) - 0.02 * Surco(r, 0.92, 0.014) + 0.02 * Surco(r, 0, 0.07);
}

double Distancia_A_Ficha(Vec p) {
    const double lejos = Largo(p) - 1.02;
    if (lejos > 0.15) return lejos;
    const double r = std::hypot(p.x, p.y);
    const double z = std::abs(p.z);
    const double dx = r - (1 - CANTO);
    const double dz = z - (GRUESO - CANTO);
    const double losa =
        std::hypot(std::max(dx, 0.0), std::max(dz, 0.0)) + std::min(std::max(dx, dz), 0.0) - CANTO;
    return std::max(losa, (z - Altura_De_La_Cara(r)) * 0.75);
}

// Which number a face shows: opposite faces make seven.
int Cara(Vec p) {
    const Vec a{std::abs(p.x), std::abs(p.y), std::abs(p.z)};
    if (a.y >= a.x && a.y >= a.z) return p.y > 0 ? 1 : 6;
    if (a.z >= a.x) return p.z > 0 ? 2 : 5;
    return p.x > 0 ? 3 : 4;
}

// How far a place of a face is from its nearest pip, in the plane of the face.
double Hasta_El_Punto(Vec p) {
    const int cara = Cara(p);
    double u = p.x, v = p.z;
    if (cara == 2 || cara == 5) v = p.y;
    if (cara == 3 || cara == 4) u = p.y;
    double cerca = 9;
    const auto punto = [&](double a, double b) {
        cerca = std::min(cerca, std::hypot(u - a * ALEJADO, v - b * ALEJADO));
    };
    if (cara % 2 == 1) punto(0, 0);
    if (cara >= 2) punto(1, 1), punto(-1, -1);
    if (cara >= 4) punto(1, -1), punto(-1, 1);
    if (cara == 6) punto(1, 0), punto(-1, 0);
    return cerca;
}

double Distancia_A_Dado(Vec p) {
    const double lejos = Largo(p) - LADO * 1.6;
    if (lejos > 0.15) return lejos;
    const Vec q{std::abs(p.x) - (LADO - ESQUINA), std::abs(p.y) - (LADO - ESQUINA),
                std::abs(p.z) - (LADO - ESQUINA)};
    const Vec fuera{std::max(q.x, 0.0), std::max(q.y, 0.0), std::max(q.z, 0.0)};
    const double caja = Largo(fuera) + std::min(std::max({q.x, q.y, q.z}), 0.0) - ESQUINA;
    if (caja > 0.05) return caja;
    return caja + 0.035 * Escalon(HOYO, HOYO * 0.55, Hasta_El_Punto(p));
}

// How high a die's middle must be for its lowest corner to touch the felt.
double Apoyo(const Giro& giro) {
    const double recto = LADO - ESQUINA;
    return recto * (std::abs(giro.x.y) + std::abs(giro.y.y) + std::abs(giro.z.y)) + ESQUINA;
}

// Somebody flicks the chip: it leaps, spinning, and its landing tosses the dice up. What is in the
// air falls by one gravity for all, in radii of the chip and seconds, slower than on a real table
// so that it can be followed; nothing turns faster or slower before it touches the felt.
constexpr double GRAVEDAD = 14;
constexpr double SALE = 0.28;  // the chip leaps
constexpr double CAE = 0.73;   // and lands
constexpr double PARA = 2.45;  // and has spun out

double Vuelo(double t, double desde, double hasta) {
    return t > desde && t < hasta ? GRAVEDAD / 2 * (t - desde) * (hasta - t) : 0;
}

/// A hop of a die, and what is left of its turn when it comes down.
struct Salto {
    double dura;
    double falta;
};

Cuerpo Dado(double t, Vec sitio, const Giro& reposo, Vec eje, std::initializer_list<Salto> saltos) {
    const auto postura = [&](double falta) { return Girar(reposo, Unidad(eje), -falta); };
    double desde = CAE;
    double faltaba = TAU;
    for (const auto [dura, falta] : saltos) {
        const double u = (t - desde) / dura;
        if (u > 0 && u < 1) {
            Cuerpo dado{sitio, postura(faltaba + (falta - faltaba) * u)};
            const double suelo = Apoyo(postura(faltaba)) * (1 - u) + Apoyo(postura(falta)) * u;
            const double alto = suelo + Vuelo(t, desde, desde + dura);
            dado.centro.y = std::max(alto, Apoyo(dado.giro));
            return dado;
        }
        desde += dura;
        faltaba = falta;
    }
    sitio.y = Apoyo(reposo);
    return {sitio, reposo};
}

// Half of its way the chip turns evenly in the air, then the felt brakes it evenly.
Cuerpo Ficha(double t) {
    const double enaire = std::clamp(t, SALE, CAE) - SALE;
    const double rueda = (std::clamp(t, CAE, PARA) - CAE) / (PARA - CAE);
    const double frenada = (PARA - CAE) * rueda * (1 - rueda / 2);
    const double vuelta = (enaire + frenada) / (CAE - SALE + (PARA - CAE) / 2);
    Cuerpo ficha{{0, 1 + Vuelo(t, SALE, CAE), -0.35}, {}};
    ficha.giro = Girar(ficha.giro, {0, 1, 0}, -0.42 + TAU * vuelta);
    return ficha;
}

}  // namespace

Escena::Escena(double segundo) : ficha(Ficha(segundo)) {
    const Giro seis = Girar(Girar(Giro{}, {0, 0, 1}, TAU / 2), {0, 1, 0}, 0.55);
    const Giro cinco = Girar(Girar(Giro{}, {1, 0, 0}, TAU / 4), {0, 1, 0}, -0.35);
    dados[0] = Dado(segundo, {-1.14, 0, 0.74}, seis, {0.75, 0.3, -0.6},
                    {{0.80, 0.70}, {0.36, 0.12}, {0.15, 0}});
    dados[1] = Dado(segundo, {1.15, 0, 0.66}, cinco, {0.8, -0.35, 0.5},
                    {{0.68, 0.80}, {0.33, 0.14}, {0.14, 0}});
}

double Escena::Distancia(Vec p) const {
    double cerca = Distancia_A_Ficha(ficha.giro.Adentro(p - ficha.centro));
    for (const Cuerpo& dado : dados)
        cerca = std::min(cerca, Distancia_A_Dado(dado.giro.Adentro(p - dado.centro)));
    return std::min(cerca, p.y);
}

Materia Escena::De_Que(Vec p) const {
    for (const Cuerpo& dado : dados) {
        const Vec dentro = dado.giro.Adentro(p - dado.centro);
        if (Distancia_A_Dado(dentro) < 0.01)
            return Hasta_El_Punto(dentro) < HOYO * 0.9 ? Materia::Punto : Materia::Marfil;
    }
    const Vec dentro = ficha.giro.Adentro(p - ficha.centro);
    if (Distancia_A_Ficha(dentro) > 0.01) return Materia::Pano;
    const double r = std::hypot(dentro.x, dentro.y);
    if (dentro.z > -0.02) return Materia::Marfil;
    return dentro.z > -0.05 || (r > 0.83 && r < 0.89) ? Materia::Filete : Materia::Nogal;
}

Vec Escena::Normal(Vec p) const {
    const double e = 0.002;
    const Vec esquinas[] = {{1, -1, -1}, {-1, -1, 1}, {-1, 1, -1}, {1, 1, 1}};
    Vec suma;
    for (const Vec& esquina : esquinas) suma = suma + esquina * Distancia(p + esquina * e);
    return Unidad(suma);
}

}  // namespace animacion
