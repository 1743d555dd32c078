// The person's wish for no animations, as the desktop tells of it.
//
// The toolkit's styles carry such a wish (SH_Widget_Animation_Duration is 0) but hear of it on one
// desktop only; the others answer a question on the session bus and tell of each change. As long as
// their answer is "no animations", a style lies over the application's own that says so; whoever
// animates asks the style. No answer is waited for, and where there is no bus none is asked.
#pragma once

#include <QDBusConnection>
#include <QDBusVariant>
#include <QObject>

namespace corvanda {

class ReducedMotion final : public QObject {
    Q_OBJECT

  public:
    /// After the application's first window is shown, so that no start waits for the bus.
    void Ask();
    /// By a bus of the caller's.
    void Ask(QDBusConnection bus);

  private slots:
    /// A setting of the desktop has a new value; all are told here, under the name of their group.
    void Changed(const QString& group, const QString& key, const QDBusVariant& value);

  private:
    void Answered(const QVariant& animations);

    QString usual;  // the name of the style under that of no animations; empty while there is none
};

}  // namespace corvanda
