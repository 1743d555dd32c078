// The hand over the board, without an event.
#include "ui/mano.h"

#include <gtest/gtest.h>

#include <QCoreApplication>

#include "tests/apoyo/diario.h"
#include "tests/apoyo/mesa.h"
#include "ui/lugares.h"

namespace corvanda::pruebas {
namespace {

/// A game whose board is a hand alone.
struct En_Mano final : Pantalla {
    explicit En_Mano(const std::string& posicion) {
        juego.Cargar_Controles();
        juego.Vestir_Tablero();
        Poner(juego, partida, posicion);
        escritorio.Contestar_Siempre();
        escritorio.Leer();
        mano.Sentar(juego);
        QObject::connect(&mano, &Mano::rechazada, [this](Control ficha) { rechazada = ficha; });
    }
    void Refrescar(Control control, const Image& antes) override {
        const Image& ahora = *Imagen_De(partida, control);
        if (antes.Left != ahora.Left || antes.Top != ahora.Top) mano.Movida(control);
    }
    void Iniciar_Arrastre(Control ficha) override { mano.Iniciar(ficha); }
    void Rechazar(Control ficha) override { rechazada = ficha; }
    void Cancelar_Arrastre() override { mano.Cancelar(); }

    Puertos Puertos_De_Prueba() {
        return {escritorio, escritorio, escritorio, escritorio, escritorio, escritorio, *this};
    }

    Escritorio escritorio;
    Partida partida = Diseno();
    Estampas estampas{QCoreApplication::applicationDirPath() + "/imagenes"};
    QWidget fondo;
    QWidget estuche{&fondo};
    Trazado trazado{partida, Escala(), estuche};
    Pintura pintura{trazado, estampas};
    Mano mano{trazado, pintura, estuche, &fondo};
    Juego juego{partida, Puertos_De_Prueba()};
    Control rechazada;
};

TEST(Mano, Lights_What_Takes_The_Chip_And_Shows_What_Is_Refused) {
    const struct {
        const char* posicion;
        Control pulsada, destino;
        std::vector<std::size_t> luces;
        Control tomada, rechazada;
    } tabla[] = {
        {"dice 5 4",
         {Arreglo::Blanca, 8},
         {Arreglo::Triangle, 15},
         {15, 16},
         {Arreglo::Blanca, 11},
         {}},
        {"dice 5 4",
         {Arreglo::Blanca, 8},
         {Arreglo::Triangle, 17},
         {15, 16},
         {Arreglo::Blanca, 11},
         {Arreglo::Blanca, 11}},
        {"dice 5 4",
         {Arreglo::Blanca, 8},
         {Arreglo::Triangle, 11},
         {15, 16},
         {Arreglo::Blanca, 11},
         {}},  // put back
        {"dice 5 4",
         {Arreglo::Blanca, 8},
         {},
         {15, 16},
         {Arreglo::Blanca, 11},
         {Arreglo::Blanca, 11}},
        {"B 0x13 bar2 | dice 5 4", {Arreglo::Blanca, 0}, {}, {}, {}, {Arreglo::Blanca, 0}},
        {"B 18x15 | dice 6 1 | home B",
         {Arreglo::Blanca, 14},
         {Arreglo::Adios, 1},
         {19, BANDEJA_BLANCA},
         {Arreglo::Blanca, 14},
         {}},
    };
    for (const auto& fila : tabla) {
        En_Mano v(fila.posicion);
        SCOPED_TRACE(&fila - tabla);
        v.mano.Presionar(fila.pulsada, LeftButton, {10, 10}, Mano::De::Raton);
        EXPECT_EQ(v.mano.Ficha(), fila.tomada);
        Lugares luces;
        for (const std::size_t luz : fila.luces) luces.set(luz);
        EXPECT_EQ(v.mano.Destinos(), luces);
        v.mano.Soltar(fila.destino);
        EXPECT_FALSE(v.mano.Ocupada());
        EXPECT_TRUE(v.mano.Destinos().none());
        EXPECT_EQ(v.rechazada, fila.rechazada);
    }
}

TEST(Lugares, The_Next_Place_That_Takes_A_Chip_Lies_On_Its_Sides_Way) {
    const Lugares blancas = Lugares().set(15).set(3).set(BANDEJA_BLANCA);
    const Lugares cafes = Lugares().set(15).set(3).set(BANDEJA_CAFE);
    const std::tuple<Lugares, Integer, Integer, int, Integer> tabla[] = {
        {blancas, 3, BLANCA, 1, 15},
        {blancas, 15, BLANCA, 1, BANDEJA_BLANCA},
        {blancas, BANDEJA_BLANCA, BLANCA, 1, 3},
        {blancas, BARRA_BLANCA, BLANCA, 1, 3},
        {blancas, 9, BLANCA, -1, 3},
        {cafes, 20, CAFE, 1, 15},
        {cafes, 15, CAFE, 1, 3},
        {cafes, 3, CAFE, 1, BANDEJA_CAFE},
        {cafes, BARRA_CAFE, CAFE, 1, 15},
        {Lugares(), 7, CAFE, 1, 7},
    };
    for (const auto& [entre, lugar, color, paso, otro] : tabla)
        EXPECT_EQ(lugares::Siguiente(entre, lugar, color, paso), otro) << lugar << ' ' << color;
}

}  // namespace
}  // namespace corvanda::pruebas
