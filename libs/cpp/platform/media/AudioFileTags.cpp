#include "AudioFileTags.h"

#include "AVAsset.h"
#include "AVMetadataIdentifiers.h"
#include "FieldTable.h"
#include "FileKind.h"
#include "Id3Items.h"
#include "Literals.h"

#include <cstring>
#include <memory>
#include <optional>
#include <QFile>
#include <QFileInfo>
#include <QtEndian>
#include <taglib/id3v2tag.h>
#include <taglib/mpegfile.h>
#include <taglib/tbytevectorstream.h>

namespace {

constexpr int headerBytes = 10;
constexpr qint64 maximumTagBytes = 128LL * 1024 * 1024;

/// The bytes of an ID3v2 tag by its header, which tells them in four groups of seven bits; 0 if it
/// isn't one.
qint64 tagBytes(const QByteArray &header)
{
    constexpr int footerFlag = 0x10;
    if (header.size() < headerBytes || !header.startsWith("ID3")) {
        return 0;
    }
    qint64 size = headerBytes;
    for (int i = 0; i < 4; ++i) {
        size += static_cast<qint64>(header.at(6 + i) & 0x7F) << (21 - 7 * i);
    }
    return size + ((header.at(5) & footerFlag) != 0 ? headerBytes : 0);
}

/// Where the ID3 chunk of a RIFF or AIFF file has its content; 0 if it has none.
qint64 id3Chunk(QFile &file, bool isBigEndian)
{
    qint64 place = 0;
    forEachChunk(file, isBigEndian, [&place](const QByteArray &head, qint64 body) {
        if (head.left(3).toLower() == "id3") {
            place = body;
        }
        return place == 0;
    });
    return place;
}

QByteArray rawId3Tag(const QString &path, FileKind kind)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    qint64 start = 0;
    if (kind == FileKind::Wave || kind == FileKind::Aiff) {
        start = id3Chunk(file, kind == FileKind::Aiff);
    }
    if (!file.seek(start)) {
        return {};
    }
    const qint64 size = tagBytes(file.peek(headerBytes));
    return size > 0 && size <= maximumTagBytes ? file.read(size) : QByteArray();
}

/// A file that was opened for its tags.
struct TaggedFile : OpaqueAudioFileID
{
    TaggedFile(const CFURLRef &url, FileKind fileKind)
        : asset(AVAsset::assetWithURL(url))
        , kind(fileKind)
    {
    }

    const QByteArray &id3Tag()
    {
        if (!m_id3Tag) {
            m_id3Tag = rawId3Tag(asset.URL().toLocalFile(), kind);
        }
        return *m_id3Tag;
    }
    QVariantMap info() const;
    QByteArray artwork() const;

    AVAsset asset;
    FileKind kind;

private:
    std::optional<QByteArray> m_id3Tag;
};

/// The word of the info dictionary that an item stands for; null if none does.
QString infoWord(const AVMetadataItem &item)
{
    struct Word
    {
        QLatin1String key; ///< common key, ID3 frame, or iTunes atom with "@"
        const char16_t *word;
    };
    static constexpr Word words[] = {{latin1("title"), u"title"}, {latin1("artist"), u"artist"},
        {latin1("albumName"), u"album"}, {latin1("creator"), u"composer"},
        {latin1("type"), u"genre"}, {latin1("copyrights"), u"copyright"},
        {latin1("creationDate"), u"year"}, {latin1("software"), u"encoding application"},
        {latin1("trkn"), u"track number"}, {latin1("TRCK"), u"track number"},
        {latin1("tmpo"), u"tempo"}, {latin1("TBPM"), u"tempo"}, {latin1("@cmt"), u"comments"},
        {latin1("COMM"), u"comments"}, {latin1("description"), u"comments"},
        {latin1("TKEY"), u"key signature"}, {latin1("TEXT"), u"lyricist"},
        {latin1("TSRC"), u"ISRC"}, {latin1("TIT3"), u"subtitle"}};
    QString key = item.key().toString();
    if (item.key().type() != QVariant::String) {
        char name[4];
        qToBigEndian(item.key().toUInt(), name);
        key = QString::fromLatin1(name, 4).replace(QChar(u'\u00A9'), QLatin1Char('@'));
    }
    for (const Word &word : words) {
        if (item.commonKey() == word.key || key == word.key) {
            return QString::fromUtf16(word.word);
        }
    }
    return {};
}

QString infoText(const AVMetadataItem &item, const QString &word)
{
    constexpr int pairBytes = 6;
    const QByteArray data = item.dataValue();
    if (word == u"track number"_qs && data.size() >= pairBytes) {
        return QString::number(qFromBigEndian<quint16>(data.constData() + 2)) + QLatin1Char('/')
            + QString::number(qFromBigEndian<quint16>(data.constData() + 4));
    }
    return item.stringValue();
}

QVariantMap TaggedFile::info() const
{
    QVariantMap result;
    for (const QString &format : asset.availableMetadataFormats()) {
        for (const AVMetadataItem &item : asset.metadataForFormat(format)) {
            const QString word = infoWord(item);
            const QString text = word.isNull() ? QString() : infoText(item, word);
            if (!text.isEmpty()) {
                result.insert(word, text);
            }
        }
    }
    const double seconds = CMTimeGetSeconds(asset.duration());
    if (seconds > 0.0) {
        result.insert(u"approximate duration in seconds"_qs, QString::number(seconds, 'f', 3));
    }
    return result;
}

QByteArray TaggedFile::artwork() const
{
    for (const QString &format : asset.availableMetadataFormats()) {
        for (const AVMetadataItem &item : asset.metadataForFormat(format)) {
            if (item.commonKey() == AVMetadataCommonKeyArtwork
                && item.keySpace() != AVMetadataKeySpaceID3) {
                return item.dataValue();
            }
        }
    }
    return {};
}

