#include "tools/laminas/tabla.h"

#include <algorithm>
#include <initializer_list>
#include <string>

#include "core/partida.h"

using namespace corvanda;

namespace laminas {

namespace {

using Clase = Marca::Clase;
using Marcas = std::vector<Marca>;

// Heights of the marks of a row, twips: clear of three chips, of the dice, and of each other.
constexpr double SIGNOS_ARRIBA = 2120;
constexpr double NUMEROS_ARRIBA = 2620;
constexpr double SIGNOS_ABAJO = 4550;
constexpr double NUMEROS_ABAJO = 4030;

const QRectF ENTERO(0, 0, 9135, 6075);
const QRectF CASA_DE_CAFE(0, 0, 5760, 3855);
const QRectF CASA_DE_BLANCA(0, 2835, 5760, 3240);

constexpr const char* PRINCIPIO = "B 0x2 11x5 16x3 18x5 | C 5x5 7x3 12x5 23x2 | dice 0 0";

// On the middle line of a point.
QPointF En(Integer punto, double alto) {
    static const Partida diseno = Diseno();
    return {static_cast<double>(diseno.Triangle.at(static_cast<std::size_t>(punto)).Left) + 225,
            alto};
}

// The middle of the chip that lies so many steps above the first one of its point.
QPointF Ficha(Integer punto, int encima, Integer color) {
    const double base = punto < 12 ? 300 + 525 * encima : 5355 - 525 * encima;
    return color == BLANCA ? En(punto, base + 262.5) + QPointF(37.5, 0) : En(punto, base + 217.5);
}

Marca Numero(int numero, QPointF donde) {
    return {Clase::Numero, {donde}, QString::number(numero)};
}

// How many chips stand on a point, behind the last of those that can be seen.
Marca Cuantas(int cuantas, Integer punto, Integer color) {
    const int vistas = punto < 12 ? cuantas : std::min(cuantas, 4);
    const double mas = color == BLANCA ? 480 : 435;
    return Numero(cuantas, Ficha(punto, vistas - 1, color) + QPointF(0, punto < 12 ? mas : -mas));
}

Marca Flecha(QPointF desde, QPointF curva, QPointF hasta, const char* dado,
             Tinta tinta = Tinta::Amarilla) {
    return {Clase::Flecha, {desde, curva, hasta}, dado, tinta};
}

// Ticks for '+' and crosses for '-' on points that follow each other.
Marcas Signos(Integer primero, int paso, double alto, const std::string& signos) {
    Marcas marcas;
    for (const char signo : signos) {
        marcas.push_back({signo == '+' ? Clase::Si : Clase::No, {En(primero, alto)}, {}});
        primero = static_cast<Integer>(primero + paso);
    }
    return marcas;
}

// The points of a home board, numbered from the left, with such signs.
Marcas Casa(bool arriba, const std::string& signos = {}) {
    const auto primero = static_cast<Integer>(arriba ? 0 : 23);
    const int paso = arriba ? 1 : -1;
    Marcas marcas = Signos(primero, paso, arriba ? SIGNOS_ARRIBA : SIGNOS_ABAJO, signos);
    for (int i = 0; i < 6; ++i) {
        const auto punto = static_cast<Integer>(primero + i * paso);
        marcas.push_back(Numero(i + 1, En(punto, arriba ? NUMEROS_ARRIBA : NUMEROS_ABAJO)));
    }
    return marcas;
}

Marcas Con(Marcas primeras, std::initializer_list<Marca> otras) {
    primeras.insert(primeras.end(), otras);
    return primeras;
}

void Pantalla_Y_Principio(std::vector<Lamina>& tabla) {
    tabla.push_back(
        {"screen",
         "B 6x1 11x4 16x3 18x3 20x2 21x1 bar1 | C 0x2 1x3 2x2 3x2 4x1 5x1 bar1 | dice 5 3",
         ENTERO,
         0.92,
         {Numero(1, En(8, 1500)), Numero(2, {4837, 2700}), Numero(3, {1010, 2520}),
          Numero(3, {1010, 3577}), Numero(4, {375, 1500}), Numero(5, {375, 5000})}});
    tabla.push_back({"start",
                     PRINCIPIO,
                     ENTERO,
                     0.92,
                     {Cuantas(2, 0, BLANCA), Cuantas(5, 5, CAFE), Cuantas(3, 7, CAFE),
                      Cuantas(5, 11, BLANCA), Cuantas(5, 12, CAFE), Cuantas(3, 16, BLANCA),
                      Cuantas(5, 18, BLANCA), Cuantas(2, 23, CAFE)}});
    tabla.push_back({"stacks",
                     "B 2x6 3x5 18x4 | C 12x5 14x1 20x4 21x5 | dice 0 0",
                     {1920, 0, 1530, 6075},
                     0.74,
                     {}});
}

// The lanes of a way lie between the rows, clear of the longest stacks.
void Caminos(std::vector<Lamina>& tabla) {
    constexpr double ALTA = 3070;
    constexpr double BAJA = 3480;
    constexpr double VUELTA = 8560;
    tabla.push_back(
        {"route_white",
         PRINCIPIO,
         ENTERO,
         0.62,
         {{Clase::Zona, {{850, 3290}, {4650, 5990}}, {}},
          {Clase::Camino,
           {En(0, 1700), En(0, ALTA), {VUELTA, ALTA}, {VUELTA, BAJA}, En(22, BAJA), En(22, 4350)},
           {},
           Tinta::Blanca},
          {Clase::Rotulo, {En(0, 1700)}, "Start", Tinta::Blanca},
          {Clase::Rotulo, {{2685, 4850}}, "White's home"}}});
    tabla.push_back(
        {"route_brown",
         PRINCIPIO,
         ENTERO,
         0.62,
         {{Clase::Zona, {{850, 200}, {4650, 3260}}, {}},
          {Clase::Camino,
           {En(23, 4480), En(23, BAJA), {VUELTA, BAJA}, {VUELTA, ALTA}, En(1, ALTA), En(1, 2200)},
           {},
           Tinta::Cafe},
          {Clase::Rotulo, {En(23, 4480)}, "Start", Tinta::Cafe},
          {Clase::Rotulo, {{2685, 1650}}, "Brown's home"}}});
}

void Jugadas(std::vector<Lamina>& tabla) {
    tabla.push_back({"move",
                     "B 0x2 3x1 11x4 16x3 18x5 | C 4x2 7x3 12x5 14x3 23x2 | dice 5 2",
                     {765, 40, 4980, 3855},
                     1,
                     {Flecha({1400, 1270}, {1850, 1950}, En(2, 1250), "2"),
                      Flecha({1250, 1340}, {2650, 3100}, En(5, 1400), "5")}});
    tabla.push_back({"closed",
                     "B 0x2 4x1 11x4 16x3 18x5 | C 1x1 3x2 5x3 7x3 12x4 23x2 | dice 0 0",
                     {765, 40, 3975, 2745},
                     1,
                     Signos(1, 1, SIGNOS_ARRIBA, "++-+-")});
    const QRectF esquina(0, 0, 4860, 4050);
    tabla.push_back({"hit1",
                     "B 1x2 11x5 16x3 18x5 | C 4x1 5x4 7x3 12x5 14x2 | dice 3 1",
                     esquina,
                     0.8,
                     {Flecha({1900, 1330}, {2900, 2000}, En(4, 800), "3")}});
    tabla.push_back(
        {"hit2",
         "B 1x1 4x1 11x5 16x3 18x5 | C 5x4 7x3 12x5 14x2 bar1 | dice 0 1",
         esquina,
         0.8,
         {{Clase::Anillo, {Ficha(4, 0, BLANCA)}, {}}, {Clase::Anillo, {{555, 3577}}, {}}}});
}

void Entradas(std::vector<Lamina>& tabla) {
    tabla.push_back(
        {"enter", "B 11x5 16x4 18x5 bar1 | C 1x1 2x2 4x2 5x3 7x3 12x4 | dice 4 2", CASA_DE_CAFE, 1,
         Con(Casa(true, "++-+--"), {Flecha({500, 2250}, {620, 780}, {1540, 540}, "2"),
                                    Flecha({640, 2300}, {1400, 1500}, En(3, 1450), "4")})});
    tabla.push_back(
        {"enter_brown", "B 22x1 20x2 11x4 16x3 13x5 | C 5x5 7x4 10x5 bar1 | dice 4 2",
         CASA_DE_BLANCA, 1,
         Con(Casa(false, "+++-++"), {Flecha({555, 3800}, {620, 5350}, {1540, 5600}, "2")})});
}

void Salidas(std::vector<Lamina>& tabla) {
    tabla.push_back({"bear_exact", "B 23x1 22x2 21x2 20x2 19x3 18x3 | C 7x5 9x5 10x5 | dice 5 2",
                     CASA_DE_BLANCA, 1,
                     Con(Casa(false), {Flecha({3400, 4560}, {1900, 4400}, {480, 4560}, "5"),
                                       Flecha({1640, 5090}, {1060, 4930}, {480, 5090}, "2")})});
    tabla.push_back(
        {"bear_larger", "B 23x1 22x2 21x2 | C 7x5 9x5 10x5 | dice 6 2", CASA_DE_BLANCA, 1,
         Con(Casa(false), {{Clase::Zona, {{2720, 4280}, {4560, 5960}}, {}, Tinta::Verde},
                           Flecha({2270, 4900}, {1500, 4350}, {600, 4500}, "6")})});
    tabla.push_back(
        {"bear_refused", "B 23x1 22x2 21x2 19x1 | C 7x5 9x5 10x5 | dice 6 2", CASA_DE_BLANCA, 1,
         Con(Casa(false), {{Clase::Anillo, {Ficha(19, 0, BLANCA)}, {}},
                           Flecha({2270, 4900}, {1500, 4350}, {600, 4500}, "", Tinta::Roja)})});
}

}  // namespace

std::vector<Lamina> Tabla() {
    std::vector<Lamina> tabla;
    Pantalla_Y_Principio(tabla);
    Caminos(tabla);
    Jugadas(tabla);
    Entradas(tabla);
    Salidas(tabla);
    return tabla;
}

}  // namespace laminas
