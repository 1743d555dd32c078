// Chips dragged with the mouse over the real board.
#include <gtest/gtest.h>

#include <variant>

#include "tests/ui/ventana.h"

namespace corvanda::pruebas {
namespace {

using enum Arreglo;

constexpr Lugar FUERA_DEL_ESTUCHE{-400, 3000};  // on the window's own ground
constexpr Lugar MADERA{4800, 6030};             // on the case, below the board
constexpr Lugar FIELTRO{1300, 3000};            // on the board, between the points
constexpr Lugar PRIMER_DADO{4400, 3300};

Lugar Un_Poco_Al_Lado(Lugar lugar) {
    return {lugar.x + 60, lugar.y - 75};
}

/// A position without what a mere press may write.
Partida Sin_Origen(Partida partida) {
    partida.Origen = 0;
    return partida;
}

double Luz(const QImage& imagen, QPoint lugar) {
    return qGray(imagen.pixel(lugar));
}

TEST(Raton, a_drop_is_what_lies_in_front_under_the_pointer) {
    constexpr int NADA = -9;  // nothing changes
    const char* inicio = "dice 5 4";
    const char* sola = "B 11x12 | C 15x1 23x2 | dice 5 4";
    const char* dos = "B 11x12 | C 15x2 23x2 | dice 5 4";
    const char* fin = "B 18x2 21x1 | C 0x2 5x5 7x8 | dice 6 3 | home C";
    const struct {
        const char* que;
        const char* posicion;
        Integer toma;  // White's
        std::variant<Control, Lugar> suelta;
        int origen, destino;
        Diario diario;
    } tabla[] = {
        {"an empty point", inicio, 11, Control{Triangle, 15}, 11, 15, {}},
        {"a chip of the same side", inicio, 11, Control{Blanca, 12}, 11, 16, {}},
        {"a lone chip of the other", sola, 11, Control{Cafe, 0}, 11, 15, {}},
        {"a held point", dos, 11, Control{Cafe, 1}, 0, NADA, {BIP, OCUPADO}},
        {"the own point", inicio, 11, Control{Triangle, 11}, 0, NADA, {}},
        {"too far", inicio, 11, Control{Triangle, 14}, 0, NADA, {}},
        {"behind", inicio, 11, Control{Triangle, 9}, 0, NADA, {BIP, HACIA_ATRAS}},
        {"a die", inicio, 11, Control{Dado, 0}, 0, NADA, {}},
        {"the board", inicio, 11, FIELTRO, 0, NADA, {}},
        {"the case", inicio, 11, MADERA, 0, NADA, {}},
        {"beside the case", inicio, 11, FUERA_DEL_ESTUCHE, 0, NADA, {}},
        {"where no tray is shown yet", inicio, 11, Control{Adios, 1}, 0, NADA, {}},
        {"the tray", fin, 2, Lugar{375, 5950}, 21, BANDEJA_BLANCA, {}},
        {"a chip in the tray", fin, 2, Control{Blanca, 3}, 21, BANDEJA_BLANCA, {}},
        {"the other side's tray", fin, 2, Control{Adios, 0}, 0, NADA, {BIP}},
    };
    for (const auto& fila : tabla) {
        SCOPED_TRACE(fila.que);
        Ventana v;
        v.Poner(fila.posicion);
        const Partida antes = v.partida;
        if (fila.diario.size() > 1) v.escritorio.Contestar();
        const auto* control = std::get_if<Control>(&fila.suelta);
        v.raton.Arrastrar(v.Centro({Blanca, fila.toma}),
                          control != nullptr ? v.Centro(*control) : std::get<Lugar>(fila.suelta));
        EXPECT_EQ(v.Leer(), fila.diario);
        EXPECT_TRUE(Es_Valida(v.partida)) << Texto(v.partida);
        EXPECT_FALSE(v.frm.Tablero().Arrastrando());
        if (fila.destino == NADA) {
            EXPECT_EQ(Sin_Origen(v.partida), Sin_Origen(antes)) << Texto(v.partida);
            continue;
        }
        const auto desde = static_cast<Integer>(fila.origen);
        const auto hasta = static_cast<Integer>(fila.destino);
        EXPECT_EQ(Pila_En(v.partida, desde).Cuenta(), Pila_En(antes, desde).Cuenta() - 1);
        EXPECT_EQ(Pila_En(v.partida, hasta).Tope(), fila.toma);
    }
}

TEST(Raton, a_press_anywhere_on_a_stack_takes_its_top_chip_which_follows_the_pointer) {
    Ventana v;
    v.Poner("dice 5 4");
    const Lugar abajo = v.Centro({Blanca, 8});  // the second from below
    const Image& tope = v.partida.Blanca[11];
    const qreal ratio = v.frm.devicePixelRatioF();
    const QPoint en_tablero = (v.frm.Tablero().Lugar(tope).center() * ratio).toPoint();
    const double entera = Luz(v.frm.Tablero().grab().toImage(), en_tablero);
    EXPECT_FALSE(v.Flotante().isVisible());

    v.raton.Pulsar(Un_Poco_Al_Lado(abajo));
    ASSERT_TRUE(v.frm.Tablero().Arrastrando());
    EXPECT_EQ(v.partida.Origen, 11);
    ASSERT_TRUE(v.Flotante().isVisible());
    const QPoint agarre = v.raton.En_Ventana(Un_Poco_Al_Lado(abajo)) -
                          v.Flotante().mapTo(&v.frm, v.Flotante().rect().center());
    for (const Lugar lugar : {FIELTRO, MADERA, FUERA_DEL_ESTUCHE, v.Base(15)}) {
        v.raton.Ir(lugar);
        const QPoint centro = v.Flotante().mapTo(&v.frm, v.Flotante().rect().center());
        EXPECT_LE((v.raton.En_Ventana(lugar) - centro - agarre).manhattanLength(), 2);
        EXPECT_LE((v.raton.En_Ventana(lugar) - centro).manhattanLength(), 18 + 18);
    }
    const double atenuada = Luz(v.frm.Tablero().grab().toImage(), en_tablero);
    EXPECT_LT(atenuada, entera * 0.7) << "its place is dimmed";
    EXPECT_EQ(v.frm.childAt(v.raton.En_Ventana(v.Base(15))), &v.frm.Tablero())
        << "the chip in the air takes no mouse";

    v.raton.Soltar(v.Base(15));
    EXPECT_EQ(Pila_En(v.partida, 15).Tope(), 11);
    EXPECT_FALSE(v.Flotante().isVisible()) << "an accepted chip stands at once";
}

TEST(Raton, a_refused_chip_glides_back_while_the_next_is_taken) {
    Ventana v;
    v.Poner("dice 5 4");
    v.escritorio.Dados({1, 2});
    v.raton.Arrastrar(v.Centro({Blanca, 11}), v.Base(14));
    EXPECT_TRUE(v.Flotante().isVisible());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !v.Flotante().isVisible(); }, 2000));

    v.raton.Arrastrar(v.Centro({Blanca, 11}), v.Base(14));
    v.raton.Arrastrar(v.Centro({Blanca, 1}), v.Base(4));
    EXPECT_EQ(Pila_En(v.partida, 4).Tope(), 1) << "while the other was still in the air";
    v.raton.Arrastrar(v.Centro({Blanca, 11}), v.Base(14));
    v.raton.Arrastrar(v.Centro({Blanca, 11}), v.Centro({Blanca, 12}));
    EXPECT_EQ(Pila_En(v.partida, 16).Tope(), 11) << "the very chip that was still in the air";
    EXPECT_FALSE(v.Flotante().isVisible());
}

