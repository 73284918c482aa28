#include "PeakVector.h"

#include <algorithm>
#include <cstddef>
#include <QDebug>

namespace QMMultiMedia {

PeakVector::PeakVector(int numFrames, int channels)
    : m_peaks(static_cast<std::size_t>(std::max(channels, 0)),
        std::vector<PeakInfo>(static_cast<std::size_t>(std::max(numFrames, 0))))
{
}

PeakVector::PeakVector(int channels)
    : PeakVector(0, channels)
{
}

std::vector<PeakInfo> &PeakVector::channelAt(int channel)
{
    const auto index = static_cast<std::size_t>(channel);
    if (index >= m_peaks.size()) {
        m_peaks.resize(index + 1);
    }
    return m_peaks[index];
}

void PeakVector::addPeak(const float &first, const float &second, int channel)
{
    if (channel >= 0) {
        channelAt(channel).push_back({first, second});
    }
}

void PeakVector::insertPeaks(float first, float second, int channel, int position, int n)
{
    if (channel < 0 || position < 0 || n < 0) {
        return;
    }
    std::vector<PeakInfo> &peaks = channelAt(channel);
    const auto place = static_cast<std::size_t>(position);
    if (place > peaks.size()) {
        peaks.resize(place);
    }
    peaks.insert(peaks.begin() + position, static_cast<std::size_t>(n), PeakInfo {first, second});
}

bool PeakVector::contains(int frame, int channel) const
{
    return channel >= 0 && static_cast<std::size_t>(channel) < m_peaks.size() && frame >= 0
        && static_cast<std::size_t>(frame) < m_peaks[static_cast<std::size_t>(channel)].size();
}

const PeakInfo &PeakVector::peakInfo(int frame, int channel) const
{
    static constexpr PeakInfo zero;
    return contains(frame, channel)
        ? m_peaks[static_cast<std::size_t>(channel)][static_cast<std::size_t>(frame)]
        : zero;
}

PeakInfo &PeakVector::peakInfo(int frame, int channel)
{
    if (contains(frame, channel)) {
        return m_peaks[static_cast<std::size_t>(channel)][static_cast<std::size_t>(frame)];
    }
    m_outside = PeakInfo();
    return m_outside;
}

std::vector<PeakInfo> PeakVector::peakInfoVector(int channel) const
{
    if (channel < 0 || channel >= peakChannels()) {
        return {};
    }
    return m_peaks[static_cast<std::size_t>(channel)];
}

void PeakVector::setPeakInfoVector(const std::vector<PeakInfo> &peaks, int channel)
{
    if (channel >= 0) {
        channelAt(channel) = peaks;
    }
}

void PeakVector::clear()
{
    m_peaks.clear();
}

int PeakVector::numPeakFrames() const
{
    std::size_t longest = 0;
    for (const std::vector<PeakInfo> &peaks : m_peaks) {
        longest = std::max(longest, peaks.size());
    }
    return static_cast<int>(longest);
}

int PeakVector::peakChannels() const
{
    return static_cast<int>(m_peaks.size());
}

void PeakVector::move(int n)
{
    const long long distance = n < 0 ? -static_cast<long long>(n) : n;
    for (std::vector<PeakInfo> &peaks : m_peaks) {
        const auto size = static_cast<long long>(peaks.size());
        const auto shift = static_cast<std::ptrdiff_t>(std::min(distance, size));
        if (n > 0) {
            const auto end = std::copy(peaks.begin() + shift, peaks.end(), peaks.begin());
            std::fill(end, peaks.end(), PeakInfo());
        } else if (n < 0) {
            const auto begin = std::copy_backward(peaks.begin(), peaks.end() - shift, peaks.end());
            std::fill(peaks.begin(), begin, PeakInfo());
        }
    }
}

void PeakVector::dump() const
{
    qDebug() << "---- PeakVector Info Begin -----";
    qDebug().nospace() << "Number of peaks = " << numPeakFrames();
    qDebug().nospace() << "Number of channels = " << peakChannels();
    qDebug() << "---- PeakVector Info End-----";
}

}
