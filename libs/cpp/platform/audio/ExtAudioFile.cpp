#include "ExtAudioFile.h"

#include "ExtAudioFilePrivate.h"
#include "KeptSounds.h"
#include "SoundReading.h"
#include "SoundSource.h"
#include <algorithm>
#include <climits>
#include <cstring>
#include <optional>
#include <system_error>

namespace {

constexpr double HighestClientRate = 768000.0;

std::optional<ClientSample> clientSample(const AudioStreamBasicDescription &format)
{
    if (format.mFormatFlags == (kAudioFormatFlagIsFloat | kAudioFormatFlagIsPacked)) {
        return format.mBitsPerChannel == 32 ? std::optional(ClientSample::Float) : std::nullopt;
    }
    if (format.mFormatFlags != (kAudioFormatFlagIsSignedInteger | kAudioFormatFlagIsPacked)) {
        return std::nullopt;
    }
    switch (format.mBitsPerChannel) {
    case 16:
        return ClientSample::Int16;
    case 24:
        return ClientSample::Int24;
    case 32:
        return ClientSample::Int32;
    default:
        return std::nullopt;
    }
}

/// The format as the readings know it; nothing for one that can't be delivered.
std::optional<ClientFormat> makeClientFormat(const AudioStreamBasicDescription &format)
{
    const std::optional<ClientSample> sample = clientSample(format);
    const auto width = sample ? static_cast<UInt32>(bytesPerFrame(*sample)) : 0;
    const bool fits = sample && format.mFormatID == kAudioFormatLinearPCM
        && format.mChannelsPerFrame == 2 && format.mBytesPerFrame == width
        && format.mBytesPerPacket == width && format.mFramesPerPacket == 1
        && format.mSampleRate >= 1.0 && format.mSampleRate <= HighestClientRate;
    if (!fits) {
        return std::nullopt;
    }
    return ClientFormat {qRound(format.mSampleRate), *sample};
}

/// Reads a file, or what is kept of it.
class ExtAudioReader : public OpaqueExtAudioFile
{
public:
    static std::unique_ptr<ExtAudioReader> open(const QUrl &url, OSStatus *status)
    {
        std::unique_ptr<InputFile> file = InputFile::open(url, status);
        if (!file) {
            return nullptr;
        }
        std::unique_ptr<ExtAudioReader> reader(new ExtAudioReader);
        reader->m_url = url;
        if (KeptSounds::instance().provesReadable(file->key())) {
            reader->m_file = std::move(file);
            return reader;
        }
        reader->m_source = SoundSource::open(std::move(file), status);
        return reader->m_source ? std::move(reader) : nullptr;
    }

    ~ExtAudioReader() override
    {
        if (m_reading) {
            KeptSounds::instance().detach(m_reading);
        }
    }

    OSStatus setClientFormat(const AudioStreamBasicDescription &format) override
    {
        if (m_reading) {
            return kAudioParamError;
        }
        m_format = makeClientFormat(format);
        m_description = format;
        return m_format ? noErr : kAudioFileUnsupportedDataFormatError;
    }

    AudioStreamBasicDescription clientFormat() const override { return m_description; }

    OSStatus read(UInt32 *ioFrames, AudioBufferList *ioData) override
    {
        if (!m_format || ioData->mNumberBuffers != 1) {
            return kAudioParamError;
        }
        AudioBuffer &buffer = ioData->mBuffers[0];
        const auto frameBytes = static_cast<UInt32>(bytesPerFrame(m_format->sample));
        const UInt32 room = std::min<UInt32>(buffer.mDataByteSize, INT_MAX) / frameBytes;
        const UInt32 wanted = std::min(*ioFrames, room);
        if (buffer.mData == nullptr && wanted > 0) {
            return kAudioParamError;
        }
        *ioFrames = 0;
        buffer.mDataByteSize = 0;
        OSStatus status = m_reading ? noErr : startReading();
        if (status == noErr && wanted > 0) {
            const int bytes = m_reading->read(
                static_cast<char *>(buffer.mData), static_cast<int>(wanted * frameBytes));
            buffer.mDataByteSize = static_cast<UInt32>(bytes);
            *ioFrames = buffer.mDataByteSize / frameBytes;
            if (*ioFrames < wanted) {
                status = m_reading->failure();
            }
        }
        return status;
    }

private:
    ExtAudioReader() = default;

    OSStatus startReading()
    {
        if (!m_source && !m_file) {
            return m_failure;
        }
        const FileKey key = m_source ? m_source->file().key() : m_file->key();
        m_reading = KeptSounds::instance().attach(key, *m_format);
        OSStatus status = noErr;
        if (!m_reading && !m_source) {
            m_source = SoundSource::open(std::move(m_file), &status);
            m_failure = status;
        }
        if (!m_reading && m_source) {
            try {
                m_reading = SoundReading::start(std::move(m_source), *m_format);
            } catch (const std::system_error &) {
                m_failure = kAudioMemoryFullError;
                return m_failure;
            }
            KeptSounds::instance().add(m_reading, m_url);
        }
        m_source.reset();
        m_file.reset();
        return status;
    }

