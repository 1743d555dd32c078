#include "desktop/wave_worker.h"

#include <utility>

#include "desktop/wave_device.h"

namespace corvanda {

void WaveWorker::Run(const std::stop_token& stop) {
    {
        WaveDevice device(quiet);
        while (!stop.stop_requested()) Do(Next(stop, device), device);
    }
    const std::lock_guard lock(mutex);
    ended = true;
    answer.notify_all();
}

WaveWorker::Task WaveWorker::Next(const std::stop_token& stop, const WaveDevice& device) {
    std::unique_lock lock(mutex);
    const auto asked = [this] { return task.sound || task.count; };
    if (device.InUse()) {
        wake.wait_until(lock, stop, device.RestAt(), asked);
    } else {
        // Without an end to the wait, the thread costs nothing while the game is quiet.
        wake.wait(lock, stop, asked);
    }
    return std::exchange(task, {});
}

void WaveWorker::Do(const Task& todo, WaveDevice& device) {
    if (!todo.count && !todo.sound) {
        device.Rest();
        return;
    }
    if (todo.count) {
        const unsigned found = device.Count();
        const std::lock_guard lock(mutex);
        devices = found;
        answer.notify_all();
    }
    if (!todo.sound) return;
    if (auto samples = wave::ReadWaveFile(*todo.sound)) {
        device.Play(std::move(*samples));
    } else if (!device.Play(wave::Signal())) {
        AskForBeep();
    }
}

void WaveWorker::AskForBeep() {
    const std::lock_guard lock(mutex);
    if (ear != nullptr) QMetaObject::invokeMethod(ear, beep, Qt::QueuedConnection);
}

void WaveWorker::Play(const QString& file) {
    const std::lock_guard lock(mutex);
    task.sound = file;
    wake.notify_one();
}

void WaveWorker::CountDevices() {
    const std::lock_guard lock(mutex);
    task.count = true;
    wake.notify_one();
}

std::optional<unsigned> WaveWorker::WaitForCount(Milliseconds patience) {
    std::unique_lock lock(mutex);
    answer.wait_for(lock, patience, [this] { return devices.has_value(); });
    return devices;
}

void WaveWorker::ForgetEar() {
    const std::lock_guard lock(mutex);
    ear = nullptr;
}

bool WaveWorker::WaitForEnd(Milliseconds patience) {
    std::unique_lock lock(mutex);
    return answer.wait_for(lock, patience, [this] { return ended; });
}

}  // namespace corvanda
