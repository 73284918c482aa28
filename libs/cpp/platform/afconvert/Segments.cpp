#include "Segments.h"

#include "WavSource.h"
#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace {

constexpr int shortestSeconds = 10;
constexpr int longestSeconds = 120;
// Bytes of packets that may wait for their turn.
constexpr std::int64_t waitingBytes = std::int64_t {16} << 20;

// How far a start is moved to each side: within a beat or two at least, and little against the
// segments, whose lengths must stay alike for the cores to be done at the same time.
constexpr double nearSeconds = 0.45;
constexpr double farSeconds = 2;
constexpr int farthestPart = 48;

// Blocks before and behind a start that are looked at: the run-up, and what an encoder needs until
// it no longer matters where it began.
constexpr int blocksBefore = 13;
constexpr int blocksBehind = 16;

constexpr float silenceLevel = -100; // dB

std::int64_t packetsIn(double seconds, const AacFormat &format)
{
    return static_cast<std::int64_t>(seconds * format.sampleRate) / packetFrames;
}

/// The level of each of so many blocks from the first one on, in dB, treble counting more, as it
/// does when attacks are looked for.
std::vector<float> levelsOf(
    const WavSource &source, int channels, std::int64_t firstBlock, std::int64_t count)
{
    std::vector<float> levels;
    std::vector<std::uint8_t> scratch;
    std::array<std::array<float, packetFrames>, 2> samples {};
    const std::array<float *, 2> planes {samples[0].data(), samples[1].data()};
    for (std::int64_t block = firstBlock; block < firstBlock + count; ++block) {
        source.read(block * packetFrames, packetFrames, planes.data(), scratch);
        float energy = 0;
        for (int channel = 0; channel < channels; ++channel) {
            const auto &plane = samples.at(static_cast<std::size_t>(channel));
            for (std::size_t i = 1; i < plane.size(); ++i) {
                const float step = plane[i] - plane[i - 1];
                energy += step * step;
            }
        }
        const float mean = energy / static_cast<float>(packetFrames * channels);
        levels.push_back(std::max(silenceLevel, 10 * std::log10(mean + 1e-10F)));
    }
    return levels;
}

/// How unfit a place is for a joint: the range of the levels around it, the steepest rise, and how
/// much quieter the run-up is than the neighbourhood gets. Silence is best of all: every encoder is
/// in the same state then.
float unrest(const float *levels, float loudest)
{
    const float *end = levels + blocksBefore + blocksBehind;
    const auto [low, high] = std::minmax_element(levels, end);
    if (*high <= silenceLevel) {
        return -1;
    }
    float rise = 0;
    for (const float *level = levels + 1; level != end; ++level) {
        rise = std::max(rise, level[0] - level[-1]);
    }
    const float runUp = *std::max_element(levels, levels + blocksBefore);
    return *high - *low + 2 * rise + (loudest - runUp) / 2;
}

/// The steadiest start from the first one to the last one; near the middle if all are alike.
std::int64_t steadiest(
    const WavSource &source, const AacFormat &format, std::int64_t first, std::int64_t last)
{
    const auto levels = levelsOf(
        source, format.channels, first - blocksBefore, last - first + blocksBefore + blocksBehind);
    const float loudest = *std::max_element(levels.begin(), levels.end());
    const std::int64_t middle = (first + last) / 2;
    std::int64_t best = middle;
    float least = std::numeric_limits<float>::max();
    for (std::int64_t start = first; start <= last; ++start) {
        const float distance = static_cast<float>(std::abs(start - middle)) / 1000;
        const float value = unrest(levels.data() + (start - first), loudest) + distance;
        if (value < least) {
            least = value;
            best = start;
        }
    }
    return best;
}

}

std::vector<std::int64_t> Segments::evenStarts(
    std::int64_t packets, const AacFormat &format, int threads)
{
    const std::int64_t shortest = packetsIn(shortestSeconds, format);
    std::int64_t longest = packetsIn(longestSeconds, format);
    const std::int64_t packetBytes = std::max<std::int64_t>(
        1, static_cast<std::int64_t>(format.bitRate) * packetFrames / format.sampleRate / 8);
    longest = std::clamp(waitingBytes / (packetBytes * (threads + 2)), shortest, longest);

    // The same number for every thread, as far as the segments don't get too short.
    std::int64_t count = std::max<std::int64_t>((packets + longest - 1) / longest, threads);
    count = (count + threads - 1) / threads * threads;
    count = std::clamp<std::int64_t>(packets / shortest, 1, count);
    std::vector<std::int64_t> starts;
    for (std::int64_t i = 0; i < count; ++i) {
        starts.push_back(packets / count * i + packets % count * i / count);
    }
    return starts;
}

std::vector<std::int64_t> Segments::steadyStarts(const WavSource &source, const AacFormat &format,
    std::int64_t packets, std::vector<std::int64_t> starts)
{
    const auto count = static_cast<std::int64_t>(starts.size());
    const std::int64_t shortest = packetsIn(shortestSeconds, format);
    const std::int64_t farthest = std::clamp(packets / count / farthestPart,
        packetsIn(nearSeconds, format), packetsIn(farSeconds, format));
    for (std::size_t i = 1; i < starts.size(); ++i) {
        const auto behind = count - static_cast<std::int64_t>(i);
        const std::int64_t first = std::max(starts[i - 1] + shortest, starts[i] - farthest);
        const std::int64_t last = std::min(packets - behind * shortest, starts[i] + farthest);
        if (first < last) {
            starts[i] = steadiest(source, format, first, last);
        }
    }
    return starts;
}
