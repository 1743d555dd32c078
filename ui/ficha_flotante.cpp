#include "ui/ficha_flotante.h"

#include <QPainter>
#include <cmath>
#include <utility>

namespace corvanda {

FichaFlotante::FichaFlotante(QWidget* fondo) : QWidget(fondo) {
    setObjectName("FichaFlotante");
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_NoSystemBackground);
    vuelo.setEasingCurve(QEasingCurve::OutCubic);
    connect(&vuelo, &QVariantAnimation::valueChanged, this,
            [this](const QVariant& valor) { Llevar(valor.toPointF()); });
    connect(&vuelo, &QVariantAnimation::finished, this, &FichaFlotante::Llegar);
    hide();
}

void FichaFlotante::Aparecer(std::function<Estampa()> nueva, QPointF esquina) {
    Desaparecer();
    pedir = std::move(nueva);
    Pedir();
    Llevar(esquina);
    raise();
    show();
}

void FichaFlotante::Pedir() {
    estampa = pedir();
    const QSizeF tamano = estampa.dibujo.deviceIndependentSize();
    resize(static_cast<int>(std::ceil(tamano.width())) + 1,
           static_cast<int>(std::ceil(tamano.height())) + 1);
}

void FichaFlotante::Llevar(QPointF esquina) {
    lugar = esquina;
    const QPointF marco = esquina - estampa.margen;
    move(static_cast<int>(std::floor(marco.x())), static_cast<int>(std::floor(marco.y())));
    if (Resto() != resto) update();
}

// The part of the place that is smaller than a logical pixel. The chip stands on whole device
// pixels, or it would blur.
QPointF FichaFlotante::Resto() const {
    const qreal ratio = devicePixelRatioF();
    const QPointF fraccion = (lugar - estampa.margen - pos()) * ratio;
    return {std::round(fraccion.x()) / ratio, std::round(fraccion.y()) / ratio};
}

void FichaFlotante::Acompanar(QPointF paso) {
    if (!Deslizandose()) return Llevar(lugar + paso);
    vuelo.setStartValue(vuelo.startValue().toPointF() + paso);
    vuelo.setEndValue(vuelo.endValue().toPointF() + paso);
}

void FichaFlotante::Deslizar(QPointF esquina, int milisegundos, std::function<void()> al_llegar) {
    aviso = std::move(al_llegar);
    if (milisegundos <= 0 || lugar == esquina) {
        Llevar(esquina);
        Llegar();
        return;
    }
    vuelo.setStartValue(lugar);
    vuelo.setEndValue(esquina);
    vuelo.setDuration(milisegundos);
    vuelo.start();
}

void FichaFlotante::Desaparecer() {
    vuelo.stop();
    Llegar();
    hide();
}

void FichaFlotante::Llegar() {
    if (const auto decir = std::exchange(aviso, nullptr)) decir();
}

void FichaFlotante::paintEvent(QPaintEvent* /*evento*/) {
    if (estampa.dibujo.devicePixelRatio() != devicePixelRatioF()) Pedir();
    resto = Resto();
    QPainter(this).drawPixmap(resto, estampa.dibujo);
}

}  // namespace corvanda
