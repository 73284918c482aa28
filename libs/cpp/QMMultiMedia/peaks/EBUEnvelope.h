#pragma once

#include "PeakVector.h"
#include <array>
#include <cstdint>
#include <cstdio>
#include <QString>

namespace QMMultiMedia {

/// The "levl" chunk, a peak envelope (EBU Tech 3285, supplement 3), in a WAV file or by itself.
class EBUEnvelope
{
public:
    /// Width of a peak value: 1 is 8 bits, 2 is 16 bits.
    using Format = std::uint32_t;
    static constexpr Format Format8Bit = 1;
    static constexpr Format Format16Bit = 2;

    /// Bytes from the chunk's id to its values, and of the header behind id and size.
    static constexpr std::uint32_t offsetOfValues = 128;
    static constexpr std::uint32_t headerSize = 120;
    static constexpr int timeStampSize = 28;

    EBUEnvelope() = default;
    EBUEnvelope(const EBUEnvelope &) = default;
    EBUEnvelope &operator=(const EBUEnvelope &) = default;
    virtual ~EBUEnvelope() = default;

    std::uint32_t version() const { return m_nVersion; }
    std::uint32_t format() const { return m_nFormat; }
    std::uint32_t pointsPerValue() const { return m_nPointsPerValue; }
    /// Samples of a channel in one pair.
    std::uint32_t blockSize() const { return m_nBlockSize; }
    std::uint32_t peakChannels() const { return m_nPeakChannels; }
    std::uint32_t numPeakFrames() const { return m_nNumPeakFrames; }
    /// The place of the largest absolute sample, in samples of its channel.
    std::uint32_t posPeakOfPeaks() const { return m_nPosPeakOfPeaks; }
    /// From the chunk's id to the values, in bytes.
    std::uint32_t offsetToPeaks() const { return m_nOffsetToPeaks; }
    /// The size field of the chunk.
    std::uint32_t chunkSize() const { return m_nChunkSize; }
    QString timeStamp() const { return m_strTimeStamp; }

    void setVersion(std::uint32_t version) { m_nVersion = version; }
    void setFormat(std::uint32_t format) { m_nFormat = format; }
    void setPointsPerValue(std::uint32_t points) { m_nPointsPerValue = points; }
    void setBlockSize(std::uint32_t blockSize) { m_nBlockSize = blockSize; }
    void setPeakChannels(std::uint32_t channels) { m_nPeakChannels = channels; }
    void setNumPeakFrames(std::uint32_t frames) { m_nNumPeakFrames = frames; }
    void setPosPeakOfPeaks(std::uint32_t position) { m_nPosPeakOfPeaks = position; }
    void setOffsetToPeaks(std::uint32_t offset) { m_nOffsetToPeaks = offset; }
    void setChunkSize(std::uint32_t size) { m_nChunkSize = size; }
    /// Keeps 28 characters, filled up with blanks.
    void setTimeStamp(const QString &timeStamp);

    /// Writes the chunk at the stream's position, with the current time; false if a write failed or
    /// the format is unknown (then the header is written, and words go to the standard error
    /// stream).
    bool save(std::FILE *file, PeakVector &peaks, const Format &format);
    /// Writes a file that holds the chunk alone.
    bool save(const char *path, PeakVector &peaks, const Format &format);
    /// Reads the fields from a file that starts at the version; the peaks stay as they are.
    bool load(const char *path, PeakVector &peaks);
    /// Reads the fields from the stream's position, that of the version; false if it ends before.
    bool initFromHeader(std::FILE *file);

    /// Logs the fields.
    void dump() const;

private:
    bool writeHeader(std::FILE *file) const;
    bool writeValues(std::FILE *file, const PeakVector &peaks) const;

    std::uint32_t m_nVersion = 0;
    std::uint32_t m_nFormat = 0;
    std::uint32_t m_nPointsPerValue = 0;
    std::uint32_t m_nBlockSize = 0;
    std::uint32_t m_nPeakChannels = 0;
    std::uint32_t m_nNumPeakFrames = 0;
    std::uint32_t m_nPosPeakOfPeaks = 0;
    std::uint32_t m_nOffsetToPeaks = 0;
    std::uint32_t m_nChunkSize = 0;
    QString m_strTimeStamp;
    std::array<char, 60> m_reserved {};
};

}
