// Chips dragged with the mouse over the real board.
#include <QDialog>
#include <variant>

#include "tests/ui/ventana.h"

namespace corvanda::pruebas {
namespace {

using enum Arreglo;

constexpr Lugar FUERA_DEL_ESTUCHE{-400, 3000};  // on the window's own ground
constexpr Lugar MADERA{4800, 6030};             // on the case, below the board
constexpr Lugar FIELTRO{1300, 3000};            // on the board, between the points

/// A position without what a mere press may write.
Partida Sin_Origen(Partida partida) {
    partida.Origen = 0;
    return partida;
}

TEST(Raton, A_Drop_Is_What_Lies_In_Front_Under_The_Pointer) {
    constexpr int NADA = -9;  // nothing changes
    const char* inicio = "dice 5 4";
    const char* sola = "B 11x12 | C 15x1 23x2 | dice 5 4";
    const char* dos = "B 11x12 | C 15x2 23x2 | dice 5 4";
    const char* fin = "B 18x2 21x1 | C 0x2 5x5 7x8 | dice 6 3 | home C";
    const struct {
        const char *que, *posicion;
        Integer toma;  // White's
        std::variant<Control, Lugar> suelta;
        int destino;
        Diario diario;
    } tabla[] = {
        {"an empty point", inicio, 11, Control{Triangle, 15}, 15, {}},
        {"a chip of the same side", inicio, 11, Control{Blanca, 12}, 16, {}},
        {"a lone chip of the other", sola, 11, Control{Cafe, 0}, 15, {}},
        {"a held point", dos, 11, Control{Cafe, 1}, NADA, {BIP, OCUPADO}},
        {"the own point", inicio, 11, Control{Triangle, 11}, NADA, {}},
        {"behind", inicio, 11, Control{Triangle, 9}, NADA, {BIP, HACIA_ATRAS}},
        {"a die", inicio, 11, Control{Dado, 0}, NADA, {}},
        {"the board", inicio, 11, FIELTRO, NADA, {}},
        {"the case", inicio, 11, MADERA, NADA, {}},
        {"beside the case", inicio, 11, FUERA_DEL_ESTUCHE, NADA, {}},
        {"where no tray is shown yet", inicio, 11, Control{Adios, 1}, NADA, {}},
        {"the tray", fin, 2, Lugar{375, 5950}, BANDEJA_BLANCA, {}},
        {"a chip in the tray", fin, 2, Control{Blanca, 3}, BANDEJA_BLANCA, {}},
        {"the other side's tray", fin, 2, Control{Adios, 0}, NADA, {BIP}},
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
        } else {
            EXPECT_EQ(Pila_En(v.partida, static_cast<Integer>(fila.destino)).Tope(), fila.toma);
        }
    }
}

TEST(Raton, The_Top_Chip_Of_A_Stack_Follows_The_Pointer_And_Glides_Back_When_Refused) {
    Ventana v;
    v.Poner("dice 5 4");
    v.escritorio.Dados({1, 2});
    const Lugar abajo = v.Centro({Blanca, 8});  // the second from below
    v.raton.Pulsar(abajo);
    ASSERT_TRUE(v.frm.Tablero().Arrastrando());
    EXPECT_EQ(v.partida.Origen, 11);
    for (const Lugar lugar : {FIELTRO, MADERA, FUERA_DEL_ESTUCHE, v.Base(14)}) {
        v.raton.Ir(lugar);
        const QPoint centro = v.Flotante().mapTo(&v.frm, v.Flotante().rect().center());
        EXPECT_LE((v.raton.En_Ventana(lugar) - centro).manhattanLength(), 4);
    }
    EXPECT_EQ(v.frm.childAt(v.raton.En_Ventana(v.Base(14))), &v.frm.Tablero())
        << "the chip in the air takes no mouse";
    v.raton.Soltar(v.Base(14));
    EXPECT_TRUE(v.Flotante().isVisible()) << "on its way back";
    v.raton.Arrastrar(v.Centro({Blanca, 1}), v.Base(4));
    EXPECT_EQ(Pila_En(v.partida, 4).Tope(), 1) << "while the other was still in the air";
    v.raton.Arrastrar(v.Centro({Blanca, 11}), v.Base(14));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !v.Flotante().isVisible(); }, 2000));
    v.raton.Arrastrar(v.Centro({Blanca, 11}), v.Centro({Blanca, 12}));
    EXPECT_EQ(Pila_En(v.partida, 16).Tope(), 11);
    EXPECT_FALSE(v.Flotante().isVisible()) << "an accepted chip stands at once";
}

