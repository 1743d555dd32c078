// The menu bar, its shortcuts, and what the entries do.
#include <gtest/gtest.h>

#include <QMenu>
#include <QMenuBar>

#include "tests/ui/ventana.h"

namespace corvanda::pruebas {
namespace {

constexpr Qt::KeyboardModifiers CTRL = Qt::ControlModifier;

/// The tree in lines: depth, name, caption, shortcut, "off", "mark" and "checked".
void Escribir(const QWidget& menu, const std::string& sangria, std::vector<std::string>& lineas) {
    for (const QAction* entrada : menu.actions()) {
        std::string linea = sangria + entrada->objectName().toStdString() + " ";
        linea += entrada->isSeparator() ? "-" : "[" + entrada->text().toStdString() + "]";
        if (!entrada->shortcut().isEmpty())
            linea += " " + entrada->shortcut().toString().toStdString();
        if (!entrada->isEnabled()) linea += " off";
        if (entrada->isCheckable()) linea += entrada->isChecked() ? " checked" : " mark";
        lineas.push_back(linea);
        if (entrada->menu() != nullptr) Escribir(*entrada->menu(), sangria + "  ", lineas);
    }
}

std::vector<std::string> Arbol(const Ventana& v) {
    std::vector<std::string> lineas;
    Escribir(*v.frm.menuBar(), "", lineas);
    return lineas;
}

TEST(Menus, the_tree_is_as_designed_and_no_game_changes_it) {
    Ventana v;
    v.Abrir();
    const std::vector<std::string> esperado = {
        "mnuGame [&Game]",
        "  mnuNew [vs. &Player] Ctrl+J",
        "  osd -",
        "  mnuVs [&vs. Computer] Ctrl+C",
        "mnuOpciones [&Options]",
        "  mnuPasar [&Pass] F9",
        "  ojren -",
        "  mnuLevel [Level]",
        "    mnuLev0 [&Beginner] checked",
        "    mnuLev1 -",
        "    mnuLev2 [&Advanced] mark",
        "  eosrkg -",
        "  mnuSonido [&Sound] checked",
        "  dfsd -",
        "  mnuVel [Speed...]",
        "mnuAyuda [&Help]",
        "  mnuCont [&Contents        F1]",
        "  mnuIndice [&Index]",
        "  wefw -",
        "  mnuAcerca [About...]",
        "mnuSalir [E&xit]",
    };
    EXPECT_EQ(Arbol(v), esperado);
    v.Poner("B 23x1 | C 0x1 | dice 6 5");
    v.escritorio.Contestar();
    v.raton.Arrastrar(v.Centro({Arreglo::Blanca, 0}), {375, 5900});
    EXPECT_EQ(v.partida.Jugando, False) << "won";
    EXPECT_EQ(Arbol(v), esperado);
}

TEST(Menus, a_new_game_by_each_way_to_it) {
    const struct {
        const char* que;
        std::function<void(Ventana&)> elige;
        const char* nivel;  // as stored
        Byte Nivel;
        Integer contexto;
    } tabla[] = {
        {"Ctrl+J", [](Ventana& v) { QTest::keyClick(&v.frm, Qt::Key_J, CTRL); }, "Avanzado", 0, 2},
        {"Ctrl+C", [](Ventana& v) { QTest::keyClick(&v.frm, Qt::Key_C, CTRL); }, "Avanzado", 2, 1},
        {"Ctrl+C", [](Ventana& v) { QTest::keyClick(&v.frm, Qt::Key_C, CTRL); }, "Principiante", 1,
         1},
        {"the menu", [](Ventana& v) { v.raton.Elegir("mnuGame", "mnuNew"); }, "Principiante", 0, 2},
        {"the menu", [](Ventana& v) { v.raton.Elegir("mnuGame", "mnuVs"); }, "Avanzado", 2, 1},
    };
    for (const auto& fila : tabla) {
        SCOPED_TRACE(fila.que);
        Ventana v;
        const std::string folder = v.escritorio.Path();
        v.escritorio.almacen[{folder + "\\Corvanda.Ini", "Config", "Nivel"}] = fila.nivel;
        v.Abrir();
        v.escritorio.Dados({6, 1, 5, 4});
        v.vigilante.Esperar([&](QWidget& dialogo) {
            EXPECT_EQ(dialogo.windowTitle(), "Player to Start");
            EXPECT_FALSE(v.partida.Dado[0].Visible);
            Sortear(dialogo);
        });
        fila.elige(v);
        ASSERT_TRUE(QTest::qWaitFor([&] { return v.partida.Jugando == True; }));
        EXPECT_EQ(v.partida.Nivel, fila.Nivel);
        EXPECT_EQ(v.partida.Turno, BLANCA);
        EXPECT_EQ(v.partida.Dado1, 5);
        EXPECT_EQ(v.partida.Dado2, 4);
        v.Leer();
        QTest::keyClick(&v.frm, Qt::Key_F1);
        const std::string ayuda = "ayuda " + folder + "\\corvanda.HLP ";
        EXPECT_EQ(v.Leer(), Diario{ayuda + "1 " + std::to_string(fila.contexto)});
    }
}

TEST(Menus, help_requests_name_the_file_beside_the_program) {
    Ventana v;
    v.Abrir();
    const std::string ayuda = "ayuda " + v.escritorio.Path() + "\\corvanda.HLP ";
    v.raton.Elegir("mnuAyuda", "mnuCont");
    v.raton.Elegir("mnuAyuda", "mnuIndice");
    QTest::keyClick(&v.frm, Qt::Key_F1);
    QTest::keyClick(&v.frm, Qt::Key_F1, Qt::ShiftModifier);
    QTest::keyClick(&v.frm, Qt::Key_F2);
    EXPECT_EQ(v.Leer(), (Diario{ayuda + "3 0", ayuda + "257 0", ayuda + "1 0", ayuda + "1 0"}));
    int acerca = 0;
    v.frm.Poner_Acerca([&acerca] { ++acerca; });
    v.raton.Elegir("mnuAyuda", "mnuAcerca");
    EXPECT_EQ(acerca, 1);
}

TEST(Menus, a_level_is_marked_alone_and_holds_from_now_on) {
    Ventana v;
    v.Abrir();
    EXPECT_EQ(v.partida.Nivel, DOS_PERSONAS);
    const struct {
        const char* entrada;
        Byte Nivel;
    } tabla[] = {{"mnuLev2", AVANZADO},
                 {"mnuLev2", AVANZADO},
                 {"mnuLev0", PRINCIPIANTE},
                 {"mnuLev0", PRINCIPIANTE}};
    for (const auto& fila : tabla) {
        v.Entrada(fila.entrada)->trigger();
        EXPECT_EQ(v.partida.Nivel, fila.Nivel);
        EXPECT_EQ(v.Entrada("mnuLev0")->isChecked(), fila.Nivel == PRINCIPIANTE);
        EXPECT_EQ(v.Entrada("mnuLev2")->isChecked(), fila.Nivel == AVANZADO);
    }
}

TEST(Menus, a_level_chosen_between_two_people_hands_brown_to_the_computer_at_its_next_turn) {
    Guion computadora;
    Ventana v(Ventana::Cajas::Diario, &computadora);
    v.Poner("B 0x1 11x14 | dice 5 0");
    v.escritorio.Dados({3, 2});
    v.Entrada("mnuLev2")->trigger();
    EXPECT_EQ(computadora.turnos, 0);
    v.raton.Arrastrar(v.Centro({Arreglo::Blanca, 14}), v.Base(16));
    EXPECT_EQ(computadora.turnos, 1);
}

TEST(Menus, sound_is_inverted_and_its_mark_follows) {
    Ventana v;
    v.Abrir();
    for (const Boolean esperado : {False, True, False}) {
        v.raton.Elegir("mnuOpciones", "mnuSonido");
        EXPECT_EQ(v.partida.Sonido, esperado);
        EXPECT_EQ(v.Entrada("mnuSonido")->isChecked(), esperado == True);
    }
}

TEST(Menus, pass_by_its_key_and_by_the_menu) {
    Ventana v;
    v.Abrir();
    QTest::keyClick(&v.frm, Qt::Key_F9);
    EXPECT_EQ(v.Leer(), Diario{}) << "no game yet";
    v.Poner("dice 6 5");
    v.escritorio.Contestar();
    v.escritorio.Contestar();
    QTest::keyClick(&v.frm, Qt::Key_F9);
    v.raton.Elegir("mnuOpciones", "mnuPasar");
    const std::string caja = "caja 64 [Corvanda :] You have to play the  6";
    EXPECT_EQ(v.Leer(), (Diario{BIP, caja, BIP, caja}));
}

TEST(Menus, exit_is_a_command_on_the_bar_by_click_and_by_access_key) {
    Ventana v;
    v.Abrir();
    QMenuBar& barra = *v.frm.menuBar();
    for (const bool tecla : {false, true}) {
        v.escritorio.Contestar(button::No);
        if (tecla) {
            QTest::keyClick(&v.frm, Qt::Key_X, Qt::AltModifier);
        } else {
            const QPoint lugar = barra.actionGeometry(v.Entrada("mnuSalir")).center();
            QTest::mouseClick(v.frm.windowHandle(), Qt::LeftButton, {}, barra.mapTo(&v.frm, lugar));
        }
        EXPECT_EQ(v.Leer(), Diario{PREGUNTA});
        EXPECT_TRUE(v.frm.isVisible());
    }
}

}  // namespace
}  // namespace corvanda::pruebas
