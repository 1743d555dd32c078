// Every entry of the menus and the close, chosen while each box and dialog is open: accessibility
// clients and global menus reach the main window under what is modal.
#include <QAccessible>
#include <QLineEdit>
#include <QMenu>

#include "tests/ui/ventana.h"

namespace corvanda::pruebas {
namespace {

/// All entries below an object of the accessible tree that can be chosen, by their names.
void Entradas(QAccessibleInterface* raiz, std::map<QString, QAccessibleInterface*>& halladas) {
    for (int i = 0; i < raiz->childCount(); ++i) {
        QAccessibleInterface* hijo = raiz->child(i);
        const auto* accion = qobject_cast<QAction*>(hijo->object());
        if (accion != nullptr && accion->menu() == nullptr && !accion->isSeparator())
            halladas[accion->objectName()] = hijo;
        Entradas(hijo, halladas);
    }
}

struct Abierta {
    std::string nombre;
    const char* posicion;
    std::function<void(Ventana&)> abrir;
    bool pasa;  // whether the pass may be given under it
};

const std::string GANADOR = "winner";

const Abierta ABIERTAS[] = {
    {GANADOR, "B 23x1 | C 12x15 | dice 1 4",
     [](Ventana& v) {
         v.raton.Arrastrar(v.Base(23), v.Centro({Arreglo::Adios, 1}));
     },
     false},
    {"start", "dice 5 4", [](Ventana& v) { v.frm.mnuNew_Click(); }, false},
    {"speed", "dice 5 4", [](Ventana& v) { v.frm.mnuVel_Click(); }, true},
    {"quit", "dice 5 4", [](Ventana& v) { v.frm.close(); }, true},
    {"refusal", "turn C | dice 5 4",
     [](Ventana& v) {
         v.raton.Pulsar(v.Centro({Arreglo::Blanca, 0}));
     },
     true},
};

void Acabar(QWidget& ventana) {
    ventana.objectName() == "FrmVolado" ? Sortear(ventana) : void(ventana.close());
}

TEST(Bajo_Cajas, no_entry_plays_a_game_that_is_over_or_not_begun_or_leaves_it_in_disorder) {
    for (const Abierta& abierta : ABIERTAS) {
        Ventana v(Ventana::Cajas::Reales);
        v.Abrir();
        std::map<QString, QAccessibleInterface*> entradas;
        Entradas(QAccessible::queryAccessibleInterface(&v.frm), entradas);
        ASSERT_EQ(entradas.size(), 11U);
        v.escritorio.Sembrar(1);
        v.vigilante.Siempre(Acabar);
        QLineEdit ayuda;  // a window that is none of the game's own
        ayuda.show();
        for (const auto& [entrada, accesible] : entradas) {
            SCOPED_TRACE(abierta.nombre + ", " + entrada.toStdString());
            v.Poner(abierta.posicion);
            v.vigilante.Esperar([&, entrada = entrada, accesible = accesible](QWidget& ventana) {
                const Partida antes = v.partida;
                const std::size_t cajas = v.vigilante.cajas.size();
                accesible->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
                QTest::keyClick(ayuda.windowHandle(), Qt::Key_A);
                EXPECT_EQ(ayuda.text(), "a") << "the help stays usable";
                ayuda.clear();
                if (entrada == "mnuPasar") {
                    EXPECT_EQ(v.vigilante.cajas.size(), cajas + (abierta.pasa ? 1 : 0));
                    EXPECT_EQ(v.partida, antes);
                }
                Acabar(ventana);
            });
            abierta.abrir(v);
            EXPECT_TRUE(v.vigilante.Gastado());
            EXPECT_EQ(Faltas(v.partida), Diario{});
            EXPECT_FALSE(v.frm.Mesa().A_Medio_Tirar());
            const bool otra = entrada == "mnuNew" || entrada == "mnuVs";
            EXPECT_EQ(v.partida.Jugando, abierta.nombre == GANADOR && !otra ? False : True);
        }
    }
}

}  // namespace
}  // namespace corvanda::pruebas
