// The wish for no animations, by a bus of our own with a desktop at its other end.
#include "desktop/reduced_motion.h"

#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusServer>
#include <QStyle>

#include "tests/desktop/desk.h"

namespace corvanda::pruebas {

/// What desktops answer with.
class Portal : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

  public slots:
    QDBusVariant Read(const QString& group, const QString& key) {
        asked += group + ' ' + key + ';';
        return QDBusVariant(QVariant::fromValue(QDBusVariant(animations)));
    }

  signals:
    void SettingChanged(const QString& group, const QString& key, const QDBusVariant& value);

  public:
    bool animations = false;
    QString asked;
};

namespace {

constexpr const char* PATH = "/org/freedesktop/portal/desktop";
constexpr const char* SETTINGS = "org.freedesktop.portal.Settings";

bool Animated() {
    return QApplication::style()->styleHint(QStyle::SH_Widget_Animation_Duration) > 0;
}

class ReducedMotionTest : public testing::Test {
  protected:
    ReducedMotionTest() {
        QObject::connect(&server, &QDBusServer::newConnection, [this](QDBusConnection desktop) {
            desktop.registerObject(PATH, &portal, QDBusConnection::ExportAllContents);
        });
    }
    ~ReducedMotionTest() override { QDBusConnection::disconnectFromPeer("game"); }

    /// Until both ends have handled what was said so far: a later question was answered.
    void Settle() {
        auto question = QDBusMessage::createMethodCall("org.desktop", PATH, SETTINGS, "Read");
        const auto call = game.asyncCall(question << QString() << QString());
        ASSERT_TRUE(QTest::qWaitFor([&] { return call.isFinished(); }));
        QCoreApplication::processEvents();
    }
    bool AnimatedAfter(const char* key, bool value) {
        emit portal.SettingChanged("org.gnome.desktop.interface", key, QDBusVariant(value));
        Settle();
        return Animated();
    }

    Portal portal;
    QDBusServer server{"unix:tmpdir=" + QDir::tempPath()};
    QDBusConnection game = QDBusConnection::connectToPeer(server.address(), "game");
};

TEST_F(ReducedMotionTest, the_style_follows_the_desktop) {
    ASSERT_TRUE(Animated());
    for (const bool animations : {true, false}) {
        SCOPED_TRACE(animations);
        portal.animations = animations;
        portal.asked.clear();
        ReducedMotion motion;
        motion.Ask(game);
        Settle();
        EXPECT_EQ(portal.asked, "org.gnome.desktop.interface enable-animations; ;");
        EXPECT_EQ(Animated(), animations);
        EXPECT_EQ(AnimatedAfter("enable-animations", !animations), !animations);
        EXPECT_EQ(AnimatedAfter("font-antialiasing", animations), !animations);
        EXPECT_TRUE(AnimatedAfter("enable-animations", true));
    }
}

}  // namespace
}  // namespace corvanda::pruebas

#include "reduced_motion_test.moc"
