#pragma once

#include "PeakInfo.h"
#include <cstdint>
#include <deque>
#include <unordered_map>

namespace QMMultiMedia {

/// Peaks that were computed from the samples, all at one zoom (samples per peak); the oldest goes
/// first when the capacity is reached.
class PeakInfoCache
{
public:
    /// capacity counts pairs.
    explicit PeakInfoCache(const int &capacity);

    /// Keeps a pair. Another zoom than that of the entries empties the cache first.
    void insert(int index, int channel, const float &zoom, const PeakInfo &peak);
    /// The pair, or null; valid until the next insert or reset.
    const PeakInfo *find(int index, int channel, const float &zoom) const;
    /// Empties the cache.
    void reset();

private:
    static std::uint64_t keyOf(int index, int channel);

    int m_nCapacity = 0;
    float m_zoom = 0.0f;
    std::unordered_map<std::uint64_t, PeakInfo> m_peaks;
    std::deque<std::uint64_t> m_keys;
};

}
