// Starts the game, or answers on the terminal what it is.
#include <QApplication>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <optional>

#include "app/aplicacion.h"
#include "desktop/heap.h"
#include "desktop/silent_buses.h"
#include "desktop/start.h"
#include "runtime/random.h"

namespace {

constexpr const char* VERSION = "corvanda " CORVANDA_VERSION "\n";
constexpr const char* HELP =
    "Usage: corvanda [OPTION]...\n"
    "The classic race of two sides with two dice on a board of 24 points.\n"
    "\n"
    "  --help     say this and end\n"
    "  --version  say the version and end\n"
    "\n"
    "The options of every Qt program are taken as well, for example -platform wayland\n"
    "or -style fusion. How the game is played says its help: F1.\n";

/// What a question on the command line is answered, null for a start without one.
const char* Answer(int argc, char** argv) {
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--version") == 0) return VERSION;
        if (std::strcmp(argv[i], "--help") == 0) return HELP;
    }
    return nullptr;
}

}  // namespace

int main(int argc, char** argv) {
    if (const char* answer = Answer(argc, argv)) {
        // No window, and so no display.
        const bool said = std::fputs(answer, stdout) >= 0 && std::fflush(stdout) == 0;
        return said ? EXIT_SUCCESS : EXIT_FAILURE;
    }
    corvanda::KeepHeapSmall();
    corvanda::LeaveOutSilentBuses();
    std::optional<corvanda::StartWatch> start(std::in_place);
    const QApplication qt(argc, argv);
    start->CheckScreen();
    start.reset();
    corvanda::Random azar;
    corvanda::Aplicacion corvanda(azar);
    corvanda.Empezar();
    return QApplication::exec();
}
