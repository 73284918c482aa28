#include "NativeAudioDecoder.h"

#include "CFURL.h"
#include "NativeAudioPlayer.h"
#include "NativeResult.h"
#include "Util.h"
#include <algorithm>
#include <QtDebug>

namespace QMMultiMedia {

namespace {

constexpr UInt32 PlatformChannels = 2;

}

NativeAudioDecoder::NativeAudioDecoder(QObject *parent)
    : NativeAudioDecoderBase(parent)
{
}

NativeAudioDecoder::~NativeAudioDecoder()
{
    NativeAudioDecoder::finish();
}

AudioStreamBasicDescription NativeAudioDecoder::createClientFormat(
    int sampleRate, int bitsPerSample)
{
    const UInt32 bits = bitsPerSample == 32 || bitsPerSample == 24 ? UInt32(bitsPerSample) : 16;
    AudioStreamBasicDescription format;
    format.mSampleRate = sampleRate;
    format.mFormatID = kAudioFormatLinearPCM;
    format.mFormatFlags = kAudioFormatFlagIsSignedInteger | kAudioFormatFlagIsPacked;
    format.mBytesPerPacket = bits / 8 * PlatformChannels;
    format.mFramesPerPacket = 1;
    format.mBytesPerFrame = format.mBytesPerPacket;
    format.mChannelsPerFrame = PlatformChannels;
    format.mBitsPerChannel = bits;
    return format;
}

bool NativeAudioDecoder::setFile(
    const QString &path, const int &sampleRate, const int &bitsPerSample, const int &channels)
{
    finish();
    m_channels = channels;
    m_bitsPerSample = bitsPerSample;
    m_position = 0;
    m_endedEarly = false;
    m_file = path;
    initInputInfo(path);
    const CFURLRef url
        = CFURLCreateWithFileSystemPath(nullptr, path, CFURLPathStyle::kCFURLPOSIXPathStyle, false);
    if (!checkResult(ExtAudioFileOpenURL(url, &m_audioFile), "ExtAudioFileOpenURL failed")) {
        m_audioFile = nullptr;
        return false;
    }
    m_clientFormat = createClientFormat(sampleRate, bitsPerSample);
    return checkResult(ExtAudioFileSetProperty(m_audioFile, kExtAudioFileProperty_ClientDataFormat,
                           sizeof(m_clientFormat), &m_clientFormat),
        "Couldn't set client data format on input ext file");
}

int NativeAudioDecoder::read(float *samples, int n)
{
    if (m_file.isEmpty()) {
        qDebug("File not set");
        return 0;
    }
    if (m_audioFile == nullptr || n < 2) {
        return 0;
    }
    const auto size = static_cast<std::size_t>(n / 2) * m_clientFormat.mBytesPerFrame;
    if (m_buffer.size() < size) {
        m_buffer.resize(size);
    }
    AudioBufferList list;
    list.mNumberBuffers = 1;
    list.mBuffers[0]
        = {m_clientFormat.mChannelsPerFrame, static_cast<UInt32>(size), m_buffer.data()};
    auto frames = static_cast<UInt32>(size / m_clientFormat.mBytesPerPacket);
    const OSStatus status = ExtAudioFileRead(m_audioFile, &frames, &list);
    m_endedEarly = m_endedEarly || status != noErr;
    if (!checkResult(status, "Couldn't read from input file") || frames == 0) {
        return 0;
    }
    const int count = static_cast<int>(frames * PlatformChannels);
    convertSamples(samples, count);
    m_position += frames;
    if (m_channels >= 2) {
        return count;
    }
    foldToMono(samples, static_cast<int>(frames));
    return static_cast<int>(frames);
}

void NativeAudioDecoder::finish()
{
    if (m_audioFile != nullptr) {
        ExtAudioFileDispose(m_audioFile);
        m_audioFile = nullptr;
    }
}

void NativeAudioDecoder::foldToMono(float *samples, int frames)
{
    for (std::ptrdiff_t i = 0; i < frames; ++i) {
        const float a = samples[2 * i];
        const float b = samples[2 * i + 1];
        const float product = a * b;
        const float sum = a + b;
        float mono = sum;
        if (a < 0.0F && b < 0.0F) {
            mono = product + sum;
        } else if (a > 0.0F && b > 0.0F) {
            mono = sum - product;
        }
        samples[i] = std::clamp(mono, -1.0F, 1.0F);
    }
}

void NativeAudioDecoder::initInputInfo(const QString &path)
{
    NativeAudioPlayer player;
    player.setMedia(path);
    m_duration = player.duration();
    m_inputChannels = player.numberOfChannels();
}

bool NativeAudioDecoder::checkResult(int status, const char *text)
{
    if (status == 0) {
        return true;
    }
    Q_EMIT error(nativeResultMessage(status, text));
    return false;
}

void NativeAudioDecoder::convertSamples(float *samples, int count) const
{
    switch (m_bitsPerSample) {
    case 32:
        Util::convertRaw32ToFloat(m_buffer.data(), samples, count, true);
        break;
    case 24:
        Util::convertRaw24ToFloat(m_buffer.data(), samples, count, true);
        break;
    default:
        Util::convertRaw16ToFloat(m_buffer.data(), samples, count, true);
        break;
    }
}

}
