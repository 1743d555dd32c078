#include "tests/apoyo/parecido.h"

#include <QPainter>
#include <algorithm>
#include <cstdlib>
#include <limits>

namespace corvanda::pruebas {

namespace {

constexpr int CELDA = 16;  // pixels: as finely as it is told where pictures differ

// Shapes are compared in areas of 9 x 9 pixels, each laid over the other picture where it fits
// best. The smallest numbers of the board (12 pixels, bold) set the limit: the root of the mean
// square is 29.5 or more between any two of them (8 and 6). Large areas also have the same mean
// colour.
constexpr int RADIO_DE_FORMA = 4;
constexpr int FORMA_TOLERADA = 28;
constexpr int MEDIOS_PIXELES = 2;  // an area may be so many halves of a pixel aside
constexpr int RADIO_DE_COLOR = 8;
constexpr int COLOR_TOLERADO = 16;

constexpr int Cuadrado(int numero) {
    return numero * numero;
}

/// A number for each pixel; outside the picture its edge goes on.
class Plano {
  public:
    template <typename Valor>
    Plano(QSize tamano, Valor valor) : ancho(tamano.width()), alto(tamano.height()) {
        valores.reserve(static_cast<std::size_t>(ancho) * static_cast<std::size_t>(alto));
        for (int y = 0; y < alto; ++y) {
            for (int x = 0; x < ancho; ++x) valores.push_back(valor(x, y));
        }
    }

    QSize Tamano() const { return {ancho, alto}; }
    int En(int x, int y) const {
        const int indice = std::clamp(y, 0, alto - 1) * ancho + std::clamp(x, 0, ancho - 1);
        return valores[static_cast<std::size_t>(indice)];
    }
    /// At halves of pixels.
    int Entre(int x, int y) const {
        const int derecha = (x >> 1) + (x & 1);
        const int abajo = (y >> 1) + (y & 1);
        return (En(x >> 1, y >> 1) + En(derecha, y >> 1) + En(x >> 1, abajo) + En(derecha, abajo)) /
               4;
    }
    /// The sum of each pixel and all that are up to `radio` beside and below it.
    Plano Sumado(int radio) const { return Sumadas_Las_Filas(radio).Sumadas_Las_Columnas(radio); }
    /// A little out of focus: a line between two pixels is as dark as one on a pixel.
    Plano Suave() const {
        return {Tamano(), [this](int x, int y) {
                    int suma = 0;
                    for (const int medio : {-1, 1})
                        for (const int otro : {-1, 1}) suma += Entre(2 * x + medio, 2 * y + otro);
                    return suma / 4;
                }};
    }

  private:
    // Sums go on from the pixel before: one comes, one goes.
    Plano Sumadas_Las_Filas(int radio) const {
        int suma = 0;
        return {Tamano(), [&](int x, int y) {
                    if (x > 0) return suma += En(x + radio, y) - En(x - radio - 1, y);
                    suma = 0;
                    for (int i = -radio; i <= radio; ++i) suma += En(i, y);
                    return suma;
                }};
    }
    Plano Sumadas_Las_Columnas(int radio) const {
        std::vector<int> sumas(static_cast<std::size_t>(ancho));
        return {Tamano(), [&](int x, int y) {
                    int& suma = sumas[static_cast<std::size_t>(x)];
                    if (y > 0) return suma += En(x, y + radio) - En(x, y - radio - 1);
                    for (int i = -radio; i <= radio; ++i) suma += En(x, i);
                    return suma;
                }};
    }

