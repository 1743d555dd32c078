// The invariants of a position between two actions, and its one-line form.
#include <sstream>

#include "core/bandos.h"

namespace corvanda {

namespace {

/// What a fault is told of: "Blanca(3)", "point 5", "tray 0", or a name without a number.
struct Sujeto {
    const char* nombre;
    int numero = -1;
    const char* cierre = "";
};

/// Collects what is wrong with one position.
class Revision {
  public:
    explicit Revision(const Partida& partida) : partida(partida) {}

    std::vector<std::string> Todo() {
        for (Integer p = 0; p < PUNTOS; ++p) Ver_Punto(p);
        for (const Bando& bando : BANDOS) {
            Ver_Barra(bando);
            Ver_Bandeja(bando);
            Ver_Cuentas(bando);
        }
        Ver_Dado(partida.Dado[0], partida.Dado1, "Dado1");
        Ver_Dado(partida.Dado[1], partida.Dado2, "Dado2");
        Ver_Banderas();
        return faltas;
    }

  private:
    using Vistas = std::array<int, FICHAS>;

    // The words are only put together when something is wrong: positions are checked very often.
    void Exigir(bool cierto, const Sujeto& sujeto, const char* falta) {
        if (cierto) return;
        const std::string numero = sujeto.numero < 0 ? "" : std::to_string(sujeto.numero);
        faltas.push_back(sujeto.nombre + numero + sujeto.cierre + falta);
    }

    static Sujeto Ficha(const Bando& bando, int ficha) {
        return {bando.color == BLANCA ? "Blanca(" : "Cafe(", ficha, ")"};
    }
    Vistas& Vistas_De(const Bando& bando) { return vistas.at(bando.color == BLANCA ? 0 : 1); }

    // One chip of a stack: a number that exists, counted once, its image in its place.
    void Ver_Ficha(const Bando& bando, Integer numero, Esquina esquina, bool enabled) {
        const Image* imagen = Imagen_De(partida, {bando.fichas, numero});
        const Sujeto ficha = Ficha(bando, numero);
        Exigir(imagen != nullptr, ficha, " does not exist");
        if (imagen == nullptr) return;
        ++Vistas_De(bando).at(static_cast<std::size_t>(numero));
        Exigir(imagen->Left == esquina.Left && imagen->Top == esquina.Top, ficha, " is misplaced");
        Exigir(imagen->Enabled == enabled, ficha, " is wrongly enabled or disabled");
        Exigir(imagen->Visible, ficha, " is hidden");
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
        const bool con_dueno = punto.Owner == BLANCA || punto.Owner == CAFE;
        Exigir(pila.Cuenta() == 0 ? punto.Owner == NADIE : con_dueno, {"point ", p},
               ": wrong owner");
        const Bando& bando = Bando_De(punto.Owner);
        const Single left = partida.Triangle.at(static_cast<std::size_t>(p)).Left;
        Single y = Base(p);
        for (auto item = static_cast<Integer>(pila.Cuenta() - 1); item >= 0; --item) {
            Ver_Ficha(bando, pila.Ficha(item), {left, y}, true);
            y = Siguiente(p, y);
        }
        Exigir(punto.Y == y, {"point ", p}, ": wrong height for the next chip");
        Ver_Orden(bando, pila);
    }

    void Ver_Orden(const Bando& bando, const Pila& pila) {
        for (Integer item = 1; item < pila.Cuenta(); ++item) {
            const auto encima = static_cast<Integer>(item - 1);
            const Image* arriba = Imagen_De(partida, {bando.fichas, pila.Ficha(encima)});
            const Image* abajo = Imagen_De(partida, {bando.fichas, pila.Ficha(item)});
            if (arriba == nullptr || abajo == nullptr) continue;
            Exigir(arriba->ZOrder > abajo->ZOrder, Ficha(bando, pila.Ficha(item)),
                   " is drawn over the chip above it");
        }
    }

