// The invariants of a position between two actions, and its one-line form.
#include <algorithm>
#include <sstream>

#include "core/control.h"

namespace corvanda {

namespace {

/// Collects what is wrong with one position.
class Revision {
  public:
    explicit Revision(const Partida& partida) : partida(partida) {}

    std::vector<std::string> Todo() {
        for (Integer p = 0; p < PUNTOS; ++p) Ver_Punto(p);
        Ver_Barra(BARRA_CAFE, Arreglo::Cafe);
        Ver_Barra(BARRA_BLANCA, Arreglo::Blanca);
        Ver_Bandeja(BANDEJA_CAFE, Arreglo::Cafe, 0, partida.Altura_Cafe, partida.Cafe_En_Casa);
        Ver_Bandeja(BANDEJA_BLANCA, Arreglo::Blanca, 1, partida.Altura_Blanca,
                    partida.Blanca_En_Casa);
        Ver_Cuentas(vistas_blancas, "white");
        Ver_Cuentas(vistas_cafes, "brown");
        Ver_Dado(partida.Dado[0], partida.Dado1, "Dado1");
        Ver_Dado(partida.Dado[1], partida.Dado2, "Dado2");
        Ver_Banderas();
        return faltas;
    }

  private:
    using Vistas = std::array<int, FICHAS>;

    // The words are only put together when something is wrong: positions are checked very often.
    template <typename Falta>
    void Exigir(bool cierto, const Falta& falta) {
        if (!cierto) faltas.push_back(falta());
    }

    static std::string Nombre(Arreglo color, Integer ficha) {
        return (color == Arreglo::Blanca ? "Blanca(" : "Cafe(") + std::to_string(ficha) + ")";
    }

    // One chip of a stack: a number that exists, counted once, its image in its place.
    void Ver_Ficha(Arreglo color, Integer ficha, Single left, Single top, bool enabled) {
        const Image* imagen = Imagen_De(partida, {color, ficha});
        Exigir(imagen != nullptr,
               [&] { return std::string(Nombre(color, ficha) + " does not exist"); });
        if (imagen == nullptr) return;
        Vistas& vistas = color == Arreglo::Blanca ? vistas_blancas : vistas_cafes;
        ++vistas.at(static_cast<std::size_t>(ficha));
        Exigir(imagen->Left == left && imagen->Top == top,
               [&] { return std::string(Nombre(color, ficha) + " is misplaced"); });
        Exigir(imagen->Enabled == enabled, [&] {
            return std::string(Nombre(color, ficha) + " is wrongly enabled or disabled");
        });
        Exigir(imagen->Visible, [&] { return std::string(Nombre(color, ficha) + " is hidden"); });
    }

    Single Base(Integer punto) const {
        const Image& ultimo = partida.Triangle[23];
        return punto < 12 ? partida.Tablero[0].Top + 120
                          : ultimo.Top + ultimo.Height - partida.Cafe[0].Height - 120;
    }

    Single Siguiente(Integer punto, Single y) const {
        const Image& triangulo = partida.Triangle.at(static_cast<std::size_t>(punto));
        const Single paso = partida.Blanca[0].Height;
        const Single proxima = punto < 12 ? y + paso : y - paso;
        const bool cabe =
            punto < 12 ? proxima <= triangulo.Top + triangulo.Height : proxima >= triangulo.Top;
        return cabe ? proxima : Base(punto);
    }

    void Ver_Punto(Integer p) {
        const Pila& pila = Pila_En(partida, p);
        const Punto& punto = Punto_En(partida, p);
        const auto donde = [p] { return "point " + std::to_string(p); };
        const bool con_dueno = punto.Owner == BLANCA || punto.Owner == CAFE;
        Exigir(pila.Cuenta() == 0 ? punto.Owner == NADIE : con_dueno,
               [&] { return std::string(donde() + ": wrong owner"); });
        const Arreglo color = punto.Owner == BLANCA ? Arreglo::Blanca : Arreglo::Cafe;
        const Single left = partida.Triangle.at(static_cast<std::size_t>(p)).Left;
        Single y = Base(p);
        for (auto item = static_cast<Integer>(pila.Cuenta() - 1); item >= 0; --item) {
            Ver_Ficha(color, pila.Ficha(item), left, y, true);
            y = Siguiente(p, y);
        }
        Exigir(punto.Y == y,
               [&] { return std::string(donde() + ": wrong height for the next chip"); });
        Ver_Orden(color, pila);
    }

    void Ver_Orden(Arreglo color, const Pila& pila) {
        for (Integer item = 1; item < pila.Cuenta(); ++item) {
            const Image* arriba =
                Imagen_De(partida, {color, pila.Ficha(static_cast<Integer>(item - 1))});
            const Image* abajo = Imagen_De(partida, {color, pila.Ficha(item)});
            if (arriba == nullptr || abajo == nullptr) continue;
            Exigir(arriba->ZOrder > abajo->ZOrder, [&] {
                return std::string(Nombre(color, pila.Ficha(item)) +
                                   " is drawn over the chip above it");
            });
        }
    }

