#include "ui/dialogos.h"

#include <QMainWindow>
#include <QPalette>

#include "ui/estilo.h"

namespace corvanda::dialogos {

namespace {

constexpr double LETRA = 8.25;  // points, as the layout was drawn for

const QColor GRIS_CLARO(0xdd, 0xda, 0xd4);
const QColor GRIS_OSCURO(0x54, 0x54, 0x54);

// In the middle of the board, as far as it and the frame are known.
void Centrar(QDialog& dialogo) {
    const auto* ventana = qobject_cast<const QMainWindow*>(dialogo.parentWidget());
    if (ventana == nullptr || ventana->centralWidget() == nullptr) return;
    const QWidget& fondo = *ventana->centralWidget();
    const int titulo = ventana->geometry().top() - ventana->frameGeometry().top();
    QRect lugar({}, dialogo.size() + QSize(0, titulo));
    lugar.moveCenter(fondo.mapToGlobal(fondo.rect().center()));
    dialogo.move(lugar.topLeft());
}

}  // namespace

void Preparar(QDialog& dialogo, Escala escala, double ancho, double alto) {
    // The help, which is no part of the game's windows, stays usable beside it.
    dialogo.setWindowModality(Qt::WindowModal);
    dialogo.setFixedSize(escala.Tamano(ancho, alto));
    Centrar(dialogo);
    dialogo.setFont(escala.Letra(LETRA));
    QPalette colores(GRIS_CLARO, GRIS_CLARO);
    colores.setColor(QPalette::Highlight, QColor(0x6b, 0x1f, 0x14));
    // What cannot be used yet is read all the same.
    for (const auto letras : {QPalette::ButtonText, QPalette::WindowText})
        colores.setColor(QPalette::Disabled, letras, GRIS_OSCURO);
    colores.setColor(QPalette::Disabled, QPalette::Text, Qt::black);
    colores.setColor(QPalette::Disabled, QPalette::Base, Qt::white);
    dialogo.setPalette(colores);
}

Letrero* Texto(QDialog& dialogo, const char* nombre, const QString& texto, Sitio sitio,
               Escala escala, const QFont& letra) {
    auto* etiqueta = new Letrero(texto, &dialogo);
    etiqueta->setObjectName(nombre);
    etiqueta->setTextFormat(Qt::PlainText);
    etiqueta->setFont(letra);
    etiqueta->setGeometry(escala.Lugar(sitio.left, sitio.top, sitio.width, sitio.height));
    return etiqueta;
}

QPushButton* Boton(QDialog& dialogo, const char* nombre, const QString& texto, Sitio sitio,
                   Escala escala) {
    auto* boton = new QPushButton(texto, &dialogo);
    boton->setObjectName(nombre);
    Estilo::Vestir(*boton);
    boton->setGeometry(escala.Lugar(sitio.left, sitio.top, sitio.width, sitio.height));
    return boton;
}

void Colorear(QLabel& texto, const QColor& letras) {
    QPalette colores = texto.palette();
    colores.setColor(QPalette::WindowText, letras);
    texto.setPalette(colores);
}

}  // namespace corvanda::dialogos