/// The frames of a raw tag by their ids; nothing if it can't be parsed.
std::optional<QVariantMap> dictionaryOfTag(const QByteArray &tag)
{
    TagLib::ByteVectorStream stream(
        TagLib::ByteVector(tag.constData(), static_cast<unsigned>(tag.size())));
    TagLib::MPEG::File file(&stream, TagLib::ID3v2::FrameFactory::instance(), false);
    if (!file.hasID3v2Tag()) {
        return {};
    }
    QVariantMap result;
    QVariantMap pictures;
    for (const AVMetadataItem &item : id3Items(*file.ID3v2Tag())) {
        const QString id = item.key().toString();
        if (item.value().type() == QVariant::Map) {
            pictures.insert(QString::number(pictures.size()), item.value());
        } else {
            result.insert(id, item.value());
        }
    }
    if (!pictures.isEmpty()) {
        result.insert(u"APIC"_qs, pictures);
    }
    return result;
}

TaggedFile *taggedFile(AudioFileID file)
{
    return dynamic_cast<TaggedFile *>(file);
}

template <typename Value> OSStatus give(const Value &value, UInt32 *ioSize, void *data)
{
    if (*ioSize < sizeof(Value)) {
        return kAudioFormatBadPropertySizeError;
    }
    *static_cast<Value *>(data) = value;
    *ioSize = sizeof(Value);
    return noErr;
}

OSStatus giveBytes(const QByteArray &bytes, UInt32 *ioSize, void *data)
{
    if (*ioSize < static_cast<UInt32>(bytes.size())) {
        return kAudioFormatBadPropertySizeError;
    }
    std::memcpy(data, bytes.constData(), static_cast<std::size_t>(bytes.size()));
    *ioSize = static_cast<UInt32>(bytes.size());
    return noErr;
}

}

OSStatus AudioFileOpenURL(
    const CFURLRef &url, int permissions, UInt32 /*typeHint*/, AudioFileID *outFile)
{
    if (outFile == nullptr || permissions != kAudioFileReadPermission) {
        return kAudioParamError;
    }
    *outFile = nullptr;
    const QString path = url.toLocalFile();
    QFile file(path);
    if (!isReadableFile(path) || !file.open(QIODevice::ReadOnly)) {
        return kAudioFileFileNotFoundError;
    }
    const FileKind kind = fileKind(file, QFileInfo(path).suffix());
    auto tagged = std::make_unique<TaggedFile>(url, kind);
    if (kind == FileKind::Other && !tagged->asset.isPlayable()) {
        return kAudioFileUnsupportedFileTypeError;
    }
    *outFile = tagged.release();
    return noErr;
}

OSStatus AudioFileGetPropertyInfo(
    AudioFileID file, UInt32 property, UInt32 *outSize, UInt32 *isWritable)
{
    TaggedFile *const tagged = taggedFile(file);
    if (tagged == nullptr || outSize == nullptr) {
        return kAudioParamError;
    }
    *outSize = 0;
    if (isWritable != nullptr) {
        *isWritable = 0;
    }
    if (property == kAudioFilePropertyID3Tag) {
        *outSize = static_cast<UInt32>(tagged->id3Tag().size());
    } else if (property == kAudioFilePropertyInfoDictionary) {
        *outSize = sizeof(QVariantMap);
    } else if (property == kAudioFilePropertyAlbumArtwork && !tagged->artwork().isEmpty()) {
        *outSize = sizeof(QByteArray);
    }
    return *outSize > 0 ? noErr : kAudioFileUnsupportedPropertyError;
}

OSStatus AudioFileGetProperty(AudioFileID file, UInt32 property, UInt32 *ioSize, void *data)
{
    TaggedFile *const tagged = taggedFile(file);
    if (tagged == nullptr || ioSize == nullptr || data == nullptr) {
        return kAudioParamError;
    }
    if (property == kAudioFilePropertyInfoDictionary) {
        return give(tagged->info(), ioSize, data);
    }
    if (property == kAudioFilePropertyID3Tag && !tagged->id3Tag().isEmpty()) {
        return giveBytes(tagged->id3Tag(), ioSize, data);
    }
    if (property == kAudioFilePropertyAlbumArtwork) {
        const QByteArray picture = tagged->artwork();
        if (!picture.isEmpty()) {
            return give(picture, ioSize, data);
        }
    }
    return kAudioFileUnsupportedPropertyError;
}

OSStatus AudioFormatGetProperty(
    UInt32 property, UInt32 specifierSize, const void *specifier, UInt32 *ioSize, void *data)
{
    if (specifier == nullptr || ioSize == nullptr || data == nullptr) {
        return kAudioParamError;
    }
    if (specifierSize < headerBytes || specifierSize > maximumTagBytes) {
        return kAudioFormatBadSpecifierSizeError;
    }
    const QByteArray tag(static_cast<const char *>(specifier), static_cast<int>(specifierSize));
    const qint64 size = tagBytes(tag);
    if (size == 0) {
        return kAudioFormatUnsupportedDataFormatError;
    }
    if (property == kAudioFormatProperty_ID3TagSize) {
        return give(static_cast<UInt32>(size), ioSize, data);
    }
    if (property == kAudioFormatProperty_ID3TagToDictionary) {
        const std::optional<QVariantMap> dictionary = dictionaryOfTag(tag);
        return dictionary ? give(*dictionary, ioSize, data) : kAudioFormatUnspecifiedError;
    }
    return kAudioFormatUnsupportedPropertyError;
}
