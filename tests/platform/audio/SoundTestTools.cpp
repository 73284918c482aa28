#include "SoundTestTools.h"

#include "AudioFile.h"
#include <cmath>
#include <QtEndian>

namespace SoundTestTools {

std::vector<double> Read::samples(int bits, int channel) const
{
    std::vector<double> values;
    const int width = bits / 8;
    for (int i = channel * width; i + width <= bytes.size(); i += 2 * width) {
        quint32 word = 0;
        for (int b = 0; b < width; ++b) {
            word |= quint32(uchar(bytes.at(i + b))) << (8 * (b + 4 - width));
        }
        values.push_back(static_cast<qint32>(word) / 2147483648.0);
    }
    return values;
}

AudioStreamBasicDescription clientFormat(int rate, int bits)
{
    AudioStreamBasicDescription format;
    format.mSampleRate = rate;
    format.mFormatID = kAudioFormatLinearPCM;
    format.mFormatFlags = bits == 1 ? 9 : 12;
    format.mBitsPerChannel = static_cast<UInt32>(bits == 1 ? 32 : bits);
    format.mChannelsPerFrame = 2;
    format.mFramesPerPacket = 1;
    format.mBytesPerFrame = format.mBitsPerChannel / 4;
    format.mBytesPerPacket = format.mBytesPerFrame;
    return format;
}

Read readAll(const QString &path, int rate, int bits)
{
    Read result;
    ExtAudioFileRef file = nullptr;
    result.status = ExtAudioFileOpenURL(QUrl::fromLocalFile(path), &file);
    if (result.status != noErr) {
        EXPECT_EQ(file, nullptr);
        return result;
    }
    const AudioStreamBasicDescription format = clientFormat(rate, bits);
    result.status = ExtAudioFileSetProperty(
        file, kExtAudioFileProperty_ClientDataFormat, sizeof(format), &format);
    constexpr UInt32 Portion = 4801;
    std::vector<char> portion(Portion * format.mBytesPerFrame);
    int ends = 0;
    while (ends < 2 && result.status == noErr) {
        AudioBufferList list;
        list.mNumberBuffers = 1;
        list.mBuffers[0] = {2, static_cast<UInt32>(portion.size()), portion.data()};
        UInt32 frames = Portion;
        result.status = ExtAudioFileRead(file, &frames, &list);
        EXPECT_TRUE(frames == 0 || ends == 0) << "samples after the end";
        EXPECT_EQ(list.mBuffers[0].mDataByteSize, frames * format.mBytesPerFrame);
        ends += frames < Portion ? 1 : 0;
        result.frames += frames;
        result.bytes.append(portion.data(), static_cast<int>(list.mBuffers[0].mDataByteSize));
    }
    EXPECT_EQ(ExtAudioFileDispose(file), noErr);
    return result;
}

QByteArray noise(int bytes, quint32 seed)
{
    QByteArray result(bytes, '\0');
    for (char &byte : result) {
        seed = seed * 1664525U + 1013904223U;
        byte = static_cast<char>(seed >> 24);
    }
    return result;
}

bool writeWave(const QString &path, int rate, int channels, const std::vector<double> &samples)
{
    AudioStreamBasicDescription format = clientFormat(rate, 32);
    format.mChannelsPerFrame = static_cast<UInt32>(channels);
    format.mBytesPerPacket = 4 * format.mChannelsPerFrame;
    format.mBytesPerFrame = format.mBytesPerPacket;
    AudioFileID file = nullptr;
    if (AudioFileCreateWithURL(QUrl::fromLocalFile(path), kAudioFileWAVEType, &format,
            kAudioFileFlags_EraseFile, &file)
        != noErr) {
        return false;
    }
    std::vector<qint32> whole;
    whole.reserve(samples.size());
    for (const double sample : samples) {
        whole.push_back(qToLittleEndian(static_cast<qint32>(std::lrint(sample * 2147483647.0))));
    }
    auto packets = static_cast<UInt32>(samples.size()) / format.mChannelsPerFrame;
    const OSStatus written = AudioFileWritePackets(file, false,
        static_cast<UInt32>(whole.size() * sizeof(qint32)), nullptr, 0, &packets, whole.data());
    return AudioFileClose(file) == noErr && written == noErr;
}

}
