#include "desktop/reduced_motion.h"

#include <QApplication>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QFile>
#include <QProxyStyle>
#include <QStyleFactory>
#include <utility>

namespace corvanda {

namespace {

const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString settings = QStringLiteral("org.freedesktop.portal.Settings");
const QString group_asked = QStringLiteral("org.gnome.desktop.interface");
const QString key_asked = QStringLiteral("enable-animations");

class StillStyle final : public QProxyStyle {
  public:
    using QProxyStyle::QProxyStyle;

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override {
        if (hint == SH_Widget_Animation_Duration) return 0;
        return QProxyStyle::styleHint(hint, option, widget, data);
    }
};

// Where no bus runs, asking for one would start it.
bool BusRuns() {
    return qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS") ||
           QFile::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/bus"));
}

/// The portal wraps its answers once more than it must.
bool Unwrapped(QVariant value) {
    while (value.canConvert<QDBusVariant>()) value = value.value<QDBusVariant>().variant();
    return value.toBool();
}

}  // namespace

void ReducedMotion::Ask() {
    if (BusRuns()) Ask(QDBusConnection::sessionBus());
}

void ReducedMotion::Ask(QDBusConnection bus) {
    if (!bus.isConnected()) return;
    QDBusMessage question =
        QDBusMessage::createMethodCall(service, path, settings, QStringLiteral("Read"));
    question << group_asked << key_asked;
    auto* answer = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, bus, answer]() mutable {
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        answer->deleteLater();
        if (!reply.isValid()) return;
        Answered(QVariant::fromValue(reply.value()));
        // Named by no service: asking the bus who that is would be waited for.
        bus.connect({}, path, settings, QStringLiteral("SettingChanged"), this,
                    SLOT(Changed(QString, QString, QDBusVariant)));
    });
}

void ReducedMotion::Changed(const QString& group, const QString& key, const QDBusVariant& value) {
    if (group == group_asked && key == key_asked) Answered(value.variant());
}

// The application takes the new style over and deletes the one before, which knows no name of its
// own.
void ReducedMotion::Answered(const QVariant& animations) {
    const bool still = !usual.isEmpty();
    if (Unwrapped(animations) == !still) return;
    if (still) {
        QApplication::setStyle(QStyleFactory::create(std::exchange(usual, QString())));
    } else {
        usual = QApplication::style()->name();
        QApplication::setStyle(new StillStyle(usual));
    }
}

}  // namespace corvanda