TEST(Raton, Ends_Without_Effect_When_Something_Comes_Between) {
    const std::pair<const char*, std::function<void(Ventana&)>> tabla[] = {
        {"Esc", [](Ventana& v) { QTest::keyClick(&v.frm, Qt::Key_Escape); }},
        {"a box",
         [](Ventana& v) {
             v.vigilante.Esperar([&v](QWidget& caja) {
                 EXPECT_FALSE(v.frm.Tablero().Arrastrando());
                 Pulsar(caja, "OK");
             });
             QTest::keyClick(&v.frm, Qt::Key_F9);
         }},
        {"a dialog that the desktop gives no focus",
         [](Ventana& v) {
             QDialog dialogo(&v.frm);
             dialogo.setAttribute(Qt::WA_ShowWithoutActivating);
             dialogo.open();
         }},
        {"a new game",
         [](Ventana& v) {
             v.vigilante.Esperar(Sortear);
             v.escritorio.Dados({6, 1, 5, 4});
             QTest::keyClick(&v.frm, Qt::Key_J, Qt::ControlModifier);
         }},
        {"another window",
         [](Ventana& v) {
             QWidget otra;
             otra.show();
             otra.activateWindow();
             EXPECT_TRUE(QTest::qWaitForWindowActive(&otra));
             EXPECT_FALSE(v.frm.Tablero().Arrastrando());
         }},
        {"the board is hidden",
         [](Ventana& v) {
             v.frm.Tablero().hide();
             v.frm.Tablero().show();
         }},
    };
    for (const auto& [que, ocurre] : tabla) {
        SCOPED_TRACE(que);
        Ventana v(Ventana::Cajas::Reales);
        v.Poner("dice 5 4");
        v.raton.Pulsar(v.Centro({Blanca, 11}));
        v.raton.Ir(v.Base(15));
        ASSERT_TRUE(v.frm.Tablero().Arrastrando());
        ocurre(v);
        EXPECT_TRUE(v.vigilante.Gastado());
        EXPECT_FALSE(v.frm.Tablero().Arrastrando());
        v.raton.Soltar(v.Base(15));
        EXPECT_EQ(Pila_En(v.partida, 15).Cuenta(), 0);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !v.Flotante().isVisible(); }, 2000));
        v.raton.Arrastrar(v.Centro({Blanca, 11}), v.Base(15));
        EXPECT_EQ(Pila_En(v.partida, 15).Tope(), 11) << "and the next drag is as good as any";
    }
}

TEST(Raton, Only_The_Left_Button_Takes_A_Chip_And_Drops_It) {
    Ventana v;
    v.Poner("dice 5 4");
    for (const auto boton : {Qt::RightButton, Qt::LeftButton}) {
        v.raton.Pulsar(v.Centro({Blanca, 11}), boton);
        v.raton.Ir(v.Base(15));
        v.raton.Soltar(v.Base(15), Qt::RightButton);
        EXPECT_EQ(v.frm.Tablero().Arrastrando(), boton == Qt::LeftButton);
    }
    EXPECT_EQ(v.Leer(), Diario{}) << "not even a refusal";
}

}  // namespace
}  // namespace corvanda::pruebas
