// The part of the tag record that reads through the audio-file layer.

#include "AudioFileTags.h"
#include "CFURL.h"
#include "ExtAudioFile.h"
#include "Literals.h"
#include "NativeMetaTags.h"

#include <algorithm>
#include <memory>
#include <QDebug>
#include <QtEndian>

namespace QMMultiMedia {

namespace {

struct CloseFile
{
    void operator()(OpaqueAudioFileID *file) const { AudioFileClose(file); }
};

const char *formatErrorText(OSStatus status)
{
    switch (status) {
    case kAudioFormatUnknownFormatError:
        return "Error: audio format unknown format error";
    case kAudioFormatBadPropertySizeError:
        return "Error: audio format bad property size error";
    case kAudioFormatBadSpecifierSizeError:
        return "Error: audio format bad specifier size error";
    case kAudioFormatUnsupportedDataFormatError:
        return "Error: audio format unsupported data format error";
    case kAudioFormatUnsupportedPropertyError:
        return "Error: audio format unsupported property error";
    case kAudioFormatUnspecifiedError:
        return "Error: audio format unspecified error";
    default:
        return "Error: unknown audio format error";
    }
}

OSStatus infoDictionary(AudioFileID file, QVariantMap *info)
{
    UInt32 size = sizeof(QVariantMap);
    return AudioFileGetProperty(file, kAudioFilePropertyInfoDictionary, &size, info);
}

}

bool NativeMetaTags::readFromCO(const QString &path)
{
    m_strInputFile = path;
    const CFURLRef url
        = CFURLCreateWithFileSystemPath(nullptr, path, CFURLPathStyle::kCFURLPOSIXPathStyle, false);
    ExtAudioFileRef sound = nullptr;
    if (checkResult(ExtAudioFileOpenURL(url, &sound), "ExtAudioFileOpenURL failed")) {
        ExtAudioFileDispose(sound);
    }
    AudioFileID opened = nullptr;
    if (AudioFileOpenURL(url, kAudioFileReadPermission, 0, &opened) != noErr) {
        return false;
    }
    const std::unique_ptr<OpaqueAudioFileID, CloseFile> file(opened);
    readRawTag(file.get());

    QVariantMap info;
    if (infoDictionary(file.get(), &info) != noErr) {
        qDebug() << "AudioFileGetProperty failed for property info dictionary";
    }
    takeInfo(info);
    return readPicture(file.get());
}

/// Asks for the raw tag, for what goes wrong with it to be told.
void NativeMetaTags::readRawTag(AudioFileID file)
{
    UInt32 size = 0;
    checkResult(AudioFileGetPropertyInfo(file, kAudioFilePropertyID3Tag, &size, nullptr),
        "Couldn't get AudioFileGetPropertyInfo");
    QByteArray tag(static_cast<int>(size), '\0');
    const OSStatus status = AudioFileGetProperty(file, kAudioFilePropertyID3Tag, &size, tag.data());
    if (status != noErr) {
        qDebug() << "AudioFormatGetProperty_ID3TagSize failed";
        qDebug() << formatErrorText(status);
    }
}

void NativeMetaTags::takeInfo(const QVariantMap &info)
{
    const auto text = [&](const char16_t *key) { return getData(info, QString::fromUtf16(key)); };
    m_strAlbum = text(u"album");
    m_strTitle = text(u"title");
    m_strApproximateDurationInSeconds = text(u"approximate duration in seconds");
    m_strArtist = text(u"artist");
    bool isNumber = false;
    m_nTempo = text(u"tempo").toInt(&isNumber);
    if (!isNumber) {
        m_nTempo = -1;
    }
    m_strKeySignature = text(u"key signature");
    m_strTimeSignature = text(u"time signature");
    m_strTrackNumber = text(u"track number");
    m_strYear = text(u"year");
    m_strComposer = text(u"composer");
    m_strLyricist = text(u"lyricist");
    m_strGenre = text(u"genre");
    m_strRecordedDate = text(u"recorded date");
    m_strComments = text(u"comments");
    m_strCopyright = text(u"copyright");
    m_strSourceEncoder = text(u"source encoder");
    m_strEncodingApplication = text(u"encoding application");
    m_strNominalBitRate = text(u"nominal bit rate");
    m_strChannelLayout = text(u"channel layout");
    m_strSourceBitDepth = text(u"source bit depth");
    m_strISRC = text(u"ISRC");
    m_strSubTitle = text(u"subtitle");

    if (!m_strTrackNumber.contains(QLatin1Char('/'))) {
        const int number = m_strTrackNumber.toInt(&isNumber);
        m_strTrackNumber = isNumber
            ? QString::number(number) + QLatin1Char('/') + QString::number(number)
            : u""_qs;
    }
}

bool NativeMetaTags::readPicture(AudioFileID file)
{
    QVariantMap info;
    if (infoDictionary(file, &info) != noErr) {
        return false;
    }
    UInt32 size = 0;
    const bool isInId3Tag
        = AudioFileGetPropertyInfo(file, kAudioFilePropertyAlbumArtwork, &size, nullptr) != noErr;
    QByteArray bytes;
    if (isInId3Tag) {
        bytes = imageDataFromID3Tag(file);
    } else if (AudioFileGetProperty(file, kAudioFilePropertyAlbumArtwork, &size, &bytes) != noErr) {
        bytes.clear();
    }
    if (!bytes.isEmpty()) {
        m_imgAlbumArtwork = byteArrayToImage(bytes, isInId3Tag);
    }
    return true;
}

QString NativeMetaTags::getData(const QVariantMap &dictionary, const QString &key) const
{
    return dictionary.value(key, u""_qs).toString();
}

QByteArray NativeMetaTags::imageDataFromID3Tag(AudioFileID file) const
{
    UInt32 size = 0;
    if (AudioFileGetPropertyInfo(file, kAudioFilePropertyID3Tag, &size, nullptr) != noErr) {
        return {};
    }
    QByteArray tag(static_cast<int>(size), '\0');
    if (AudioFileGetProperty(file, kAudioFilePropertyID3Tag, &size, tag.data()) != noErr) {
        return {};
    }
    UInt32 tagSize = 0;
    UInt32 room = sizeof(tagSize);
    if (AudioFormatGetProperty(
            kAudioFormatProperty_ID3TagSize, size, tag.constData(), &room, &tagSize)
        != noErr) {
        return {};
    }
    QVariantMap frames;
    room = sizeof(frames);
    if (AudioFormatGetProperty(kAudioFormatProperty_ID3TagToDictionary, qMin(size, tagSize),
            tag.constData(), &room, &frames)
        != noErr) {
        return {};
    }
    const QString id = frames.contains(u"APIC"_qs) ? u"APIC"_qs : u"PIC"_qs;
    const QVariantMap pictures = frames.value(id).toMap();
    return pictures.isEmpty() ? QByteArray()
                              : pictures.last().toMap().value(u"data"_qs).toByteArray();
}

bool NativeMetaTags::checkResult(int status, const char *operation)
{
    if (status == noErr) {
        return true;
    }
    QString text = QString::number(status) + u" : "_qs + QString::fromUtf8(operation) + u" "_qs;
    char code[4];
    qToBigEndian(status, code);
    const QByteArray name(code, sizeof(code));
    const bool isPrintable
        = std::all_of(name.begin(), name.end(), [](char c) { return c >= 0x20 && c < 0x7F; });
    if (isPrintable) {
        text += u"'"_qs + QString::fromLatin1(name) + u"'"_qs;
    }
    emit error(text);
    return false;
}

}
