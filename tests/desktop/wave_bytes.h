// Wave files for the tests of the sound player, made byte by byte.
#pragma once

#include <QByteArray>
#include <QFile>
#include <cstdint>
#include <vector>

namespace corvanda::pruebas {

using Signal = std::vector<std::int16_t>;

struct WaveFormat {
    std::uint16_t coding = 1;  ///< 1 is plain samples
    std::uint16_t channels = 2;
    std::uint32_t rate = 44100;
    std::uint16_t bits = 16;
};

template <class Number>
void Append(QByteArray& bytes, Number number) {
    bytes.append(reinterpret_cast<const char*>(&number), sizeof number);
}

inline QByteArray WaveBytes(const WaveFormat& format, const QByteArray& data) {
    const auto frame = static_cast<std::uint16_t>(format.channels * format.bits / 8);
    QByteArray bytes("RIFF");
    Append(bytes, static_cast<std::uint32_t>(36 + data.size()));
    bytes.append("WAVEfmt ");
    Append(bytes, std::uint32_t{16});
    Append(bytes, format.coding);
    Append(bytes, format.channels);
    Append(bytes, format.rate);
    Append(bytes, static_cast<std::uint32_t>(format.rate * frame));
    Append(bytes, frame);
    Append(bytes, format.bits);
    bytes.append("data");
    Append(bytes, static_cast<std::uint32_t>(data.size()));
    return bytes + data;
}

inline QByteArray BytesOf(const Signal& signal) {
    return {reinterpret_cast<const char*>(signal.data()),
            static_cast<qsizetype>(signal.size() * sizeof signal[0])};
}

inline Signal SignalOf(const QByteArray& bytes) {
    const auto* first = reinterpret_cast<const std::int16_t*>(bytes.constData());
    return {first, first + static_cast<std::size_t>(bytes.size()) / sizeof *first};
}

/// Frames of two equal samples, none of them 0, so that silence around them can be told apart.
inline Signal Ramp(int frames, int start) {
    Signal signal;
    for (int i = 0; i < frames; ++i) {
        const auto value = static_cast<std::int16_t>(start + i % 5000);
        signal.insert(signal.end(), {value, value});
    }
    return signal;
}

inline void WriteFile(const QString& name, const QByteArray& bytes) {
    QFile file(name);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(name));
}

}  // namespace corvanda::pruebas
