// A voice for screen readers: it has no size and nothing is ever drawn. From 6.8 on the toolkit has
// an event for announcements. Before that the voice is a notification in the accessible tree, whose
// name is the last sentence: for each sentence the name changes and the notification is reported as
// shown anew, which is what screen readers speak without leaving the control that has the focus.
// They ask for the name when they hear of it, so what is said within a moment is said as one.
#pragma once

#include <QAccessible>
#include <QTimer>
#include <QWidget>

namespace corvanda {

class Voz final : public QWidget, private QAccessible::ActivationObserver {
    Q_OBJECT

  public:
    explicit Voz(QWidget* padre);
    ~Voz() override;
    Voz(const Voz&) = delete;
    Voz& operator=(const Voz&) = delete;

    /// Nothing happens for an empty sentence, nor when nobody listens.
    void Decir(const QString& frase);
    /// Whether all has been said.
    bool Callada() const { return pendiente.isEmpty(); }

  signals:
    void dicho(const QString& frase);

  private:
    void accessibilityActiveChanged(bool active) override { escuchan = active; }

    void Hablar();

    QString pendiente;
    QTimer momento;
    bool escuchan = QAccessible::isActive();
};

}  // namespace corvanda
