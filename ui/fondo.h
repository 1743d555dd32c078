// The ground of the main window: dark red, with the shadow of the case that lies on it.
#pragma once

#include <QWidget>

namespace corvanda {

class Fondo final : public QWidget {
  public:
    explicit Fondo(QWidget* ventana);
    /// What throws the shadow, and how far that reaches, logical pixels.
    void Poner(const QWidget& nuevo, int largo);

  protected:
    void paintEvent(QPaintEvent* evento) override;

  private:
    const QWidget* estuche = nullptr;
    int alcance = 0;
};

}  // namespace corvanda
