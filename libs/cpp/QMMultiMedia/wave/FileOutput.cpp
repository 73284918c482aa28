#include "FileOutput.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace QMMultiMedia {

namespace {

struct Range
{
    float min;
    float max;
};

inline void widen(Range *range, float sample)
{
    range->min = sample < range->min ? sample : range->min;
    range->max = sample > range->max ? sample : range->max;
}

/// The range widened by every sample at the stride; lanes of their own let it vectorise without
/// changing the result.
template <int Stride> Range rangeAtStride(const float *samples, int frames, Range start)
{
    constexpr int lanes = 4 * Stride;
    std::array<float, lanes> min {};
    std::array<float, lanes> max {};
    min.fill(start.min);
    max.fill(start.max);
    int i = 0;
    for (; i + lanes <= frames; i += lanes) {
        const float *block = samples + static_cast<std::ptrdiff_t>(i) * Stride;
        for (std::size_t lane = 0; lane < lanes; ++lane) {
            const float sample = block[lane * Stride];
            min[lane] = sample < min[lane] ? sample : min[lane];
            max[lane] = sample > max[lane] ? sample : max[lane];
        }
    }
    Range range = start;
    for (std::size_t lane = 0; lane < lanes; ++lane) {
        widen(&range, min[lane]);
        widen(&range, max[lane]);
    }
    for (; i < frames; ++i) {
        widen(&range, samples[static_cast<std::ptrdiff_t>(i) * Stride]);
    }
    return range;
}

Range rangeOf(const float *samples, int frames, int stride, Range start)
{
    if (stride == 1) {
        return rangeAtStride<1>(samples, frames, start);
    }
    if (stride == 2) {
        return rangeAtStride<2>(samples, frames, start);
    }
    for (int i = 0; i < frames; ++i) {
        widen(&start, samples[static_cast<std::ptrdiff_t>(i) * stride]);
    }
    return start;
}

}

FileOutput::FileOutput(const char *path, const Settings &settings, const QString &comment,
    const MTools::Handle<EBUInfo> &ebuInfo, bool /*ebu*/)
    : m_ebuInfo(ebuInfo)
    , m_ebuEnvelope(std::make_unique<EBUEnvelope>().release())
    , m_currentPeaks(static_cast<std::size_t>(std::max<int>(settings.channels(), 0)))
{
    m_ebuEnvelope->setBlockSize(static_cast<std::uint32_t>(m_nBlockSize));
    FileOutput::setSettings(settings);
    m_fileInfo.setComment(comment);
    m_fileInfo.setURL(QUrl::fromLocalFile(QString::fromLocal8Bit(path)));
}

MTools::Handle<EBUInfo> FileOutput::ebuInfo() const
{
    return m_ebuInfo;
}

void FileOutput::addToPeaks(const float *samples, int n)
{
    const auto channels = static_cast<int>(m_currentPeaks.size());
    if (channels == 0) {
        return;
    }
    const int frames = n / channels;
    for (int channel = 0; channel < channels; ++channel) {
        ChannelPeak &peak = m_currentPeaks[static_cast<std::size_t>(channel)];
        int frame = 0;
        while (frame < frames) {
            const int run
                = std::min(frames - frame, m_nBlockSize - static_cast<int>(peak.blockCount));
            addRun(&peak, samples + static_cast<std::ptrdiff_t>(frame) * channels + channel, run,
                channels);
            frame += run;
            if (peak.blockCount == static_cast<std::uint32_t>(m_nBlockSize)) {
                m_peakVector.addPeak(peak.min, peak.max, channel);
                peak.blockCount = 0;
                peak.min = 0.0f;
                peak.max = 0.0f;
            }
        }
    }
}

/// Takes a run of samples that stays within the channel's block.
void FileOutput::addRun(ChannelPeak *peak, const float *samples, int frames, int stride)
{
    const Range range = rangeOf(samples, frames, stride, {peak->min, peak->max});
    peak->min = range.min;
    peak->max = range.max;
    if (std::max(-range.min, range.max) > m_peakOfPeaks) {
        // Some sample of the run is louder than all before: find out which, in their order.
        for (int i = 0; i < frames; ++i) {
            const float magnitude = std::fabs(samples[static_cast<std::ptrdiff_t>(i) * stride]);
            if (magnitude > m_peakOfPeaks) {
                m_peakOfPeaks = magnitude;
                m_ebuEnvelope->setPosPeakOfPeaks(peak->position + static_cast<std::uint32_t>(i));
            }
        }
    }
    peak->position += static_cast<std::uint32_t>(frames);
    peak->blockCount += static_cast<std::uint32_t>(frames);
}

void FileOutput::finishPeaks()
{
    for (std::size_t i = 0; i < m_currentPeaks.size(); ++i) {
        m_peakVector.addPeak(m_currentPeaks[i].min, m_currentPeaks[i].max, static_cast<int>(i));
    }
}

}
