#include "SoundTestTools.h"

#include <array>
#include <cmath>
#include <numeric>

using namespace SoundTestTools;

namespace {

/// Level of one frequency and of all the rest, in dB against a full-scale sine; the first and last
/// tenths aren't looked at.
struct Levels
{
    double tone = -300.0;
    double rest = -300.0;
};

Levels measure(const std::vector<double> &samples, int rate, double frequency)
{
    const std::size_t begin = samples.size() / 10;
    const std::size_t end = samples.size() - begin;
    // Least squares over sine and cosine: the solution of a system of two equations.
    double ss = 0;
    double cc = 0;
    double sc = 0;
    double xs = 0;
    double xc = 0;
    for (std::size_t i = begin; i < end; ++i) {
        const double s = std::sin(2 * M_PI * frequency * double(i) / rate);
        const double c = std::cos(2 * M_PI * frequency * double(i) / rate);
        ss += s * s;
        cc += c * c;
        sc += s * c;
        xs += samples[i] * s;
        xc += samples[i] * c;
    }
    const double det = ss * cc - sc * sc;
    const double a = (xs * cc - xc * sc) / det;
    const double b = (xc * ss - xs * sc) / det;
    double rest = 0;
    for (std::size_t i = begin; i < end; ++i) {
        const double w = 2 * M_PI * frequency * double(i) / rate;
        const double error = samples[i] - a * std::sin(w) - b * std::cos(w);
        rest += error * error;
    }
    const double power = rest / double(end - begin);
    return {20 * std::log10(std::hypot(a, b) + 1e-15), 10 * std::log10(2 * power + 1e-30)};
}

/// Level of a sweep and of all the rest in one window, the sweep's phase being known; its level and
/// phase may change linearly in it.
template <typename Phase> Levels measureSweep(const double *samples, std::size_t count, Phase phase)
{
    // Least squares: the normal equations, with the right side as the last column.
    std::array<std::array<double, 5>, 4> equations {};
    const auto basis = [&phase, count](std::size_t i) {
        const double t = double(i) / double(count) - 0.5;
        const double s = std::sin(phase(i));
        const double c = std::cos(phase(i));
        return std::array<double, 4> {s, c, t * s, t * c};
    };
    for (std::size_t i = 0; i < count; ++i) {
        const auto values = basis(i);
        for (std::size_t row = 0; row < 4; ++row) {
            for (std::size_t column = 0; column < 4; ++column) {
                equations[row][column] += values[row] * values[column];
            }
            equations[row][4] += values[row] * samples[i];
        }
    }
    for (std::size_t pivot = 0; pivot < 4; ++pivot) {
        for (std::size_t row = 0; row < 4; ++row) {
            const double factor = equations[row][pivot] / equations[pivot][pivot];
            for (std::size_t column = 0; row != pivot && column < 5; ++column) {
                equations[row][column] -= factor * equations[pivot][column];
            }
        }
    }
    std::array<double, 4> found {};
    for (std::size_t row = 0; row < 4; ++row) {
        found[row] = equations[row][4] / equations[row][row];
    }
    double rest = 0;
    for (std::size_t i = 0; i < count; ++i) {
        const auto values = basis(i);
        const double error
            = samples[i] - std::inner_product(values.begin(), values.end(), found.begin(), 0.0);
        rest += error * error / double(count);
    }
    return {
        20 * std::log10(std::hypot(found[0], found[1]) + 1e-15), 10 * std::log10(2 * rest + 1e-30)};
}

std::vector<double> tone(int rate, int frames, double frequency, double level)
{
    std::vector<double> samples(static_cast<std::size_t>(frames));
    for (int i = 0; i < frames; ++i) {
        samples[i] = level * std::sin(2 * M_PI * frequency * i / rate);
    }
    return samples;
}

}

