#include "ui/cuadro.h"

#include <utility>

namespace corvanda {

Cuadro::Cuadro(QWidget* dialogo, const char* nombre, const QRect& lugar) : QLabel(dialogo) {
    setObjectName(nombre);
    setGeometry(lugar);
}

void Cuadro::Mostrar(Dibujo nuevo) {
    dibujo = std::move(nuevo);
    setPixmap(dibujo(devicePixelRatioF()));
}

void Cuadro::paintEvent(QPaintEvent* evento) {
    const qreal ratio = devicePixelRatioF();
    if (dibujo && pixmap().devicePixelRatio() != ratio) setPixmap(dibujo(ratio));
    QLabel::paintEvent(evento);
}

}  // namespace corvanda
