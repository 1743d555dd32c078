#include "desktop/wave_player.h"

#include <QApplication>
#include <utility>

#include "desktop/program_folder.h"
#include "desktop/wave_worker.h"

namespace corvanda {

namespace {

constexpr std::chrono::milliseconds patience_for_count{1500};

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
    if (!asked) Worker().CountDevices();
    asked = true;
}

void SdlWaveOut::sndPlaySound(const std::string& path) {
    Worker().Play(NativePath(folder, path));
}

unsigned SdlWaveOut::waveOutGetNumDevs() {
    LookForDevices();
    return Worker().WaitForCount(patience_for_count).value_or(0);
}

void SdlWaveOut::Beep() {
    beep();
}

void SdlWaveOut::SystemBeep() {
    QApplication::beep();
}

}  // namespace corvanda
