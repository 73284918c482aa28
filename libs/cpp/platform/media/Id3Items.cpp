#include "Id3Items.h"

#include "AVMetadataIdentifiers.h"
#include "FieldTable.h"
#include "Literals.h"

#include <optional>
#include <QHash>
#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <taglib/attachedpictureframe.h>
#include <taglib/commentsframe.h>
#include <taglib/id3v1tag.h>
#include <taglib/id3v2tag.h>
#include <taglib/textidentificationframe.h>
#include <taglib/urllinkframe.h>

namespace {

using FieldTable::Field;

constexpr int maximumItems = 4096;

/// Collects a tag's items, one a field.
class Id3Reader
{
public:
    void read(const TagLib::ID3v2::FrameList &frames);
    QList<AVMetadataItem> items() const { return m_items; }

    void add(const QString &id, const QVariant &value, const QString &type = MetadataType::text());

private:
    void readFrame(const TagLib::ID3v2::Frame &frame);
    QStringList newTexts(
        const QString &id, bool isField, const TagLib::ID3v2::TextIdentificationFrame &frame);
    void readText(const QString &id, const TagLib::ID3v2::TextIdentificationFrame &frame);
    void readUserText(const TagLib::ID3v2::UserTextIdentificationFrame &frame);
    void addUserTexts();
    void readPicture(const TagLib::ID3v2::AttachedPictureFrame &frame);
    int indexOf(const QString &id) const;

