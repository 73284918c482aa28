#include "TagLibItems.h"

#include "AVMetadataIdentifiers.h"
#include "FieldTable.h"
#include "Id3Items.h"
#include "Literals.h"

#include <QDebug>
#include <QFile>
#include <taglib/aifffile.h>
#include <taglib/apefile.h>
#include <taglib/apetag.h>
#include <taglib/flacfile.h>
#include <taglib/id3v1tag.h>
#include <taglib/id3v2framefactory.h>
#include <taglib/id3v2tag.h>
#include <taglib/infotag.h>
#include <taglib/mpegfile.h>
#include <taglib/oggflacfile.h>
#include <taglib/opusfile.h>
#include <taglib/speexfile.h>
#include <taglib/vorbisfile.h>
#include <taglib/wavfile.h>
#include <taglib/xiphcomment.h>

namespace {

using Formats = QList<MetadataFormat>;

QByteArray toQByteArray(const TagLib::ByteVector &bytes)
{
    return {bytes.data(), static_cast<int>(bytes.size())};
}

TagLib::String fromUndeclared(const TagLib::ByteVector &bytes, const char *codec)
{
    return {textOfBytes(toQByteArray(bytes), codec).toUtf8().toStdString(), TagLib::String::UTF8};
}

// Both formats don't tell their encoding: UTF-8 where it is valid, else the old system's own.
class Id3v1Texts : public TagLib::ID3v1::StringHandler
{
public:
    TagLib::String parse(const TagLib::ByteVector &bytes) const override
    {
        return fromUndeclared(bytes, "windows-1252").stripWhiteSpace();
    }
};

class InfoTexts : public TagLib::RIFF::Info::StringHandler
{
public:
    TagLib::String parse(const TagLib::ByteVector &bytes) const override
    {
        return fromUndeclared(bytes, "windows-1252");
    }
};

void setStringHandlers()
{
    static const bool isSet = [] {
        static const Id3v1Texts id3v1;
        static const InfoTexts info;
        TagLib::ID3v1::Tag::setStringHandler(&id3v1);
        TagLib::RIFF::Info::Tag::setStringHandler(&info);
        return true;
    }();
    Q_UNUSED(isSet)
}

void append(Formats *formats, QLatin1String name, const QList<AVMetadataItem> &items)
{
    if (!items.isEmpty()) {
        formats->append({name, items});
    }
}

QStringList toQStringList(const TagLib::StringList &texts)
{
    QStringList result;
    for (const TagLib::String &text : texts) {
        result.append(toQString(text));
    }
    return result;
}

void appendId3(Formats *formats, const TagLib::ID3v2::Tag *tag)
{
    if (tag != nullptr) {
        append(formats, AVMetadataFormatID3Metadata, id3Items(*tag));
    }
}

/// Only where there is no other tag.
void appendId3v1(Formats *formats, const TagLib::ID3v1::Tag *tag)
{
    if (tag != nullptr && formats->isEmpty()) {
        append(formats, AVMetadataFormatID3Metadata, id3v1Items(*tag));
    }
}

void appendVorbis(Formats *formats, TagLib::Ogg::XiphComment *comment,
    const TagLib::List<TagLib::FLAC::Picture *> &filePictures = {})
{
    FieldTable::Collector collector(FieldTable::Names::Vorbis);
    const auto addPictures = [&collector](const TagLib::List<TagLib::FLAC::Picture *> &pictures) {
        for (const TagLib::FLAC::Picture *const picture : pictures) {
            collector.addPicture(toQByteArray(picture->data()),
                picture->type() == TagLib::FLAC::Picture::FrontCover);
        }
    };
    if (comment != nullptr) {
        for (const auto &[name, texts] : comment->fieldListMap()) {
            collector.add(toQString(name), toQStringList(texts));
        }
        addPictures(comment->pictureList());
    }
    addPictures(filePictures);
    append(formats, AVMetadataFormatVorbisComment, collector.items());
}

void appendApe(Formats *formats, TagLib::APE::Tag *tag)
{
    if (tag == nullptr) {
        return;
    }
    FieldTable::Collector collector(FieldTable::Names::Ape);
    for (const auto &[key, item] : tag->itemListMap()) {
        const QString name = toQString(key);
        if (name.startsWith(u"COVER ART ("_qs, Qt::CaseInsensitive)) {
            // A file name, a zero byte, the picture.
            const QByteArray data = toQByteArray(item.binaryData());
            collector.addPicture(data.mid(data.indexOf('\0') + 1),
                name.compare(u"COVER ART (FRONT)"_qs, Qt::CaseInsensitive) == 0);
        } else {
            collector.add(name, toQStringList(item.values()));
        }
    }
    append(formats, AVMetadataFormatApe, collector.items());
}

void appendInfo(Formats *formats, const TagLib::RIFF::Info::Tag *tag)
{
    if (tag == nullptr) {
        return;
    }
    FieldTable::Collector collector(FieldTable::Names::RiffInfo);
    for (const auto &[id, text] : tag->fieldListMap()) {
        collector.add(QString::fromLatin1(toQByteArray(id)), {toQString(text)});
    }
    append(formats, AVMetadataFormatRiffInfo, collector.items());
}

/// Whether the ID3 chunk of a WAV file comes before the INFO list.
bool isId3First(QFile &file)
{
    bool isFirst = false;
    forEachChunk(file, false, [&isFirst](const QByteArray &head, qint64) {
        isFirst = head.left(4).toLower() == "id3 ";
        return !isFirst && !(head.startsWith("LIST") && head.endsWith("INFO"));
    });
    return isFirst;
}

Formats mpegMetadata(TagLib::FileName name)
{
    Formats formats;
    TagLib::MPEG::File file(name, false);
    appendId3(&formats, file.hasID3v2Tag() ? file.ID3v2Tag() : nullptr);
    appendApe(&formats, file.hasAPETag() ? file.APETag() : nullptr);
    appendId3v1(&formats, file.hasID3v1Tag() ? file.ID3v1Tag() : nullptr);
    return formats;
}

Formats flacMetadata(TagLib::FileName name)
{
    Formats formats;
    TagLib::FLAC::File file(name, false);
    appendId3(&formats, file.hasID3v2Tag() ? file.ID3v2Tag() : nullptr);
    appendVorbis(
        &formats, file.hasXiphComment() ? file.xiphComment() : nullptr, file.pictureList());
    appendId3v1(&formats, file.hasID3v1Tag() ? file.ID3v1Tag() : nullptr);
    return formats;
}

Formats waveMetadata(const QString &path, TagLib::FileName name)
{
    QFile bytes(path);
    Formats formats;
    TagLib::RIFF::WAV::File file(name, false);
    const bool id3First = bytes.open(QIODevice::ReadOnly) && isId3First(bytes);
    if (id3First && file.hasID3v2Tag()) {
        appendId3(&formats, file.ID3v2Tag());
    }
    appendInfo(&formats, file.hasInfoTag() ? file.InfoTag() : nullptr);
    if (!id3First && file.hasID3v2Tag()) {
        appendId3(&formats, file.ID3v2Tag());
    }
    return formats;
}

template <typename OggFile> Formats oggMetadata(TagLib::FileName name)
{
    Formats formats;
    OggFile file(name, false);
    appendVorbis(&formats, file.isValid() ? file.tag() : nullptr);
    return formats;
}

Formats apeMetadata(TagLib::FileName name)
{
    Formats formats;
    TagLib::APE::File file(name, false);
    appendApe(&formats, file.hasAPETag() ? file.APETag() : nullptr);
    appendId3v1(&formats, file.hasID3v1Tag() ? file.ID3v1Tag() : nullptr);
    return formats;
}

Formats aiffMetadata(TagLib::FileName name)
{
    Formats formats;
    TagLib::RIFF::AIFF::File file(name, false);
    appendId3(&formats, file.hasID3v2Tag() ? file.tag() : nullptr);
    return formats;
}

Formats metadataOf(const QString &path, TagLib::FileName name, FileKind kind)
{
    switch (kind) {
    case FileKind::Mpeg:
        return mpegMetadata(name);
    case FileKind::Flac:
        return flacMetadata(name);
    case FileKind::Wave:
        return waveMetadata(path, name);
    case FileKind::OggVorbis:
        return oggMetadata<TagLib::Vorbis::File>(name);
    case FileKind::OggOpus:
        return oggMetadata<TagLib::Ogg::Opus::File>(name);
    case FileKind::OggFlac:
        return oggMetadata<TagLib::Ogg::FLAC::File>(name);
    case FileKind::OggSpeex:
        return oggMetadata<TagLib::Ogg::Speex::File>(name);
    case FileKind::Ape:
        return apeMetadata(name);
    case FileKind::Aiff:
        return aiffMetadata(name);
    case FileKind::Asf:
    case FileKind::Mp4:
    case FileKind::Other:
        break;
    }
    return {};
}

}

QList<MetadataFormat> tagLibMetadata(const QString &path, FileKind kind)
{
    setStringHandlers();
    const QByteArray name = QFile::encodeName(path);
    try {
        return metadataOf(path, name.constData(), kind);
    } catch (const std::exception &exception) {
        qDebug() << "The tags can't be read:" << path << exception.what();
        return {};
    }
}
