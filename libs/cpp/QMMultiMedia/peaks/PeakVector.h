#pragma once

#include "PeakInfo.h"
#include <vector>

namespace QMMultiMedia {

/// The peaks of a sound: an array of pairs for each channel.
class PeakVector
{
public:
    PeakVector() = default;
    /// numFrames zero peaks for each of the channels.
    PeakVector(int numFrames, int channels);
    /// Empty arrays.
    explicit PeakVector(int channels);
    PeakVector(const PeakVector &) = default;
    PeakVector &operator=(const PeakVector &) = default;
    virtual ~PeakVector() = default;

    /// Appends to a channel (0 and up; arrays up to it are made).
    void addPeak(const float &first, const float &second, int channel);
    /// Inserts n copies at a position of a channel (all three 0 and up; what lacks is made, as
    /// zeros).
    void insertPeaks(float first, float second, int channel, int position, int n);
    /// The pair at a place; a place out of range gives a zero pair.
    ///
    /// The reference of the non-const form to such a place is a dummy, cleared by the next call.
    const PeakInfo &peakInfo(int frame, int channel) const;
    PeakInfo &peakInfo(int frame, int channel);

    /// A channel's array; an empty one out of range.
    std::vector<PeakInfo> peakInfoVector(int channel) const;
    void setPeakInfoVector(const std::vector<PeakInfo> &peaks, int channel);

    /// Drops all arrays.
    void clear();
    /// The length of the longest array.
    int numPeakFrames() const;
    /// The number of arrays.
    int peakChannels() const;
    bool isEmpty() const { return m_peaks.empty(); }
    /// Shifts all arrays by n towards the start (positive) or the end; what opens becomes zero.
    void move(int n);
    /// Logs the counts.
    void dump() const;

private:
    bool contains(int frame, int channel) const;
    std::vector<PeakInfo> &channelAt(int channel);

    std::vector<std::vector<PeakInfo>> m_peaks;
    PeakInfo m_outside;
};

}
