// What a screen reader could not name.
#pragma once

#include <QAccessible>
#include <QWidget>
#include <string>

namespace corvanda::pruebas {

inline void Juntar_Sin_Nombre(const QAccessibleInterface& parte, std::string& lista) {
    const QAccessible::State estado = parte.state();
    if (estado.invisible) return;
    const bool importa = estado.focusable || parte.role() == QAccessible::Graphic;
    if (importa && parte.text(QAccessible::Name).isEmpty()) {
        const QObject* objeto = parte.object();
        lista += objeto != nullptr ? objeto->metaObject()->className() : "part";
        lista += objeto != nullptr ? " " + objeto->objectName().toStdString() + "; " : "; ";
    }
    for (int i = 0; i < parte.childCount(); ++i) {
        if (parte.child(i) != nullptr) Juntar_Sin_Nombre(*parte.child(i), lista);
    }
}

/// The controls and pictures of a window that are shown and have no name for a screen reader.
inline std::string Sin_Nombre(QWidget& ventana) {
    std::string lista;
    Juntar_Sin_Nombre(*QAccessible::queryAccessibleInterface(&ventana), lista);
    return lista;
}

}  // namespace corvanda::pruebas
