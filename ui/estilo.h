// How the controls of the game's dialogs are drawn, whatever style the desktop has: by the
// toolkit's own, in the dialog's colours. A style that brings colours of its own would put the
// dialog's dark letters on its own dark buttons.
#pragma once

#include <QProxyStyle>

class QStyleOptionSlider;

namespace corvanda {

class Estilo final : public QProxyStyle {
  public:
    /// Draws the control from now on, and goes with it.
    static void Vestir(QWidget& control);

    /// A scroll bar's arrows and handle keep their shape at every size of the bar.
    int pixelMetric(PixelMetric medida, const QStyleOption* opcion,
                    const QWidget* control) const override;
    void drawComplexControl(ComplexControl clase, const QStyleOptionComplex* opcion,
                            QPainter* pintor, const QWidget* control) const override;

  private:
    Estilo();
    void Pintar_Barra(const QStyleOptionSlider& barra, QPainter& pintor,
                      const QWidget* control) const;
};

}  // namespace corvanda
