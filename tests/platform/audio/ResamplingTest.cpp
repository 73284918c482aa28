#include "SoundTestTools.h"

#include <cmath>

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

std::vector<double> tone(int rate, int frames, double frequency, double level)
{
    std::vector<double> samples;
    for (int i = 0; i < frames; ++i) {
        samples.push_back(level * std::sin(2 * M_PI * frequency * i / rate));
    }
    return samples;
}

}

TEST(ResamplingTest, IsFlatToTwentyKilohertzAndCleanBeyond)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"tone.wav"_qs);
    for (const int rate : {96000, 48000}) {
        for (const double frequency : {50.0, 997.0, 5003.0, 10007.0, 15013.0, 18013.0, 19001.0,
                 20000.0, 22100.0, 23001.0, 23900.0, 30011.0, 40009.0, 47000.0}) {
            if (frequency > rate / 2.0) {
                continue;
            }
            SCOPED_TRACE(testing::Message() << rate << " Hz, tone " << frequency);
            ASSERT_TRUE(writeWave(path, rate, 1, tone(rate, rate, frequency, 0.9)));
            const Read read = readAll(path, 44100, 24);
            EXPECT_EQ(read.frames, 44100);
            const Levels levels = measure(read.samples(24, 0), 44100, frequency);
            const double full = 20 * std::log10(0.9);
            if (frequency <= 20000.0) {
                EXPECT_NEAR(levels.tone, full, 0.1);
                EXPECT_LT(levels.rest, -110.0);
            } else {
                // Above half the new rate nothing is left, folded down or not.
                EXPECT_LT(levels.rest, -110.0);
                EXPECT_LT(levels.tone, -110.0);
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
