#include "ui/menus.h"

#include <QKeySequence>
#include <QMenu>
#include <algorithm>

namespace corvanda {

namespace {

QMenu* Menu(QMenuBar& barra, const char* nombre, const char* titulo) {
    QMenu* menu = barra.addMenu(titulo);
    menu->setObjectName(nombre);
    menu->menuAction()->setObjectName(nombre);
    return menu;
}

QAction* Entrada(QMenu* menu, const char* nombre, const char* titulo,
                 const QKeySequence& atajo = {}) {
    QAction* entrada = menu->addAction(titulo);
    entrada->setObjectName(nombre);
    entrada->setShortcut(atajo);
    return entrada;
}

QAction* Raya(QMenu* menu, const char* nombre) {
    QAction* raya = menu->addSeparator();
    raya->setObjectName(nombre);
    return raya;
}

QAction* Marca(QMenu* menu, const char* nombre, const char* titulo) {
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
    mnuLev[0] = Marca(niveles, "mnuLev0", "&Beginner");
    mnuLev[1] = Raya(niveles, "mnuLev1");
    mnuLev[2] = Marca(niveles, "mnuLev2", "&Advanced");
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
    for (const Nivel_Del_Menu& cada : NIVELES) {
        mnuLev.at(static_cast<std::size_t>(cada.marca))->setChecked(cada.marca == marca);
    }
}

const Nivel_Del_Menu& Menus::Nivel_Marcado() const {
    return *std::find_if(NIVELES.begin(), NIVELES.end() - 1, [this](const Nivel_Del_Menu& cada) {
        return mnuLev.at(static_cast<std::size_t>(cada.marca))->isChecked();
    });
}

}  // namespace corvanda
