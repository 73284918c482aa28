#include "ChunkEffects.h"
#include "SignalScan.h"

#include <cmath>
#include <gtest/gtest.h>
#include <random>
#include <vector>

namespace {

constexpr int grain = 32000;

std::vector<float> processed(const ChunkEffects::Plan &plan, std::vector<float> signal)
{
    ChunkEffects effects(plan);
    std::vector<float> written;
    for (std::size_t at = 0; at < signal.size(); at += grain) {
        const int count = static_cast<int>(std::min<std::size_t>(grain, signal.size() - at));
        const ChunkEffects::Result result = effects.process(signal.data() + at, count);
        written.insert(written.end(), result.values, result.values + result.count);
        if (result.last) {
            break;
        }
    }
    return written;
}

ChunkEffects::Plan planFor(const std::vector<float> &signal)
{
    ChunkEffects::Plan plan;
    plan.numSamples = static_cast<qint64>(signal.size());
    return plan;
}

}

TEST(ChunkEffects, FadeInEndsWithTheLastChunkWhollyInside)
{
    const std::vector<float> signal(5 * grain, 1.0f);
    ChunkEffects::Plan plan = planFor(signal);
    plan.fade = true;
    plan.fadeInSamples = 2 * grain + 100;
    const std::vector<float> out = processed(plan, signal);
    ASSERT_EQ(out.size(), signal.size());
    float gain = 0.0f;
    const float step = 1.0f / static_cast<float>(plan.fadeInSamples);
    for (int i = 0; i < 2 * grain; ++i) {
        ASSERT_EQ(out[i], gain) << i;
        gain += step;
    }
    EXPECT_EQ(out[2 * grain], 1.0f);
    EXPECT_EQ(out.back(), 1.0f);
}

TEST(ChunkEffects, FadeOutBeginsWithTheChunkThatReachesItsStart)
{
    const std::vector<float> signal(4 * grain, 1.0f);
    ChunkEffects::Plan plan = planFor(signal);
    plan.fade = true;
    plan.fadeOutSamples = grain + 10; // begins 10 values before the last chunk
    const std::vector<float> out = processed(plan, signal);
    float gain = 1.0f;
    const float step = 1.0f / static_cast<float>(plan.fadeOutSamples);
    EXPECT_EQ(out[2 * grain - 1], 1.0f);
    for (int i = 2 * grain; i < 4 * grain; ++i) {
        ASSERT_EQ(out[i], gain) << i;
        gain -= gain > 0.0f ? step : 0.0f;
    }
    EXPECT_LE(out.back(), 0.0f);
    EXPECT_GT(out.back(), -step);
}

TEST(ChunkEffects, FadesOfShortFilesAndOfNoLength)
{
    const std::vector<float> signal(1000, 0.5f);
    ChunkEffects::Plan plan = planFor(signal);
    plan.fade = true;
    EXPECT_EQ(processed(plan, signal), signal);

    plan.fadeInSamples = 500000;
    std::vector<float> out = processed(plan, signal);
    EXPECT_EQ(out.front(), 0.0f);
    EXPECT_NEAR(out.back(), 0.5f * 0.999f, 1e-4);

    plan.fadeOutSamples = 500000;
    out = processed(plan, signal);
    EXPECT_NEAR(out[500], 0.5f * 0.5f * 0.5f, 1e-4);
}

TEST(ChunkEffects, TrimmingWritesFromTheFirstAudibleFrameToJustBeforeTheLastAudibleValue)
{
    struct Case
    {
        qint64 first;
        qint64 last;
        qint64 from;
        qint64 to;
    };
    const std::vector<Case> cases {
        {10, 20, 10, 20}, {11, 20, 10, 20}, // left and right keep their places
        {grain, grain + 6, grain, grain + 6}, // at the edge of a chunk
        {grain - 2, 2 * grain, grain - 2, 2 * grain},
        {grain + 4, 3 * grain - 1, grain + 4, 3 * grain - 1}, {0, 0, 0, 0}, // nothing audible
    };
    std::vector<float> signal(3 * grain + 500);
    for (std::size_t i = 0; i < signal.size(); ++i) {
        signal[i] = static_cast<float>(i);
    }
    for (const Case &c : cases) {
        ChunkEffects::Plan plan = planFor(signal);
        plan.trim = true;
        plan.firstAudible = c.first;
        plan.lastAudible = c.last;
        const std::vector<float> expected(signal.begin() + c.from, signal.begin() + c.to);
        EXPECT_EQ(processed(plan, signal), expected) << c.first << ".." << c.last;
    }
}

TEST(ChunkEffects, TrimmingMovesTheFades)
{
    const std::vector<float> signal(6 * grain, 1.0f);
    ChunkEffects::Plan plan = planFor(signal);
    plan.fade = true;
    plan.trim = true;
    plan.fadeInSamples = grain;
    plan.fadeOutSamples = grain;
    plan.firstAudible = grain + 100;
    plan.lastAudible = 5 * grain;
    plan.normalise = true;
    plan.gain = 0.5f;
    const std::vector<float> out = processed(plan, signal);
    ASSERT_EQ(out.size(), 4U * grain - 100);
    EXPECT_NEAR(out[0], 0.5f * 100 / grain, 1e-5); // the ramp began with the chunk
    EXPECT_NEAR(out[grain - 101], 0.5f, 1e-3);
    EXPECT_EQ(out[grain - 100], 0.5f);
    EXPECT_EQ(out[2 * grain - 101], 0.5f); // the fade-out begins with the next chunk
    EXPECT_LT(out.back(), 0.01f);
}

TEST(SignalScan, AgreesWithAPlainLoopWhateverTheBlocks)
{
    std::mt19937 random(7);
    std::uniform_real_distribution<float> noise(-1.2f, 1.2f);
    std::vector<float> signal(100001, 0.0f);
    for (std::size_t i = 1234; i < 90001; ++i) {
        signal[i] = noise(random);
    }
    signal[50] = 0.02f; // not above the threshold
    signal[60] = -0.9f; // negative: never audible
    signal[100] = 0.5f;
    float peak = 0.0f;
    qint64 last = 0;
    for (std::size_t i = 0; i < signal.size(); ++i) {
        peak = std::max(peak, std::fabs(signal[i]));
        last = signal[i] > 0.02f ? static_cast<qint64>(i) : last;
    }
    for (const int block : {1, 7, 16, 1000, 32000, 200000}) {
        SignalScan scan;
        for (std::size_t at = 0; at < signal.size(); at += block) {
            scan.add(signal.data() + at,
                static_cast<int>(std::min<std::size_t>(block, signal.size() - at)));
        }
        EXPECT_EQ(scan.numSamples(), 100001);
        EXPECT_EQ(scan.maxPeak(), peak);
        EXPECT_EQ(scan.firstAudible(), 100);
        EXPECT_EQ(scan.lastAudible(), last);
    }
    SignalScan silent;
    const std::vector<float> negative(100, -0.5f);
    silent.add(negative.data(), 100);
    EXPECT_EQ(silent.maxPeak(), 0.5f);
    EXPECT_EQ(silent.lastAudible(), 0);
}
