// A bus of our own with a desktop on it that answers.
#include "desktop/reduced_motion.h"

#include <QDBusConnection>
#include <QDBusVariant>
#include <QProcess>
#include <QStandardPaths>
#include <QStyle>

#include "tests/desktop/desk.h"

namespace corvanda::pruebas {

/// What desktops answer with.
class Portal : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

  public slots:
    QDBusVariant Read(const QString& group, const QString& key) {
        asked = group + ' ' + key;
        return QDBusVariant(QVariant::fromValue(QDBusVariant(animations)));
    }

  signals:
    void SettingChanged(const QString& group, const QString& key, const QDBusVariant& value);

  public:
    void Change(const QString& key, bool value) {
        emit SettingChanged("org.gnome.desktop.interface", key, QDBusVariant(value));
    }

    bool animations = false;
    QString asked;
};

namespace {

int Duration() {
    return QApplication::style()->styleHint(QStyle::SH_Widget_Animation_Duration);
}

TEST(ReducedMotion, the_style_follows_the_desktop) {
    if (QStandardPaths::findExecutable("dbus-daemon").isEmpty()) {
        GTEST_SKIP() << "dbus-daemon is not installed";
    }
    ASSERT_GT(Duration(), 0);
    QProcess daemon;
    daemon.start("dbus-daemon", {"--session", "--nofork", "--print-address"});
    ASSERT_TRUE(daemon.waitForStarted() && daemon.waitForReadyRead());
    const QByteArray address = daemon.readLine().trimmed();
    qputenv("DBUS_SESSION_BUS_ADDRESS", address);
    Portal portal;
    QDBusConnection bus = QDBusConnection::connectToBus(QString::fromLatin1(address), "portal");
    ASSERT_TRUE(bus.registerService("org.freedesktop.portal.Desktop"));
    ASSERT_TRUE(bus.registerObject("/org/freedesktop/portal/desktop", &portal,
                                   QDBusConnection::ExportAllContents));
    const QString usual = QApplication::style()->name();
    for (const bool animations : {true, false}) {
        SCOPED_TRACE(animations ? "animations" : "none");
        portal.animations = animations;
        portal.asked.clear();
        ReducedMotion motion;
        motion.Ask();
        EXPECT_TRUE(QTest::qWaitFor([&] { return !portal.asked.isEmpty(); }));
        EXPECT_EQ(portal.asked, "org.gnome.desktop.interface enable-animations");
        QTest::qWait(50);
        EXPECT_EQ(Duration() > 0, animations);
        portal.Change("enable-animations", !animations);
        EXPECT_TRUE(QTest::qWaitFor([&] { return (Duration() > 0) == !animations; }));
        portal.Change("enable-animations", animations);
        portal.Change("font-antialiasing", !animations);
        EXPECT_TRUE(QTest::qWaitFor([&] { return (Duration() > 0) == animations; }));
        QTest::qWait(50);
        EXPECT_EQ(Duration() > 0, animations);
    }
    QApplication::setStyle(usual);
    QDBusConnection::disconnectFromBus(bus.name());
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    daemon.kill();
    daemon.waitForFinished();
}

}  // namespace
}  // namespace corvanda::pruebas

#include "reduced_motion_test.moc"