    QUrl m_url;
    std::unique_ptr<InputFile> m_file; ///< set instead of the source while what is kept will do
    std::unique_ptr<SoundSource> m_source;
    std::shared_ptr<SoundReading> m_reading;
    OSStatus m_failure = noErr; ///< of the start of reading
    std::optional<ClientFormat> m_format;
    AudioStreamBasicDescription m_description;
};

}

OSStatus ExtAudioFileOpenURL(const CFURLRef &url, ExtAudioFileRef *outFile)
{
    if (outFile == nullptr) {
        return kAudioParamError;
    }
    OSStatus status = noErr;
    *outFile = ExtAudioReader::open(url, &status).release();
    return status;
}

OSStatus ExtAudioFileCreateWithURL(const CFURLRef &url, UInt32 fileType,
    const AudioStreamBasicDescription *format, const void * /*channelLayout*/, UInt32 flags,
    ExtAudioFileRef *outFile)
{
    if (format == nullptr || outFile == nullptr) {
        return kAudioParamError;
    }
    *outFile = nullptr;
    if (fileType != kAudioFileFLACType) {
        return kAudioFileUnsupportedFileTypeError;
    }
    OSStatus status = noErr;
    *outFile = createFlacFile(url, *format, flags, &status).release();
    return status;
}

OSStatus ExtAudioFileSetProperty(
    ExtAudioFileRef file, ExtAudioFilePropertyID id, UInt32 size, const void *data)
{
    if (file == nullptr || data == nullptr) {
        return kAudioParamError;
    }
    if (id != kExtAudioFileProperty_ClientDataFormat) {
        return kAudioFileUnsupportedPropertyError;
    }
    if (size != sizeof(AudioStreamBasicDescription)) {
        return kAudioParamError;
    }
    AudioStreamBasicDescription format;
    std::memcpy(&format, data, sizeof(format));
    return file->setClientFormat(format);
}

OSStatus ExtAudioFileGetProperty(
    ExtAudioFileRef file, ExtAudioFilePropertyID id, UInt32 *ioSize, void *data)
{
    if (file == nullptr || ioSize == nullptr || data == nullptr) {
        return kAudioParamError;
    }
    const AudioStreamBasicDescription format = file->clientFormat();
    AudioConverterRef converter = file->converter();
    const void *value = &format;
    UInt32 size = sizeof(format);
    if (id == kExtAudioFileProperty_AudioConverter && converter != nullptr) {
        value = &converter; // the handle itself is the value
        size = sizeof(converter); // NOLINT(bugprone-sizeof-expression)
    } else if (id != kExtAudioFileProperty_ClientDataFormat) {
        return kAudioFileUnsupportedPropertyError;
    }
    if (*ioSize < size) {
        return kAudioParamError;
    }
    std::memcpy(data, value, size);
    *ioSize = size;
    return noErr;
}

OSStatus ExtAudioFileRead(ExtAudioFileRef file, UInt32 *ioFrames, AudioBufferList *ioData)
{
    return file == nullptr || ioFrames == nullptr || ioData == nullptr
        ? kAudioParamError
        : file->read(ioFrames, ioData);
}

OSStatus ExtAudioFileWrite(ExtAudioFileRef file, UInt32 frames, const AudioBufferList *data)
{
    return file == nullptr || data == nullptr ? kAudioParamError : file->write(frames, data);
}

OSStatus ExtAudioFileDispose(ExtAudioFileRef file)
{
    if (file == nullptr) {
        return kAudioParamError;
    }
    const std::unique_ptr<OpaqueExtAudioFile> owner(file);
    return owner->close();
}

void ExtAudioFileHint(const CFURLRef &url, const AudioStreamBasicDescription &clientFormat)
{
    const std::optional<ClientFormat> format = makeClientFormat(clientFormat);
    if (!format) {
        return;
    }
    try {
        KeptSounds::instance().hint(url, *format);
    } catch (const std::system_error &) {
        qWarning("No thread to read ahead");
    }
}

void ExtAudioFileDropHints()
{
    KeptSounds::instance().dropHints();
}

void ExtAudioFileForgetKept()
{
    KeptSounds::instance().forgetAll();
}

OSStatus AudioConverterSetProperty(
    AudioConverterRef converter, AudioConverterPropertyID id, UInt32 size, const void *data)
{
    if (converter == nullptr || data == nullptr
        || (id == kAudioConverterEncodeBitRate && size != sizeof(UInt32))) {
        return kAudioParamError;
    }
    // All that is written here is lossless.
    return kAudioConverterPropertyNotSupported;
}
