// A chip above everything else: one that a person holds, or one that glides back to its place. It
// is drawing only and takes no mouse; the game goes on without waiting for it.
#pragma once

#include <QPixmap>
#include <QVariantAnimation>
#include <QWidget>
#include <functional>

namespace corvanda {

class FichaFlotante final : public QWidget {
    Q_OBJECT

  public:
    /// A chip with its shadow, and how far its own corner is from that of the picture.
    struct Estampa {
        QPixmap dibujo;
        QPointF margen;
    };

    /// Lies on `fondo` and may go anywhere on it.
    explicit FichaFlotante(QWidget* fondo);

    /// Shows the chip with its top left corner at a place of `fondo`. It is asked for again when
    /// the screen under it has other pixels.
    void Aparecer(std::function<Estampa()> nueva, QPointF esquina);
    void Llevar(QPointF esquina);
    /// What it lies over has moved, and its way with it.
    void Acompanar(QPointF paso);
    /// Glides to a place and tells; 0 milliseconds or less is at once.
    void Deslizar(QPointF esquina, int milisegundos, std::function<void()> al_llegar);
    /// Vanishes; a glide under way tells at once.
    void Desaparecer();
    bool Deslizandose() const { return vuelo.state() == QAbstractAnimation::Running; }

  protected:
    void paintEvent(QPaintEvent* evento) override;

  private:
    void Llegar();
    void Pedir();
    QPointF Resto() const;

    std::function<Estampa()> pedir;
    Estampa estampa;
    QPointF resto;  // as it was painted last
    QPointF lugar;
    QVariantAnimation vuelo;
    std::function<void()> aviso;
};

}  // namespace corvanda
