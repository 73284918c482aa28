#include "FieldTable.h"

#include "AVMetadataIdentifiers.h"
#include "Literals.h"

#include <algorithm>
#include <array>
#include <QHash>
#include <QRegularExpression>
#include <QTextCodec>

namespace FieldTable {

namespace {

/// One field: its common key, its iTunes atom, and its names, several separated by "|".
struct Row
{
    const char *commonKey;
    const char *atom;
    std::array<const char *, 7> names; ///< in the order of Names
};

// In the order of Field. "@" stands for the copyright sign of an atom's name.
constexpr std::array<Row, 17> rows {{
    {"title", "@nam", {"TIT2", "TITLE", "TITLE", "TITLE", "INAM", "TITLE", "TITLE|DISPLAYNAME"}},
    {"artist", "@ART", {"TPE1", "ARTIST", "ARTIST", "AUTHOR", "IART", "ARTIST|AUTHOR", "ARTIST"}},
    {"albumName", "@alb",
        {"TALB", "ALBUM", "ALBUM", "WM/ALBUMTITLE", "IPRD", "ALBUM|PRODUCT", "ALBUM"}},
    {"creator", "@wrt",
        {"TCOM", "COMPOSER", "COMPOSER", "WM/COMPOSER", "", "COMPOSER", "COMPOSER"}},
    {"type", "@gen", {"TCON", "GENRE", "GENRE", "WM/GENRE", "IGNR", "GENRE", "GENRE"}},
    {"copyrights", "cprt",
        {"TCOP", "COPYRIGHT", "COPYRIGHT", "COPYRIGHT", "ICOP", "COPYRIGHT", "COPYRIGHT"}},
    {"creationDate", "@day",
        {"TDRC|TYER", "DATE|YEAR", "YEAR|DATE", "WM/YEAR|DATE", "ICRD", "DATE|YEAR",
            "YEAR|CREATIONDATE"}},
    {"software", "@too",
        {"TSSE", "ENCODER", "ENCODER|TOOL NAME", "WM/ENCODINGSETTINGS", "ISFT", "ENCODER|SOFTWARE",
            "SOFTWARE"}},
    {"artwork", "covr", {"APIC", "", "", "", "", "", "ARTWORK"}},
    {"subject", "@grp",
        {"TIT1", "GROUPING|CONTENTGROUP", "GROUPING", "WM/CONTENTGROUPDESCRIPTION|GROUPING", "",
            "GROUPING", "GROUPING"}},
    {"", "@cmt",
        {"COMM", "COMMENT|DESCRIPTION", "COMMENT", "DESCRIPTION", "ICMT", "COMMENT", "COMMENT"}},
    {"", "aART",
        {"TPE2", "ALBUMARTIST|ALBUM_ARTIST", "ALBUM ARTIST|ALBUMARTIST", "WM/ALBUMARTIST", "",
            "ALBUM_ARTIST|ALBUMARTIST", ""}},
    {"", "tmpo", {"TBPM", "BPM|TEMPO", "BPM", "WM/BEATSPERMINUTE", "", "BPM|TEMPO|TMPO|TBPM", ""}},
    {"", "trkn",
        {"TRCK", "TRACKNUMBER", "TRACK", "WM/TRACKNUMBER", "IPRT|ITRK", "TRACK|TRACKNUMBER", ""}},
    {"", "disk", {"TPOS", "DISCNUMBER|DISC", "DISC", "WM/PARTOFSET", "", "DISC|DISCNUMBER", ""}},
    {"", "", {"", "TRACKTOTAL|TOTALTRACKS", "", "", "", "TRACKTOTAL|TOTALTRACKS", ""}},
    {"", "", {"", "DISCTOTAL|TOTALDISCS", "", "", "", "DISCTOTAL|TOTALDISCS", ""}},
}};

const Row &rowOf(Field field)
{
    return rows.at(static_cast<std::size_t>(field));
}

quint32 atomOf(const Row &row)
{
    quint32 code = 0;
    for (const char *c = row.atom; *c != '\0'; ++c) {
        code = code << 8 | (*c == '@' ? 0xA9U : static_cast<unsigned char>(*c));
    }
    return code;
}

constexpr quint32 genreNumberAtom = 0x676E7265; // gnre
constexpr quint32 copyrightUserAtom = 0xA9637079; // ©cpy
constexpr quint32 softwareUserAtom = 0xA9737772; // ©swr

}

std::optional<Match> find(Names names, const QString &name)
{
    static const auto tables = [] {
        std::array<QHash<QString, Match>, 7> all;
        for (std::size_t row = 0; row < rows.size(); ++row) {
            for (std::size_t column = 0; column < all.size(); ++column) {
                int rank = 0;
                for (const QString &one :
                    QString::fromLatin1(rows.at(row).names.at(column)).split(QLatin1Char('|'))) {
                    all.at(column).insert(one, {static_cast<Field>(row), rank++});
                }
            }
        }
        return all;
    }();
    const auto &table = tables.at(static_cast<std::size_t>(names));
    const auto found = name.isEmpty() ? table.constEnd() : table.constFind(name.toUpper());
    if (found == table.constEnd()) {
        return {};
    }
    return *found;
}

QString commonKey(Field field)
{
    const char *const key = rowOf(field).commonKey;
    return *key == '\0' ? QString() : QString::fromLatin1(key);
}

QString commonKeyOfAtom(quint32 atom)
{
    for (const Row &row : rows) {
        if (*row.commonKey != '\0' && atomOf(row) == atom) {
            return QString::fromLatin1(row.commonKey);
        }
    }
    switch (atom) {
    case genreNumberAtom:
        return AVMetadataCommonKeyType;
    case copyrightUserAtom:
        return AVMetadataCommonKeyCopyrights;
    case softwareUserAtom:
        return AVMetadataCommonKeySoftware;
    default:
        return {};
    }
}

AVMetadataItem item(Field field, const QVariant &value, const QString &dataType)
{
    return {AVMetadataKeySpaceiTunes, atomOf(rowOf(field)), commonKey(field), value, dataType};
}

bool isTempo(const QString &text)
{
    static const QRegularExpression number(u"^\\s*\\+?\\d"_qs);
    return number.match(text).hasMatch();
}

void Collector::add(const QString &name, const QStringList &texts)
{
    const std::optional<Match> match = find(m_names, name);
    const bool isEmpty = std::all_of(
        texts.begin(), texts.end(), [](const QString &text) { return text.isEmpty(); });
    if (!match || match->field == Field::Artwork || isEmpty) {
        return; // an empty value hides no other name's
    }
    const auto place = m_texts.try_emplace(match->field, Texts {match->rank, {}}).first;
    QStringList &values = place->second.values;
    if (match->rank > place->second.rank) {
        return;
    }
    if (match->rank < place->second.rank) {
        place->second.rank = match->rank;
        values.clear();
    }
    constexpr int maximumValues = 256;
    for (const QString &text : texts) {
        if (values.size() < maximumValues && !text.isEmpty() && !values.contains(text)) {
            values.append(text);
        }
    }
}

void Collector::addPicture(const QByteArray &bytes, bool isFrontCover)
{
    if (!bytes.isEmpty() && (m_picture.isEmpty() || (isFrontCover && !m_hasFrontCover))) {
        m_picture = bytes;
        m_hasFrontCover = isFrontCover;
    }
}

QList<AVMetadataItem> Collector::items() const
{
    const auto totalOf = [this](Field field) {
        const auto found = m_texts.find(field);
        return found == m_texts.end() ? QString() : found->second.values.first();
    };
    QList<AVMetadataItem> result;
    for (const auto &[field, texts] : m_texts) {
        QString text = texts.values.join(u"; "_qs);
        if (field == Field::TrackTotal || field == Field::DiscTotal
            || (field == Field::Tempo && !isTempo(text))) {
            continue;
        }
        if (field == Field::Track || field == Field::Disc) {
            text = texts.values.first();
            const QString total
                = totalOf(field == Field::Track ? Field::TrackTotal : Field::DiscTotal);
            if (!total.isEmpty() && !text.contains(QLatin1Char('/'))) {
                text += QLatin1Char('/') + total;
            }
        }
        result.append(item(field, text, MetadataType::text()));
    }
    if (!m_picture.isEmpty()) {
        result.append(item(Field::Artwork, m_picture, MetadataType::picture(m_picture)));
    }
    return result;
}

}

