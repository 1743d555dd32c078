#include "desktop/wave_device.h"

// The program has its own main; the library must not put another in front of it.
#define SDL_MAIN_HANDLED
#include <SDL.h>

#include <algorithm>
#include <cstring>
#include <utility>

namespace corvanda {

namespace {

/// Frames that the library hands over at once, about 23 milliseconds. With half as many, sounds
/// crackle on a machine that has other work to do; with twice as many, they come late.
constexpr int frames_at_once = 1024;
/// How long a sound that is replaced takes to fall silent; cut off at once, it would tick.
constexpr std::size_t fade_bytes = wave::BytesPerSecond * 2 / 1000 / 4 * 4;

/// The first samples of what is left of a sound, falling to nothing.
wave::Samples FadeOut(const wave::Samples& sound, std::size_t left) {
    const std::size_t played = sound.size() - std::min(left, sound.size());
    const std::size_t size = std::min(fade_bytes, sound.size() - played);
    wave::Samples tail(size);
    if (size == 0) return tail;
    std::vector<std::int16_t> values(size / sizeof(std::int16_t));
    std::memcpy(values.data(), sound.data() + played, size);
    const auto count = static_cast<int>(values.size());
    for (int i = 0; i < count; ++i) {
        auto& value = values[static_cast<std::size_t>(i)];
        value = static_cast<std::int16_t>(value * (count - i) / (count + 1));
    }
    std::memcpy(tail.data(), values.data(), size);
    return tail;
}

}  // namespace

WaveDevice::~WaveDevice() {
    Close();
    // What the library keeps for each thread, which it cannot see end.
    SDL_TLSCleanup();
}

bool WaveDevice::Start() {
    if (started) return true;
    SDL_SetMainReady();
    // SIGTERM and SIGINT belong to the program.
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    SDL_SetHint(SDL_HINT_AUDIO_DEVICE_STREAM_ROLE, "game");
    started = SDL_InitSubSystem(SDL_INIT_AUDIO) == 0;
    rest_at = Clock::now() + quiet;
    return started;
}

bool WaveDevice::Open() {
    if (device != 0) return true;
    // Opening what is not there makes the libraries below complain on the terminal at every sound.
    if (Count() == 0) return false;
    SDL_AudioSpec wanted{};
    wanted.freq = wave::Rate;
    wanted.format = AUDIO_S16SYS;
    wanted.channels = wave::Channels;
    wanted.samples = frames_at_once;
    // No changes allowed: a device of another format gets its samples through the library's own
    // conversion.
    device = SDL_OpenAudioDevice(nullptr, 0, &wanted, nullptr, 0);
    return device != 0;
}

unsigned WaveDevice::Count() {
    if (!Start()) return 0;
    return static_cast<unsigned>(std::max(0, SDL_GetNumAudioDevices(0)));
}

bool WaveDevice::Play(wave::Samples samples) {
    // A device whose server died is stopped for ever.
    if (device != 0 && SDL_GetAudioDeviceStatus(device) == SDL_AUDIO_STOPPED) Close();
    if (!Open()) {
        Close();
        return false;
    }
    // In one lock, so that the device finds either sound and no gap between them.
    SDL_LockAudioDevice(device);
    const wave::Samples tail = FadeOut(playing, SDL_GetQueuedAudioSize(device));
    SDL_ClearQueuedAudio(device);
    SDL_QueueAudio(device, tail.data(), static_cast<Uint32>(tail.size()));
    SDL_QueueAudio(device, samples.data(), static_cast<Uint32>(samples.size()));
    SDL_UnlockAudioDevice(device);
    SDL_PauseAudioDevice(device, 0);
    const auto bytes = static_cast<std::int64_t>(samples.size());
    rest_at = Clock::now() + quiet + std::chrono::milliseconds(bytes * 1000 / wave::BytesPerSecond);
    playing = std::move(samples);
    return true;
}

void WaveDevice::Rest() {
    if (device == 0 || SDL_GetQueuedAudioSize(device) == 0) return Close();
    rest_at = Clock::now() + quiet;
}

void WaveDevice::Close() {
    if (!started) return;
    if (device != 0) SDL_CloseAudioDevice(device);
    SDL_Quit();
    device = 0;
    started = false;
    playing = {};
}

}  // namespace corvanda
