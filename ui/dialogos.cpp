#include "ui/dialogos.h"

#include <QPalette>

namespace corvanda::dialogos {

namespace {

constexpr double LETRA = 8.25;  // points, as the layout was drawn for

}  // namespace

void Preparar(QDialog& dialogo, Escala escala, double ancho, double alto) {
    dialogo.setFixedSize(escala.Tamano(ancho, alto));
    dialogo.setFont(escala.Letra(LETRA));
    QPalette colores(QColor(0xdd, 0xda, 0xd4), QColor(0xdd, 0xda, 0xd4));
    colores.setColor(QPalette::Highlight, QColor(0x6b, 0x1f, 0x14));
    dialogo.setPalette(colores);
}

QLabel* Texto(QDialog& dialogo, const char* nombre, const QString& texto, Sitio sitio,
              Escala escala, const QFont& letra) {
    auto* etiqueta = new QLabel(texto, &dialogo);
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
    boton->setGeometry(escala.Lugar(sitio.left, sitio.top, sitio.width, sitio.height));
    return boton;
}

void Colorear(QLabel& texto, const QColor& letras, const QColor& placa) {
    QPalette colores = texto.palette();
    colores.setColor(QPalette::WindowText, letras);
    if (placa.isValid()) colores.setColor(QPalette::Window, placa);
    texto.setPalette(colores);
    texto.setAutoFillBackground(placa.isValid());
}

}  // namespace corvanda::dialogos
