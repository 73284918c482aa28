#include "PeakInfoCache.h"

#include <algorithm>
#include <cstddef>

namespace QMMultiMedia {

PeakInfoCache::PeakInfoCache(const int &capacity)
    : m_nCapacity(std::max(capacity, 1))
{
}

std::uint64_t PeakInfoCache::keyOf(int index, int channel)
{
    return static_cast<std::uint64_t>(static_cast<std::uint32_t>(channel)) << 32U
        | static_cast<std::uint32_t>(index);
}

void PeakInfoCache::insert(int index, int channel, const float &zoom, const PeakInfo &peak)
{
    if (zoom != m_zoom) {
        m_zoom = zoom;
        reset();
    }
    const std::uint64_t key = keyOf(index, channel);
    const auto known = m_peaks.find(key);
    if (known != m_peaks.end()) {
        known->second = peak;
        return;
    }
    if (m_peaks.size() >= static_cast<std::size_t>(m_nCapacity)) {
        m_peaks.erase(m_keys.front());
        m_keys.pop_front();
    }
    m_peaks.emplace(key, peak);
    m_keys.push_back(key);
}

const PeakInfo *PeakInfoCache::find(int index, int channel, const float &zoom) const
{
    if (zoom != m_zoom) {
        return nullptr;
    }
    const auto known = m_peaks.find(keyOf(index, channel));
    return known != m_peaks.end() ? &known->second : nullptr;
}

void PeakInfoCache::reset()
{
    m_peaks.clear();
    m_keys.clear();
}

}