TEST(Raton, ends_without_effect_when_something_comes_between) {
    const struct {
        const char* que;
        std::function<void(Ventana&)> ocurre;
        bool empieza = false;
    } tabla[] = {
        {"Esc", [](Ventana& v) { QTest::keyClick(&v.frm, Qt::Key_Escape); }},
        {"a box",
         [](Ventana& v) {
             v.vigilante.Esperar([&v](QWidget& caja) {
                 EXPECT_FALSE(v.frm.Tablero().Arrastrando());
                 Pulsar(caja, "OK");
             });
             QTest::keyClick(&v.frm, Qt::Key_F9);
             EXPECT_TRUE(v.vigilante.Gastado());
         }},
        {"a new game",
         [](Ventana& v) {
             v.vigilante.Esperar(Sortear);
             v.escritorio.Dados({6, 1, 5, 4});
             QTest::keyClick(&v.frm, Qt::Key_J, Qt::ControlModifier);
             EXPECT_TRUE(v.vigilante.Gastado());
         },
         true},
        {"another window",
         [](Ventana& v) {
             QWidget otra;
             otra.show();
             otra.activateWindow();
             EXPECT_TRUE(QTest::qWaitForWindowActive(&otra));
             EXPECT_FALSE(v.frm.Tablero().Arrastrando());
             v.frm.activateWindow();
         }},
        {"the board is hidden",
         [](Ventana& v) {
             v.frm.Tablero().hide();
             EXPECT_FALSE(v.frm.Tablero().Arrastrando());
             v.frm.Tablero().show();
         }},
    };
    for (const auto& fila : tabla) {
        SCOPED_TRACE(fila.que);
        Ventana v(Ventana::Cajas::Reales);
        v.Poner("dice 5 4");
        const Partida antes = v.partida;
        v.raton.Pulsar(v.Centro({Blanca, 11}));
        v.raton.Ir(v.Base(15));
        ASSERT_TRUE(v.frm.Tablero().Arrastrando());
        fila.ocurre(v);
        EXPECT_FALSE(v.frm.Tablero().Arrastrando());
        v.raton.Soltar(v.Base(15));
        EXPECT_EQ(Pila_En(v.partida, 15).Cuenta(), 0);
        EXPECT_TRUE(Es_Valida(v.partida));
        EXPECT_TRUE(fila.empieza || Sin_Origen(v.partida) == Sin_Origen(antes));
        EXPECT_TRUE(QTest::qWaitFor([&] { return !v.Flotante().isVisible(); }, 2000));
        v.raton.Arrastrar(v.Centro({Blanca, 11}), v.Base(15));
        EXPECT_EQ(Pila_En(v.partida, 15).Tope(), 11) << "and the next drag is as good as any";
    }
}

