#include "ChunkEffects.h"

#include <algorithm>
#include <array>

namespace {

/// A ramp accumulates value by value in float, which is serial; it is filled into a block of this
/// size and the block is multiplied with vectors.
constexpr int rampBlock = 512;

template <typename NextGain> void multiplyByRamp(float *values, int count, NextGain nextGain)
{
    std::array<float, rampBlock> ramp;
    for (int done = 0; done < count; done += rampBlock) {
        const int block = std::min(rampBlock, count - done);
        for (int i = 0; i < block; ++i) {
            ramp[i] = nextGain();
        }
        for (int i = 0; i < block; ++i) {
            values[done + i] *= ramp[i];
        }
    }
}

}

ChunkEffects::ChunkEffects(const Plan &plan)
    : m_plan(plan)
{
    m_fadeInLength = std::clamp<qint64>(plan.fadeInSamples, 0, plan.numSamples);
    m_fadeOutLength = std::clamp<qint64>(plan.fadeOutSamples, 0, plan.numSamples);
    m_fadeInStep = m_fadeInLength > 0 ? 1.0f / static_cast<float>(m_fadeInLength) : 0.0f;
    m_fadeOutStep = m_fadeOutLength > 0 ? 1.0f / static_cast<float>(m_fadeOutLength) : 0.0f;
    m_fadeInTo = m_fadeInLength;
    m_fadeOutStart = plan.numSamples - m_fadeOutLength;
    if (plan.trim) {
        m_fadeInFrom = plan.firstAudible;
        m_fadeInTo += plan.firstAudible;
        m_fadeOutStart += plan.lastAudible - plan.numSamples;
    }
}

ChunkEffects::Result ChunkEffects::process(float *values, int count)
{
    const qint64 chunkStart = m_position;
    const qint64 chunkEnd = chunkStart + count;
    m_position = chunkEnd;
    if (m_plan.normalise) {
        const float gain = m_plan.gain;
        for (int i = 0; i < count; ++i) {
            values[i] *= gain;
        }
    }
    if (m_plan.fade) {
        fadeIn(values, count, chunkEnd);
        fadeOut(values, count, chunkEnd);
    }
    if (m_plan.trim) {
        return trim(values, count, chunkStart, chunkEnd);
    }
    return {values, count, false};
}

void ChunkEffects::fadeIn(float *values, int count, qint64 chunkEnd)
{
    if (m_fadeInLength == 0 || chunkEnd > m_fadeInTo || chunkEnd < m_fadeInFrom) {
        return;
    }
    multiplyByRamp(values, count, [this] {
        const float gain = m_fadeInGain;
        m_fadeInGain += m_fadeInStep;
        return gain;
    });
}

void ChunkEffects::fadeOut(float *values, int count, qint64 chunkEnd)
{
    if (m_fadeOutLength == 0 || chunkEnd < m_fadeOutStart) {
        return;
    }
    multiplyByRamp(values, count, [this] {
        const float gain = m_fadeOutGain;
        if (gain > 0.0f) {
            m_fadeOutGain -= m_fadeOutStep;
        }
        return gain;
    });
}

ChunkEffects::Result ChunkEffects::trim(
    float *values, int count, qint64 chunkStart, qint64 chunkEnd) const
{
    if (chunkEnd < m_plan.firstAudible) {
        return {values, 0, false};
    }
    if (m_plan.lastAudible < chunkStart) {
        return {values, 0, true};
    }
    // What is written begins with a whole frame, so that left and right never change places.
    const qint64 first = m_plan.firstAudible - m_plan.firstAudible % std::max(1, m_plan.channels);
    const qint64 from = std::max(chunkStart, first);
    const bool endsHere = m_plan.lastAudible <= chunkEnd;
    const qint64 to = endsHere ? std::max(m_plan.lastAudible, from) : chunkEnd;
    Result result;
    result.values = values + (from - chunkStart);
    result.count = static_cast<int>(std::min<qint64>(to - from, count));
    result.last = endsHere && result.count == 0;
    return result;
}