    int ancho, alto;
    std::vector<int> valores;
};

using Colores = std::vector<Plano>;  // red, green, blue

Colores Leer(const QImage& imagen) {
    Colores colores;
    for (const int bits : {16, 8, 0}) {
        colores.emplace_back(imagen.size(),
                             [&](int x, int y) { return imagen.pixel(x, y) >> bits & 0xff; });
    }
    return colores;
}

Colores Suaves(const Colores& colores) {
    Colores suaves;
    for (const Plano& color : colores) suaves.push_back(color.Suave());
    return suaves;
}

/// The greatest of what a function says of each colour.
template <typename Valor>
int Mayor(Valor valor) {
    return std::max({valor(0U), valor(1U), valor(2U)});
}

/// The picture moved by halves of a pixel to the right and down.
Colores Movidos(const Colores& colores, int derecha, int abajo) {
    Colores movidos;
    for (const Plano& color : colores) {
        movidos.emplace_back(color.Tamano(), [&](int x, int y) {
            return color.Entre(2 * x - derecha, 2 * y - abajo);
        });
    }
    return movidos;
}

Plano Formas(const Colores& una, const Colores& otra) {
    const QSize tamano = una[0].Tamano();
    Plano menor(tamano, [](int, int) { return std::numeric_limits<int>::max(); });
    for (int abajo = -MEDIOS_PIXELES; abajo <= MEDIOS_PIXELES; ++abajo) {
        for (int derecha = -MEDIOS_PIXELES; derecha <= MEDIOS_PIXELES; ++derecha) {
            const Colores movida = Movidos(otra, derecha, abajo);
            const Plano cuadrados(tamano, [&](int x, int y) {
                return Cuadrado(Mayor([&](std::size_t color) {
                    return std::abs(una[color].En(x, y) - movida[color].En(x, y));
                }));
            });
            const Plano sumas = cuadrados.Sumado(RADIO_DE_FORMA);
            menor = Plano(tamano,
                          [&](int x, int y) { return std::min(menor.En(x, y), sumas.En(x, y)); });
        }
    }
    return menor;
}

Plano Medias(const Colores& una, const Colores& otra) {
    Colores lejos;
    for (const std::size_t color : {0U, 1U, 2U}) {
        const Plano diferencia(una[color].Tamano(), [&](int x, int y) {
            return una[color].En(x, y) - otra[color].En(x, y);
        });
        lejos.push_back(diferencia.Sumado(RADIO_DE_COLOR));
    }
    return {una[0].Tamano(), [&](int x, int y) {
                return Mayor([&](std::size_t color) { return std::abs(lejos[color].En(x, y)); });
            }};
}

/// 1 where a person would see a difference.
Plano Distintos(const QImage& nueva, const QImage& aprobada) {
    constexpr int FORMA = Cuadrado(FORMA_TOLERADA) * Cuadrado(2 * RADIO_DE_FORMA + 1);
    constexpr int COLOR = COLOR_TOLERADO * Cuadrado(2 * RADIO_DE_COLOR + 1);
    const Colores una = Leer(nueva);
    const Colores otra = Leer(aprobada);
    const Plano formas = Formas(Suaves(una), Suaves(otra));
    const Plano medias = Medias(una, otra);
    return {nueva.size(), [&](int x, int y) {
                return formas.En(x, y) > FORMA || medias.En(x, y) > COLOR ? 1 : 0;
            }};
}

/// What must be looked at: all pixels that are not the same, and those around them.
QRect Cambiado(const QImage& una, const QImage& otra) {
    QRect cambiado;
    for (int y = 0; y < una.height(); ++y) {
        for (int x = 0; x < una.width(); ++x) {
            if (una.pixel(x, y) != otra.pixel(x, y)) cambiado |= QRect(x, y, 1, 1);
        }
    }
    return cambiado.adjusted(-CELDA, -CELDA, CELDA, CELDA) & una.rect();
}

// Areas that touch are one.
void Juntar(std::vector<QRect>& areas, QRect nueva) {
    const auto otra = [&] {
        return std::find_if(areas.begin(), areas.end(), [&](const QRect& una) {
            return una.adjusted(-CELDA, -CELDA, CELDA, CELDA).intersects(nueva);
        });
    };
    for (auto una = otra(); una != areas.end(); una = otra()) {
        nueva |= *una;
        areas.erase(una);
    }
    areas.push_back(nueva);
}

std::vector<QRect> Areas(const Plano& distintos, QPoint esquina) {
    const QRect todo({}, distintos.Tamano());
    std::vector<QRect> areas;
    for (int y = 0; y < todo.height(); y += CELDA) {
        for (int x = 0; x < todo.width(); x += CELDA) {
            QRect area;
            const QRect celda = QRect(x, y, CELDA, CELDA) & todo;
            for (int i = celda.left(); i <= celda.right(); ++i)
                for (int j = celda.top(); j <= celda.bottom(); ++j)
                    if (distintos.En(i, j) != 0) area |= QRect(i, j, 1, 1);
            if (!area.isEmpty()) Juntar(areas, area.translated(esquina));
        }
    }
    return areas;
}

QImage Palida(const QImage& imagen) {
    QImage palida =
        imagen.convertToFormat(QImage::Format_Grayscale8).convertToFormat(QImage::Format_RGB32);
    QPainter(&palida).fillRect(palida.rect(), QColor(255, 255, 255, 160));
    return palida;
}

}  // namespace

Diferencia Comparar(const QImage& nueva, const QImage& aprobada) {
    const QImage una = nueva.convertToFormat(QImage::Format_RGB32);
    const QImage otra = aprobada.convertToFormat(QImage::Format_RGB32);
    if (una.size() != otra.size()) return {{una.rect()}, otra};
    const QRect cambiado = Cambiado(una, otra);
    if (cambiado.isEmpty()) return {{}, Palida(otra)};
    const Plano distintos = Distintos(una.copy(cambiado), otra.copy(cambiado));
    Diferencia diferencia{Areas(distintos, cambiado.topLeft()), Palida(otra)};
    for (int y = 0; y < cambiado.height(); ++y) {
        for (int x = 0; x < cambiado.width(); ++x) {
            if (distintos.En(x, y) != 0)
                diferencia.vista.setPixel(cambiado.topLeft() + QPoint(x, y), qRgb(220, 0, 0));
        }
    }
    return diferencia;
}

}  // namespace corvanda::pruebas
