// What a screen reader meets: the board's parts, the dialogs' names, and what is said aloud.
#include <QAccessible>
#include <QDialog>

#include "tests/apoyo/mesa.h"
#include "tests/ui/acceso.h"
#include "ui/anuncios.h"
#include "ui/estuche_accesible.h"
#include "ui/form1.h"
#include "ui/frm_about.h"
#include "ui/frm_volado.h"

namespace corvanda::pruebas {
namespace {

using Frases = std::vector<std::string>;

/// Somebody who listens to a window, from now on; without a screen nobody else does.
class Accesible : public testing::Test {
  protected:
    ~Accesible() override { QAccessible::setActive(false); }

    void Escuchar(const QWidget& ventana) {
        QAccessible::setActive(true);
        voz = ventana.findChild<Voz*>();
        QObject::connect(voz, &Voz::dicho, [this](const QString& frase) {
            oidos.push_back("says " + frase.toStdString());
        });
    }
    void Escuchar(Sin_Raton& v) {
        Escuchar(v.frm);
        QObject::connect(
            &v.frm.Relator(), &Locutor::avisado, [this, &v](QAccessible::Event que, int hijo) {
                const QString nombre = Tablero(v)->child(hijo)->text(QAccessible::Name);
                oidos.push_back((que == QAccessible::Focus ? "focus " : "name ") +
                                nombre.toStdString());
            });
    }
    Frases Oir() {
        QCoreApplication::processEvents();
        EXPECT_TRUE(QTest::qWaitFor([this] { return voz->Callada(); }));
        return std::exchange(oidos, {});
    }
    static QAccessibleInterface* Tablero(Sin_Raton& v) {
        return QAccessible::queryAccessibleInterface(&v.Tablero());
    }