namespace MetadataType {

QString text()
{
    return u"com.apple.metadata.datatype.UTF-8"_qs;
}

QString integer()
{
    return u"com.apple.metadata.datatype.int32"_qs;
}

QString data()
{
    return u"com.apple.metadata.datatype.raw-data"_qs;
}

QString picture(const QByteArray &bytes)
{
    return bytes.startsWith("\x89PNG") ? u"com.apple.metadata.datatype.PNG"_qs
                                       : u"com.apple.metadata.datatype.JPEG"_qs;
}

}

QString textOfBytes(const QByteArray &bytes, const char *fallbackCodec)
{
    QString text;
    QTextCodec::ConverterState state;
    if (bytes.startsWith("\xFE\xFF") || bytes.startsWith("\xFF\xFE")) {
        text = QTextCodec::codecForName("UTF-16")->toUnicode(
            bytes.constData(), bytes.size(), &state);
    } else {
        text
            = QTextCodec::codecForName("UTF-8")->toUnicode(bytes.constData(), bytes.size(), &state);
        if (state.invalidChars > 0 || state.remainingChars > 0) {
            QTextCodec *const fallback = QTextCodec::codecForName(fallbackCodec);
            text = fallback != nullptr ? fallback->toUnicode(bytes) : QString::fromLatin1(bytes);
        }
    }
    const int end = text.indexOf(QChar());
    return end < 0 ? text : text.left(end);
}
