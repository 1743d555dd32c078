#include "ui/ficha_flotante.h"

#include <QPainter>
#include <QRadialGradient>
#include <cmath>
#include <utility>

namespace corvanda {

namespace {

constexpr int SOMBRA = 8;  // logical pixels around the chip for its shadow

}  // namespace

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

void FichaFlotante::Aparecer(Estampa nueva, QPointF esquina) {
    Desaparecer();
    estampa = std::move(nueva);
    const QSizeF tamano = estampa().deviceIndependentSize();
    resize(static_cast<int>(std::ceil(tamano.width())) + 2 * SOMBRA + 1,
           static_cast<int>(std::ceil(tamano.height())) + 2 * SOMBRA + 1);
    Llevar(esquina);
    raise();
    show();
}

void FichaFlotante::Llevar(QPointF esquina) {
    lugar = esquina;
    const QPointF marco = esquina - QPointF(SOMBRA, SOMBRA);
    move(static_cast<int>(std::floor(marco.x())), static_cast<int>(std::floor(marco.y())));
    if (Resto() != resto) update();
}

// The part of the place that is smaller than a logical pixel. The chip stands on whole device
// pixels, or it would blur.
QPointF FichaFlotante::Resto() const {
    const qreal ratio = devicePixelRatioF();
    const QPointF fraccion = (lugar - QPointF(SOMBRA, SOMBRA) - pos()) * ratio;
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
    QPainter pintor(this);
    resto = Resto();
    const QPointF esquina = QPointF(SOMBRA, SOMBRA) + resto;
    const QPixmap ficha = estampa();
    const QSizeF tamano = ficha.deviceIndependentSize();
    const QPointF centro(esquina.x() + tamano.width() / 2 + 2,
                         esquina.y() + tamano.height() / 2 + 3);
    const qreal radio = tamano.width() / 2 + 4;
    QRadialGradient sombra(centro, radio);
    sombra.setColorAt(0, QColor(0, 0, 0, 150));
    sombra.setColorAt(0.75, QColor(0, 0, 0, 110));
    sombra.setColorAt(1, Qt::transparent);
    pintor.setPen(Qt::NoPen);
    pintor.setBrush(sombra);
    pintor.drawEllipse(centro, radio, radio);
    pintor.drawPixmap(esquina, ficha);
}

}  // namespace corvanda