    void Ver_Barra(const Bando& bando) {
        const Pila& pila = Pila_En(partida, bando.barra);
        for (Integer item = 0; item < pila.Cuenta(); ++item) {
            Ver_Ficha(bando, pila.Ficha(item), Esquina_De_Barra(partida, bando), true);
        }
        Ver_Orden(bando, pila);
    }

    void Ver_Bandeja(const Bando& bando) {
        const Pila& pila = Pila_En(partida, bando.bandeja);
        const Image& bandeja = *Imagen_De(partida, {Arreglo::Adios, bando.adios});
        const Image& ficha = *Imagen_De(partida, {bando.fichas, 0});
        const Single paso = (bandeja.Height - ficha.Height) / 15;
        const Single left = bandeja.Left + (bandeja.Width - ficha.Width) / 2;
        for (Integer item = 0; item < pila.Cuenta(); ++item) {
            const auto debajo = static_cast<Single>(pila.Cuenta() - 1 - item);
            Ver_Ficha(bando, pila.Ficha(item), {left, bandeja.Top + debajo * paso}, false);
        }
        Ver_Orden(bando, pila);
        const Sujeto tray{"tray ", bando.adios};
        const auto altura = static_cast<Single>(partida.*bando.altura);
        const bool en_casa = partida.*bando.en_casa != False;
        Exigir(altura == static_cast<Single>(pila.Cuenta()) * paso, tray,
               ": wrong height for the next chip");
        Exigir(bandeja.Visible == en_casa, tray, " is shown without its flag, or hidden with it");
        Exigir(pila.Cuenta() == 0 || en_casa, tray, " holds chips before all were home");
    }

    void Ver_Cuentas(const Bando& bando) {
        const Vistas& veces = Vistas_De(bando);
        for (int i = 0; i < FICHAS; ++i) {
            const int lugares = veces.at(static_cast<std::size_t>(i));
            Exigir(lugares > 0, Ficha(bando, i), " stands nowhere");
            Exigir(lugares < 2, Ficha(bando, i), " stands in several places");
        }
    }

    void Ver_Dado(const Image& dado, Integer valor, const char* nombre) {
        Exigir(valor >= 0 && valor <= 6, {nombre}, " is out of range");
        if (!dado.Visible) return;
        const int cara = static_cast<int>(dado.Shown) - static_cast<int>(Picture::Dado1) + 1;
        Exigir(valor == cara, {nombre}, " shows another face than its value");
    }

    void Ver_Banderas() {
        for (const Boolean valor :
             {partida.Jugando, partida.Blanca_En_Casa, partida.Cafe_En_Casa, partida.Sonido}) {
            Exigir(valor == True || valor == False, {"a flag"}, " is neither -1 nor 0");
        }
        Exigir(partida.Turno >= CAFE && partida.Turno <= BLANCA, {"Turno"}, " is no colour");
        Exigir(partida.Nivel <= ULTIMO_NIVEL, {"Nivel"}, " is no level");
        Exigir(partida.Dobles <= 2, {"Dobles"}, " is above 2");
        Exigir(partida.Origen >= ORIGEN_BARRA_BLANCA && partida.Origen <= ORIGEN_BARRA_CAFE,
               {"Origen"}, " is no place");
    }

    const Partida& partida;
    std::vector<std::string> faltas;
    std::array<Vistas, 2> vistas{};
};

void Escribir_Fichas(std::ostream& salida, const Partida& partida, const Bando& bando) {
    for (Integer p = 0; p < PUNTOS; ++p) {
        if (Punto_En(partida, p).Owner != bando.color) continue;
        salida << ' ' << p << 'x' << Pila_En(partida, p).Cuenta();
    }
    const Integer en_barra = Pila_En(partida, bando.barra).Cuenta();
    const Integer fuera = Pila_En(partida, bando.bandeja).Cuenta();
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
    Escribir_Fichas(salida, partida, Bando_De(BLANCA));
    salida << ", cafes";
    Escribir_Fichas(salida, partida, Bando_De(CAFE));
    return salida.str();
}

}  // namespace corvanda
