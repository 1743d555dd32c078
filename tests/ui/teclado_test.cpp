// The board without a mouse.
#include <QDialog>
#include <QImage>
#include <QMenu>
#include <QTimer>

#include "demostracion/jugador.h"
#include "tests/apoyo/mesa.h"
#include "tests/ui/acceso.h"
#include "ui/lugares.h"

namespace corvanda::pruebas {
namespace {

TEST(Teclado, The_Arrows_Go_Where_The_Eye_Sees_A_Place) {
    const std::pair<const char*, Integer> tabla[] = {
        {"", 0},
        {"rrr", 3},
        {"l", BARRA_BLANCA},
        {"ll", BANDEJA_CAFE},
        {"lllu", 27},
        {"d", 23},
        {"ld", BARRA_CAFE},
        {"lld", BANDEJA_BLANCA},
        {"E", 11},
        {"Erd", 12},
        {"EdH", BANDEJA_BLANCA},
        {"dHrrrrrrr", 18},
        {"dddu", 0},
        {"dEl", 13},
        // White to move, two chips on point 12 and one on 17: Tab knows nothing else to take.
        {"t", 11},
        {"tt", 16},
        {"ttt", 11},
        {"b", 16},
    };
    for (const auto& [teclas, lugar] : tabla) {
        SCOPED_TRACE(teclas);
        Sin_Raton v("B 11x14 16x1 | turn B | dice 5 3");
        v.Tecla(Qt::Key_Left);
        v.Teclas(teclas);
        EXPECT_EQ(v.Teclado_De().Elegido(), lugar);
        EXPECT_EQ(v.Leer(), Diario{});
    }
}

QImage Foto(Sin_Raton& v) {
    return v.frm.grab(QRect(v.Tablero().mapTo(&v.frm, QPoint()), v.Tablero().size())).toImage();
}

TEST(Teclado, The_Frame_Is_White_In_Black_Around_Any_Place_And_Gone_With_The_Mouse) {
    Sin_Raton v("turn B | dice 4 2");
    const QImage antes = Foto(v);
    v.Tecla(Qt::Key_Space);
    EXPECT_EQ(v.Leer(), Diario{}) << "the first key only shows the frame";
    const int grueso = v.Tablero().Grueso();
    for (Integer lugar = 0; lugar < lugares::CUANTOS; ++lugar) {
        v.Ir(lugar);
        const QImage foto = Foto(v);
        const QRect area = v.Tablero().Area(lugar);
        const QPoint medio = area.center();
        const qreal ratio = foto.devicePixelRatio();
        const auto color = [&](QPoint punto) {
            return foto.pixelColor((QPointF(punto) * ratio).toPoint());
        };
        for (const auto& [linea, esperado] : {std::pair{1, Qt::white}, {grueso + 1, Qt::black}}) {
            EXPECT_EQ(color({area.left() - linea, medio.y()}), QColor(esperado)) << lugar;
            EXPECT_EQ(color({area.right() + linea, medio.y()}), QColor(esperado)) << lugar;
            EXPECT_EQ(color({medio.x(), area.top() - linea}), QColor(esperado)) << lugar;
            EXPECT_EQ(color({medio.x(), area.bottom() + linea}), QColor(esperado)) << lugar;
        }
    }
    const QPoint nada = v.Tablero().mapTo(&v.frm, QPoint(3, 3));
    QTest::mouseClick(v.frm.windowHandle(), Qt::LeftButton, {}, nada);
    // Along the mitres of its corners the case lets a little of what was painted before through.
    const QRect dentro = antes.rect().adjusted(20, 20, -20, -20);
    EXPECT_EQ(Foto(v).copy(dentro), antes.copy(dentro));
}

// The same hands on a board without a window are the measure.
TEST(Teclado, A_Chip_Is_Taken_And_Dropped_As_The_Handlers_Have_It) {
    struct Fila {
        const char* posicion;
        Integer desde, hasta;
        const char* manos;
    };
    const Fila tabla[] = {
        {"turn B | dice 4 2", 0, 4, "0/4"},
        {"turn C | dice 4 2", 23, 19, "23/19"},
        {"B 0x1 18x14 | C 3x1 12x14 | turn B | dice 3 2", 0, 3, "0/3"},
        {"B 18x14 bar1 | turn B | dice 4 2", BARRA_BLANCA, 3, "bar/3"},
        {"C 12x14 bar1 | turn C | dice 4 2", BARRA_CAFE, 22, "bar/22"},
        {"B 18x14 bar1 | turn B | dice 4 2", 18, 20, "18/20"},
        {"B 19x15 | turn B | dice 5 2 | home B", 19, BANDEJA_BLANCA, "19/A1"},
        {"C 2x15 | turn C | dice 3 2 | home C", 2, BANDEJA_CAFE, "2/A0"},
        {"B 19x15 | C 2x15 | turn B | dice 5 2 | home BC", 19, BANDEJA_CAFE, "19/A0"},
        {"turn B | dice 5 2", 0, 5, "0/5"},
        {"turn B | dice 4 2", 11, 0, "11/0"},
        {"turn B | dice 4 2", 0, 9, "0/9"},
        {"turn B | dice 4 2", 0, 0, "0/0"},
    };
    for (const Fila& fila : tabla) {
        SCOPED_TRACE(std::string(fila.posicion) + ": " + fila.manos);
        Mesa mesa(fila.posicion);
        mesa.partida.Sonido = False;
        mesa.escritorio.Contestar_Siempre();
        Sin_Raton v(fila.posicion);
        v.escritorio.Contestar_Siempre();
        mesa.Hacer(fila.manos);
        v.Jugar(fila.desde, fila.hasta);
        EXPECT_EQ(v.partida.LST, mesa.partida.LST);
        EXPECT_EQ(Dados_De(v.partida), Dados_De(mesa.partida));
        EXPECT_EQ(v.Leer(), mesa.escritorio.Leer());
        EXPECT_FALSE(v.Tablero().Arrastrando());
    }
}

TEST(Teclado, Nothing_Is_Dropped_On_A_Bar_Or_A_Closed_Tray) {
    for (const Integer lugar : {BARRA_BLANCA, BARRA_CAFE, BANDEJA_BLANCA, BANDEJA_CAFE}) {
        Sin_Raton v("B 19x14 18x1 | C 12x14 bar1 | turn B | dice 5 1");
        const Partida antes = v.partida;
        v.Jugar(18, lugar);
        EXPECT_EQ(v.partida.LST, antes.LST);
        EXPECT_EQ(v.Leer(), Diario{});
        EXPECT_FALSE(v.Tablero().Arrastrando());
    }
}

TEST(Teclado, The_Chip_In_Hand_Is_Shown_At_The_Chosen_Place_And_No_Mouse_Moves_It) {
    Sin_Raton v("turn B | dice 4 2");
    const auto* flotante = v.frm.findChild<QWidget*>("FichaFlotante");
    v.Ir(0);
    v.Tecla(Qt::Key_Space);
    for (const Integer lugar : {Integer{3}, Integer{20}, BANDEJA_CAFE}) {
        v.Ir(lugar);
        const QRect area = v.Tablero().Area(lugar).translated(v.Tablero().pos());
        EXPECT_TRUE(flotante->isVisible());
        EXPECT_TRUE(area.adjusted(-12, -12, 12, 12).contains(flotante->geometry().center()))
            << lugar;
        const QPoint ahi = flotante->pos();
        QTest::mouseMove(v.frm.windowHandle(), QPoint(200, 200 + lugar));
        EXPECT_EQ(flotante->pos(), ahi);
        EXPECT_TRUE(v.Tablero().Arrastrando());
    }
}

TEST(Teclado, What_Ends_A_Drag_Of_The_Mouse_Ends_One_Of_The_Keys) {
    const std::pair<const char*, std::function<void(Sin_Raton&)>> tabla[] = {
        {"Esc", [](Sin_Raton& v) { v.Tecla(Qt::Key_Escape); }},
        {"a modal window",
         [](Sin_Raton& v) {
             QDialog dialogo(&v.frm);
             dialogo.setModal(true);
             dialogo.show();
             QCoreApplication::processEvents();
         }},
        {"a new game", [](Sin_Raton& v) { v.frm.Mesa().Ordenar(); }},
        {"another window",
         [](Sin_Raton& v) {
             QWidget otra;
             otra.show();
             otra.activateWindow();
             EXPECT_TRUE(QTest::qWaitForWindowActive(&otra));
             EXPECT_FALSE(v.Tablero().Arrastrando());
         }},
        {"the menus", [](Sin_Raton& v) { v.frm.menuBar()->setFocus(Qt::MenuBarFocusReason); }},
        {"a press of the mouse",
         [](Sin_Raton& v) {
             const QPoint nada = v.Tablero().mapTo(&v.frm, QPoint(3, 3));
             QTest::mousePress(v.frm.windowHandle(), Qt::LeftButton, {}, nada);
         }},
        {"the end of the program", [](Sin_Raton& v) { v.frm.Mesa().Cerrar(); }},
    };
    for (const auto& [que, hacer] : tabla) {
        SCOPED_TRACE(que);
        Sin_Raton v("");
        v.partida.Sonido = False;
        v.Ir(0);
        v.Tecla(Qt::Key_Space);
        v.Ir(4);
        ASSERT_TRUE(v.Tablero().Arrastrando());
        const auto antes = v.partida.LST;
        hacer(v);
        EXPECT_FALSE(v.Tablero().Arrastrando());
        EXPECT_EQ(v.partida.LST, antes);
        EXPECT_EQ(v.Leer(), Diario{});
    }
}

TEST(Teclado, A_Key_That_Is_Held_Down_Takes_And_Drops_Once) {
    Sin_Raton v("turn B | dice 4 2");
    v.Ir(0);
    for (int i = 0; i < 3; ++i) {
        QKeyEvent tecla(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, " ", i > 0);
        QCoreApplication::sendEvent(&v.Tablero(), &tecla);
    }
    EXPECT_TRUE(v.Tablero().Arrastrando());
}

TEST(Teclado, The_Mouse_Keeps_Its_Drag_When_Keys_Are_Pressed) {
    Sin_Raton v("turn B | dice 4 2");
    const auto en = [&](Integer lugar) {
        return v.Tablero().mapTo(&v.frm, v.Tablero().Area(lugar).center());
    };
    const QPoint tope =
        v.Tablero().mapTo(&v.frm, v.Tablero().Lugar(v.partida.Blanca[1]).center().toPoint());
    QTest::mousePress(v.frm.windowHandle(), Qt::LeftButton, {}, tope);
    ASSERT_TRUE(v.Tablero().Arrastrando());
    v.Teclas("rrs\nt");
    EXPECT_FALSE(v.Teclado_De().A_La_Vista());
    QTest::mouseMove(v.frm.windowHandle(), en(4));
    QTest::mouseRelease(v.frm.windowHandle(), Qt::LeftButton, {}, en(4));
    EXPECT_EQ(Pila_En(v.partida, 4).Cuenta(), 1);
}

TEST(Teclado, The_Keys_Of_The_Menus_Are_Not_The_Boards) {
    Sin_Raton v("turn B | dice 4 2");
    v.escritorio.Contestar_Siempre();
    v.Ir(3);
    v.Tecla(Qt::Key_F1);
    v.Tecla(Qt::Key_F9);
    EXPECT_EQ(v.Leer(), (Diario{"ayuda /opt/juegos de mesa/corvanda\\corvanda.HLP 1 0", BIP,
                                "caja 64 [Corvanda :] You have to play the  4"}));
    auto* menu = v.frm.menuBar()->findChild<QMenu*>("mnuGame");
    v.Tecla(Qt::Key_G, Qt::AltModifier);
    EXPECT_TRUE(menu->isVisible());
    QTest::keyClick(menu, Qt::Key_Escape);
    v.Tecla(Qt::Key_Escape);
    EXPECT_TRUE(v.Tablero().hasFocus());
    EXPECT_EQ(v.Teclado_De().Elegido(), 3);
}

TEST(Teclado, A_Game_Of_Two_People_Needs_No_Mouse_From_Its_Start_To_Its_End) {
    for (const Qt::Key atajo : {Qt::Key_J, Qt::Key_C}) {
        Sin_Raton v("");
        v.escritorio.Sembrar(7);
        v.escritorio.Contestar_Siempre();
        // The start-player dialog, and the computer's turn, are played by keys as well.
        QTimer volado;
        QObject::connect(&volado, &QTimer::timeout, [] {
            QWidget* abierto = QApplication::activeModalWidget();
            if (abierto != nullptr) QTest::keyClick(abierto, Qt::Key_Return);
        });
        volado.start(0);
        v.Tecla(atajo, Qt::ControlModifier);
        volado.stop();
        EXPECT_EQ(v.partida.Nivel, atajo == Qt::Key_J ? DOS_PERSONAS : PRINCIPIANTE);
        v.partida.Sonido = False;
        v.partida.Nivel = DOS_PERSONAS;
        int turnos = 0;
        while (v.partida.Jugando != False && ++turnos < 600) {
            const Jugada jugada = Elegir(v.partida);
            Integer desde = jugada.origen;
            if (!Es_Punto(desde)) desde = v.partida.Turno == BLANCA ? BARRA_BLANCA : BARRA_CAFE;
            const Integer bandeja = v.partida.Turno == BLANCA ? BANDEJA_BLANCA : BANDEJA_CAFE;
            if (jugada.clase == Jugada::Clase::Pasar) {
                v.Tecla(Qt::Key_F9);
            } else {
                v.Jugar(desde, jugada.clase == Jugada::Clase::Sacar ? bandeja : jugada.destino);
            }
        }
        const Diario diario = v.Leer();
        ASSERT_FALSE(diario.empty());
        EXPECT_TRUE(diario.back() == GANA_BLANCA || diario.back() == GANA_CAFE) << diario.back();
    }
}

}  // namespace
}  // namespace corvanda::pruebas
