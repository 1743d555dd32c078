// Tells screen readers what happens on the board: which names have changed, where the keyboard is,
// and in sentences the throws, the moves, a pass and what became of a chip in the hand. It compares
// the position with the one it saw last; that is kept only while somebody listens, and otherwise
// nothing is compared and no sentence made.
#pragma once

#include <QAccessible>
#include <QObject>
#include <QTimer>
#include <optional>

#include "core/control.h"

namespace corvanda {

class Estuche;
class Voz;

class Locutor final : public QObject, private QAccessible::ActivationObserver {
    Q_OBJECT

  public:
    /// Both must outlive it.
    Locutor(Estuche& estuche, Voz& voz);
    ~Locutor() override;
    Locutor(const Locutor&) = delete;
    Locutor& operator=(const Locutor&) = delete;

  signals:
    /// A name has changed or the keyboard came to a place; `hijo` counts as the board's children.
    void avisado(QAccessible::Event que, int hijo);

  private:
    void accessibilityActiveChanged(bool active) override;
    void Cambiada(Control control);
    void Elegido(Integer lugar);
    void En_La_Mano(Control ficha);
    void Mirar();
    void Contar_Tiro();
    QString Anotar();
    void Avisar(QAccessible::Event que, int hijo);

    Estuche& estuche;
    Voz& voz;
    const Partida& partida;
    std::optional<Partida> vista;  // the position as it was last told of
    QTimer mirada;                 // once the handler that changed something has ended or waits
};

}  // namespace corvanda
