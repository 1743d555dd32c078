#include "luz.h"

#include <thread>
#include <vector>

#include "escena.h"

namespace animacion {

namespace {

constexpr int MUESTRAS = 3;  // a side: that many squared for each picture element
constexpr double LEJOS = 12;

const Vec CAMARA{0, 2.35, 6.6};
const Vec MIRA{0, 0.88, 0};
constexpr double ABERTURA = 0.240;  // half the height of the view at distance 1

const Vec SOL = Unidad({-0.55, 1.0, 0.62});
const Vec COLOR_DEL_SOL{1.25, 1.12, 0.92};
const Vec COLOR_DEL_CIELO{0.17, 0.18, 0.20};

Vec Color(Materia materia) {
    switch (materia) {
        case Materia::Pano:
            return {0.014, 0.062, 0.043};
        case Materia::Marfil:
            return {0.76, 0.60, 0.36};
        case Materia::Nogal:
            return {0.080, 0.032, 0.016};
        case Materia::Filete:
            return {0.58, 0.30, 0.11};
        case Materia::Punto:
            return {0.028, 0.013, 0.009};
        default:
            return {};
    }
}

// The room that polished things mirror: a window above the camera and a bright strip at either
// side, which sweeps over the chip's faces as they turn by.
Vec Cuarto(Vec rumbo) {
    const double techo = Escalon(0.55, 0.75, rumbo.y) * Escalon(0.9, 0.5, std::abs(rumbo.x));
    const double lado = std::atan2(rumbo.x, rumbo.z);
    const double franja = Escalon(0.30, 0.10, std::abs(std::abs(lado) - 1.15)) *
                          Escalon(-0.15, 0.1, rumbo.y) * Escalon(0.85, 0.5, rumbo.y);
    const Vec fondo = Mezcla({0.02, 0.025, 0.02}, {0.16, 0.15, 0.14}, Escalon(-0.2, 0.8, rumbo.y));
    return fondo + Vec{2.6, 2.5, 2.3} * techo + Vec{7.0, 5.6, 3.8} * franja;
}

double Sombra(const Escena& escena, Vec p) {
    double luz = 1;
    for (double t = 0.03; t < 4;) {
        const double d = escena.Distancia(p + SOL * t);
        luz = std::min(luz, 9 * d / t);
        if (luz < 0.01) return 0;
        t += std::clamp(d * 0.7, 0.015, 0.2);
    }
    return luz * luz * (3 - 2 * luz);
}

double Rincon(const Escena& escena, Vec p, Vec normal) {
    double tapado = 0;
    double peso = 1;
    for (int i = 1; i <= 5; ++i) {
        const double t = 0.07 * i;
        tapado += peso * (t - escena.Distancia(p + normal * t));
        peso *= 0.72;
    }
    return std::clamp(1 - 1.5 * tapado, 0.0, 1.0);
}

// The felt is lit in a pool that ends before the picture does, so that the film has no border in a
// black window. The picture reaches from -4/3 to 4/3 and from -1 to 1.
double Charco(Vec p, double u, double v) {
    return Escalon(2.35, 0.5, std::hypot(p.x * 0.98, (p.z - 0.15) * 0.9)) *
           Escalon(1.31, 0.75, std::abs(u)) * Escalon(-0.975, -0.55, v);
}

Vec Alumbrar(const Escena& escena, Vec p, Vec rumbo, double charco) {
    const Materia materia = escena.De_Que(p);
    if (materia == Materia::Pano && charco <= 0) return {};
    const Vec normal = materia == Materia::Pano ? Vec{0, 1, 0} : escena.Normal(p);
    const Vec color = Color(materia);
    const double rincon = Rincon(escena, p, normal);
    const double sol = std::max(0.0, Punto(normal, SOL));
    const double sombra = sol > 0 ? Sombra(escena, p + normal * 0.01) : 0;
    const Vec cielo = COLOR_DEL_CIELO * ((0.55 + 0.45 * normal.y) * rincon);
    const Vec mate = color * (COLOR_DEL_SOL * (sol * sombra) + cielo);
    if (materia == Materia::Pano) return mate * charco;

    const Vec espejo = rumbo - normal * (2 * Punto(rumbo, normal));
    const double roce = std::pow(1 - std::clamp(-Punto(rumbo, normal), 0.0, 1.0), 5);
    const double barniz = materia == Materia::Punto ? 0.25 : 1;
    const double brillo = (0.065 + 0.7 * roce) * rincon * barniz;
    const double chispa = std::pow(std::max(0.0, Punto(espejo, SOL)), 90) * sombra * barniz;
    // A little of the felt's green comes up from below.
    const Vec rebote = Vec{0.01, 0.045, 0.028} * (std::max(0.0, -normal.y) * rincon);
    return mate + Cuarto(espejo) * brillo + Vec{1.9, 1.8, 1.6} * chispa * 0.5 + color * rebote;
}

Vec Rayo(const Escena& escena, double u, double v) {
    const Vec adelante = Unidad(MIRA - CAMARA);
    const Vec derecha = Unidad(Cruz(adelante, {0, 1, 0}));
    const Vec arriba = Cruz(derecha, adelante);
    const Vec rumbo = Unidad(adelante + derecha * (u * ABERTURA) + arriba * (v * ABERTURA));
    double t = 4;
    for (int paso = 0; paso < 160 && t < LEJOS; ++paso) {
        const Vec p = CAMARA + rumbo * t;
        const double d = escena.Distancia(p);
        if (d < 0.0008) return Alumbrar(escena, p, rumbo, Charco(p, u, v));
        t += d * 0.9;
    }
    return {};
}

int Revelar(double luz) {
    const double x = luz * 1.3;
    const double curva = x * (2.51 * x + 0.03) / (x * (2.43 * x + 0.59) + 0.14);
    return static_cast<int>(std::lround(255 * std::pow(std::clamp(curva, 0.0, 1.0), 1 / 2.2)));
}

void Fotografiar_Fila(QImage& foto, int y, const std::vector<Escena>& escenas) {
    auto* fila = reinterpret_cast<QRgb*>(foto.scanLine(y));
    const double alto = foto.height();
    for (int x = 0; x < foto.width(); ++x) {
        Vec suma;
        for (int i = 0; i < MUESTRAS * MUESTRAS; ++i) {
            const int columna = i % MUESTRAS;
            const int renglon = i / MUESTRAS;
            const double u = (x + (columna + 0.5) / MUESTRAS) * 2 - foto.width();
            const double v = alto - (y + (renglon + 0.5) / MUESTRAS) * 2;
            // Each sample of a picture element has a moment of its own, not the same as its
            // neighbours', and together they blur what moves.
            const auto momento = static_cast<std::size_t>(i * 7 + x * 3 + y * 11) % escenas.size();
            suma = suma + Rayo(escenas[momento], u / alto, v / alto);
        }
        const Vec media = suma * (1.0 / (MUESTRAS * MUESTRAS));
        fila[x] = qRgb(Revelar(media.x), Revelar(media.y), Revelar(media.z));
    }
}

}  // namespace

QImage Fotografiar(QSize tamano, double desde, double hasta) {
    std::vector<Escena> escenas;
    const int instantes = MUESTRAS * MUESTRAS;
    escenas.reserve(instantes);
    for (int i = 0; i < instantes; ++i)
        escenas.emplace_back(desde + (hasta - desde) * (i + 0.5) / instantes);
    QImage foto(tamano, QImage::Format_RGB32);
    std::vector<std::thread> manos;
    manos.reserve(2);
    for (int mano = 0; mano < 2; ++mano) {
        manos.emplace_back([&foto, &escenas, mano] {
            for (int y = mano; y < foto.height(); y += 2) Fotografiar_Fila(foto, y, escenas);
        });
    }
    for (std::thread& mano : manos) mano.join();
    return foto;
}

}  // namespace animacion
