#include "ui/letrero.h"

#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QStyle>

namespace corvanda {

namespace {

void Escribir(QPainter& pintor, const QLabel& texto, const QPoint& donde, const QColor& color) {
    pintor.setFont(texto.font());
    pintor.setPen(color);
    pintor.drawText(QRect(donde, texto.size()), static_cast<int>(texto.alignment()), texto.text());
}

}  // namespace

void Letrero::Contornear(const QColor& color, double ancho) {
    contorno = color;
    grueso = ancho;
}

void Letrero::paintEvent(QPaintEvent* /*evento*/) {
    if (contorno.isValid()) return Pintar_Contorno();
    if (luz != nullptr) return Pintar_Sombra();
    QString escrito = text();
    for (const QString& nombre : enteros)
        escrito.replace(nombre, QString(nombre).replace(' ', QChar::Nbsp));
    QPainter pintor(this);
    style()->drawItemText(&pintor, contentsRect(), static_cast<int>(alignment()) | Qt::TextWordWrap,
                          palette(), isEnabled(), escrito, foregroundRole());
}

void Letrero::Pintar_Contorno() {
    const QFontMetricsF medidas(font());
    QPainterPath letras;
    letras.addText((width() - medidas.horizontalAdvance(text())) / 2,
                   (height() + medidas.ascent() - medidas.descent()) / 2, font(), text());
    QPainter pintor(this);
    pintor.setRenderHint(QPainter::Antialiasing);
    pintor.strokePath(letras,
                      QPen(contorno, 2 * grueso, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    pintor.fillPath(letras, palette().color(foregroundRole()));
}

void Letrero::Pintar_Sombra() {
    const qreal ratio = devicePixelRatioF();
    QImage hoja((QSizeF(size()) * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
    hoja.setDevicePixelRatio(ratio);
    hoja.fill(Qt::transparent);
    QPainter pintor(&hoja);
    Escribir(pintor, *this, {}, palette().color(foregroundRole()));
    pintor.setCompositionMode(QPainter::CompositionMode_DestinationOut);
    Escribir(pintor, *luz, luz->pos() - pos(), Qt::black);
    pintor.end();
    QPainter(this).drawImage(0, 0, hoja);
}

}  // namespace corvanda
