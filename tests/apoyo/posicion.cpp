#include "tests/apoyo/posicion.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <sstream>
#include <vector>

namespace corvanda::pruebas {

namespace {

struct Bando {
    Integer color;
    Arreglo fichas;
    Integer barra, bandeja;
    Single barra_left, barra_top, bandeja_left, bandeja_top, paso;
};

constexpr Bando BANDOS[] = {
    {BLANCA, Arreglo::Blanca, BARRA_BLANCA, BANDEJA_BLANCA, 255, 2257.5, 112.5, 3240, 151},
    {CAFE, Arreglo::Cafe, BARRA_CAFE, BANDEJA_CAFE, 330, 3360, 150, 180, 157},
};

using Palabras = std::map<std::string, std::string>;

// What a text says by the first word of each part, over what holds without a word.
Palabras Leer(const std::string& texto) {
    Palabras palabras{{"B", "0x2 18x5 11x5 16x3"},
                      {"C", "23x2 5x5 12x5 7x3"},
                      {"turn", "B"},
                      {"dice", "1 2"},
                      {"doubles", ""},
                      {"home", ""}};
    std::istringstream partes(texto);
    for (std::string parte; std::getline(partes, parte, '|');) {
        std::istringstream flujo(parte);
        std::string clave;
        flujo >> clave >> std::ws;
        EXPECT_TRUE(palabras.contains(clave)) << "unknown word in a position: " << clave;
        std::getline(flujo, palabras[clave]);
    }
    return palabras;
}

void Dejar(Partida& partida, Control ficha, Integer lugar, Single left, Single top, bool enabled) {
    Image& imagen = *Imagen_De(partida, ficha);
    imagen.Left = left;
    imagen.Top = top;
    imagen.Enabled = enabled;
    imagen.ZOrder = ++partida.Frente;
    Pila_En(partida, lugar).Poner(ficha.Index);
}

void Poner_Bando(Juego& juego, Partida& partida, const Bando& bando, const std::string& texto) {
    Integer ficha = 0;
    std::istringstream lugares(texto);
    for (std::string lugar; lugares >> lugar;) {
        const bool barra = lugar.starts_with("bar");
        const int cuantas = std::stoi(lugar.substr(barra ? 3 : lugar.find('x') + 1));
        for (int i = 0; i < cuantas; ++i, ++ficha) {
            if (barra) {
                Dejar(partida, {bando.fichas, ficha}, bando.barra, bando.barra_left,
                      bando.barra_top, true);
            } else {
                juego.Mover(bando.color, ficha, static_cast<Integer>(std::stoi(lugar)));
            }
        }
    }
    EXPECT_LE(ficha, FICHAS) << texto;
    Integer& altura = bando.color == BLANCA ? partida.Altura_Blanca : partida.Altura_Cafe;
    for (; ficha < FICHAS; ++ficha) {
        Dejar(partida, {bando.fichas, ficha}, bando.bandeja, bando.bandeja_left,
              bando.bandeja_top + altura, false);
        altura = static_cast<Integer>(altura + bando.paso);
    }
}

void Poner_Dados(Partida& partida, const std::string& caras, const std::string& dobles) {
    std::istringstream(caras) >> partida.Dado1 >> partida.Dado2;
    const std::array caras_de{partida.Dado1, partida.Dado2};
    for (std::size_t i = 0; i < 2; ++i) {
        partida.Dado.at(i).Visible = caras_de.at(i) != 0;
        const auto muestra = static_cast<std::size_t>(std::max(caras_de.at(i) - 1, 0));
        partida.Dado.at(i).Shown = partida.Dados.at(muestra).Shown;
    }
    const int quedan = partida.Dado1 != 0 && partida.Dado1 == partida.Dado2 ? 2 : 0;
    partida.Dobles = static_cast<Byte>(dobles.empty() ? quedan : std::stoi(dobles));
}

}  // namespace

void Poner(Juego& juego, Partida& partida, const std::string& texto) {
    Palabras palabras = Leer(texto);
    juego.Ordenar();
    for (Pila& pila : partida.LST) pila.Vaciar();
    for (Integer p = 0; p < PUNTOS; ++p) Punto_En(partida, p) = {p < 12 ? 300.0F : 5355.0F, NADIE};
    partida.Origen = ORIGEN_COLOCACION;
    Poner_Bando(juego, partida, BANDOS[0], palabras["B"]);
    Poner_Bando(juego, partida, BANDOS[1], palabras["C"]);
    const auto en_casa = [&](Integer bandeja, char bando) {
        const bool pedido = palabras["home"].find(bando) != std::string::npos;
        return Pila_En(partida, bandeja).Cuenta() > 0 || pedido;
    };
    partida.Adios[0].Visible = en_casa(BANDEJA_CAFE, 'C');
    partida.Adios[1].Visible = en_casa(BANDEJA_BLANCA, 'B');
    partida.Cafe_En_Casa = partida.Adios[0].Visible ? True : False;
    partida.Blanca_En_Casa = partida.Adios[1].Visible ? True : False;
    Poner_Dados(partida, palabras["dice"], palabras["doubles"]);
    partida.Turno = palabras["turn"].starts_with('C') ? CAFE : BLANCA;
    partida.Origen = 0;
    partida.Jugando = True;
    EXPECT_EQ(Faltas(partida), std::vector<std::string>{}) << texto;
}

}  // namespace corvanda::pruebas
