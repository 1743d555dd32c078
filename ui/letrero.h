// A text in a dialog that is drawn with more care than a label takes: with a line around its
// letters, so that they can be read on any ground, as the shadow of another text, or without a
// break inside a name. What it says to whoever asks stays as it was given.
#pragma once

#include <QColor>
#include <QLabel>

namespace corvanda {

class Letrero final : public QLabel {
  public:
    using QLabel::QLabel;

    /// A line around every letter, as wide as the logical pixels say on each side. For a text of
    /// one line, which is centred.
    void Contornear(const QColor& color, double grueso);
    /// Shows only what of its letters is seen beside those of another text, over which it lies.
    void Sombrear(const QLabel* otro) { luz = otro; }
    /// No line ends inside these parts of the text.
    void No_Partir(const QStringList& nombres) { enteros = nombres; }

  protected:
    void paintEvent(QPaintEvent* evento) override;

  private:
    void Pintar_Contorno();
    void Pintar_Sombra();

    const QLabel* luz = nullptr;
    QColor contorno;
    double grueso = 0;
    QStringList enteros;
};

}  // namespace corvanda
