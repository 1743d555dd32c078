// What the game's dialogs share: a fixed inner size in twips, their colours, and labels and buttons
// placed by the layout.
#pragma once

#include <QDialog>
#include <QPushButton>

#include "ui/escala.h"
#include "ui/letrero.h"

namespace corvanda::dialogos {

/// Inner size in twips, in the middle of the board, fixed border, light grey ground whatever the
/// desktop's theme is.
void Preparar(QDialog& dialogo, Escala escala, double ancho, double alto);

struct Sitio {
    double left, top, width, height;  ///< twips
};

Letrero* Texto(QDialog& dialogo, const char* nombre, const QString& texto, Sitio sitio,
               Escala escala, const QFont& letra);
QPushButton* Boton(QDialog& dialogo, const char* nombre, const QString& texto, Sitio sitio,
                   Escala escala);
/// The colour of a label's letters.
void Colorear(QLabel& texto, const QColor& letras);

}  // namespace corvanda::dialogos
