#include "core/partida.h"

namespace corvanda {

namespace {

Image En(Single left, Single top, Single width, Single height, Picture estampa) {
    Image imagen;
    imagen.Left = left;
    imagen.Top = top;
    imagen.Width = width;
    imagen.Height = height;
    imagen.Shown = estampa;
    return imagen;
}

Single Left_De_Punto(std::size_t columna) {
    const auto k = static_cast<Single>(columna);
    return columna < 6 ? 960 + 600 * k : 5100 + 600 * (k - 6);
}

void Trazar_Puntos(Partida& partida) {
    for (std::size_t k = 0; k < 12; ++k) {
        partida.Triangle[k] = En(Left_De_Punto(k), 240, 450, 2550, Picture::None);
        partida.Triangle[23 - k] = En(Left_De_Punto(k), 3360, 450, 2550, Picture::None);
    }
    for (const std::size_t corto : {20, 22}) {
        partida.Triangle[corto].Width = 480;
        partida.Triangle[corto].Height = 2535;
    }
    partida.Triangle[0].Shown = Picture::Triangulo_Sup_A;
    partida.Triangle[1].Shown = Picture::Triangulo_Sup_B;
    partida.Triangle[12].Shown = Picture::Triangulo_Inf_A;
    partida.Triangle[13].Shown = Picture::Triangulo_Inf_B;
}

void Trazar_Dados(Partida& partida) {
    partida.Dado[0] = En(4020, 2880, 795, 915, Picture::None);
    partida.Dado[1] = En(4860, 2880, 795, 915, Picture::None);
    for (std::size_t k = 0; k < 6; ++k) {
        const auto cara = static_cast<Picture>(static_cast<std::size_t>(Picture::Dado1) + k);
        partida.Dados[k] = En(60, 3240, 480, 480, cara);
        partida.Dados[k].Visible = false;
    }
    for (const std::size_t k : {1, 2, 3}) partida.Dados[k].Left = 180;
    partida.Dados[1].Top = 3300;
    for (Image& dado : partida.Dado) dado.Visible = false;
}

// Each array is drawn over the ones named before it, until a chip or die is brought to the front.
void Apilar(Partida& partida) {
    const auto capa = [&partida](auto& miembros) {
        for (Image& imagen : miembros) imagen.ZOrder = ++partida.Frente;
    };
    capa(partida.Tablero);
    capa(partida.Triangle);
    capa(partida.Adios);
    capa(partida.Blanca);
    capa(partida.Cafe);
    capa(partida.Dado);
}

}  // namespace

Partida Diseno() {
    Partida partida;
    partida.Tablero[0] = En(780, 180, 3945, 5835, Picture::Tablero);
    partida.Tablero[1] = En(4860, 180, 3945, 5835, Picture::None);
    Trazar_Puntos(partida);
    partida.Blanca[0] = En(960, 300, 525, 525, Picture::Blanca);
    partida.Blanca[1] = En(960, 780, 525, 525, Picture::Blanca);
    partida.Cafe[0] = En(960, 4860, 450, 435, Picture::Cafe);
    partida.Cafe[1] = En(960, 5340, 450, 435, Picture::Cafe);
    partida.Adios[0] = En(60, 180, 630, 2790, Picture::Adios);
    partida.Adios[1] = En(60, 3240, 630, 2790, Picture::Adios);
    for (Image& bandeja : partida.Adios) bandeja.Visible = false;
    Trazar_Dados(partida);
    Apilar(partida);
    return partida;
}

void Vestir(Partida& partida) {
    partida.Tablero[1].Shown = partida.Tablero[0].Shown;
    // The first two points of each row have the pictures of all the others.
    for (std::size_t i = 0; i < PUNTOS; ++i) {
        partida.Triangle[i].Shown = partida.Triangle[i / 12 * 12 + i % 2].Shown;
    }
    const Image& ultimo = partida.Triangle[23];
    for (Image& mitad : partida.Tablero) {
        mitad.Height = ultimo.Top + ultimo.Height - partida.Tablero[0].Top / 2;
        mitad.Width = partida.Triangle[5].Left;
    }
}

}  // namespace corvanda
