#include "SignalScan.h"

#include <algorithm>
#include <array>

namespace {

constexpr float silenceThreshold = 0.02f;
/// Independent running limits, so that a compiler without relaxed float rules can keep them in
/// vectors.
constexpr int lanes = 16;

}

void SignalScan::add(const float *values, int count)
{
    addLimits(values, count);
    addAudible(values, count);
    m_numSamples += count;
}

void SignalScan::addLimits(const float *values, int count)
{
    std::array<float, lanes> low {};
    std::array<float, lanes> high {};
    const int whole = count - count % lanes;
    for (int i = 0; i < whole; i += lanes) {
        for (int lane = 0; lane < lanes; ++lane) {
            const float value = values[i + lane];
            low[lane] = value < low[lane] ? value : low[lane];
            high[lane] = value > high[lane] ? value : high[lane];
        }
    }
    for (int i = whole; i < count; ++i) {
        low[0] = std::min(low[0], values[i]);
        high[0] = std::max(high[0], values[i]);
    }
    m_lowest = std::min(m_lowest, *std::min_element(low.begin(), low.end()));
    m_highest = std::max(m_highest, *std::max_element(high.begin(), high.end()));
}

void SignalScan::addAudible(const float *values, int count)
{
    const auto audible = [](float value) { return value > silenceThreshold; };
    if (!m_firstFound) {
        const float *first = std::find_if(values, values + count, audible);
        if (first == values + count) {
            return;
        }
        m_firstAudible = m_numSamples + (first - values);
        m_firstFound = true;
    }
    // Sound mostly goes on to the end of a block, so the last place is found after a few steps
    // back.
    for (int i = count - 1; i >= 0; --i) {
        if (audible(values[i])) {
            m_lastAudible = m_numSamples + i;
            return;
        }
    }
}
