// The dice, the turn, and the pass: when it is accepted, and which die is named when it is not.
#include <gtest/gtest.h>

#include <cmath>

#include "tests/apoyo/diario.h"
#include "tests/apoyo/mesa.h"
#include "tests/apoyo/tabla.h"

namespace corvanda::pruebas {
namespace {

// Turno, Jugando and the dice.
std::string Foto(const Partida& partida) {
    return std::to_string(partida.Turno) + " " + std::to_string(partida.Jugando) + ": " +
           Dados_De(partida);
}

TEST(Dados, The_Last_Die_Brings_A_Roll_In_Four_Passes) {
    const char* const filas[][3] = {{"B 0x15 | C 12x15 | dice 0 2", "0/2", "bounce"},
                                    {"B 19x4 23x10 | C 12x15 | dice 0 5", "19/A1", "Pop2"}};
    for (const auto& [posicion, accion, sonido] : filas) {
        Mesa mesa(posicion);
        mesa.partida.Sonido = True;
        Diario fotos;
        for (int pase = 1; pase <= 4; ++pase) {
            mesa.escritorio.En_El_Pase(pase, [&] { fotos.push_back(Foto(mesa.partida)); });
        }
        mesa.escritorio.Dados({4, 4});
        mesa.Hacer(accion);
        fotos.push_back(Foto(mesa.partida));
        EXPECT_EQ(fotos, (Diario{"-1 0: 0 0", "-1 0: 4* 0", "-1 0: 4* 4 x2", "-1 0: 4* 4* x2",
                                 "-1 -1: 4* 4* x2"}));
        EXPECT_EQ(mesa.escritorio.Leer(), (Diario{Suena(sonido), Suena("click1")}));
        EXPECT_EQ(mesa.partida.Dado[1].ZOrder, mesa.partida.Frente) << "before the chips";
        EXPECT_EQ(mesa.partida.Dado[0].ZOrder, mesa.partida.Frente - 1);
        EXPECT_EQ(Faltas(mesa.partida), Diario{});
    }
}

TEST(Dados, Every_Random_Number_Gives_Its_Face) {
    const double limites[][2] = {{0, 0.0999}, {0.1, 0.3},       {0.3001, 0.4999},
                                 {0.5, 0.7},  {0.7001, 0.8999}, {0.9, std::nextafter(1.0, 0.0)}};
    Mesa mesa;
    for (int cara = 1; cara <= 6; ++cara) {
        mesa.escritorio.Azares({limites[cara - 1][0], limites[cara - 1][1]});
        mesa.juego.Tirar_Dados();
        EXPECT_EQ(mesa.partida.Dado1, cara);
        EXPECT_EQ(mesa.partida.Dado2, cara);
        EXPECT_EQ(Faltas(mesa.partida), Diario{});
    }
}

// What the box says; the two ways to the refusal and the acceptance have words of their own.
std::string Respuesta_Al_Pase(const Partida& partida, int dado) {
    const bool blanca = partida.Turno == BLANCA;
    const bool barra = Pila_En(partida, blanca ? BARRA_BLANCA : BARRA_CAFE).Cuenta() > 0;
    if (dado != 0) {
        return "caja 64 [Corvanda :] You have to play the " + std::string(barra ? "" : " ") +
               std::to_string(dado);
    }
    const std::string quien = blanca ? "the white" : barra ? "brown" : "the brown";
    return "caja 64 [Corvanda] The player with " + quien + " chips passed";
}

TEST(Pase, Is_Refused_While_A_Chip_Can_Enter_Or_Move) {
    for (const auto& fila : Tabla("core/pases.txt", 2)) {
        SCOPED_TRACE(fila[0]);
        const int dado = std::stoi(fila[1]);
        Mesa mesa(fila[0]);
        mesa.partida.Sonido = True;
        const Partida antes = mesa.partida;
        mesa.escritorio.Contestar(button::Ok, [&] { EXPECT_EQ(mesa.partida.Turno, antes.Turno); });
        mesa.escritorio.Dados({2, 3});
        mesa.Hacer("pass");
        Diario dicho{Respuesta_Al_Pase(antes, dado)};
        dicho.insert(dado != 0 ? dicho.begin() : dicho.end(),
                     Suena(dado != 0 ? "strike" : "click1"));
        EXPECT_EQ(mesa.escritorio.Leer(), dicho);
        if (dado != 0) {
            EXPECT_TRUE(mesa.partida == antes) << Texto(mesa.partida);
        } else {
            EXPECT_EQ(Foto(mesa.partida), std::to_string(-antes.Turno) + " -1: 2* 3*");
        }
    }
}

TEST(Pase, Nothing_While_No_Game_Runs) {
    Mesa mesa("B bar1 0x14 | C 5x2 3x2 12x11 | dice 6 4");
    mesa.partida.Jugando = False;
    mesa.Hacer("pass");
    EXPECT_EQ(mesa.escritorio.Leer(), Diario{});
}

}  // namespace
}  // namespace corvanda::pruebas
