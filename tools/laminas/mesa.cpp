#include "tools/laminas/mesa.h"

#include <QWidget>
#include <cmath>

#include "tests/apoyo/mesa.h"
#include "ui/estuche.h"
#include "ui/pintura.h"

using namespace corvanda;

namespace laminas {

namespace {

/// A screen on which the board is drawn as large as a picture wants it.
class Lienzo final : public QWidget {
  public:
    Lienzo(const Escala& escala, double ratio) : ratio(ratio) {
        resize(escala.Tamano(Estuche::ANCHO, Estuche::ALTO));
    }

  protected:
    int metric(PaintDeviceMetric medida) const override {
        if (medida == PdmDevicePixelRatio) return static_cast<int>(ratio);
        if (medida == PdmDevicePixelRatioScaled) {
            return static_cast<int>(ratio * devicePixelRatioFScale());
        }
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
        if (medida == PdmDevicePixelRatioF_EncodedA || medida == PdmDevicePixelRatioF_EncodedB) {
            return encodeMetricF(medida, ratio);
        }
#endif
        return QWidget::metric(medida);
    }

  private:
    double ratio;
};

}  // namespace

QImage Hoja(QSizeF tamano, const QColor& color) {
    // Whole pixels of the page, so that none is made of parts of others.
    QImage hoja(QSize(qRound(tamano.width()), qRound(tamano.height())) * RATIO,
                QImage::Format_RGB32);
    hoja.setDevicePixelRatio(RATIO);
    hoja.fill(color);
    return hoja;
}

QImage Dibujar(const Lamina& lamina, Estampas& estampas) {
    const Partida partida = pruebas::Mesa(lamina.posicion).partida;
    const Escala escala;
    const Lienzo lienzo(escala, RATIO * lamina.tamano);
    const double ratio = lienzo.devicePixelRatioF();
    const Trazado trazado(partida, escala, lienzo);
    Pintura pintura(trazado, estampas);
    const double por_twip = ratio / RATIO / escala.Twips_Por_Pixel();
    QImage hoja = Hoja(lamina.recorte.size() * por_twip, Qt::black);

    // The board in its own pixels, begun at a whole one of the picture's.
    const QPointF esquina = lamina.recorte.topLeft() * por_twip * RATIO;
    const QPointF entera(std::round(esquina.x()), std::round(esquina.y()));
    hoja.setDevicePixelRatio(ratio);
    QPainter pintor(&hoja);
    pintor.translate(-entera / ratio);
    pintura.Pintar(pintor, QRectF(lienzo.rect()), {}, {});
    pintor.end();

    hoja.setDevicePixelRatio(RATIO);
    pintor.begin(&hoja);
    pintor.setRenderHint(QPainter::Antialiasing);
    pintor.translate(-entera / RATIO);
    for (const Marca& marca : lamina.marcas) Marcar(pintor, marca, por_twip);
    return hoja;
}

}  // namespace laminas
