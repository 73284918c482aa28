#pragma once

#include "BaseOutput.h"
#include "EBUEnvelope.h"
#include "EBUInfo.h"
#include "FileInfo.h"
#include "PeakVector.h"
#include <cstdint>
#include <cstdio>
#include <vector>

namespace QMMultiMedia {

/// The state of one channel's running peak block.
struct ChannelPeak
{
    float max = 0.0f;
    float min = 0.0f;
    std::uint32_t blockCount = 0; ///< samples in the running block
    std::uint32_t position = 0; ///< samples of this channel so far
};

/// What all files that are written have: metadata and the peaks of what was written.
class FileOutput : public BaseOutput
{
public:
    /// path and comment describe the file; ebuInfo may be null. What ebu means is the format's
    /// matter.
    FileOutput(const char *path, const Settings &settings, const QString &comment,
        const MTools::Handle<EBUInfo> &ebuInfo, bool ebu);

    /// The broadcast metadata; may be null.
    virtual MTools::Handle<EBUInfo> ebuInfo() const;
    const FileInfo &fileInfo() const { return m_fileInfo; }

protected:
    /// Samples of a channel in one pair of peaks.
    static constexpr int peakBlockSize = 256;

    /// Takes n interleaved samples into the peaks, channel by channel.
    void addToPeaks(const float *samples, int n);
    /// Ends each channel's running block, even an empty one.
    void finishPeaks();

    MTools::Handle<EBUInfo> m_ebuInfo;
    MTools::Handle<EBUEnvelope> m_ebuEnvelope;
    PeakVector m_peakVector;
    FileInfo m_fileInfo;
    std::FILE *m_pFile = nullptr;
    int m_nBlockSize = peakBlockSize;
    float m_peakOfPeaks = 0.0f;
    std::vector<ChannelPeak> m_currentPeaks;

private:
    void addRun(ChannelPeak *peak, const float *samples, int frames, int stride);
};

}
