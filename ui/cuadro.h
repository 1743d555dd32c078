// A picture in a dialog. It is asked for anew when the dialog comes to a screen with other pixels,
// so that it is crisp wherever it is shown.
#pragma once

#include <QLabel>
#include <functional>

namespace corvanda {

class Cuadro final : public QLabel {
  public:
    /// The picture for a device pixel ratio.
    using Dibujo = std::function<QPixmap(qreal ratio)>;

    Cuadro(QWidget* dialogo, const char* nombre, const QRect& lugar);

    void Mostrar(Dibujo nuevo);

  protected:
    void paintEvent(QPaintEvent* evento) override;

  private:
    Dibujo dibujo;
};

}  // namespace corvanda
