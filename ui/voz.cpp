#include "ui/voz.h"

#include <QAccessibleWidget>
#include <utility>

namespace corvanda {

namespace {

constexpr int MOMENTO = 80;  // milliseconds

// Nothing is notified of before the first sentence: the window that comes up shows this as well.
class Aviso final : public QAccessibleWidget {
  public:
    using QAccessibleWidget::QAccessibleWidget;
    QAccessible::Role role() const override {
        const bool callada = widget()->accessibleName().isEmpty();
        return callada ? QAccessible::StaticText : QAccessible::Notification;
    }
};

QAccessibleInterface* Hacer(const QString& /*clase*/, QObject* objeto) {
    auto* voz = qobject_cast<Voz*>(objeto);
    return voz == nullptr ? nullptr : new Aviso(voz);
}

}  // namespace

Voz::Voz(QWidget* padre) : QWidget(padre) {
    QAccessible::installFactory(Hacer);
    setObjectName("Voz");
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFixedSize(0, 0);
    momento.setSingleShot(true);
    momento.setInterval(MOMENTO);
    connect(&momento, &QTimer::timeout, this, &Voz::Hablar);
    QAccessible::installActivationObserver(this);
}

Voz::~Voz() {
    QAccessible::removeActivationObserver(this);
}

void Voz::Decir(const QString& frase) {
    if (!escuchan || frase.isEmpty()) return;
    pendiente += (pendiente.isEmpty() ? "" : " ") + frase;
    if (!momento.isActive()) momento.start();
}

void Voz::Hablar() {
    const QString frase = std::exchange(pendiente, {});
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    QAccessibleAnnouncementEvent anuncio(this, frase);
    QAccessible::updateAccessibility(&anuncio);
#else
    setAccessibleName(frase);
    QAccessibleEvent mostrada(this, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&mostrada);
#endif
    emit dicho(frase);
}

}  // namespace corvanda
