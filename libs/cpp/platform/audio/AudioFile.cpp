#include "AudioFile.h"

#include <array>
#include <cstring>
#include <limits>
#include <memory>
#include <QFile>
#include <QtEndian>

namespace {

constexpr int HeaderBytes = 44;
constexpr quint16 PcmTag = 1;
constexpr quint16 FloatTag = 3;

/// A RIFF file of plain samples: the header first, its sizes when the file is closed.
class WaveFile : public OpaqueAudioFileID
{
public:
    WaveFile(const QString &path, const AudioStreamBasicDescription &format)
        : m_file(path)
        , m_format(format)
    {
    }

    ~WaveFile() override { WaveFile::close(); }

    OSStatus open(UInt32 flags)
    {
        const bool erases = (flags & kAudioFileFlags_EraseFile) != 0;
        if (!erases && m_file.exists()) {
            return kAudioFileExistsError;
        }
        const QIODevice::OpenMode mode = erases ? QIODevice::WriteOnly | QIODevice::Truncate
                                                : QIODevice::WriteOnly | QIODevice::NewOnly;
        if (!m_file.open(mode)) {
            return kAudioFileFileNotFoundError;
        }
        return writeHeader() ? noErr : kAudioFileWriteError;
    }

    OSStatus writePackets(
        SInt64 startingPacket, UInt32 *ioPackets, UInt32 bytes, const void *data) override
    {
        const qint64 packetBytes = m_format.mBytesPerPacket;
        const qint64 wanted = qMin<qint64>(*ioPackets, bytes / packetBytes);
        *ioPackets = 0;
        constexpr qint64 MaxDataBytes = std::numeric_limits<quint32>::max() - HeaderBytes - 1;
        if (startingPacket < 0 || startingPacket > MaxDataBytes / packetBytes - wanted) {
            return kAudioParamError; // the sizes of a RIFF file have 32 bits
        }
        const qint64 offset = HeaderBytes + startingPacket * packetBytes;
        if ((m_file.pos() != offset && !m_file.seek(offset))
            || m_file.write(static_cast<const char *>(data), wanted * packetBytes)
                != wanted * packetBytes) {
            m_failed = true;
            return kAudioFileWriteError;
        }
        m_dataBytes = qMax(m_dataBytes, (startingPacket + wanted) * packetBytes);
        *ioPackets = static_cast<UInt32>(wanted);
        return noErr;
    }

    OSStatus close() override
    {
        if (!m_file.isOpen()) {
            return noErr;
        }
        const bool padded = m_dataBytes % 2 == 0
            || (m_file.seek(HeaderBytes + m_dataBytes) && m_file.putChar('\0'));
        const bool complete = padded && m_file.seek(0) && writeHeader() && m_file.flush();
        m_file.close();
        return complete && !m_failed && m_file.error() == QFileDevice::NoError
            ? noErr
            : kAudioFileWriteError;
    }

private:
    bool writeHeader()
    {
        const auto dataBytes = static_cast<quint32>(m_dataBytes);
        const bool isFloat = (m_format.mFormatFlags & kAudioFormatFlagIsFloat) != 0;
        const auto rate = static_cast<quint32>(m_format.mSampleRate);
        std::array<char, HeaderBytes> header {};
        char *bytes = header.data();
        const auto text
            = [bytes](int offset, const char *name) { std::memcpy(bytes + offset, name, 4); };
        text(0, "RIFF");
        qToLittleEndian<quint32>(HeaderBytes - 8 + dataBytes + dataBytes % 2, bytes + 4);
        text(8, "WAVE");
        text(12, "fmt ");
        qToLittleEndian<quint32>(16, bytes + 16);
        qToLittleEndian<quint16>(isFloat ? FloatTag : PcmTag, bytes + 20);
        qToLittleEndian<quint16>(static_cast<quint16>(m_format.mChannelsPerFrame), bytes + 22);
        qToLittleEndian<quint32>(rate, bytes + 24);
        qToLittleEndian<quint32>(rate * m_format.mBytesPerPacket, bytes + 28);
        qToLittleEndian<quint16>(static_cast<quint16>(m_format.mBytesPerPacket), bytes + 32);
        qToLittleEndian<quint16>(static_cast<quint16>(m_format.mBitsPerChannel), bytes + 34);
        text(36, "data");
        qToLittleEndian<quint32>(dataBytes, bytes + 40);
        return m_file.write(bytes, HeaderBytes) == HeaderBytes;
    }

    QFile m_file;
    AudioStreamBasicDescription m_format;
    qint64 m_dataBytes = 0;
    bool m_failed = false;
};

bool isPlainPcm(const AudioStreamBasicDescription &format)
{
    return format.mFormatID == kAudioFormatLinearPCM
        && (format.mFormatFlags & kAudioFormatFlagIsBigEndian) == 0 && format.mFramesPerPacket == 1
        && format.mChannelsPerFrame >= 1 && format.mChannelsPerFrame <= 64
        && format.mBitsPerChannel >= 8 && format.mBitsPerChannel <= 64
        && format.mBytesPerPacket == format.mChannelsPerFrame * ((format.mBitsPerChannel + 7) / 8)
        && format.mSampleRate >= 1.0 && format.mSampleRate <= 6200000.0;
}

}

OSStatus AudioFileCreateWithURL(const CFURLRef &url, UInt32 fileType,
    const AudioStreamBasicDescription *format, UInt32 flags, AudioFileID *outFile)
{
    if (format == nullptr || outFile == nullptr || !url.isLocalFile()) {
        return kAudioParamError;
    }
    *outFile = nullptr;
    if (fileType != kAudioFileWAVEType) {
        return kAudioFileUnsupportedFileTypeError;
    }
    if (!isPlainPcm(*format)) {
        return kAudioFileUnsupportedDataFormatError;
    }
    auto file = std::make_unique<WaveFile>(url.toLocalFile(), *format);
    const OSStatus status = file->open(flags);
    if (status == noErr) {
        *outFile = file.release();
    }
    return status;
}

OSStatus AudioFileWritePackets(AudioFileID file, bool /*useCache*/, UInt32 bytes,
    const void * /*packetDescriptions*/, SInt64 startingPacket, UInt32 *ioPackets, const void *data)
{
    if (file == nullptr || ioPackets == nullptr || (data == nullptr && bytes > 0)) {
        return kAudioParamError;
    }
    return file->writePackets(startingPacket, ioPackets, bytes, data);
}

OSStatus AudioFileClose(AudioFileID file)
{
    if (file == nullptr) {
        return kAudioParamError;
    }
    const std::unique_ptr<OpaqueAudioFileID> owner(file);
    return owner->close();
}
