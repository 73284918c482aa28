#include "NativeAudioConverter.h"

#include "CFURL.h"
#include "NativeAudioPlayer.h"
#include "NativeResult.h"
#include <filesystem>
#include <QFile>
#include <QtDebug>
#include <system_error>
#include <vector>

namespace QMMultiMedia {

namespace {

constexpr UInt32 BlockBytes = 32768;

AudioStreamBasicDescription fixedFormat()
{
    AudioStreamBasicDescription format;
    format.mSampleRate = 44100.0;
    format.mFormatID = kAudioFormatLinearPCM;
    format.mFormatFlags = kAudioFormatFlagIsSignedInteger | kAudioFormatFlagIsPacked;
    format.mBytesPerPacket = 8;
    format.mFramesPerPacket = 1;
    format.mBytesPerFrame = 8;
    format.mChannelsPerFrame = 2;
    format.mBitsPerChannel = 32;
    return format;
}

/// Also by way of a link.
bool isSameFile(const QString &a, const QString &b)
{
    std::error_code none; // a destination that isn't there yet is another file
    return std::filesystem::equivalent(
        QFile::encodeName(a).toStdString(), QFile::encodeName(b).toStdString(), none);
}

CFURLRef fileUrl(const QString &path)
{
    return CFURLCreateWithFileSystemPath(
        nullptr, path, CFURLPathStyle::kCFURLPOSIXPathStyle, false);
}

}

NativeAudioConverter::NativeAudioConverter(QObject *parent)
    : QObject(parent)
    , m_settings(48000, 2, 1, 16)
{
}

NativeAudioConverter::~NativeAudioConverter() = default;

void NativeAudioConverter::setSettings(const Settings &settings)
{
    m_settings = settings;
}

void NativeAudioConverter::doIt(const QString &source, const QString &destination)
{
    m_source = source;
    m_destination = destination;
    MyAudioConverterSettings record;
    record.outputFormat = fixedFormat();
    // The destination is only touched once there is something to write into it.
    const bool ready = checkResult(ExtAudioFileOpenURL(fileUrl(source), &record.inputFile),
                           "ExtAudioFileOpenURL failed")
        && checkResult(isSameFile(source, destination) ? kAudioParamError : noErr,
            "AudioFileCreateWithURL failed")
        && checkResult(AudioFileCreateWithURL(fileUrl(destination), kAudioFileWAVEType,
                           &record.outputFormat, kAudioFileFlags_EraseFile, &record.outputFile),
            "AudioFileCreateWithURL failed")
        && checkResult(
            ExtAudioFileSetProperty(record.inputFile, kExtAudioFileProperty_ClientDataFormat,
                sizeof(record.outputFormat), &record.outputFormat),
            "Couldn't set client data format on input ext file");
    if (ready) {
        convert(&record);
    }
    if (record.inputFile != nullptr) {
        ExtAudioFileDispose(record.inputFile);
    }
    if (record.outputFile != nullptr) {
        checkResult(AudioFileClose(record.outputFile), "Couldn't complete the file");
    }
    qDebug("!!!!3");
}

void NativeAudioConverter::convert(MyAudioConverterSettings *settings)
{
    const UInt32 packetBytes = settings->outputFormat.mBytesPerPacket;
    std::vector<char> block(BlockBytes);
    SInt64 bytesWritten = 0;
    for (;;) {
        AudioBufferList list;
        list.mNumberBuffers = 1;
        list.mBuffers[0] = {settings->outputFormat.mChannelsPerFrame, BlockBytes, block.data()};
        UInt32 frames = BlockBytes / packetBytes;
        if (!checkResult(ExtAudioFileRead(settings->inputFile, &frames, &list),
                "Couldn't read from input file")) {
            break;
        }
        if (frames == 0) {
            qDebug("!!!!2");
            break;
        }
        UInt32 packets = frames;
        if (!checkResult(AudioFileWritePackets(settings->outputFile, false, frames * packetBytes,
                             nullptr, bytesWritten / packetBytes, &packets, block.data()),
                "Couldn't write packets to file")) {
            break;
        }
        bytesWritten += static_cast<SInt64>(frames) * packetBytes;
    }
    qDebug("!!!!1");
}

qint64 NativeAudioConverter::duration(const QString &path) const
{
    NativeAudioPlayer player;
    player.setMedia(path);
    return player.duration();
}

bool NativeAudioConverter::checkResult(int status, const char *text)
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
