#include "ui/menus.h"

#include <QKeySequence>
#include <QMenu>

namespace corvanda {

namespace {

QMenu* Menu(QMenuBar& barra, const char* nombre, const char* titulo) {
    QMenu* menu = barra.addMenu(titulo);
    menu->setObjectName(nombre);
    menu->menuAction()->setObjectName(nombre);
    return menu;
}

QAction* Entrada(QMenu* menu, const QString& nombre, const char* titulo,
                 const QKeySequence& atajo = {}) {
    QAction* entrada = menu->addAction(titulo);
    entrada->setObjectName(nombre);
    entrada->setShortcut(atajo);
    return entrada;
}

QAction* Raya(QMenu* menu, const QString& nombre) {
    QAction* raya = menu->addSeparator();
    raya->setObjectName(nombre);
    return raya;
}

QAction* Marca(QMenu* menu, const QString& nombre, const char* titulo) {
    QAction* entrada = Entrada(menu, nombre, titulo);
    entrada->setCheckable(true);
    return entrada;
}

}  // namespace

Menus::Menus(QMenuBar& barra) {
    Hacer_Juego(barra);
    Hacer_Opciones(barra);
    Hacer_Ayuda(barra);
    mnuSalir = barra.addAction("E&xit");
    mnuSalir->setObjectName("mnuSalir");
}

void Menus::Hacer_Juego(QMenuBar& barra) {
    QMenu* menu = Menu(barra, "mnuGame", "&Game");
    mnuNew = Entrada(menu, "mnuNew", "vs. &Player", QKeySequence("Ctrl+J"));
    Raya(menu, "osd");
    mnuVs = Entrada(menu, "mnuVs", "&vs. Computer", QKeySequence("Ctrl+C"));
}

void Menus::Hacer_Opciones(QMenuBar& barra) {
    QMenu* menu = Menu(barra, "mnuOpciones", "&Options");
    mnuPasar = Entrada(menu, "mnuPasar", "&Pass", QKeySequence("F9"));
    Raya(menu, "ojren");
    QMenu* niveles = menu->addMenu("Level");
    niveles->setObjectName("mnuLevel");
    niveles->menuAction()->setObjectName("mnuLevel");
    for (std::size_t i = 0; i < mnuLev.size(); ++i) {
        const QString nombre = QString("mnuLev%1").arg(i);
        mnuLev[i] =
            i % 2 == 1 ? Raya(niveles, nombre) : Marca(niveles, nombre, NIVELES[i / 2].titulo);
    }
    Raya(menu, "eosrkg");
    mnuSonido = Marca(menu, "mnuSonido", "&Sound");
    mnuSonido->setEnabled(false);
    Raya(menu, "dfsd");
    mnuVel = Entrada(menu, "mnuVel", "Speed...");
}

void Menus::Hacer_Ayuda(QMenuBar& barra) {
    QMenu* menu = Menu(barra, "mnuAyuda", "&Help");
    // The key in the caption is text only: the window itself answers F1, with another topic.
    mnuCont = Entrada(menu, "mnuCont", "&Contents        F1");
    mnuIndice = Entrada(menu, "mnuIndice", "&Index");
    Raya(menu, "wefw");
    mnuAcerca = Entrada(menu, "mnuAcerca", "About...");
}

void Menus::Marcar_Nivel(Integer marca) {
    for (std::size_t i = 0; i < mnuLev.size(); i += 2) {
        mnuLev[i]->setChecked(static_cast<Integer>(i) == marca);
    }
}

const Nivel_Del_Menu& Menus::Nivel_Marcado() const {
    std::size_t fila = 0;
    while (fila + 1 < NIVELES.size() && !mnuLev[2 * fila]->isChecked()) ++fila;
    return NIVELES[fila];
}

}  // namespace corvanda