    void Ver_Barra(Integer lugar, Arreglo color) {
        const Pila& pila = Pila_En(partida, lugar);
        const Image& tablero = partida.Tablero[0];
        const bool cafe = color == Arreglo::Cafe;
        const Single left = tablero.Left - (cafe ? partida.Cafe[0] : partida.Blanca[0]).Width;
        const Single top =
            cafe ? partida.Triangle[23].Top : tablero.Height / 2 - 1.5F * partida.Cafe[0].Height;
        for (Integer item = 0; item < pila.Cuenta(); ++item) {
            Ver_Ficha(color, pila.Ficha(item), left, top, true);
        }
        Ver_Orden(color, pila);
    }

    void Ver_Bandeja(Integer lugar, Arreglo color, std::size_t cual, Integer altura,
                     Boolean en_casa) {
        const Pila& pila = Pila_En(partida, lugar);
        const Image& bandeja = partida.Adios.at(cual);
        const Image& ficha = color == Arreglo::Cafe ? partida.Cafe[0] : partida.Blanca[0];
        const Single paso = (bandeja.Height - ficha.Height) / 15;
        const Single left = bandeja.Left + (bandeja.Width - ficha.Width) / 2;
        for (Integer item = 0; item < pila.Cuenta(); ++item) {
            const auto debajo = static_cast<Single>(pila.Cuenta() - 1 - item);
            Ver_Ficha(color, pila.Ficha(item), left, bandeja.Top + debajo * paso, false);
        }
        Ver_Orden(color, pila);
        Exigir(static_cast<Single>(altura) == static_cast<Single>(pila.Cuenta()) * paso, [&] {
            return std::string("tray " + std::to_string(cual) + ": wrong height for the next chip");
        });
        Exigir(bandeja.Visible == (en_casa != False), [&] {
            return std::string("tray " + std::to_string(cual) +
                               " is shown without its flag, or hidden with it");
        });
        Exigir(pila.Cuenta() == 0 || en_casa != False, [&] {
            return std::string("tray " + std::to_string(cual) +
                               " holds chips before all were home");
        });
    }

    void Ver_Cuentas(const Vistas& vistas, const std::string& color) {
        for (std::size_t i = 0; i < vistas.size(); ++i) {
            Exigir(vistas.at(i) == 1, [&] {
                return std::string("the " + color + " chip " + std::to_string(i) + " stands in " +
                                   std::to_string(vistas.at(i)) + " places");
            });
        }
    }

    void Ver_Dado(const Image& dado, Integer valor, const std::string& nombre) {
        Exigir(valor >= 0 && valor <= 6, [&] { return std::string(nombre + " is out of range"); });
        if (!dado.Visible) return;
        const int cara = static_cast<int>(dado.Shown) - static_cast<int>(Picture::Dado1) + 1;
        Exigir(valor == cara,
               [&] { return std::string(nombre + " shows another face than its value"); });
    }

    void Ver_Banderas() {
        const auto bandera = [](Boolean valor) { return valor == True || valor == False; };
        Exigir(bandera(partida.Jugando) && bandera(partida.Blanca_En_Casa) &&
                   bandera(partida.Cafe_En_Casa) && bandera(partida.Sonido),
               [&] { return std::string("a flag is neither -1 nor 0"); });
        Exigir(partida.Turno >= CAFE && partida.Turno <= BLANCA,
               [&] { return std::string("Turno is no colour"); });
        Exigir(partida.Nivel <= ULTIMO_NIVEL, [&] { return std::string("Nivel is no level"); });
        Exigir(partida.Dobles <= 2, [&] { return std::string("Dobles is above 2"); });
        Exigir(partida.Origen >= ORIGEN_BARRA_BLANCA && partida.Origen <= ORIGEN_BARRA_CAFE,
               [&] { return std::string("Origen is no place"); });
    }

    const Partida& partida;
    std::vector<std::string> faltas;
    Vistas vistas_blancas{};
    Vistas vistas_cafes{};
};

void Escribir_Fichas(std::ostream& salida, const Partida& partida, Integer color, Integer barra,
                     Integer bandeja) {
    for (Integer p = 0; p < PUNTOS; ++p) {
        if (Punto_En(partida, p).Owner != color) continue;
        salida << ' ' << p << 'x' << Pila_En(partida, p).Cuenta();
    }
    const Integer en_barra = Pila_En(partida, barra).Cuenta();
    const Integer fuera = Pila_En(partida, bandeja).Cuenta();
    if (en_barra > 0) salida << " barra x" << en_barra;
    if (fuera > 0) salida << " fuera x" << fuera;
}

}  // namespace

std::vector<std::string> Faltas(const Partida& partida) {
    return Revision(partida).Todo();
}

bool Es_Valida(const Partida& partida) {
    return Faltas(partida).empty();
}

std::string Texto(const Partida& partida) {
    std::ostringstream salida;
    const char* turno = partida.Turno == BLANCA ? "B" : partida.Turno == CAFE ? "C" : "-";
    salida << "turno " << turno << ", dados " << partida.Dado1 << '+' << partida.Dado2
           << (partida.Dobles > 0 ? " dobles " + std::to_string(partida.Dobles) : "")
           << ", blancas";
    Escribir_Fichas(salida, partida, BLANCA, BARRA_BLANCA, BANDEJA_BLANCA);
    salida << ", cafes";
    Escribir_Fichas(salida, partida, CAFE, BARRA_CAFE, BANDEJA_CAFE);
    return salida.str();
}

}  // namespace corvanda
