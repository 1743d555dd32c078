#include "ui/letrero.h"

#include <QPainter>
#include <QPainterPath>
#include <QStyle>

namespace corvanda {

namespace {

constexpr QChar BLANCO_DURO(QChar::Nbsp);

}  // namespace

void Letrero::Contornear(const QColor& color, double ancho) {
    contorno = color;
    grueso = ancho;
}

void Letrero::paintEvent(QPaintEvent* /*evento*/) {
    QPainter pintor(this);
    if (!contorno.isValid()) {
        QString escrito = text();
        for (const QString& nombre : enteros)
            escrito.replace(nombre, QString(nombre).replace(' ', BLANCO_DURO));
        const int como = static_cast<int>(alignment()) | Qt::TextWordWrap;
        style()->drawItemText(&pintor, contentsRect(), como, palette(), isEnabled(), escrito,
                              foregroundRole());
        return;
    }
    const QFontMetricsF medidas(font());
    QPainterPath letras;
    letras.addText((width() - medidas.horizontalAdvance(text())) / 2,
                   (height() + medidas.ascent() - medidas.descent()) / 2, font(), text());
    pintor.setRenderHint(QPainter::Antialiasing);
    pintor.strokePath(letras,
                      QPen(contorno, 2 * grueso, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    pintor.fillPath(letras, palette().color(foregroundRole()));
}

}  // namespace corvanda
