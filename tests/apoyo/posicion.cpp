#include "tests/apoyo/posicion.h"

#include <gtest/gtest.h>

#include <sstream>
#include <vector>

namespace corvanda::pruebas {

namespace {

struct Bando {
    Integer color;
    Arreglo fichas;
    Integer barra;
    Integer bandeja;
    Single barra_left, barra_top;
    Single bandeja_left, bandeja_top, paso;
};

constexpr Bando BLANCO{
    BLANCA, Arreglo::Blanca, BARRA_BLANCA, BANDEJA_BLANCA, 255, 2257.5, 112.5, 3240, 151};
constexpr Bando MARRON{CAFE, Arreglo::Cafe, BARRA_CAFE, BANDEJA_CAFE, 330, 3360, 150, 180, 157};

void Vaciar(Partida& partida) {
    for (Pila& pila : partida.LST) pila.Vaciar();
    for (Integer p = 0; p < PUNTOS; ++p) Punto_En(partida, p) = {p < 12 ? 300.0F : 5355.0F, NADIE};
}

void Llevar(Partida& partida, const Bando& bando, Integer ficha, Single left, Single top,
            bool enabled) {
    Image& imagen = *Imagen_De(partida, {bando.fichas, ficha});
    imagen.Left = left;
    imagen.Top = top;
    imagen.Enabled = enabled;
    imagen.ZOrder = ++partida.Frente;
}

void Sacar_Resto(Partida& partida, const Bando& bando, Integer ficha) {
    Integer& altura = bando.color == BLANCA ? partida.Altura_Blanca : partida.Altura_Cafe;
    for (; ficha < FICHAS; ++ficha) {
        Llevar(partida, bando, ficha, bando.bandeja_left, bando.bandeja_top + altura, false);
        Pila_En(partida, bando.bandeja).Poner(ficha);
        altura = static_cast<Integer>(altura + bando.paso);
    }
}

void Poner_Bando(Juego& juego, Partida& partida, const Bando& bando, std::istream& texto) {
    Integer ficha = 0;
    std::string lugar;
    while (texto >> lugar) {
        int cuantas = 0;
        if (lugar.starts_with("bar")) {
            cuantas = std::stoi(lugar.substr(3));
            for (int i = 0; i < cuantas; ++i, ++ficha) {
                Llevar(partida, bando, ficha, bando.barra_left, bando.barra_top, true);
                Pila_En(partida, bando.barra).Poner(ficha);
            }
            continue;
        }
        const auto equis = lugar.find('x');
        cuantas = std::stoi(lugar.substr(equis + 1));
        const auto punto = static_cast<Integer>(std::stoi(lugar));
        for (int i = 0; i < cuantas; ++i, ++ficha) juego.Mover(bando.color, ficha, punto);
    }
    Sacar_Resto(partida, bando, ficha);
}

void Poner_Dados(Partida& partida, int primero, int segundo) {
    const auto dado = [&partida](std::size_t cual, int valor, Integer& guardado) {
        guardado = static_cast<Integer>(valor);
        partida.Dado.at(cual).Visible = valor != 0;
        if (valor != 0) {
            partida.Dado.at(cual).Shown =
                partida.Dados.at(static_cast<std::size_t>(valor - 1)).Shown;
        }
    };
    dado(0, primero, partida.Dado1);
    dado(1, segundo, partida.Dado2);
    partida.Dobles = primero == segundo ? 2 : 0;
}

void Abrir_Casa(Partida& partida, bool blanca, bool cafe) {
    partida.Blanca_En_Casa = blanca ? True : False;
    partida.Cafe_En_Casa = cafe ? True : False;
    partida.Adios[1].Visible = blanca;
    partida.Adios[0].Visible = cafe;
}

std::vector<std::string> Partes(const std::string& texto) {
    std::vector<std::string> partes;
    std::istringstream flujo(texto);
    for (std::string parte; std::getline(flujo, parte, '|');) partes.push_back(parte);
    return partes;
}

}  // namespace

void Poner(Juego& juego, Partida& partida, const std::string& texto) {
    juego.Ordenar();
    Vaciar(partida);
    partida.Origen = ORIGEN_COLOCACION;
    partida.Turno = BLANCA;
    std::string casa;
    std::string blancas = "0x2 18x5 11x5 16x3";
    std::string cafes = "23x2 5x5 12x5 7x3";
    int primero = 1;
    int segundo = 2;
    int dobles = -1;
    for (const std::string& parte : Partes(texto)) {
        std::istringstream flujo(parte);
        std::string clave;
        flujo >> clave;
        std::string resto;
        std::getline(flujo, resto);
        std::istringstream valores(resto);
        if (clave == "B") {
            blancas = resto;
        } else if (clave == "C") {
            cafes = resto;
        } else if (clave == "turn") {
            partida.Turno = resto.find('C') == std::string::npos ? BLANCA : CAFE;
        } else if (clave == "dice") {
            valores >> primero >> segundo;
        } else if (clave == "doubles") {
            valores >> dobles;
        } else if (clave == "home") {
            casa = resto;
        } else {
            ADD_FAILURE() << "unknown word in a position: " << clave;
        }
    }
    std::istringstream flujo_blancas(blancas);
    std::istringstream flujo_cafes(cafes);
    Poner_Bando(juego, partida, BLANCO, flujo_blancas);
    Poner_Bando(juego, partida, MARRON, flujo_cafes);
    Abrir_Casa(partida,
               Pila_En(partida, BANDEJA_BLANCA).Cuenta() > 0 || casa.find('B') != std::string::npos,
               Pila_En(partida, BANDEJA_CAFE).Cuenta() > 0 || casa.find('C') != std::string::npos);
    Poner_Dados(partida, primero, segundo);
    if (dobles >= 0) partida.Dobles = static_cast<Byte>(dobles);
    partida.Origen = 0;
    partida.Jugando = True;
    EXPECT_EQ(Faltas(partida), std::vector<std::string>{}) << texto;
}

}  // namespace corvanda::pruebas
