#include "desktop/wave_file.h"

#include <SDL.h>

#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <cmath>
#include <cstring>
#include <memory>

namespace corvanda::wave {

namespace {

constexpr qint64 largest_file = 32 << 20;
constexpr qint64 largest_sound = 128 << 20;
// Rates below are no sound, and would blow a small damaged file up to an enormous one.
constexpr int lowest_rate = 1000;

struct Decoded {
    SDL_AudioSpec kind{};
    std::unique_ptr<Uint8, void (*)(Uint8*)> bytes{nullptr, SDL_FreeWAV};
    Uint32 length = 0;
};

QByteArray ReadBytes(const QString& name) {
    QFile file(name);
    // A pipe or a device might never end.
    if (!QFileInfo(name).isFile() || !file.open(QIODevice::ReadOnly)) return {};
    const QByteArray bytes = file.read(std::min(file.size(), largest_file) + 1);
    return bytes.size() > largest_file ? QByteArray() : bytes;
}

std::optional<Decoded> Decode(const QByteArray& file) {
    SDL_RWops* source = SDL_RWFromConstMem(file.constData(), static_cast<int>(file.size()));
    if (source == nullptr) return {};
    Decoded decoded;
    Uint8* bytes = nullptr;
    if (SDL_LoadWAV_RW(source, 1, &decoded.kind, &bytes, &decoded.length) == nullptr) return {};
    decoded.bytes.reset(bytes);
    return decoded;
}

std::optional<Samples> Convert(const Decoded& decoded) {
    const SDL_AudioSpec& kind = decoded.kind;
    SDL_AudioCVT plan;
    if (kind.freq < lowest_rate || SDL_BuildAudioCVT(&plan, kind.format, kind.channels, kind.freq,
                                                     AUDIO_S16SYS, Channels, Rate) < 0)
        return {};
    const qint64 room = static_cast<qint64>(decoded.length) * plan.len_mult;
    if (room > largest_sound) return {};
    Samples samples(static_cast<std::size_t>(room));
    std::copy_n(decoded.bytes.get(), decoded.length, samples.begin());
    plan.buf = samples.data();
    plan.len = static_cast<int>(decoded.length);
    plan.len_cvt = plan.len;
    if (plan.needed != 0 && SDL_ConvertAudio(&plan) != 0) return {};
    samples.resize(static_cast<std::size_t>(plan.len_cvt));
    return samples;
}

}  // namespace

std::optional<Samples> ReadWaveFile(const QString& file) {
    const QByteArray bytes = ReadBytes(file);
    const auto decoded = Decode(bytes);
    return decoded ? Convert(*decoded) : std::nullopt;
}

Samples Signal() {
    constexpr int frames = Rate * 15 / 100;
    constexpr double pitch = 587;  // hertz
    constexpr double loudness = 9000;
    constexpr double rise = Rate / 100.0;  // frames; without it the tone would tick
    std::vector<std::int16_t> values;
    for (int i = 0; i < frames; ++i) {
        const double swell = std::min({1.0, i / rise, (frames - i) / (5 * rise)});
        const double value = loudness * swell * std::sin(2 * M_PI * pitch * i / Rate);
        values.insert(values.end(), Channels, static_cast<std::int16_t>(value));
    }
    Samples samples(values.size() * sizeof values[0]);
    std::memcpy(samples.data(), values.data(), samples.size());
    return samples;
}

}  // namespace corvanda::wave
