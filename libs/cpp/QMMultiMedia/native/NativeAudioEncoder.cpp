#include "NativeAudioEncoder.h"

#include "CFURL.h"
#include "NativeResult.h"
#include <QtDebug>

namespace QMMultiMedia {

int setBitRate(ExtAudioFileRef file, unsigned int bitRate)
{
    AudioConverterRef converter = nullptr;
    UInt32 size = sizeof(converter); // NOLINT(bugprone-sizeof-expression): the handle is the value
    const OSStatus found
        = ExtAudioFileGetProperty(file, kExtAudioFileProperty_AudioConverter, &size, &converter);
    if (found != noErr) {
        converter = nullptr;
    }
    const UInt32 rate = bitRate;
    return AudioConverterSetProperty(converter, kAudioConverterEncodeBitRate, sizeof(rate), &rate);
}

NativeAudioEncoder::NativeAudioEncoder(
    const QString &path, const MAudioFormat &format, QObject *parent)
    : QObject(parent)
    , m_path(path)
    , m_format(format)
{
    createOutputFormat(&m_outputFormat);
    createCanonicalFormat(&m_clientFormat);
    const CFURLRef url
        = CFURLCreateWithFileSystemPath(nullptr, path, CFURLPathStyle::kCFURLPOSIXPathStyle, false);
    // A file that can't be made shows as an error of each write.
    if (ExtAudioFileCreateWithURL(
            url, kAudioFileFLACType, &m_outputFormat, nullptr, kAudioFileFlags_EraseFile, &m_file)
        == noErr) {
        Q_UNUSED(ExtAudioFileSetProperty(m_file, kExtAudioFileProperty_ClientDataFormat,
            sizeof(m_clientFormat), &m_clientFormat))
    }
}

NativeAudioEncoder::~NativeAudioEncoder()
{
    finish();
}

int NativeAudioEncoder::write(float *samples, int n)
{
    const UInt32 channels = m_clientFormat.mChannelsPerFrame;
    const UInt32 frames = channels > 0 && n > 0 ? static_cast<UInt32>(n) / channels : 0;
    AudioBufferList list;
    list.mNumberBuffers = 1;
    list.mBuffers[0] = {channels, frames * m_clientFormat.mBytesPerFrame, samples};
    if (checkResult(ExtAudioFileWrite(m_file, frames, &list), "Couldn't write packets to file")) {
        list.mBuffers[0] = {channels, 0, samples + static_cast<std::size_t>(frames) * channels};
        checkResult(ExtAudioFileWrite(m_file, 0, &list), "Couldn't write last packet to file");
    }
    return 1;
}

void NativeAudioEncoder::finish()
{
    if (m_file != nullptr) {
        const int status = ExtAudioFileDispose(m_file);
        m_file = nullptr;
        checkResult(status, "Couldn't complete the file");
    }
}

void NativeAudioEncoder::createOutputFormat(AudioStreamBasicDescription *format) const
{
    *format = {};
    format->mSampleRate = m_format.sampleRate;
    format->mFormatID = kAudioFormatFLAC;
    format->mFormatFlags = 1;
    format->mFramesPerPacket = 1024;
    format->mChannelsPerFrame = static_cast<UInt32>(m_format.channels);
    format->mBitsPerChannel = static_cast<UInt32>(m_format.bitsPerSample);
}

void NativeAudioEncoder::createCanonicalFormat(AudioStreamBasicDescription *format) const
{
    *format = {};
    format->mSampleRate = m_format.sampleRate;
    format->mFormatID = kAudioFormatLinearPCM;
    format->mFormatFlags = kAudioFormatFlagIsFloat | kAudioFormatFlagIsPacked;
    format->mBytesPerPacket = static_cast<UInt32>(m_format.channels) * sizeof(float);
    format->mFramesPerPacket = 1;
    format->mBytesPerFrame = format->mBytesPerPacket;
    format->mChannelsPerFrame = static_cast<UInt32>(m_format.channels);
    format->mBitsPerChannel = 32;
}

bool NativeAudioEncoder::checkResult(int status, const char *text)
{
    if (status == 0) {
        return true;
    }
    const QString message = nativeResultMessage(status, text);
    qDebug().noquote() << message;
    Q_EMIT error(message);
    return false;
}

}
