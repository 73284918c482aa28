#pragma once

#include <cmath>
#include <cstdint>
#include <cstring>
#include <QByteArray>
#include <random>
#include <vector>

/// Sounds and WAV files for the converter's tests.
namespace TestSound {

/// Tones with decays, attacks of noise and pauses; 16 bits, interleaved, the channels differ.
inline std::vector<std::int16_t> music(
    int sampleRate, int channels, std::int64_t frames, double noisiness = 1)
{
    std::minstd_rand random(7);
    std::vector<std::int16_t> samples;
    for (std::int64_t i = 0; i < frames; ++i) {
        const double t = static_cast<double>(i) / sampleRate;
        const double beat = std::fmod(t, 0.4);
        const double loudness = std::fmod(t, 11.0) < 9 ? 1.0 : 0.02;
        const double noise
            = noisiness * (static_cast<double>(random()) / std::minstd_rand::max() - 0.5);
        for (int channel = 0; channel < channels; ++channel) {
            const double pitch = 110.0 * (1 + channel * 0.26) * (1 + std::floor(std::fmod(t, 3.2)));
            const double value = 0.3 * std::sin(6.2832 * pitch * t) * std::exp(-4 * beat)
                + 0.1 * std::sin(6.2832 * 3.01 * pitch * t) + 0.5 * noise * std::exp(-60 * beat)
                + 0.01 * noise;
            samples.push_back(static_cast<std::int16_t>(32000 * value * loudness));
        }
    }
    return samples;
}

inline QByteArray number(std::uint32_t value, int bytes)
{
    QByteArray raw;
    for (int i = 0; i < bytes; ++i) {
        raw.append(static_cast<char>(value >> (8 * i) & 0xff));
    }
    return raw;
}

/// What is in front of and around the samples of a WAV file.
struct Wav
{
    int tag = 1;
    int channels = 2;
    int sampleRate = 44100;
    int bits = 16;
    QByteArray chunksBefore; ///< between "WAVE" and "fmt "
    qint64 statedBytes = -1; ///< of data; -1 for the real number
    bool extensible = false;

    QByteArray bytes(const QByteArray &data) const
    {
        const int align = channels * bits / 8;
        QByteArray format = number(extensible ? 0xfffe : tag, 2) + number(channels, 2)
            + number(sampleRate, 4) + number(sampleRate * align, 4) + number(align, 2)
            + number(bits, 2);
        if (extensible) {
            format += number(22, 2) + number(bits, 2) + number(3, 4) + number(tag, 2)
                + QByteArray::fromHex("000000001000800000aa00389b71");
        }
        const auto stated = static_cast<std::uint32_t>(statedBytes < 0 ? data.size() : statedBytes);
        return "RIFF" + number(0, 4) + "WAVE" + chunksBefore + "fmt " + number(format.size(), 4)
            + format + "data" + number(stated, 4) + data;
    }
};

inline QByteArray rawBytes(const std::vector<std::int16_t> &samples)
{
    return {reinterpret_cast<const char *>(samples.data()), static_cast<int>(samples.size() * 2)};
}

}
