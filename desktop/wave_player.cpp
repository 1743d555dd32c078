#include "desktop/wave_player.h"

#include <QApplication>
#include <QEventLoop>
#include <utility>

#include "desktop/program_folder.h"
#include "desktop/wave_worker.h"

namespace corvanda {

namespace {

constexpr std::chrono::milliseconds patience_for_count{1500};
constexpr std::chrono::milliseconds one_look{5};
constexpr auto without_people =
    QEventLoop::ExcludeUserInputEvents | QEventLoop::ExcludeSocketNotifiers;

}  // namespace

SdlWaveOut::SdlWaveOut(std::string folder, std::function<void()> beep, WavePatience patience)
    : folder(std::move(folder)), beep(std::move(beep)), patience(patience) {}

SdlWaveOut::~SdlWaveOut() {
    if (!worker) return;
    worker->ForgetEar();
    thread.request_stop();
    // Joining a thread that the sound server holds would hold the program, too.
    if (!worker->WaitForEnd(patience.end)) thread.detach();
}

WaveWorker& SdlWaveOut::Worker() {
    if (!worker) {
        worker = std::make_shared<WaveWorker>(ear, beep, patience.quiet);
        thread = std::jthread([kept = worker](const std::stop_token& stop) { kept->Run(stop); });
    }
    return *worker;
}

void SdlWaveOut::LookForDevices() {
    if (asked_at != Clock::time_point{}) return;
    Worker().CountDevices();
    asked_at = Clock::now();
}

void SdlWaveOut::sndPlaySound(const std::string& path) {
    Worker().Play(NativePath(folder, path));
}

unsigned SdlWaveOut::waveOutGetNumDevs() {
    LookForDevices();
    std::optional<unsigned> count;
    do {
        // What was drawn before comes to the screen, however long the server takes.
        QCoreApplication::processEvents(without_people);
        count = Worker().WaitForCount(one_look);
    } while (!count && Clock::now() < asked_at + patience_for_count);
    return count.value_or(0);
}

// No file has an empty name, so this is the signal.
void SdlWaveOut::Beep() {
    Worker().Play({});
}

void SdlWaveOut::SystemBeep() {
    QApplication::beep();
}

}  // namespace corvanda
