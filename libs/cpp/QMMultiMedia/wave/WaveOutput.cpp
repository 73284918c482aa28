#include "WaveOutput.h"

#include "FileUtil.h"
#include "SampleTime.h"
#include "Util.h"
#include <cstddef>
#include <QDebug>
#include <QtEndian>
#include <unistd.h>

namespace QMMultiMedia {

namespace {

constexpr std::size_t streamBufferSize = 512UL * 1024;

short formatOfWidth(short bitsPerSample)
{
    switch (bitsPerSample) {
    case 16:
    case 32:
        return Settings::SignedLittle;
    case 24:
        return Settings::Signed24Normal;
    default:
        return Settings::Unsigned8;
    }
}

bool writeId(const char *id, std::FILE *file)
{
    return std::fwrite(id, 4, 1, file) == 1;
}

bool writeLong(quint64 value, std::FILE *file)
{
    return FileUtil::writeL(static_cast<unsigned int>(value), file, false) == 1;
}

bool writeShort(int value, std::FILE *file)
{
    return FileUtil::writeS(static_cast<unsigned short>(value), file, false) == 1;
}

}

WaveOutput::WaveOutput(const char *path, const Settings &settings, const QString &comment,
    const MTools::Handle<EBUInfo> &ebuInfo, bool ebu)
    : FileOutput(path, settings, comment, ebuInfo, ebu)
{
    if (ebu) {
        if (m_ebuInfo.isNull()) {
            m_ebuInfo = MTools::Handle<EBUInfo>(std::make_unique<EBUInfo>().release());
        }
        m_ebuInfo->fill(QString::fromLocal8Bit(path), static_cast<int>(settings.sampleRate()),
            settings.bitsPerSample(), settings.channels());
    }
    m_settings.setFmt(formatOfWidth(m_settings.bitsPerSample()));
    if (!WaveOutput::create(path)) {
        qDebug().nospace().noquote() << "Can not create the ouput file: " << path;
    }
}

WaveOutput::~WaveOutput()
{
    if (m_pFile != nullptr) {
        WaveOutput::close();
    }
}

bool WaveOutput::create(const char *path)
{
    dropStream();
    m_pFile = std::fopen(path, "we");
    if (m_pFile == nullptr) {
        std::fprintf(stderr, "WaveOutput: create error of the %s\n", path);
        return false;
    }
    m_streamBuffer.resize(streamBufferSize);
    std::setvbuf(m_pFile, m_streamBuffer.data(), _IOFBF, m_streamBuffer.size());
    if (!writeId("RIFF", m_pFile)) {
        std::fprintf(stderr, "WaveOutput: write error of the %s\n", path);
        dropStream();
        return false;
    }
    // Flushed, so that a disk without room for the header shows here.
    if (!writeHeader() || std::fflush(m_pFile) != 0) {
        dropStream();
        return false;
    }
    return true;
}

void WaveOutput::dropStream()
{
    if (m_pFile != nullptr) {
        std::fclose(m_pFile);
        m_pFile = nullptr;
    }
}

bool WaveOutput::writeHeader()
{
    m_fileInfo.setSizeOffset(4);
    if (!writeLong(0, m_pFile) || !writeId("WAVE", m_pFile)) {
        return false;
    }
    m_fileInfo.setFileSize(4);
    if (!m_ebuInfo.isNull()) {
        if (!m_ebuInfo->save(m_pFile)) {
            return false;
        }
        m_fileInfo.setFileSize(m_fileInfo.fileSize() + 8 + static_cast<quint64>(m_ebuInfo->size()));
    }
    if (!m_fileInfo.comment().isEmpty() && !writeComment()) {
        return false;
    }
    if (!writeFormat() || !writeId("data", m_pFile)) {
        return false;
    }
    const off_t offset = ftello(m_pFile);
    if (offset < 0 || !writeLong(0, m_pFile)) {
        return false;
    }
    m_fileInfo.setDataOffset(static_cast<quint64>(offset));
    m_fileInfo.setDataSize(0);
    m_fileInfo.setFileSize(m_fileInfo.fileSize() + 8);
    return true;
}

bool WaveOutput::writeComment()
{
    const QByteArray text = m_fileInfo.comment().toLocal8Bit();
    const auto length = static_cast<quint64>(text.size());
    const quint64 listSize = (length + 14) & ~quint64(1);
    if (!writeId("LIST", m_pFile) || !writeLong(listSize, m_pFile) || !writeId("INFO", m_pFile)
        || !writeId("ICMT", m_pFile) || !writeLong(length + 1, m_pFile)) {
        return false;
    }
    // With the terminating zero byte, and a second one as the pad.
    const std::size_t padded = static_cast<std::size_t>(listSize) - 12;
    const QByteArray bytes = text.leftJustified(static_cast<int>(padded), '\0');
    m_fileInfo.setFileSize(m_fileInfo.fileSize() + 8 + listSize);
    return std::fwrite(bytes.constData(), 1, padded, m_pFile) == padded;
}

bool WaveOutput::writeFormat()
{
    const int blockAlign = m_settings.bytesPerSample() * m_settings.channels();
    const quint64 bytesPerSecond
        = quint64(m_settings.sampleRate()) * static_cast<quint64>(blockAlign);
    m_fileInfo.setFileSize(m_fileInfo.fileSize() + 24);
    return writeId("fmt ", m_pFile) && writeLong(16, m_pFile) && writeShort(1, m_pFile)
        && writeShort(m_settings.channels(), m_pFile) && writeLong(m_settings.sampleRate(), m_pFile)
        && writeLong(bytesPerSecond, m_pFile) && writeShort(blockAlign, m_pFile)
        && writeShort(m_settings.bitsPerSample(), m_pFile);
}

bool WaveOutput::write(char *bytes, int n)
{
    if (n < 0) {
        return false;
    }
    const auto size = static_cast<std::size_t>(n);
    m_fileInfo.setDataSize(m_fileInfo.dataSize() + size);
    if (m_pFile == nullptr || m_bFailed) {
        return false;
    }
    if (std::fwrite(bytes, 1, size, m_pFile) != size) {
        std::fputs("WaveOutput: error writing\n", stderr);
        m_bFailed = true;
        return false;
    }
    return true;
}

int WaveOutput::write(float *samples, int n)
{
    const short fmt = m_settings.fmt();
    const short bits = m_settings.bitsPerSample();
    const bool wide = fmt == Settings::SignedBig || (fmt == Settings::SignedLittle && bits == 32);
    const bool narrow = (fmt == Settings::SignedLittle && bits == 16) || fmt == Settings::Unsigned8
        || fmt == Settings::Signed24Normal;
    if (!wide && !narrow) {
        std::fputs(
            "WaveOutput::write() Error: the following settings are not supported;\n", stderr);
        m_settings.dump();
        return 0;
    }
    if (n <= 0) {
        return 0;
    }
    addToPeaks(samples, n);
    if (fmt == Settings::SignedBig) {
        write(reinterpret_cast<char *>(samples), n * static_cast<int>(sizeof(float)));
        return 0;
    }
    const auto count = static_cast<std::size_t>(n);
    if (m_ints.size() < count) {
        m_ints.resize(count);
        m_bytes.resize(count * sizeof(int));
    }
    int *ints = m_ints.data();
    char *bytes = m_bytes.data();
    int size = n;
    if (fmt == Settings::Unsigned8) {
        Util::convertFloatTo8U(samples, ints, n);
        Util::convert8UToRaw(ints, bytes, size);
    } else if (fmt == Settings::Signed24Normal) {
        size = n * 3;
        Util::convertFloatTo24(samples, ints, n);
        Util::convert24ToRaw(ints, bytes, size);
    } else if (bits == 16) {
        size = n * 2;
        Util::convertFloatTo16(samples, ints, n);
        Util::convert16ToRaw(ints, bytes, size, true);
    } else {
        size = n * 4;
        Util::convertFloatTo32(samples, ints, n);
        Util::convert32ToRaw(ints, bytes, size, true);
    }
    write(bytes, size);
    return 0;
}

bool WaveOutput::close()
{
    if (m_pFile == nullptr) {
        return false;
    }
    finishPeaks();
    // Behind samples that were lost nothing may follow: a reader would take it for them.
    bool written = !m_bFailed && std::fflush(m_pFile) == 0;
    if (written) {
        if (m_fileInfo.dataSize() % 2 != 0) {
            written = FileUtil::writeB(0, m_pFile) == 1;
        }
        written = m_ebuEnvelope->save(m_pFile, m_peakVector, m_nEnvelopeFormat) && written;
    }
    written = patchSizes() && written;
    const bool closed = std::fclose(m_pFile) == 0;
    m_pFile = nullptr;
    if (!closed || !written) {
        std::fputs("WaveOutput: error closing\n", stderr);
        return false;
    }
    return true;
}

/// Sets the two size fields. On a disk that is full they must still tell how much there should be,
/// so they go past the stream, which may hold bytes that it can't get rid of.
bool WaveOutput::patchSizes()
{
    const bool flushed = std::fflush(m_pFile) == 0;
    const quint64 dataSize = m_fileInfo.dataSize();
    const quint64 riffSize
        = m_fileInfo.fileSize() + ((dataSize + 1) & ~quint64(1)) + 8 + m_ebuEnvelope->chunkSize();
    const auto put = [this](quint64 offset, quint64 value) {
        const auto little = qToLittleEndian(static_cast<quint32>(value));
        return ::pwrite(fileno(m_pFile), &little, sizeof little, static_cast<off_t>(offset))
            == static_cast<ssize_t>(sizeof little);
    };
    const bool sizesPut = put(m_fileInfo.sizeOffset(), riffSize);
    return put(m_fileInfo.dataOffset(), dataSize) && sizesPut && flushed;
}

int WaveOutput::version() const
{
    return 0;
}

const char *WaveOutput::name() const
{
    return "WaveOutput";
}

quint64 WaveOutput::numSamples() const
{
    const int bytes = m_settings.bytesPerSample();
    return bytes > 0 ? m_fileInfo.dataSize() / static_cast<quint64>(bytes) : 0;
}

float WaveOutput::fps() const
{
    return m_ebuInfo.isNull() ? 0.0f : m_ebuInfo->fps();
}

QString WaveOutput::duration() const
{
    const int channels = m_settings.channels();
    const quint64 samples = channels > 0 ? numSamples() / static_cast<quint64>(channels) : 0;
    return timecodeOfSamples(fps(), static_cast<double>(samples), m_settings.sampleRate());
}

QString WaveOutput::timecode(int sample) const
{
    return timecodeOfSamples(fps(), sample, m_settings.sampleRate());
}

QString WaveOutput::start() const
{
    const long long samples = m_ebuInfo.isNull() ? 0 : m_ebuInfo->timeReference();
    return timecodeOfSamples(fps(), static_cast<double>(samples), m_settings.sampleRate());
}

bool WaveOutput::saveEnvelope(const char *path)
{
    return m_ebuEnvelope->save(path, m_peakVector, m_nEnvelopeFormat);
}

void WaveOutput::dump() const
{
    qDebug() << "==== Wave Info Begin ====";
    AudioIO::dump();
    qDebug().nospace() << "Name = " << name();
    qDebug().nospace() << "File Descriptor = " << static_cast<const void *>(m_pFile);
    qDebug().nospace() << "Wave Version = " << version();
    m_settings.dump();
    m_fileInfo.dump();
    qDebug() << "==== Wave Info End ====";
}

}