    QList<AVMetadataItem> m_items;
    QMap<QString, QString> m_userTexts; ///< by the id of the frame that they stand for
    QHash<QString, QSet<QString>> m_knownTexts; ///< by the id of their frames
    int m_dateRank = -1;
    bool m_hasFrontCover = false;
};

int Id3Reader::indexOf(const QString &id) const
{
    for (int i = 0; i < m_items.size(); ++i) {
        if (m_items.at(i).key() == id) {
            return i;
        }
    }
    return -1;
}

void Id3Reader::add(const QString &id, const QVariant &value, const QString &type)
{
    const auto match = FieldTable::find(FieldTable::Names::Id3, id);
    m_items.append({AVMetadataKeySpaceID3, id,
        match ? FieldTable::commonKey(match->field) : QString(), value, type});
}

void Id3Reader::read(const TagLib::ID3v2::FrameList &frames)
{
    for (const TagLib::ID3v2::Frame *const frame : frames) {
        if (m_items.size() >= maximumItems) {
            return;
        }
        readFrame(*frame);
    }
    addUserTexts();
}

void Id3Reader::readFrame(const TagLib::ID3v2::Frame &frame)
{
    const TagLib::ByteVector rawId = frame.frameID();
    const QString id = QString::fromLatin1(rawId.data(), static_cast<int>(rawId.size()));
    if (const auto *picture = dynamic_cast<const TagLib::ID3v2::AttachedPictureFrame *>(&frame)) {
        readPicture(*picture);
    } else if (const auto *comment = dynamic_cast<const TagLib::ID3v2::CommentsFrame *>(&frame)) {
        // One with a description is a program's own note, not the user's comment.
        const QString value = toQString(comment->text());
        if (comment->description().isEmpty() && !value.isEmpty() && indexOf(id) < 0) {
            add(id, value);
        }
    } else if (const auto *user
        = dynamic_cast<const TagLib::ID3v2::UserTextIdentificationFrame *>(&frame)) {
        readUserText(*user);
    } else if (const auto *text
        = dynamic_cast<const TagLib::ID3v2::TextIdentificationFrame *>(&frame)) {
        readText(id, *text);
    } else if (const auto *link = dynamic_cast<const TagLib::ID3v2::UrlLinkFrame *>(&frame)) {
        add(id, toQString(link->url()));
    }
}

/// A text under a name of the writer's own. Some writers put the comment and the grouping there.
void Id3Reader::readUserText(const TagLib::ID3v2::UserTextIdentificationFrame &frame)
{
    const QString name = toQString(frame.description());
    const TagLib::StringList fields = frame.fieldList(); // the name, then the texts
    const QString text = fields.size() > 1 ? toQString(fields[1]) : QString();
    const bool isComment = name.compare(u"comment"_qs, Qt::CaseInsensitive) == 0;
    const bool isGrouping = name.compare(u"grouping"_qs, Qt::CaseInsensitive) == 0;
    if ((isComment || isGrouping) && !text.isEmpty()) {
        m_userTexts.insert(isComment ? u"COMM"_qs : u"TIT1"_qs, text);
    }
    add(u"TXXX"_qs, name + u": "_qs + text);
}

/// They count where their own frames are missing.
void Id3Reader::addUserTexts()
{
    for (auto text = m_userTexts.cbegin(); text != m_userTexts.cend(); ++text) {
        if (indexOf(text.key()) < 0) {
            add(text.key(), text.value());
        }
    }
}

/// A genre's first number, else its names; nothing if there is neither.
QString genreText(const QStringList &texts)
{
    static const QRegularExpression leading(u"^\\s*(?:\\((\\d{1,9})\\)|(\\d{1,9})\\s*$)"_qs);
    QStringList names;
    for (const QString &text : texts) {
        const QRegularExpressionMatch match = leading.match(text);
        if (match.hasMatch()) {
            return match.captured(match.lastCapturedIndex());
        }
        if (!text.isEmpty()) {
            names.append(text);
        }
    }
    return names.join(u"; "_qs);
}

/// What the texts of a frame are worth; nothing for a tempo that doesn't begin with a number.
QVariant fieldValue(const std::optional<FieldTable::Match> &match, const QStringList &texts)
{
    static const QRegularExpression integer(u"^\\s*(\\d{1,9})"_qs);
    switch (match ? match->field : Field::Title) {
    case Field::Genre:
        return genreText(texts);
    case Field::Tempo: {
        const QRegularExpressionMatch number = integer.match(texts.value(0));
        return number.hasMatch() ? QVariant(number.captured(1).toInt()) : QVariant();
    }
    case Field::Date:
    case Field::Track:
    case Field::Disc:
        return texts.value(0);
    default:
        return texts.join(u"; "_qs);
    }
}

/// A second frame of one name: its texts join those of the first, where a field can have several.
void join(AVMetadataItem &item, Field field, const QStringList &texts)
{
    constexpr int maximumJoined = 64 * 1024;
    const QString before = item.stringValue();
    if ((field == Field::Artist || field == Field::Composer || field == Field::AlbumArtist)
        && before.size() < maximumJoined) {
        item.setValue((QStringList(before) + texts).join(u"; "_qs));
    }
}

/// The texts of a frame, for a field only those that no frame of its name had before.
QStringList Id3Reader::newTexts(
    const QString &id, bool isField, const TagLib::ID3v2::TextIdentificationFrame &frame)
{
    constexpr int maximumTexts = 256;
    QStringList texts;
    QSet<QString> &known = m_knownTexts[id];
    for (const TagLib::String &one : frame.fieldList()) {
        const QString text = toQString(one);
        if (!isField) {
            texts.append(text);
        } else if (known.size() < maximumTexts && !known.contains(text)) {
            known.insert(text);
            texts.append(text);
        }
    }
    return texts;
}

void Id3Reader::readText(const QString &id, const TagLib::ID3v2::TextIdentificationFrame &frame)
{
    const auto match = FieldTable::find(FieldTable::Names::Id3, id);
    const QStringList texts = newTexts(id, match.has_value(), frame);
    // Some writers leave empty frames in front of the filled ones.
    if (match && texts.join(QString()).isEmpty()) {
        return;
    }
    if (const int earlier = match ? indexOf(id) : -1; earlier >= 0) {
        join(m_items[earlier], match->field, texts);
        return;
    }
    const QVariant value = fieldValue(match, texts);
    if (!value.isValid()) {
        return;
    }
    if (match && match->field == Field::Date) {
        if (m_dateRank >= 0 && match->rank > m_dateRank) {
            return;
        }
        if (m_dateRank >= 0) {
            m_items.removeAt(indexOf(AVMetadataID3MetadataKeyYear));
        }
        m_dateRank = match->rank;
    }
    add(id, value, value.type() == QVariant::Int ? MetadataType::integer() : MetadataType::text());
}

void Id3Reader::readPicture(const TagLib::ID3v2::AttachedPictureFrame &frame)
{
    const bool isFrontCover = frame.type() == TagLib::ID3v2::AttachedPictureFrame::FrontCover;
    const QString id = u"APIC"_qs;
    const int earlier = indexOf(id);
    const TagLib::ByteVector picture = frame.picture();
    // The address of a picture isn't one. The library makes "image/-->" of the mark in old tags.
    const bool isAddress = toQString(frame.mimeType()).endsWith(u"-->"_qs);
    if (isAddress || picture.isEmpty() || (earlier >= 0 && (m_hasFrontCover || !isFrontCover))) {
        return;
    }
    const QByteArray bytes(picture.data(), static_cast<int>(picture.size()));
    m_hasFrontCover = isFrontCover;
    if (earlier >= 0) {
        m_items.removeAt(earlier);
    }
    add(id,
        QVariantMap {{u"data"_qs, unsynchronised(bytes)}, {u"MIME"_qs, toQString(frame.mimeType())},
            {u"text"_qs, toQString(frame.description())},
            {u"picturetype"_qs, static_cast<int>(frame.type())}},
        MetadataType::picture(bytes));
}

}

