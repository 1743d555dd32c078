#include "desktop/system_close.h"

#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QEvent>
#include <atomic>
#include <cerrno>

namespace corvanda {

namespace {

// A signal handler has no object; it finds the way out here. -1 while nobody listens.
std::atomic<int> way_out{-1};
static_assert(std::atomic<int>::is_always_lock_free);

std::atomic_flag told_before = ATOMIC_FLAG_INIT;

// The first is heard by the event loop. Where that does not run, or not any more, the second ends
// the program at once: nothing is saved at such an end, so there is nothing to lose. A SIGHUP comes
// by itself after the SIGTERM of a session, and twice when a terminal closes.
void OnSignal(int signal) {
    if (told_before.test_and_set() && signal != SIGHUP) ::_exit(128 + signal);
    const int kept = errno;
    const char word = 1;
    // A full pipe already holds enough to be heard.
    [[maybe_unused]] const auto written = ::write(way_out.load(), &word, 1);
    errno = kept;
}

}  // namespace

SystemClose::SystemClose() {
    qApp->installEventFilter(this);
    // A write that fails says so by itself: to a terminal that is gone, or past a limit of size.
    for (const int harmless : {SIGPIPE, SIGXFSZ}) std::signal(harmless, SIG_IGN);
    CatchSignals();
}

SystemClose::~SystemClose() {
    ReleaseSignals();
}

void SystemClose::CatchSignals() {
    if (way_out.load() >= 0) return;
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0, ends.data()) != 0)
        return;
    notifier = new QSocketNotifier(ends[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, &SystemClose::Read);
    way_out = ends[1];
    struct sigaction ours {};
    ours.sa_handler = OnSignal;
    ours.sa_flags = SA_RESTART;
    sigemptyset(&ours.sa_mask);
    for (std::size_t i = 0; i < earlier.size(); ++i) {
        ::sigaction(signals_caught[i], &ours, &earlier[i]);
        const bool ignored = earlier[i].sa_handler == SIG_IGN;
        if (ignored && signals_caught[i] == SIGHUP) ::sigaction(SIGHUP, &earlier[i], nullptr);
    }
}

void SystemClose::ReleaseSignals() {
    if (ends[0] < 0) return;
    told_before.clear();
    for (std::size_t i = 0; i < earlier.size(); ++i)
        ::sigaction(signals_caught[i], &earlier[i], nullptr);
    way_out = -1;
    delete notifier;
    ::close(ends[0]);
    ::close(ends[1]);
}

void SystemClose::Read() {
    char words[16];
    while (::read(ends[0], words, sizeof words) > 0) {
    }
    emit requested();
}

bool SystemClose::eventFilter(QObject* watched, QEvent* event) {
    if (watched != qApp || event->type() != QEvent::Quit) return false;
    emit requested();
    return true;
}

}  // namespace corvanda