TEST(Raton, only_the_left_button_takes_a_chip_and_drops_it) {
    Ventana v;
    v.Poner("dice 5 4");
    for (const auto boton : {Qt::RightButton, Qt::MiddleButton, Qt::BackButton}) {
        v.raton.Pulsar(v.Centro({Blanca, 11}), boton);
        EXPECT_FALSE(v.frm.Tablero().Arrastrando());
        v.raton.Soltar(v.Base(15), boton);
    }
    v.raton.Pulsar(v.Centro({Cafe, 6}), Qt::RightButton);
    v.raton.Soltar(v.Base(3), Qt::RightButton);
    EXPECT_EQ(v.Leer(), Diario{}) << "not even a refusal";

    v.raton.Pulsar(v.Centro({Blanca, 11}));
    v.raton.Ir(v.Base(15));
    v.raton.Pulsar(v.Base(15), Qt::RightButton);
    v.raton.Soltar(v.Base(15), Qt::RightButton);
    EXPECT_TRUE(v.frm.Tablero().Arrastrando());
    v.raton.Soltar(v.Base(15));
    EXPECT_EQ(Pila_En(v.partida, 15).Tope(), 11);
}

TEST(Raton, a_refused_press_says_why_in_a_box_over_the_window) {
    const struct {
        const char* posicion;  // nullptr before the first game
        Control presionada;
        std::vector<std::string> cajas;
    } tabla[] = {
        {nullptr, {Blanca, 11}, {SIN_JUEGO}},
        {nullptr, {Cafe, 1}, {SIN_JUEGO}},
        {"dice 5 4", {Cafe, 6}, {NO_ES_SU_TURNO}},
        {"turn C | dice 5 4", {Blanca, 6}, {NO_ES_SU_TURNO}},
        {"B 11x3 bar2 | dice 5 4", {Blanca, 2}, {}},  // the bar comes first: a sound only
    };
    for (const auto& fila : tabla) {
        Ventana v(Ventana::Cajas::Reales);
        v.Abrir();
        v.partida.Sonido = False;
        if (fila.posicion != nullptr) v.Poner(fila.posicion);
        for (std::size_t i = 0; i < fila.cajas.size(); ++i) {
            v.vigilante.Esperar([&v](QWidget& caja) {
                EXPECT_EQ(caja.parentWidget(), &v.frm);
                QTest::keyClick(&caja, Qt::Key_Return);
            });
        }
        const Partida antes = v.partida;
        v.raton.Arrastrar(v.Centro(fila.presionada), v.Base(14));
        EXPECT_EQ(v.vigilante.cajas, fila.cajas);
        EXPECT_EQ(v.Leer(), Diario{BIP});
        EXPECT_EQ(v.partida, antes) << "a refused press leaves even Origen alone";
    }
}

TEST(Raton, the_pointer_is_a_hand_over_chips_that_can_be_taken) {
    Ventana v;
    v.Poner("B 11x5 bar2 | C 5x5 12x5 23x2 bar1 | dice 5 4 | home BC");
    const auto es_mano = [&v](Lugar lugar) {
        v.raton.Ir(MADERA);
        EXPECT_EQ(v.frm.Tablero().cursor().shape(), Qt::ArrowCursor);
        v.raton.Ir(lugar);
        return v.frm.Tablero().cursor().shape() != Qt::ArrowCursor;
    };
    EXPECT_TRUE(es_mano(v.Centro({Blanca, 6}))) << "the bar's top chip";
    EXPECT_FALSE(es_mano(v.Centro({Blanca, 4}))) << "chips on points while the bar waits";
    EXPECT_FALSE(es_mano(v.Centro({Cafe, 0}))) << "the other side's";
    EXPECT_FALSE(es_mano(v.Centro({Blanca, 10}))) << "borne off";
    EXPECT_FALSE(es_mano(PRIMER_DADO));
    v.Poner("turn C | dice 5 4");
    EXPECT_TRUE(es_mano(v.Centro({Cafe, 2})));
    EXPECT_FALSE(es_mano(v.Centro({Blanca, 6})));
    v.partida.Jugando = False;
    EXPECT_FALSE(es_mano(v.Centro({Cafe, 2})));
}

}  // namespace
}  // namespace corvanda::pruebas