QList<AVMetadataItem> id3Items(const TagLib::ID3v2::Tag &tag)
{
    Id3Reader reader;
    reader.read(tag.frameList());
    return reader.items();
}

QList<AVMetadataItem> id3v1Items(const TagLib::ID3v1::Tag &tag)
{
    Id3Reader reader;
    const auto add = [&reader](const QString &id, const TagLib::String &text) {
        const QString value = toQString(text).trimmed();
        if (!value.isEmpty()) {
            reader.add(id, value);
        }
    };
    add(u"TIT2"_qs, tag.title());
    add(u"TPE1"_qs, tag.artist());
    add(u"TALB"_qs, tag.album());
    add(u"COMM"_qs, tag.comment());
    if (tag.year() != 0) {
        reader.add(u"TYER"_qs, QString::number(tag.year()));
    }
    if (tag.track() != 0) {
        reader.add(u"TRCK"_qs, QString::number(tag.track()));
    }
    constexpr unsigned noGenre = 255;
    if (tag.genreNumber() != noGenre) {
        reader.add(u"TCON"_qs, QString::number(tag.genreNumber()));
    }
    return reader.items();
}

QByteArray unsynchronised(const QByteArray &bytes)
{
    QByteArray result;
    result.reserve(bytes.size() + bytes.size() / 64);
    for (int i = 0; i < bytes.size(); ++i) {
        const char byte = bytes.at(i);
        result.append(byte);
        if (byte == '\xFF') {
            const auto next
                = i + 1 < bytes.size() ? static_cast<unsigned char>(bytes.at(i + 1)) : 0;
            if (next == 0 || next >= 0xE0) {
                result.append('\0');
            }
        }
    }
    return result;
}

QString toQString(const TagLib::String &text)
{
    QString result;
    result.reserve(static_cast<int>(text.size()));
    // The library holds UTF-16 units in its wide characters.
    for (const wchar_t unit : text) {
        if (unit == 0) {
            break;
        }
        result.append(QChar(static_cast<ushort>(unit)));
    }
    for (int i = 0; i < result.size(); ++i) {
        if (result.at(i).isHighSurrogate() && i + 1 < result.size()
            && result.at(i + 1).isLowSurrogate()) {
            ++i;
        } else if (result.at(i).isSurrogate()) {
            result[i] = QChar::ReplacementCharacter;
        }
    }
    return result;
}
