#include "ui/estilo.h"

#include <QPainter>
#include <QPolygonF>
#include <QStyleOptionSlider>
#include <QWidget>

namespace corvanda {

namespace {

// A triangle in the middle of a place; `hacia` is -1 for left and 1 for right.
void Flecha(QPainter& pintor, const QRectF& lugar, int hacia) {
    const qreal medio = lugar.height() / 5;
    const QPointF centro = lugar.center();
    pintor.drawPolygon(QPolygonF({{centro.x() + hacia * medio, centro.y()},
                                  {centro.x() - hacia * medio, centro.y() - medio * 1.2},
                                  {centro.x() - hacia * medio, centro.y() + medio * 1.2}}));
}

}  // namespace

Estilo::Estilo() : QProxyStyle(QStringLiteral("Fusion")) {}

void Estilo::Vestir(QWidget& control) {
    auto* estilo = new Estilo;
    estilo->setParent(&control);
    control.setStyle(estilo);
}

int Estilo::pixelMetric(PixelMetric medida, const QStyleOption* opcion,
                        const QWidget* control) const {
    const bool de_barra = medida == PM_ScrollBarExtent || medida == PM_ScrollBarSliderMin;
    if (de_barra && control != nullptr) return control->height();
    return QProxyStyle::pixelMetric(medida, opcion, control);
}

void Estilo::drawComplexControl(ComplexControl clase, const QStyleOptionComplex* opcion,
                                QPainter* pintor, const QWidget* control) const {
    const auto* barra = qstyleoption_cast<const QStyleOptionSlider*>(opcion);
    if (clase != CC_ScrollBar || barra == nullptr)
        return QProxyStyle::drawComplexControl(clase, opcion, pintor, control);
    Pintar_Barra(*barra, *pintor, control);
}

// The handle of a bar with the focus has the colour of what is chosen.
void Estilo::Pintar_Barra(const QStyleOptionSlider& barra, QPainter& pintor,
                          const QWidget* control) const {
    const auto lugar = [&](SubControl parte) {
        return QRectF(subControlRect(CC_ScrollBar, &barra, parte, control));
    };
    const auto cara = [&](SubControl parte, const QBrush& color) {
        const QRectF donde = lugar(parte).adjusted(0.5, 0.5, -0.5, -0.5);
        const bool hundida = barra.activeSubControls == parte && (barra.state & State_Sunken);
        pintor.setPen(barra.palette.color(QPalette::Dark));
        pintor.setBrush(hundida ? barra.palette.mid() : color);
        pintor.drawRoundedRect(donde, donde.height() / 8, donde.height() / 8);
    };
    pintor.save();
    pintor.setRenderHint(QPainter::Antialiasing);
    pintor.fillRect(barra.rect, barra.palette.midlight());
    const bool enfocada = barra.state & State_HasFocus;
    for (const SubControl flecha : {SC_ScrollBarSubLine, SC_ScrollBarAddLine})
        cara(flecha, barra.palette.light());
    cara(SC_ScrollBarSlider, enfocada ? barra.palette.highlight() : barra.palette.dark());
    pintor.setPen(Qt::NoPen);
    pintor.setBrush(barra.palette.buttonText());
    Flecha(pintor, lugar(SC_ScrollBarSubLine), -1);
    Flecha(pintor, lugar(SC_ScrollBarAddLine), 1);
    pintor.restore();
}

}  // namespace corvanda
