#include "ui/fondo.h"

#include <QPainter>

#include "ui/paleta.h"

namespace corvanda {

namespace {

constexpr int OSCURIDAD = 150;  // of 255, right at the case

void Oscurecer(QGradient& sombra) {
    for (const qreal t : {0.0, 0.25, 0.5, 0.75, 1.0}) {
        QColor color = paleta::SOMBRA;
        color.setAlpha(static_cast<int>(OSCURIDAD * (1 - t) * (1 - t)));
        sombra.setColorAt(t, color);
    }
}

}  // namespace

Fondo::Fondo(QWidget* ventana) : QWidget(ventana) {
    QPalette colores = palette();
    colores.setColor(QPalette::Window, paleta::ROJO_OSCURO);
    setPalette(colores);
    setAutoFillBackground(true);
}

void Fondo::Poner(const QWidget& nuevo, int largo) {
    estuche = &nuevo;
    alcance = largo;
}

// The light comes from the upper left: four bands along the sides and a fan at each corner.
void Fondo::paintEvent(QPaintEvent* /*evento*/) {
    if (estuche == nullptr || !estuche->isVisible()) return;
    const QRectF bulto = QRectF(estuche->geometry())
                             .adjusted(alcance / 2.0, alcance / 2.0, 0, 0)
                             .translated(alcance / 8.0, alcance / 6.0);
    QPainter pintor(this);
    const auto banda = [&](const QRectF& donde, QPointF desde, QPointF hasta) {
        QLinearGradient sombra(desde, hasta);
        Oscurecer(sombra);
        pintor.fillRect(donde, sombra);
    };
    QColor debajo = paleta::SOMBRA;
    debajo.setAlpha(OSCURIDAD);
    pintor.fillRect(bulto, debajo);
    const qreal a = alcance;
    banda({bulto.right(), bulto.top(), a, bulto.height()}, bulto.topRight(),
          bulto.topRight() + QPointF(a, 0));
    banda({bulto.left(), bulto.bottom(), bulto.width(), a}, bulto.bottomLeft(),
          bulto.bottomLeft() + QPointF(0, a));
    banda({bulto.left() - a, bulto.top(), a, bulto.height()}, bulto.topLeft(),
          bulto.topLeft() - QPointF(a, 0));
    banda({bulto.left(), bulto.top() - a, bulto.width(), a}, bulto.topLeft(),
          bulto.topLeft() - QPointF(0, a));
    const auto abanico = [&](QPointF punta, QPointF hacia) {
        QRadialGradient sombra(punta, a);
        Oscurecer(sombra);
        pintor.fillRect(QRectF(punta, punta + hacia * a).normalized(), sombra);
    };
    abanico(bulto.topLeft(), {-1, -1});
    abanico(bulto.topRight(), {1, -1});
    abanico(bulto.bottomLeft(), {-1, 1});
    abanico(bulto.bottomRight(), {1, 1});
}

}  // namespace corvanda
