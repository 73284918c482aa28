#include "EBUEnvelope.h"

#include "QByteArrayExtensions.h"
#include "StdioFile.h"
#include "TimeInfo.h"
#include <cmath>
#include <cstring>
#include <QByteArray>
#include <QDebug>
#include <QtEndian>
#include <vector>

namespace QMMultiMedia {

namespace {

constexpr std::size_t valuesPerBlock = 2048;

/// The magnitude in steps of the scale, cut towards zero; what a value's width can't hold is cut
/// off by the caller.
std::uint32_t stepsOf(float value, double scale)
{
    const double steps = std::fabs(static_cast<double>(value) * scale);
    return steps < 9.0e18 ? static_cast<std::uint32_t>(static_cast<std::uint64_t>(steps)) : 0;
}

/// Collects values and writes them block by block.
class ValueWriter
{
public:
    ValueWriter(std::FILE *file, EBUEnvelope::Format format)
        : m_pFile(file)
        , m_bWide(format == EBUEnvelope::Format16Bit)
        , m_scale(m_bWide ? 65535.0 : 255.0)
    {
        m_block.reserve(valuesPerBlock * 2);
    }

    void add(float value)
    {
        const std::uint32_t steps = stepsOf(value, m_scale);
        m_block.push_back(static_cast<unsigned char>(steps));
        if (m_bWide) {
            m_block.push_back(static_cast<unsigned char>(steps >> 8U));
        }
        if (m_block.size() >= (m_bWide ? valuesPerBlock * 2 : valuesPerBlock)) {
            flush();
        }
    }

    void flush()
    {
        if (std::fwrite(m_block.data(), 1, m_block.size(), m_pFile) != m_block.size()) {
            std::fputs("EBUEnvelope::save: error while writing the peak data\n", stderr);
            m_bOk = false;
        }
        m_block.clear();
    }

    bool isOk() const { return m_bOk; }

private:
    std::FILE *m_pFile;
    bool m_bWide;
    double m_scale;
    bool m_bOk = true;
    std::vector<unsigned char> m_block;
};

}

void EBUEnvelope::setTimeStamp(const QString &timeStamp)
{
    m_strTimeStamp = timeStamp.leftJustified(timeStampSize, QLatin1Char(' '), true);
}

bool EBUEnvelope::save(std::FILE *file, PeakVector &peaks, const Format &format)
{
    const std::uint32_t bytesPerValue = format == Format16Bit ? 2 : 1;
    m_nVersion = 0;
    m_nNumPeakFrames = static_cast<std::uint32_t>(peaks.numPeakFrames());
    m_nPeakChannels = static_cast<std::uint32_t>(peaks.peakChannels());
    m_nFormat = format;
    m_nPointsPerValue = 2;
    m_nOffsetToPeaks = offsetOfValues;
    m_nChunkSize = bytesPerValue * m_nPeakChannels * m_nNumPeakFrames * 2 + headerSize;
    m_strTimeStamp = MTools::createTimeStamp();
    if (!writeHeader(file)) {
        std::fputs("EBUEnvelope::save: header writing error\n", stderr);
        return false;
    }
    if (format != Format8Bit && format != Format16Bit) {
        std::fputs("Unknown envelopes creation format\n", stderr);
        return false;
    }
    return writeValues(file, peaks);
}

bool EBUEnvelope::save(const char *path, PeakVector &peaks, const Format &format)
{
    StdioFile file(path, "we");
    if (!file.isOpen()) {
        std::fputs("EBUEnvelope::save: file create error\n", stderr);
        return false;
    }
    const bool saved = save(file.get(), peaks, format);
    return file.close() && saved;
}

bool EBUEnvelope::writeHeader(std::FILE *file) const
{
    QByteArray header("levl");
    const auto append = [&header](std::uint32_t value) {
        const std::uint32_t little = qToLittleEndian(value);
        header.append(reinterpret_cast<const char *>(&little), sizeof little);
    };
    for (const std::uint32_t value :
        {m_nChunkSize, m_nVersion, m_nFormat, m_nPointsPerValue, m_nBlockSize, m_nPeakChannels,
            m_nNumPeakFrames, m_nPosPeakOfPeaks, m_nOffsetToPeaks}) {
        append(value);
    }
    header.append(m_strTimeStamp.toLocal8Bit().leftJustified(timeStampSize, '\0', true));
    header.append(m_reserved.data(), static_cast<int>(m_reserved.size()));
    const auto size = static_cast<std::size_t>(header.size());
    return std::fwrite(header.constData(), 1, size, file) == size;
}

bool EBUEnvelope::writeValues(std::FILE *file, const PeakVector &peaks) const
{
    ValueWriter writer(file, m_nFormat);
    const int frames = peaks.numPeakFrames();
    const int channels = peaks.peakChannels();
    for (int frame = 0; frame < frames; ++frame) {
        for (int channel = 0; channel < channels; ++channel) {
            const PeakInfo &peak = peaks.peakInfo(frame, channel);
            writer.add(peak.first);
            writer.add(peak.second);
        }
    }
    writer.flush();
    return writer.isOk();
}

bool EBUEnvelope::load(const char *path, PeakVector & /*peaks*/)
{
    const StdioFile file(path, "re");
    if (!file.isOpen()) {
        std::fputs("EBUEnvelope:load: file open error\n", stderr);
        return false;
    }
    return initFromHeader(file.get());
}

bool EBUEnvelope::initFromHeader(std::FILE *file)
{
    std::array<char, headerSize> header {};
    if (std::fread(header.data(), 1, header.size(), file) != header.size()) {
        return false;
    }
    const char *at = header.data();
    for (std::uint32_t *field : {&m_nVersion, &m_nFormat, &m_nPointsPerValue, &m_nBlockSize,
             &m_nPeakChannels, &m_nNumPeakFrames, &m_nPosPeakOfPeaks, &m_nOffsetToPeaks}) {
        *field = qFromLittleEndian<std::uint32_t>(at);
        at += sizeof *field;
    }
    setTimeStamp(MTools::QByteArrayExtensions::arrToString(at, timeStampSize));
    std::memcpy(m_reserved.data(), at + timeStampSize, m_reserved.size());
    return true;
}

void EBUEnvelope::dump() const
{
    qDebug() << "----- EBU Envelope Begin ------";
    qDebug().nospace() << "Version = " << m_nVersion;
    qDebug().nospace() << "Format = " << m_nFormat;
    qDebug().nospace() << "PointsPerValue = " << m_nPointsPerValue;
    qDebug().nospace() << "BlockSize = " << m_nBlockSize;
    qDebug().nospace() << "PeakChannels = " << m_nPeakChannels;
    qDebug().nospace() << "NumPeakFrames = " << m_nNumPeakFrames;
    qDebug().nospace() << "PosPeakOfPeaks = " << m_nPosPeakOfPeaks;
    qDebug().nospace() << "OffsetToPeaks = " << m_nOffsetToPeaks;
    qDebug().nospace() << "ChunkSize = " << m_nChunkSize;
    qDebug().nospace().noquote() << "TimeStamp = " << m_strTimeStamp;
    qDebug() << "----- EBU Envelope End ------";
}

}
