// Makes the sound that tells the end of a run: two strokes of a small bell, a fourth apart.
//
// usage: make_bell FILE.wav
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <vector>

namespace {

constexpr int SampleRate = 44100; // Hz
constexpr int Channels = 2;
constexpr double Seconds = 2.2;
constexpr double Peak = 0.40; // of full scale: a hint, not an alarm

/// One partial of the bell: its ratio to the struck tone, its loudness and how long it rings.
struct Partial
{
    double ratio;
    double level;
    double decaySeconds;
};

// Tuned like a small hand bell: hum, prime, minor third, fifth, nominal and two short upper ones
// that make the stroke.
constexpr Partial Partials[] = {
    {0.5, 0.30, 0.90},
    {1.0, 1.00, 0.75},
    {1.2, 0.16, 0.45},
    {1.5, 0.14, 0.40},
    {2.0, 0.50, 0.38},
    {3.01, 0.16, 0.16},
    {4.17, 0.10, 0.08},
};

/// Adds a stroke; pan is 0 (left) to 1 (right).
void addStroke(
    std::vector<double> &samples, double atSeconds, double hertz, double level, double pan)
{
    const auto start = static_cast<std::size_t>(atSeconds * SampleRate);
    const double gains[Channels] = {std::cos(pan * M_PI / 2), std::sin(pan * M_PI / 2)};
    const std::size_t frames = samples.size() / Channels;
    for (std::size_t frame = start; frame < frames; ++frame) {
        const double time = static_cast<double>(frame - start) / SampleRate;
        double value = 0;
        for (const Partial &partial : Partials) {
            value += partial.level * std::exp(-time / partial.decaySeconds)
                * std::sin(2 * M_PI * hertz * partial.ratio * time);
        }
        // A soft attack of 4 ms instead of a click.
        value *= level * std::min(1.0, time / 0.004);
        for (int channel = 0; channel < Channels; ++channel) {
            samples[frame * Channels + channel] += value * gains[channel];
        }
    }
}

std::vector<double> bell()
{
    std::vector<double> samples(static_cast<std::size_t>(Seconds * SampleRate) * Channels, 0.0);
    addStroke(samples, 0.0, 783.99, 0.8, 0.42);
    addStroke(samples, 0.16, 1046.50, 1.0, 0.58);
    double peak = 0;
    for (const double value : samples) {
        peak = std::max(peak, std::abs(value));
    }
    constexpr std::size_t fade = std::size_t {SampleRate} / 4 * Channels;
    for (std::size_t i = 0; i < samples.size(); ++i) {
        const std::size_t left = samples.size() - i;
        samples[i] *= Peak / peak * (left < fade ? static_cast<double>(left) / fade : 1.0);
    }
    return samples;
}

void put(std::vector<unsigned char> &bytes, std::uint32_t value, int count)
{
    for (int i = 0; i < count; ++i) {
        bytes.push_back(static_cast<unsigned char>(value >> (8 * i)));
    }
}

void putName(std::vector<unsigned char> &bytes, const char *name)
{
    bytes.insert(bytes.end(), name, name + 4);
}

std::vector<unsigned char> wave(const std::vector<double> &samples)
{
    const auto dataBytes = static_cast<std::uint32_t>(samples.size() * 2);
    std::vector<unsigned char> bytes;
    putName(bytes, "RIFF");
    put(bytes, 36 + dataBytes, 4);
    putName(bytes, "WAVE");
    putName(bytes, "fmt ");
    put(bytes, 16, 4);
    put(bytes, 1, 2);
    put(bytes, Channels, 2);
    put(bytes, SampleRate, 4);
    put(bytes, SampleRate * Channels * 2, 4);
    put(bytes, Channels * 2, 2);
    put(bytes, 16, 2);
    putName(bytes, "data");
    put(bytes, dataBytes, 4);
    for (const double value : samples) {
        put(bytes, static_cast<std::uint32_t>(std::lround(value * 32767)), 2);
    }
    return bytes;
}

}

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: make_bell FILE.wav\n");
        return 2;
    }
    const std::vector<unsigned char> bytes = wave(bell());
    std::FILE *file = std::fopen(argv[1], "wb");
    if (file == nullptr) {
        std::perror(argv[1]);
        return 1;
    }
    const bool written = std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
    if (std::fclose(file) != 0 || !written) {
        std::perror(argv[1]);
        std::remove(argv[1]);
        return 1;
    }
    return 0;
}
