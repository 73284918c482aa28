// The peaks of a file input: from its own chunk, from the cache on disk, or from the samples.

#include "FileInput.h"

#include "Literals.h"
#include "StdioFile.h"
#include "Util.h"
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <QDateTime>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <sys/stat.h>

namespace QMMultiMedia {

namespace {

constexpr int samplesPerBlock = 16384;

int toIndex(double value)
{
    constexpr double limit = std::numeric_limits<int>::max();
    return value > 0.0 ? static_cast<int>(std::min(value, limit)) : 0;
}

/// The bytes of a stream behind a place; 0 behind its end.
std::int64_t bytesLeft(std::FILE *file, std::int64_t offset)
{
    struct stat status = {};
    return ::fstat(fileno(file), &status) == 0 ? std::max<std::int64_t>(status.st_size - offset, 0)
                                               : 0;
}

/// Reads the values of a chunk at the stream's position: frame by frame, two a channel.
void readPeaks(std::FILE *file, const EBUEnvelope &envelope, PeakVector *peaks)
{
    const bool wide = envelope.format() == EBUEnvelope::Format16Bit;
    const float scale = wide ? 65535.0f : 255.0f;
    const std::size_t width = wide ? 2 : 1;
    const auto channels = static_cast<int>(envelope.peakChannels());
    auto pairs = static_cast<std::int64_t>(envelope.numPeakFrames()) * channels;
    std::vector<char> raw(samplesPerBlock * width);
    std::vector<int> values(samplesPerBlock);
    int channel = 0;
    while (pairs > 0) {
        const auto wanted = std::min<std::size_t>(values.size(),
            static_cast<std::size_t>(std::min<std::int64_t>(pairs, samplesPerBlock)) * 2);
        const auto got = static_cast<int>(std::fread(raw.data(), width, wanted, file)) & ~1;
        wide ? Util::convertRawTo16U(raw.data(), values.data(), got, true)
             : Util::convertRawTo8U(raw.data(), values.data(), got);
        for (std::size_t i = 0; i < static_cast<std::size_t>(got); i += 2) {
            peaks->addPeak(static_cast<float>(values[i]) / scale,
                -(static_cast<float>(values[i + 1]) / scale), channel);
            channel = channel + 1 < channels ? channel + 1 : 0;
        }
        if (static_cast<std::size_t>(got) < wanted) {
            return;
        }
        pairs -= got / 2;
    }
}

/// One channel's part of the search for the loudest sample.
struct ChannelScan
{
    float min = 0.0f;
    float max = 0.0f;
    float loudest = 0.0f;
    std::uint32_t place = 0;
};

}

QString FileInput::envelopeLocation() const
{
    QString fileName = fileInfo().url().path();
    fileName.replace(u'.', u'_').replace(u'/', u'_').replace(u':', u'_');
    return tempPath() + u'/' + m_strEnvelopesDirectory + u'/' + fileName + u".bef"_qs;
}

bool FileInput::saveEnvelope(const char *path, const EBUEnvelope::Format &format)
{
    return !m_ebuEnvelope.isNull() && m_ebuEnvelope->save(path, *m_peakVector, format);
}

bool FileInput::loadEnvelope(const char *path)
{
    const StdioFile file(path, "re");
    if (!file.isOpen()) {
        std::fputs("EBUEnvelope:load: file open error\n", stderr);
        return false;
    }
    Chunk chunk;
    if (std::fread(chunk.id.data(), chunk.id.size(), 1, file.get()) != 1
        || std::fread(&chunk.size, sizeof chunk.size, 1, file.get()) != 1 || !chunk.is("levl")) {
        qDebug() << "It is not a valid EBUEnvelope file";
        return false;
    }
    const MTools::Handle<EBUEnvelope> envelope(std::make_unique<EBUEnvelope>().release());
    envelope->setChunkSize(static_cast<std::uint32_t>(chunk.paddedSize()));
    if (!envelope->initFromHeader(file.get())) {
        return false;
    }
    const MTools::Handle<EBUEnvelope> before = m_ebuEnvelope;
    m_ebuEnvelope = envelope;
    if (!buildPeakVectorFromChunk(file.get(), static_cast<long>(envelope->offsetToPeaks()))) {
        m_ebuEnvelope = before;
        return false;
    }
    m_nEnvelopeOffset = 0; // these peaks aren't those of the sound's own chunk
    return true;
}

/// Whether the peaks are those of a sound of this length and so many channels.
bool FileInput::envelopeFits() const
{
    const std::int64_t frames = numFrames();
    const std::int64_t needed = (frames + m_nBlockSize - 1) / m_nBlockSize;
    const std::int64_t stored = m_peakVector->numPeakFrames();
    return m_ebuEnvelope->blockSize() == static_cast<std::uint32_t>(m_nBlockSize)
        && m_ebuEnvelope->pointsPerValue() == 2
        && m_ebuEnvelope->peakChannels() == static_cast<std::uint32_t>(channels())
        && (stored == needed || stored == frames / m_nBlockSize + 1);
}

/// Takes the cached peaks, unless they are older than the sound or another sound's.
bool FileInput::loadCachedEnvelope(const QString &location)
{
    const QFileInfo cached(location);
    const QFileInfo sound(fileInfo().url().toLocalFile());
    if (!cached.isFile() || cached.lastModified() < sound.lastModified()) {
        return false;
    }
    return loadEnvelope(QFile::encodeName(location).constData()) && envelopeFits();
}

void FileInput::createPeakVector()
{
    if (m_pFile == nullptr) {
        return;
    }
    if (!m_ebuEnvelope.isNull()) {
        if (m_nEnvelopeOffset > 0) {
            const auto offset
                = static_cast<long>(m_nEnvelopeOffset + m_ebuEnvelope->offsetToPeaks());
            if (!buildPeakVectorFromChunk(m_pFile, offset) || !envelopeFits()) {
                buildPeakVectorFromAudioData();
            }
            rewind();
        }
        return;
    }
    const bool caching = !tempPath().isEmpty();
    const QString location = envelopeLocation();
    if (caching && loadCachedEnvelope(location)) {
        return;
    }
    m_ebuEnvelope = MTools::Handle<EBUEnvelope>(std::make_unique<EBUEnvelope>().release());
    buildPeakVectorFromAudioData();
    rewind();
    if (caching) {
        QDir().mkpath(tempPath() + u'/' + m_strEnvelopesDirectory);
        saveEnvelope(QFile::encodeName(location).constData(), EBUEnvelope::Format8Bit);
    }
}

/// Reads peaks of the envelope's form at a place of a file; false, and the peaks as they were, if
/// they aren't all there.
bool FileInput::buildPeakVectorFromChunk(std::FILE *file, const long &offset)
{
    const EBUEnvelope::Format format = m_ebuEnvelope->format();
    if (format != EBUEnvelope::Format8Bit && format != EBUEnvelope::Format16Bit) {
        std::fputs("Unknown envelopes creation format\n", stderr);
        return false;
    }
    constexpr std::uint32_t mostChannels = 65535;
    const std::uint32_t channelCount = m_ebuEnvelope->peakChannels();
    const std::int64_t bytesPerFrame = static_cast<std::int64_t>(channelCount) * 2 * format;
    if (channelCount == 0 || channelCount > mostChannels
        || m_ebuEnvelope->numPeakFrames() > bytesLeft(file, offset) / bytesPerFrame
        || fseeko(file, offset, SEEK_SET) != 0) {
        return false;
    }
    m_peakVector->clear();
    readPeaks(file, *m_ebuEnvelope, m_peakVector.get());
    return true;
}

/// One pass over all channels; the result is that of channel after channel.
void FileInput::buildPeakVectorFromAudioData()
{
    m_peakVector->clear();
    m_ebuEnvelope->setBlockSize(static_cast<std::uint32_t>(m_nBlockSize));
    const int channelCount = channels();
    if (rewind() != 0 || channelCount < 1) {
        return;
    }
    std::vector<ChannelScan> scans(static_cast<std::size_t>(channelCount));
    const auto finishBlock = [this, &scans] {
        for (std::size_t channel = 0; channel < scans.size(); ++channel) {
            m_peakVector->addPeak(
                scans[channel].max, scans[channel].min, static_cast<int>(channel));
            scans[channel].min = 0.0f;
            scans[channel].max = 0.0f;
        }
    };
    const int framesPerRead = std::max(1, samplesPerBlock / channelCount);
    std::vector<float> samples(
        static_cast<std::size_t>(framesPerRead) * static_cast<std::size_t>(channelCount));
    std::uint32_t frame = 0;
    int inBlock = 0;
    int got = 0;
    do {
        got = read(samples.data(), static_cast<int>(samples.size())) / channelCount;
        const float *sample = samples.data();
        for (int i = 0; i < got; ++i, ++frame) {
            for (ChannelScan &scan : scans) {
                scan.min = *sample < scan.min ? *sample : scan.min;
                scan.max = *sample > scan.max ? *sample : scan.max;
                const float magnitude = std::fabs(*sample++);
                if (magnitude > scan.loudest) {
                    scan.loudest = magnitude;
                    scan.place = frame;
                }
            }
            if (++inBlock == m_nBlockSize) {
                finishBlock();
                inBlock = 0;
            }
        }
    } while (got == framesPerRead);
    if (inBlock > 0) {
        finishBlock();
    }
    float loudest = 0.0f;
    for (const ChannelScan &scan : scans) {
        if (scan.loudest > loudest) {
            loudest = scan.loudest;
            m_ebuEnvelope->setPosPeakOfPeaks(scan.place);
        }
    }
}

const PeakInfo &FileInput::peakInfo(int index, int channel, float zoom)
{
    m_lastPeak = PeakInfo();
    if (m_peakVector->isEmpty()) {
        createPeakVector();
    }
    const auto blockSize = static_cast<float>(m_nBlockSize);
    if (zoom > blockSize) {
        m_lastPeak = m_peakVector->peakInfo(
            toIndex(static_cast<double>(zoom / blockSize) * index), channel);
    } else if (zoom == blockSize) {
        m_lastPeak = m_peakVector->peakInfo(index, channel);
    } else if (zoom > 1.0f) {
        if (const PeakInfo *known = m_peakInfoCache.find(index, channel, zoom)) {
            m_lastPeak = *known;
        } else {
            m_lastPeak = peakOfSamples(
                toIndex(static_cast<double>(zoom) * index), static_cast<int>(zoom), channel);
            m_peakInfoCache.insert(index, channel, zoom, m_lastPeak);
        }
    } else {
        float sample = 0.0f;
        const int frame = zoom == 1.0f ? index : toIndex(static_cast<double>(zoom) * index);
        if (gotoFrame(frame) == 0 && readChannel(&sample, 1, channel) == 1) {
            m_lastPeak.first = sample;
        }
    }
    return m_lastPeak;
}

/// The smallest and the largest of some samples of a channel, both starting from 0.
PeakInfo FileInput::peakOfSamples(std::int64_t frame, int numFrames, int channel)
{
    std::array<float, peakBlockSize> samples {};
    PeakInfo peak;
    if (gotoFrame(static_cast<int>(frame)) != 0) {
        return peak;
    }
    const int got = readChannel(samples.data(), std::min(numFrames, peakBlockSize), channel);
    for (std::size_t i = 0; static_cast<int>(i) < got; ++i) {
        peak.first = std::min(peak.first, samples[i]);
        peak.second = std::max(peak.second, samples[i]);
    }
    return peak;
}

}