TEST(ResamplingTest, IsFlatToTwentyKilohertzAndCleanBeyond)
{
    constexpr int seconds = 20;
    constexpr double level = 0.9;
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"sweep.wav"_qs);
    for (const int rate : {96000, 48000}) {
        // From 0 Hz to half the rate, linearly.
        const double slope = rate / 2.0 / seconds;
        const auto phase = [slope](double t) { return M_PI * slope * t * t; };
        std::vector<double> sweep(static_cast<std::size_t>(rate * seconds));
        for (std::size_t i = 0; i < sweep.size(); ++i) {
            sweep[i] = level * std::sin(phase(double(i) / rate));
        }
        ASSERT_TRUE(writeWave(path, rate, 1, sweep));
        const Read read = readAll(path, 44100, 24);
        EXPECT_EQ(read.frames, 44100 * seconds);
        const std::vector<double> out = read.samples(24, 0);
        constexpr std::size_t window = 1024;
        for (std::size_t first = window; first + 2 * window < out.size(); first += window) {
            const double end = slope * double(first + window) / 44100;
            const double begin = slope * double(first) / 44100;
            SCOPED_TRACE(testing::Message() << rate << " Hz, sweep at " << begin);
            if (begin > 50 && end < 20000) {
                const Levels levels = measureSweep(&out[first], window,
                    [&](std::size_t i) { return phase(double(first + i) / 44100); });
                ASSERT_NEAR(levels.tone, 20 * std::log10(level), 0.1);
                ASSERT_LT(levels.rest, -110.0);
            } else if (begin > 22100) {
                // Above half the new rate nothing is left, folded down or not.
                double power = 0;
                for (std::size_t i = first; i < first + window; ++i) {
                    power += out[i] * out[i] / window;
                }
                ASSERT_LT(10 * std::log10(2 * power + 1e-30), -110.0);
            }
        }
    }
}

TEST(ResamplingTest, KeepsLengthAndPlaceAtEveryRate)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"tone.wav"_qs);
    for (const int from : {8000, 11025, 22050, 32000, 44100, 48000, 88200, 176400, 192000}) {
        const int frames = from / 2 + 3;
        ASSERT_TRUE(writeWave(path, from, 1, tone(from, frames, 440.0, 0.5)));
        for (const int to : {22050, 44100, 48000, 96000}) {
            SCOPED_TRACE(testing::Message() << from << " to " << to);
            const Read read = readAll(path, to, 16);
            EXPECT_NEAR(read.frames, double(frames) * to / from, 1.0);
            const std::vector<double> left = read.samples(16, 0);
            double worst = 0.0;
            for (std::size_t i = left.size() / 10; i < left.size() * 9 / 10; ++i) {
                worst = std::max(
                    worst, std::abs(left[i] - 0.5 * std::sin(2 * M_PI * 440.0 * double(i) / to)));
            }
            EXPECT_LT(worst, 2e-4);
            EXPECT_TRUE(left == read.samples(16, 1));
        }
    }
}

TEST(ResamplingTest, MixesFiveOneByTheStandardCoefficients)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"six.wav"_qs);
    // Front left and right, centre, low frequencies, back left and right.
    const double root = std::sqrt(0.5);
    const double left[] = {1.0, 0.0, root, 0.0, root, 0.0};
    const double right[] = {0.0, 1.0, root, 0.0, 0.0, root};
    const double sum = 1.0 + 2 * root;
    for (const int rate : {44100, 48000}) {
        for (int channel = 0; channel < 6; ++channel) {
            SCOPED_TRACE(testing::Message() << rate << " Hz, channel " << channel);
            std::vector<double> samples;
            for (const double value : tone(rate, rate / 4, 1000.0, 0.9)) {
                for (int c = 0; c < 6; ++c) {
                    samples.push_back(c == channel ? value : 0.0);
                }
            }
            ASSERT_TRUE(writeWave(path, rate, 6, samples));
            const Read read = readAll(path, 44100, 16);
            for (int side = 0; side < 2; ++side) {
                const double wanted = 0.9 * (side == 0 ? left : right)[channel] / sum;
                const Levels levels = measure(read.samples(16, side), 44100, 1000.0);
                EXPECT_NEAR(std::pow(10.0, levels.tone / 20), wanted, 0.001);
            }
        }
    }
}
