// The menu bar, its shortcuts, and what the entries do.
#include <QApplication>

#include "tests/ui/ventana.h"

namespace corvanda::pruebas {
namespace {

/// Chooses by the letters that the captions offer: that of the bar with Alt, then that of the menu.
void Por_Letras(Ventana& v, const char* letras) {
    QTest::keyClick(&v.frm, letras[0], Qt::AltModifier);
    if (letras[1] == '\0') return;
    QWidget* menu = QApplication::activePopupWidget();
    ASSERT_NE(menu, nullptr) << letras;
    QTest::keyClick(menu, letras[1]);
}

TEST(Menus, A_New_Game_By_Its_Key_By_Letters_And_By_The_Mouse) {
    const struct {
        const char *como, *nivel;
        Byte Nivel;
        const char* contexto;
    } tabla[] = {
        {"Ctrl+J", "Avanzado", DOS_PERSONAS, "2"},     {"Ctrl+C", "Avanzado", AVANZADO, "1"},
        {"gp", "Avanzado", DOS_PERSONAS, "2"},         {"gv", "Avanzado", AVANZADO, "1"},
        {"mnuNew", "Principiante", DOS_PERSONAS, "2"}, {"mnuVs", "Principiante", PRINCIPIANTE, "1"},
    };
    for (const auto& fila : tabla) {
        SCOPED_TRACE(fila.como);
        Ventana v;
        const std::string folder = v.escritorio.Path();
        v.escritorio.almacen[{folder + "\\Corvanda.Ini", "Config", "Nivel"}] = fila.nivel;
        v.Abrir();
        v.escritorio.Dados({6, 1, 5, 4});
        const Diario ayuda{"ayuda " + folder + "\\corvanda.HLP 1 " + fila.contexto};
        v.vigilante.Esperar([&](QWidget& dialogo) {
            v.Leer();
            QTest::keyClick(&dialogo, Qt::Key_F1);
            EXPECT_EQ(v.Leer(), ayuda) << "the help knows of the game before it begins";
            Sortear(dialogo);
        });
        const std::string como = fila.como;
        if (como.starts_with("mnu")) v.raton.Elegir("mnuGame", fila.como);
        if (como.starts_with("Ctrl")) QTest::keyClick(&v.frm, como.back(), Qt::ControlModifier);
        if (como.size() == 2) Por_Letras(v, fila.como);
        ASSERT_TRUE(QTest::qWaitFor([&] { return v.partida.Jugando == True; }));
        EXPECT_EQ(v.partida.Nivel, fila.Nivel);
        v.Leer();
        QTest::keyClick(&v.frm, Qt::Key_F1);
        EXPECT_EQ(v.Leer(), ayuda);
    }
}

TEST(Menus, The_Other_Entries_Do_What_They_Say) {
    Guion computadora;
    Ventana v(Ventana::Cajas::Diario, &computadora);
    v.Poner("B 0x1 11x14 | dice 6 5");
    int acerca = 0;
    v.frm.Poner_Acerca([&acerca] { ++acerca; });
    const std::string ayuda = "ayuda " + v.escritorio.Path() + "\\corvanda.HLP ";
    const Diario pase{BIP, "caja 64 [Corvanda :] You have to play the  6"};
    const struct {
        const char *menu, *entrada;  // without a menu: by letters
        Qt::Key tecla;               // or by this key
        Diario diario;
    } tabla[] = {
        {"mnuAyuda", "mnuCont", {}, {ayuda + "3 0"}},
        {nullptr, "hc", {}, {ayuda + "3 0"}},
        {"mnuAyuda", "mnuIndice", {}, {ayuda + "257 0"}},
        {nullptr, "hi", {}, {ayuda + "257 0"}},
        {"mnuAyuda", "mnuAcerca", {}, {}},
        {nullptr, "", Qt::Key_F1, {ayuda + "1 0"}},
        {nullptr, "", Qt::Key_F2, {}},
        {"mnuOpciones", "mnuPasar", {}, pase},
        {nullptr, "op", {}, pase},
        {nullptr, "", Qt::Key_F9, pase},
        {nullptr, "os", {}, {}},
        {nullptr, "x", {}, {PREGUNTA}},
    };
    for (const auto& fila : tabla) {
        if (!fila.diario.empty() && fila.diario.back().starts_with("caja"))
            v.escritorio.Contestar(button::No);
        if (fila.menu != nullptr) {
            v.raton.Elegir(fila.menu, fila.entrada);
        } else if (*fila.entrada != '\0') {
            Por_Letras(v, fila.entrada);
        } else {
            QTest::keyClick(&v.frm, fila.tecla);
        }
        EXPECT_EQ(v.Leer(), fila.diario) << fila.entrada << fila.tecla;
    }
    EXPECT_EQ(acerca, 1);
    EXPECT_EQ(v.partida.Sonido, True) << "inverted";
    EXPECT_TRUE(v.Entrada("mnuSonido")->isChecked());
    for (const Byte nivel : {AVANZADO, AVANZADO, PRINCIPIANTE, AVANZADO}) {
        v.Entrada(nivel == AVANZADO ? "mnuLev2" : "mnuLev0")->trigger();
        EXPECT_EQ(v.partida.Nivel, nivel);
        EXPECT_EQ(v.Entrada("mnuLev0")->isChecked(), nivel == PRINCIPIANTE);
        EXPECT_EQ(v.Entrada("mnuLev2")->isChecked(), nivel == AVANZADO);
    }
    v.Poner("B 0x1 11x14 | dice 5 0");
    v.escritorio.Dados({3, 2});
    v.raton.Arrastrar(v.Centro({Arreglo::Blanca, 14}), v.Base(16));
    EXPECT_EQ(computadora.turnos, 1) << "a level hands Brown to the computer at its next turn";
}

}  // namespace
}  // namespace corvanda::pruebas
