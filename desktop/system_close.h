// The system's wish that the program ends: SIGTERM, SIGINT, SIGHUP, and the quit event by which the
// toolkit reports the end of the desktop session.
//
// One object, built by the application after its QApplication and destroyed before it. It takes the
// quit event away from the toolkit, which would close the windows one by one with all their
// questions; ending the event loop with QCoreApplication::exit is left to whoever is connected.
// The toolkit also sends the quit event when the last window closes, unless the application turned
// that off with setQuitOnLastWindowClosed(false).
//
// A second SIGTERM or SIGINT ends the program at once, whatever it is doing. A SIGHUP that was
// ignored when the program started (nohup) stays ignored, and SIGPIPE and SIGXFSZ are from now on.
#pragma once

#include <QObject>
#include <QSocketNotifier>
#include <array>
#include <csignal>

namespace corvanda {

class SystemClose final : public QObject {
    Q_OBJECT

  public:
    /// A second object at the same time receives the quit event but no signals.
    SystemClose();
    /// Puts the earlier signal handlers back.
    ~SystemClose() override;

  signals:
    /// Emitted in the GUI thread by whatever event loop or pass runs, nested ones included. It may
    /// come more than once.
    void requested();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    static constexpr std::array<int, 3> signals_caught{SIGTERM, SIGINT, SIGHUP};

    void CatchSignals();
    void ReleaseSignals();
    void Read();

    std::array<int, 2> ends{-1, -1};  ///< the handler writes to the second, the notifier reads
    QSocketNotifier* notifier = nullptr;
    std::array<struct sigaction, signals_caught.size()> earlier{};
};

}  // namespace corvanda
