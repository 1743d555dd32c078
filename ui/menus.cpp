#include "ui/menus.h"

#include <QKeySequence>
#include <QMenu>

namespace corvanda {

namespace {

// With large fonts the toolkit's own style needs more room beside a caption than it asks for.
void Ensanchar(QMenu* menu) {
    menu->setMinimumWidth(menu->sizeHint().width() + menu->fontMetrics().height());
}

QMenu* Nombrar(QMenu* menu, const char* nombre) {
    menu->setObjectName(nombre);
    menu->menuAction()->setObjectName(nombre);
    QObject::connect(
        menu, &QMenu::aboutToShow, menu, [menu] { Ensanchar(menu); }, Qt::SingleShotConnection);
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
    QMenu* menu = Nombrar(barra.addMenu("&Game"), "mnuGame");
    mnuNew = Entrada(menu, "mnuNew", "vs. &Player", QKeySequence("Ctrl+J"));
    Raya(menu, "osd");
    mnuVs = Entrada(menu, "mnuVs", "&vs. Computer", QKeySequence("Ctrl+C"));
}

void Menus::Hacer_Opciones(QMenuBar& barra) {
    QMenu* menu = Nombrar(barra.addMenu("&Options"), "mnuOpciones");
    mnuPasar = Entrada(menu, "mnuPasar", "&Pass", QKeySequence("F9"));
    Raya(menu, "ojren");
    QMenu* niveles = Nombrar(menu->addMenu("Level"), "mnuLevel");
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
    QMenu* menu = Nombrar(barra.addMenu("&Help"), "mnuAyuda");
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
