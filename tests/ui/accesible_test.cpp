// What a screen reader meets: the board's parts, the dialogs' names, and what is said aloud.
#include <QAccessible>
#include <QDialog>

#include "tests/ui/acceso.h"
#include "ui/frm_volado.h"

namespace corvanda::pruebas {
namespace {

QAccessibleInterface* Accesible_De(QWidget& control) {
    return QAccessible::queryAccessibleInterface(&control);
}

bool escuchando = false;
QString oido;

/// What is said by an event, empty where it says nothing.
QString Frase(const QAccessibleEvent& evento) {
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    if (evento.type() != QAccessible::Announcement) return {};
    return static_cast<const QAccessibleAnnouncementEvent&>(evento).message();
#else
    const QAccessibleInterface* parte = evento.accessibleInterface();
    const bool aviso = parte != nullptr && parte->role() == QAccessible::Notification;
    return aviso && evento.type() == QAccessible::ObjectShow ? parte->text(QAccessible::Name) : "";
#endif
}

// The board's names and focus, and what is said.
void Anotar(const QAccessibleEvent& evento) {
    const QObject* objeto = evento.object();
    if (const QString frase = Frase(evento); !frase.isEmpty()) oido += "says " + frase + '\n';
    if (objeto == nullptr || objeto->objectName() != "Estuche" || evento.child() < 0) return;
    const QString nombre = evento.accessibleInterface()->text(QAccessible::Name) + '\n';
    if (evento.type() == QAccessible::Focus) oido += "focus " + nombre;
    if (evento.type() == QAccessible::NameChanged) oido += "name " + nombre;
}

/// What leaves the program, a line each, while something is done and somebody listens.
std::string Oir(QWidget& ventana, const std::function<void()>& hacer) {
    oido.clear();
    escuchando = true;
    QAccessible::setActive(true);
    hacer();
    QCoreApplication::processEvents();
    EXPECT_TRUE(QTest::qWaitFor([&] { return ventana.findChild<Voz*>()->Callada(); }));
    QAccessible::setActive(false);
    escuchando = false;
    return oido.toStdString();
}

TEST(Accesible, Each_Place_And_Die_Says_What_It_Is) {
    Sin_Raton v("B 0x2 11x1 18x11 bar1 | C 5x5 12x7 bar1 | turn B | dice 4 4 | home C");
    v.partida.Dado[1].Visible = False;
    const std::pair<int, const char*> tabla[] = {
        {0, "Point 1, 2 white chips | Top row, Brown's home board, 1 step to the tray"},
        {12, "Point 13, 7 brown chips | Bottom row"},
        {18, "Point 19, 11 white chips | Bottom row, White's home board, 6 steps to the tray"},
        {25, "White's bar, 1 chip | At the left edge"},
        {26, "White's tray, closed | At the left edge"},
        {27, "Brown's tray, 2 chips | At the left edge"},
        {28, "Left die: 4, for 3 moves | "},
        {29, "Right die: played | "},
    };
    for (const auto& [hijo, esperado] : tabla) {
        QAccessibleInterface* parte = Accesible_De(v.tablero)->child(hijo);
        EXPECT_EQ(parte->text(QAccessible::Name) + " | " + parte->text(QAccessible::Description),
                  esperado);
    }
    v.partida.Turno = NADIE;  // as before the first game
    EXPECT_EQ(Accesible_De(v.tablero)->child(29)->text(QAccessible::Name),
              QString("Right die: not thrown"));
}

TEST(Accesible, The_Parts_Are_Found_And_Tell_Their_State_And_Play_But_Never_Round_A_Box) {
    Sin_Raton v("turn B | dice 4 2");
    QAccessibleInterface* tablero = Accesible_De(v.tablero);
    v.Ir(11);
    v.Teclas("s");
    EXPECT_EQ(tablero->focusChild(), tablero->child(11));
    ASSERT_EQ(tablero->childCount(), 30);
    for (int i = 0; i < tablero->childCount(); ++i) {
        QAccessibleInterface* parte = tablero->child(i);
        EXPECT_EQ(tablero->indexOfChild(parte), i);
        const QPoint medio = parte->rect().center();
        EXPECT_EQ(tablero->childAt(medio.x(), medio.y()), parte) << i;
        EXPECT_EQ(parte->state().focused, i == 11) << i;
        EXPECT_EQ(parte->state().selected, i == 11) << i;
        EXPECT_EQ(parte->state().selectable, i == 0 || i == 11 || i == 16 || i == 18) << i;
    }

    QDialog dialogo(&v.frm);
    dialogo.open();
    QCoreApplication::processEvents();
    for (const int lugar : {0, 0, 4}) {
        tablero->child(lugar)->actionInterface()->doAction(
            QAccessibleActionInterface::pressAction());
        QCoreApplication::processEvents();
        EXPECT_EQ(v.tablero.Arrastrando(), lugar == 0 && !dialogo.isVisible());
        dialogo.hide();
    }
    EXPECT_EQ(Pila_En(v.partida, 4).Cuenta(), 1);
}

TEST(Accesible, What_Changes_Is_Told_As_It_Changes_To_Somebody_Who_Listens) {
    const std::tuple<const char*, const char*, const char*, const char*> tabla[] = {
        // The keys before somebody listens, and those after.
        {"dice 4 2", "u", "r", "focus Point 2, empty\n"},
        {"dice 4 2", "u", "s", "says Chip in hand.\n"},
        {"dice 4 2", "us", "X", "says The chip is put back.\n"},
        {"dice 4 2", "usrrrr", "\n",
         "name Left die: played\nname Point 1, 1 white chip\nname Point 5, 1 white chip\n"
         "says White moves from point 1 to point 5.\n"},
        {"B 18x15 | C 0x2 3x13 | turn C | dice 1 4 | home C", "usH", "\n",
         "name Left die: played\nname Point 1, 1 brown chip\nname Brown's tray, 1 chip\n"
         "says Brown bears off from point 1.\n"},
        {"B 0x15 | C 5x15 | dice 5 5", "", "p",
         "name Left die: 3\nname Right die: 1\nsays White passes. Brown's dice: 3 and 1.\n"},
    };
    for (const auto& [posicion, antes, teclas, oido] : tabla) {
        Sin_Raton v(posicion);
        v.escritorio.Dados({3, 1});
        v.escritorio.Contestar_Siempre();
        v.escritorio.En_El_Pase(3, [] { QCoreApplication::processEvents(); });  // of a throw
        v.Teclas(antes);
        EXPECT_EQ(Oir(v.frm, [&v, que = teclas] { v.Teclas(que); }), oido);
    }
    Sin_Raton v("B 0x15");
    const std::string oido = Oir(v.frm, [&] { v.frm.Mesa().Ordenar(); });
    EXPECT_EQ(oido.find("says"), oido.npos) << "chips that are set up do not move";
}

// The computer plays without a pause: no event is handled between its two moves.
TEST(Accesible, A_Turn_Is_Told_In_The_Order_In_Which_It_Happened) {
    Sin_Raton v("B 18x14 0x1 | C 3x1 12x14 | turn B | dice 3 0");
    v.partida.Nivel = PRINCIPIANTE;
    v.escritorio.Dados({4, 4});
    v.computadora.turno = [](Juego& juego) {
        juego.Poner_Origen(ORIGEN_BARRA_CAFE);
        juego.Mover(CAFE, 0, 20);
        juego.Poner_Origen(12);
        juego.Mover(CAFE, Pila_En(juego.Estado(), 12).Tope(), 8);
    };
    const std::string oido = Oir(v.frm, [&] { v.Jugar(0, 3); });
    EXPECT_EQ(oido.substr(oido.find("says")),
              "says Chip in hand. White moves from point 1 to point 4. Brown's chip on point 4 is "
              "hit. Brown's dice: 4 and 4, a double. Brown enters on point 21. Brown moves from "
              "point 13 to point 9.\n");
}

TEST(Accesible, The_Throw_For_The_Start_Is_Said_Aloud) {
    Sin_Raton v("");
    v.escritorio.Dados({3, 3});
    const Escala escala;
    FrmVolado volado(nullptr, v.partida, v.escritorio, v.escritorio, escala, v.estampas, [] {});
    volado.show();
    for (const char* frase : {"White throws 3.", "Brown throws 3. Equal dice. Throw again."}) {
        EXPECT_EQ(Oir(volado, [&] { QTest::keyClick(&volado, Qt::Key_Return); }),
                  "says " + std::string(frase) + '\n');
    }
}

}  // namespace
}  // namespace corvanda::pruebas

// Everything that leaves the program for screen readers goes through here. The toolkit's own would
// drop it off the screen, where no platform hands it on.
void QAccessible::updateAccessibility(QAccessibleEvent* event) {
    if (corvanda::pruebas::escuchando) corvanda::pruebas::Anotar(*event);
}
