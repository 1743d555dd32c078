// The menu bar, its shortcuts, and what the entries do.
#include <QDir>
#include <QFile>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>

#include "fuentes.h"
#include "tests/ui/ventana.h"

namespace corvanda::pruebas {
namespace {

/// The captions of a menu and of all below it, as a text names them: "Options > Level".
void Juntar(const QWidget& menu, const QString& camino, QStringList& titulos) {
    for (const QAction* entrada : menu.actions()) {
        const QString titulo =
            camino + entrada->text().remove('&').remove("...").section("  ", 0, 0);
        titulos << titulo;
        if (entrada->menu() != nullptr) Juntar(*entrada->menu(), titulo + " > ", titulos);
    }
}

TEST(Menus, what_the_help_and_the_readme_tell_to_choose_can_be_chosen) {
    const Ventana v;
    QStringList titulos;
    Juntar(*v.frm.menuBar(), "", titulos);
    const QDir fuentes(CORVANDA_FUENTES);
    QStringList archivos{fuentes.filePath("README.md")};
    for (const QFileInfo& pagina : QDir(fuentes.filePath("ayuda")).entryInfoList({"*.html"}))
        archivos << pagina.filePath();
    int nombradas = 0;
    for (const QString& nombre : archivos) {
        QFile archivo(nombre);
        ASSERT_TRUE(archivo.open(QIODevice::ReadOnly)) << nombre.toStdString();
        const QString texto = QString::fromUtf8(archivo.readAll()).replace("&gt;", ">");
        static const QRegularExpression negrita(R"((?:<b>|\*\*)(\w+ > [^<*]+)(?:</b>|\*\*))");
        for (auto cada = negrita.globalMatch(texto); cada.hasNext(); ++nombradas) {
            const QString entrada = cada.next().captured(1).simplified();
            EXPECT_TRUE(titulos.contains(entrada))
                << nombre.toStdString() << ": " << entrada.toStdString();
        }
    }
    EXPECT_GT(nombradas, 10);
}

TEST(Menus, a_new_game_by_its_key_and_by_the_menu) {
    const struct {
        Qt::Key tecla;  // without one: by the menu
        const char *entrada, *nivel;
        Byte Nivel;
        const char* contexto;
    } tabla[] = {
        {Qt::Key_J, "", "Avanzado", DOS_PERSONAS, "2"},
        {Qt::Key_C, "", "Avanzado", AVANZADO, "1"},
        {{}, "mnuNew", "Principiante", DOS_PERSONAS, "2"},
        {{}, "mnuVs", "Principiante", PRINCIPIANTE, "1"},
    };
    for (const auto& fila : tabla) {
        SCOPED_TRACE(std::string(fila.nivel) + " " + fila.contexto);
        Ventana v;
        const std::string folder = v.escritorio.Path();
        v.escritorio.almacen[{folder + "\\Corvanda.Ini", "Config", "Nivel"}] = fila.nivel;
        v.Abrir();
        v.escritorio.Dados({6, 1, 5, 4});
        v.vigilante.Esperar(Sortear);
        if (*fila.entrada != '\0') v.raton.Elegir("mnuGame", fila.entrada);
        if (*fila.entrada == '\0') QTest::keyClick(&v.frm, fila.tecla, Qt::ControlModifier);
        ASSERT_TRUE(QTest::qWaitFor([&] { return v.partida.Jugando == True; }));
        EXPECT_EQ(v.partida.Nivel, fila.Nivel);
        v.Leer();
        QTest::keyClick(&v.frm, Qt::Key_F1);
        EXPECT_EQ(v.Leer(), Diario{"ayuda " + folder + "\\corvanda.HLP 1 " + fila.contexto});
    }
}

TEST(Menus, the_other_entries_do_what_they_say) {
    Guion computadora;
    Ventana v(Ventana::Cajas::Diario, &computadora);
    v.Poner("B 0x1 11x14 | dice 6 5");
    int acerca = 0;
    v.frm.Poner_Acerca([&acerca] { ++acerca; });
    const std::string ayuda = "ayuda " + v.escritorio.Path() + "\\corvanda.HLP ";
    const Diario pase{BIP, "caja 64 [Corvanda :] You have to play the  6"};
    const struct {
        const char *menu, *entrada;  // without a menu: by its key
        Qt::Key tecla;
        Diario diario;
    } tabla[] = {
        {"mnuAyuda", "mnuCont", {}, {ayuda + "3 0"}},
        {"mnuAyuda", "mnuIndice", {}, {ayuda + "257 0"}},
        {"mnuAyuda", "mnuAcerca", {}, {}},
        {nullptr, "", Qt::Key_F1, {ayuda + "1 0"}},
        {nullptr, "", Qt::Key_F2, {}},
        {"mnuOpciones", "mnuPasar", {}, pase},
        {nullptr, "", Qt::Key_F9, pase},
        {"mnuOpciones", "mnuSonido", {}, {}},
        {nullptr, "", Qt::Key_X, {PREGUNTA}},
        {"mnuSalir", "", {}, {PREGUNTA}},
    };
    for (const auto& fila : tabla) {
        const bool pregunta = fila.diario == Diario{PREGUNTA};
        if (pregunta || fila.diario == pase) v.escritorio.Contestar(button::No);
        if (fila.menu == nullptr) {
            QTest::keyClick(&v.frm, fila.tecla, pregunta ? Qt::AltModifier : Qt::NoModifier);
        } else if (*fila.entrada != '\0') {
            v.raton.Elegir(fila.menu, fila.entrada);
        } else {
            v.Entrada(fila.menu)->trigger();
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