    Frases oidos;
    Voz* voz = nullptr;
};

TEST_F(Accesible, Each_Place_And_Die_Says_What_It_Is) {
    Sin_Raton v("B 0x2 11x1 18x11 bar1 | C 5x5 12x7 0x0 bar1 | turn B | dice 4 4 | home C");
    const std::pair<int, const char*> tabla[] = {
        {0, "Point 1, 2 white chips | Top row, Brown's home board, 1 step to the tray"},
        {5, "Point 6, 5 brown chips | Top row, Brown's home board, 6 steps to the tray"},
        {6, "Point 7, empty | Top row"},
        {11, "Point 12, 1 white chip | Top row"},
        {12, "Point 13, 7 brown chips | Bottom row"},
        {18, "Point 19, 11 white chips | Bottom row, White's home board, 6 steps to the tray"},
        {23, "Point 24, empty | Bottom row, White's home board, 1 step to the tray"},
        {24, "Brown's bar, 1 chip | At the left edge"},
        {25, "White's bar, 1 chip | At the left edge"},
        {26, "White's tray, closed | At the left edge"},
        {27, "Brown's tray, 2 chips | At the left edge"},
        {28, "Left die: 4, for 3 moves | "},
        {29, "Right die: 4 | "},
    };
    QAccessibleInterface* tablero = Tablero(v);
    ASSERT_EQ(tablero->childCount(), 30);
    for (const auto& [hijo, esperado] : tabla) {
        QAccessibleInterface* parte = tablero->child(hijo);
        EXPECT_EQ((parte->text(QAccessible::Name) + " | " + parte->text(QAccessible::Description))
                      .toStdString(),
                  esperado);
    }
    v.Poner("B 18x15 | turn B | dice 0 3");
    EXPECT_EQ(tablero->child(28)->text(QAccessible::Name), "Left die: played");
}

TEST_F(Accesible, The_Tree_Leads_Down_And_Up_And_To_What_Is_Under_A_Pixel) {
    Sin_Raton v("turn B | dice 4 2");
    QAccessibleInterface* tablero = Tablero(v);
    for (int i = 0; i < tablero->childCount(); ++i) {
        QAccessibleInterface* parte = tablero->child(i);
        ASSERT_NE(parte, nullptr);
        EXPECT_EQ(parte->parent(), tablero);
        EXPECT_EQ(tablero->indexOfChild(parte), i);
        EXPECT_TRUE(tablero->rect().contains(parte->rect()));
        const QPoint medio = parte->rect().center();
        EXPECT_EQ(tablero->indexOfChild(tablero->childAt(medio.x(), medio.y())), i);
    }
    for (const int fuera : {-1, 30}) EXPECT_EQ(tablero->child(fuera), nullptr);
    EXPECT_EQ(tablero->childAt(-5, -5), nullptr);
}

TEST_F(Accesible, States_Tell_Where_The_Keyboard_Is_And_What_May_Be_Taken) {
    Sin_Raton v("turn B | dice 4 2");
    QAccessibleInterface* tablero = Tablero(v);
    EXPECT_EQ(tablero->focusChild(), nullptr);
    v.Ir(11);
    EXPECT_EQ(tablero->focusChild(), tablero->child(11));
    for (int i = 0; i < lugares::CUANTOS; ++i) {
        const QAccessible::State estado = tablero->child(i)->state();
        EXPECT_EQ(estado.focused, i == 11) << i;
        EXPECT_EQ(estado.selectable, i == 0 || i == 11 || i == 16 || i == 18) << i;
        EXPECT_FALSE(estado.selected) << i;
    }
    v.Tecla(Qt::Key_Space);
    EXPECT_TRUE(tablero->child(11)->state().selected);
}

TEST_F(Accesible, What_Changes_Is_Told_As_It_Changes) {
    Sin_Raton v("turn B | dice 4 2");
    v.Ir(10);
    Escuchar(v);
    v.Teclas("rs");
    EXPECT_EQ(Oir(), (Frases{"focus Point 12, 5 white chips", "says Chip in hand."}));
    v.Teclas("d");
    EXPECT_EQ(Oir(), Frases{"focus Point 13, 5 brown chips"});
    v.Teclas("X");
    EXPECT_EQ(Oir(), Frases{"says The chip is put back."});
    v.Jugar(0, 4);
    Frases tras = Oir();
    std::erase_if(tras, [](const auto& suceso) { return suceso.starts_with("focus"); });
    EXPECT_EQ(tras, (Frases{"name Left die: played", "name Point 1, 1 white chip",
                            "name Point 5, 1 white chip",
                            "says Chip in hand. White moves from point 1 to point 5."}));
}

TEST_F(Accesible, A_Turn_Is_Told_In_The_Order_In_Which_It_Happened) {
    Sin_Raton v("B 18x14 0x1 | C 3x1 12x14 | turn B | dice 3 0");
    v.partida.Nivel = PRINCIPIANTE;
    v.escritorio.Dados({4, 4, 2, 1});
    // The computer plays without a pause: no event is handled between its two moves.
    v.computadora.turno = [](Juego& juego) {
        juego.Poner_Origen(ORIGEN_BARRA_CAFE);
        juego.Mover(CAFE, 0, 20);
        juego.Poner_Origen(12);
        juego.Mover(CAFE, Pila_En(juego.Estado(), 12).Tope(), 8);
        juego.mnuPasar_Click();
    };
    v.escritorio.Contestar_Siempre();
    Escuchar(v);
    v.Jugar(0, 3);
    Frases dicho = Oir();
    std::erase_if(dicho, [](const auto& suceso) { return !suceso.starts_with("says"); });
    EXPECT_EQ(dicho, (Frases{"says Chip in hand. White moves from point 1 to point 4. Brown's chip "
                             "on point 4 is hit. Brown's dice: 4 and 4, a double. Brown enters on "
                             "point 21. Brown moves from point 13 to point 9."}));
}

TEST(Anuncios, Two_Positions_Say_What_Lies_Between_Them) {
    struct Fila {
        const char* posicion;
        const char* manos;
        const char* frase;
    };
    const Fila tabla[] = {
        {"turn B | dice 4 2", "0/4", "White moves from point 1 to point 5."},
        {"turn C | dice 4 2", "23/19", "Brown moves from point 24 to point 20."},
        {"B 18x14 bar1 | turn B | dice 4 2", "bar/3", "White enters on point 4."},
        {"B 18x14 0x1 | C 12x14 3x1 | turn B | dice 3 1", "0/3",
         "White moves from point 1 to point 4. Brown's chip on point 4 is hit."},
        {"B 19x15 | turn B | dice 5 2 | home B", "19/A1", "White bears off from point 20."},
        {"C 2x15 | turn C | dice 3 2 | home C", "2/A0", "Brown bears off from point 3."},
        {"turn B | dice 4 2", "0/9", ""},
    };
    for (const Fila& fila : tabla) {
        Mesa mesa(fila.posicion);
        const Partida antes = mesa.partida;
        mesa.Hacer(fila.manos);
        EXPECT_EQ(anuncios::Jugadas(antes, mesa.partida).toStdString(), fila.frase);
    }
    Mesa mesa("B 0x15 | turn B | dice 4 2");
    const Partida antes = mesa.partida;
    mesa.juego.Ordenar();
    EXPECT_EQ(anuncios::Jugadas(antes, mesa.partida), "") << "chips that are set up do not move";
}

TEST(Anuncios, A_Throw_Tells_Of_The_Pass_Before_It) {
    const std::tuple<const char*, const char*, const char*> tabla[] = {
        {"turn B | dice 5 2", "C 12x15 | turn C | dice 6 1",
         "White passes. Brown's dice: 6 and 1."},
        {"turn B | dice 0 0", "C 12x15 | turn C | dice 6 1", "Brown's dice: 6 and 1."},
        {"turn C | dice 0 3", "C 12x15 | turn B | dice 2 2",
         "Brown passes. White's dice: 2 and 2, a double."},
        {"turn C | dice 6 3", "turn B | dice 2 1", "White's dice: 2 and 1."},  // a new game
    };
    for (const auto& [antes, ahora, frase] : tabla)
        EXPECT_EQ(anuncios::Tiro(Mesa(antes).partida, Mesa(ahora).partida).toStdString(), frase);
}

TEST_F(Accesible, A_Press_Plays_As_A_Hand_Does_But_Never_Round_A_Box) {
    Sin_Raton v("turn B | dice 4 2");
    const auto pulsar = [&](int lugar) {
        QAccessibleInterface* parte = Tablero(v)->child(lugar);
        parte->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCoreApplication::processEvents();
    };
    {
        QDialog dialogo(&v.frm);
        dialogo.setModal(true);
        dialogo.show();
        pulsar(0);
        EXPECT_FALSE(v.Tablero().Arrastrando());
    }
    pulsar(0);
    EXPECT_TRUE(v.Tablero().Arrastrando());
    pulsar(4);
    EXPECT_EQ(Pila_En(v.partida, 4).Cuenta(), 1);
    EXPECT_EQ(Dados_De(v.partida), "0 2*");
}

TEST_F(Accesible, Nothing_Is_Said_While_Nobody_Listens) {
    Sin_Raton v("turn B | dice 2 2");
    v.Jugar(0, 2);
    QCoreApplication::processEvents();
    EXPECT_TRUE(v.frm.findChild<Voz*>()->Callada());
    // Who comes later hears of what happens from then on.
    Escuchar(v);
    v.Jugar(11, 13);
    EXPECT_EQ(Oir().back(), "says Chip in hand. White moves from point 12 to point 14.");
}

struct Sin_Cine final : MediaControl, MousePointer, App {
    long mciSendString(const std::string& /*orden*/, std::string& respuesta) override {
        respuesta.clear();
        return 1;
    }
    void SetShape(PointerShape /*forma*/) override {}
    std::string Path() const override { return "/"; }
    std::string EXEName() const override { return "corvanda"; }
};

TEST_F(Accesible, Every_Control_Of_Every_Dialog_Has_A_Name) {
    Escritorio escritorio;
    Partida partida = Diseno();
    Estampas estampas(QCoreApplication::applicationDirPath() + "/imagenes");
    const Escala escala;
    Integer veces = 0;
    Sin_Cine cine;
    FrmVolado volado(nullptr, partida, escritorio, escala, estampas, [] {});
    Form1 velocidad(nullptr, partida, escala, estampas);
    FrmAbout acerca(nullptr, veces, {cine, cine, cine}, escala, "/", [] {});
    acerca.Mostrar_Direccion();
    for (QWidget* dialogo : std::initializer_list<QWidget*>{&volado, &velocidad, &acerca}) {
        for (QWidget* control : dialogo->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
            if (control->objectName() == "Voz" || control->objectName() == "Label1") continue;
            const QString nombre =
                QAccessible::queryAccessibleInterface(control)->text(QAccessible::Name);
            EXPECT_NE(nombre, "") << dialogo->objectName().toStdString() << ' '
                                  << control->objectName().toStdString();
        }
    }
}

TEST_F(Accesible, The_Throw_For_The_Start_Is_Said_Aloud) {
    Escritorio escritorio;
    escritorio.Dados({3, 3, 2, 5});
    Partida partida = Diseno();
    Estampas estampas(QCoreApplication::applicationDirPath() + "/imagenes");
    const Escala escala;
    FrmVolado dialogo(nullptr, partida, escritorio, escala, estampas, [] {});
    dialogo.show();
    Escuchar(dialogo);
    const char* frases[] = {"says White throws 3.", "says Brown throws 3. Equal dice. Throw again.",
                            "says White throws 2.",
                            "says Brown throws 5. The player with Brown Chips starts"};
    for (const char* frase : frases) {
        QTest::keyClick(&dialogo, Qt::Key_Return);
        EXPECT_EQ(Oir(), Frases{frase});
    }
}

}  // namespace
}  // namespace corvanda::pruebas
