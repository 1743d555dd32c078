// The board without a mouse.
#include <cstdlib>

#include "tests/ui/acceso.h"
#include "ui/lugares.h"

namespace corvanda::pruebas {
namespace {

void Con_Raton(Sin_Raton& v, QTest::MouseAction que, QPoint lugar) {
    const QPoint en_ventana = v.tablero.mapTo(&v.frm, lugar);
    QTest::mouseEvent(que, v.frm.windowHandle(), Qt::LeftButton, {}, en_ventana);
}

TEST(Teclado, The_First_Key_Shows_The_Frame_And_The_Others_Go_Where_The_Eye_Sees_A_Place) {
    const std::pair<const char*, Integer> tabla[] = {
        {"s", 0},
        {"t", 0},  // a chip that may be taken
        {"tt", 11},
        {"ttst", 14},  // White's way, by a three
        {"ttstt", 16},
        {"ttsttt", 14},
        {"ttstb", 16},
        {"rlllu", BANDEJA_CAFE},
        {"sErdlll", 15},
        // White to move, with chips on points 1, 12 and 17: Tab knows nothing else to take.
        {"stttt", 11},
        {"sb", 16},
    };
    for (const auto& [teclas, lugar] : tabla) {
        Sin_Raton v("B 0x1 11x13 16x1 | turn B | dice 5 3");
        v.Teclas(teclas);
        EXPECT_EQ(v.teclado.Elegido(), lugar) << teclas;
    }
}

TEST(Teclado, A_Chip_Is_Taken_And_Dropped_As_The_Handlers_Have_It) {
    const std::tuple<const char*, Integer, Integer, bool, Diario> tabla[] = {
        {"C 12x14 bar1 | turn C | dice 4 2", BARRA_CAFE, 22, true, {}},
        {"B 19x15 | dice 5 2 | home B", 19, BANDEJA_BLANCA, true, {}},
        {"B 19x15 | C 2x15 | dice 5 2 | home BC", 19, BANDEJA_CAFE, false, {BIP}},
        {"dice 5 2", 0, 5, false, {BIP, OCUPADO}},
        {"dice 5 2", 0, 0, false, {}},
        {"dice 5 2", 18, BARRA_CAFE, false, {}},
        {"dice 5 2", 18, BANDEJA_CAFE, false, {}},
    };
    for (const auto& [posicion, desde, hasta, cae, diario] : tabla) {
        Sin_Raton v(posicion);
        v.escritorio.Contestar_Siempre();
        const Control ficha = lugares::Tope(v.partida, desde);
        v.Jugar(desde, hasta);
        EXPECT_EQ(lugares::Tope(v.partida, cae ? hasta : desde), ficha) << posicion << hasta;
        EXPECT_EQ(v.escritorio.Leer(), diario) << posicion << hasta;
        EXPECT_FALSE(v.tablero.Arrastrando()) << posicion << hasta;
    }
}

TEST(Teclado, A_Chip_Is_Held_Either_By_The_Keys_Or_By_The_Mouse) {
    Sin_Raton v("turn B | dice 4 2");
    v.Teclas("us");
    QKeyEvent repetida(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, " ", true);
    QCoreApplication::sendEvent(&v.tablero, &repetida);  // still down, it does not drop
    v.Ir(BANDEJA_CAFE);
    Con_Raton(v, QTest::MouseMove, {200, 200});
    ASSERT_TRUE(v.tablero.Arrastrando());
    const QRect area = v.tablero.Medidas().Area(BANDEJA_CAFE).translated(v.tablero.pos());
    const QPoint ficha = v.frm.findChild<QWidget*>("FichaFlotante")->geometry().center();
    EXPECT_LT(ficha.x(), area.left()) << "beside the chosen place, which it does not hide";
    EXPECT_LE(std::abs(ficha.y() - area.center().y()), 12);

    const QPoint otra = v.tablero.Lugar(v.partida.Blanca[14]).center().toPoint();
    Con_Raton(v, QTest::MousePress, otra);
    v.Teclas("rrs\nt");
    EXPECT_TRUE(v.tablero.Arrastrando());
    EXPECT_FALSE(v.teclado.A_La_Vista());
    Con_Raton(v, QTest::MouseRelease, otra);
}

TEST(Teclado, What_Ends_A_Drag_Of_The_Mouse_Ends_One_Of_The_Keys) {
    const std::pair<const char*, std::function<void(Sin_Raton&)>> tabla[] = {
        {"Esc", [](Sin_Raton& v) { v.Teclas("X"); }},
        {"a new game", [](Sin_Raton& v) { v.frm.Mesa().Ordenar(); }},
        {"the menus", [](Sin_Raton& v) { v.frm.menuBar()->setFocus(Qt::MenuBarFocusReason); }},
    };
    for (const auto& [que, hacer] : tabla) {
        Sin_Raton v("turn B | dice 4 2");
        v.Teclas("usrrrr");
        ASSERT_TRUE(v.tablero.Arrastrando());
        hacer(v);
        EXPECT_FALSE(v.tablero.Arrastrando()) << que;
        EXPECT_EQ(Pila_En(v.partida, 4).Cuenta(), 0) << que;
    }
}

}  // namespace
}  // namespace corvanda::pruebas
