#include "desktop/start.h"

#include <unistd.h>

#include <QGuiApplication>
#include <QScreen>
#include <csignal>
#include <cstdlib>
#include <string_view>

namespace corvanda {

namespace {

// Without going through what the toolkit would clean up, which may be half made. A signal handler
// may call this.
[[noreturn]] void EndWithoutScreen() {
    constexpr std::string_view line = "Corvanda: there is no screen to show the game on\n";
    [[maybe_unused]] const auto written = ::write(STDERR_FILENO, line.data(), line.size());
    ::_exit(EXIT_FAILURE);
}

void OnMessage(QtMsgType kind, const QMessageLogContext& /*where*/, const QString& /*text*/) {
    if (kind == QtFatalMsg) EndWithoutScreen();
}

// A screen that goes away while the toolkit looks at it leaves it with answers that are none.
void OnCrash(int) {
    EndWithoutScreen();
}

}  // namespace

StartWatch::StartWatch() {
    if (!qEnvironmentVariableIsSet("QT_DEBUG_PLUGINS")) qInstallMessageHandler(OnMessage);
    std::signal(SIGSEGV, OnCrash);
}

StartWatch::~StartWatch() {
    qInstallMessageHandler(nullptr);
    std::signal(SIGSEGV, SIG_DFL);
}

void StartWatch::CheckScreen() const {
    if (QGuiApplication::primaryScreen() == nullptr) EndWithoutScreen();
}

}  // namespace corvanda
