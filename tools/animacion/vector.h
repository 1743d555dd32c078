// Vectors and turns of three-dimensional space, as much as the animation needs.
#pragma once

#include <algorithm>
#include <cmath>

namespace animacion {

struct Vec {
    double x = 0, y = 0, z = 0;
};

inline Vec operator+(Vec a, Vec b) {
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}
inline Vec operator-(Vec a, Vec b) {
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}
inline Vec operator*(Vec a, double k) {
    return {a.x * k, a.y * k, a.z * k};
}
inline Vec operator*(Vec a, Vec b) {
    return {a.x * b.x, a.y * b.y, a.z * b.z};
}
inline double Punto(Vec a, Vec b) {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}
inline double Largo(Vec a) {
    return std::sqrt(Punto(a, a));
}
inline Vec Unidad(Vec a) {
    return a * (1 / Largo(a));
}
inline Vec Cruz(Vec a, Vec b) {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}
inline Vec Mezcla(Vec a, Vec b, double k) {
    return a * (1 - k) + b * k;
}

inline double Escalon(double desde, double hasta, double x) {
    const double t = std::clamp((x - desde) / (hasta - desde), 0.0, 1.0);
    return t * t * (3 - 2 * t);
}

/// A turn, by the three axes of the turned body.
struct Giro {
    Vec x{1, 0, 0}, y{0, 1, 0}, z{0, 0, 1};

    Vec Afuera(Vec p) const { return x * p.x + y * p.y + z * p.z; }
    Vec Adentro(Vec p) const { return {Punto(p, x), Punto(p, y), Punto(p, z)}; }
};

inline Vec Girar(Vec p, Vec eje, double angulo) {
    const double c = std::cos(angulo);
    return p * c + Cruz(eje, p) * std::sin(angulo) + eje * (Punto(eje, p) * (1 - c));
}

/// `giro` turned once more about an axis of the room.
inline Giro Girar(const Giro& giro, Vec eje, double angulo) {
    return {Girar(giro.x, eje, angulo), Girar(giro.y, eje, angulo), Girar(giro.z, eje, angulo)};
}

}  // namespace animacion
