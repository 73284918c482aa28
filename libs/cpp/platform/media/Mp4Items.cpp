#include "Mp4Items.h"

#include "AtomReader.h"
#include "AVMetadataIdentifiers.h"
#include "FieldTable.h"
#include "Literals.h"

#include <QHash>
#include <QSet>
#include <QtEndian>

namespace {

/// The value of one "data" atom.
struct Value
{
    QVariant value;
    QString dataType;
};

quint32 word(const QByteArray &bytes, int offset)
{
    return qFromBigEndian<quint32>(bytes.constData() + offset);
}

/// A big-endian signed integer of 1 to 8 bytes.
qint64 integerOf(const QByteArray &bytes, bool isSigned)
{
    qint64 number = isSigned && !bytes.isEmpty() && bytes.at(0) < 0 ? -1 : 0;
    for (const char byte : bytes) {
        number = static_cast<qint64>(
            static_cast<quint64>(number) << 8 | static_cast<unsigned char>(byte));
    }
    return number;
}

class Mp4Reader
{
public:
    explicit Mp4Reader(QIODevice &device)
        : m_atoms(device)
    {
    }

    QList<MetadataFormat> read();

private:
    void readUserData(const Atom &udta);
    void readUserText(const Atom &atom);
    void readMobileText(const Atom &atom);
    void readMeta(const Atom &meta);
    bool isJoined(quint32 type, const QString &text);
    void readITunesItem(const Atom &atom);
    void readFreeForm(const Atom &atom);
    void readKeyedItem(const QStringList &keys, const Atom &atom);
    QStringList readKeys(const Atom &keys);
    /// The value of an item's "data" atoms: several texts are joined, else the first one counts.
    Value valueOf(const Atom &item);
    static Value valueOf(quint32 key, quint32 type, const QByteArray &bytes);
    void append(QLatin1String format, const AVMetadataItem &item);

    // Far above what a real file holds, low enough for a search from item to item.
    static constexpr int maximumItems = 4096;
    static constexpr int maximumJoined = 64 * 1024;

    AtomReader m_atoms;
    QList<MetadataFormat> m_formats;
    QHash<quint32, QSet<QString>> m_knownTexts; ///< of iTunes items, by the name of their atoms
    int m_itemsLeft = maximumItems;
};

QList<MetadataFormat> Mp4Reader::read()
{
    const Atom file = m_atoms.root();
    const std::optional<Atom> moov = m_atoms.find(file.body, file.end, atomType("moov"));
    if (moov) {
        m_atoms.forEachChild(*moov, [this](const Atom &atom) {
            if (atom.type == atomType("udta")) {
                readUserData(atom);
            } else if (atom.type == atomType("meta")) {
                readMeta(atom);
            }
            return true;
        });
    }
    return m_formats;
}

void Mp4Reader::append(QLatin1String format, const AVMetadataItem &item)
{
    if (--m_itemsLeft < 0) {
        return;
    }
    for (MetadataFormat &known : m_formats) {
        if (known.name == format) {
            known.items.append(item);
            return;
        }
    }
    m_formats.append({format, {item}});
}

void Mp4Reader::readUserData(const Atom &udta)
{
    m_atoms.forEachChild(udta, [this](const Atom &atom) {
        if (atom.type == atomType("meta")) {
            readMeta(atom);
        } else if (atom.type >> 24 == 0xA9) {
            readUserText(atom);
        } else {
            readMobileText(atom);
        }
        return true;
    });
}

/// QuickTime user data: texts, each with its length and language. The first one counts.
void Mp4Reader::readUserText(const Atom &atom)
{
    constexpr int headBytes = 4;
    const QByteArray body = m_atoms.body(atom);
    if (body.size() < headBytes) {
        return;
    }
    const int length = qFromBigEndian<quint16>(body.constData());
    const QString text = textOfBytes(body.mid(headBytes, length), "macintosh");
    append(AVMetadataFormatQuickTimeUserData,
        {AVMetadataKeySpaceQuickTimeUserData, atom.type, FieldTable::commonKeyOfAtom(atom.type),
            text, MetadataType::text()});
}

/// User data as mobile telephones write it (3GPP TS 26.244): version, language, text.
void Mp4Reader::readMobileText(const Atom &atom)
{
    struct Known
    {
        quint32 type;
        QLatin1String commonKey;
    };
    static constexpr Known known[] = {{atomType("titl"), AVMetadataCommonKeyTitle},
        {atomType("perf"), AVMetadataCommonKeyArtist},
        {atomType("albm"), AVMetadataCommonKeyAlbumName},
        {atomType("gnre"), AVMetadataCommonKeyType},
        {atomType("cprt"), AVMetadataCommonKeyCopyrights},
        {atomType("dscp"), AVMetadataCommonKeyDescription},
        {atomType("yrrc"), AVMetadataCommonKeyCreationDate}};
    constexpr int versionBytes = 4;
    constexpr int languageBytes = 2;
    for (const Known &one : known) {
        if (atom.type != one.type) {
            continue;
        }
        const QByteArray body = m_atoms.body(atom);
        if (body.size() < versionBytes + languageBytes) {
            return;
        }
        const QString text = atom.type == atomType("yrrc")
            ? QString::number(qFromBigEndian<quint16>(body.constData() + versionBytes))
            : textOfBytes(body.mid(versionBytes + languageBytes), "ISO-8859-1");
        append(AVMetadataFormatQuickTimeUserData,
            {AVMetadataKeySpaceQuickTimeUserData, atom.type, one.commonKey, text,
                MetadataType::text()});
    }
}

void Mp4Reader::readMeta(const Atom &meta)
{
    // QuickTime's has its children at once, MPEG-4's after four bytes of version and flags.
    constexpr int versionBytes = 4;
    const QByteArray start = m_atoms.bytes(meta.body, qMin(meta.end, meta.body + 8));
    const bool isPlain = start.size() == 8 && word(start, 4) == atomType("hdlr");
    const qint64 from = meta.body + (isPlain ? 0 : versionBytes);

    QStringList keys;
    bool isKeyed = false;
    m_atoms.forEach(from, meta.end, [&](const Atom &atom) {
        if (atom.type == atomType("keys")) {
            isKeyed = true;
            keys = readKeys(atom);
        } else if (atom.type == atomType("ilst")) {
            m_atoms.forEachChild(atom, [&](const Atom &item) {
                if (isKeyed) {
                    readKeyedItem(keys, item);
                } else if (item.type == atomType("----")) {
                    readFreeForm(item);
                } else {
                    readITunesItem(item);
                }
                return true;
            });
        }
        return true;
    });
}

/// A second atom of the same name is another value of the field. False if it is the first.
bool Mp4Reader::isJoined(quint32 type, const QString &text)
{
    QSet<QString> &known = m_knownTexts[type];
    const bool isNew = !known.contains(text);
    known.insert(text);
    if (m_formats.isEmpty() || m_formats.last().name != AVMetadataFormatiTunesMetadata) {
        return false;
    }
    for (AVMetadataItem &earlier : m_formats.last().items) {
        if (earlier.key() == QVariant(type) && earlier.value().type() == QVariant::String) {
            if (isNew && earlier.stringValue().size() <= maximumJoined) {
                earlier.setValue(earlier.stringValue() + u"; "_qs + text);
            }
            return true;
        }
    }
    return false;
}

void Mp4Reader::readITunesItem(const Atom &atom)
{
    const Value value = valueOf(atom);
    if (!value.value.isValid()) {
        return;
    }
    if (value.value.type() == QVariant::String && isJoined(atom.type, value.value.toString())) {
        return;
    }
    append(AVMetadataFormatiTunesMetadata,
        {AVMetadataKeySpaceiTunes, atom.type, FieldTable::commonKeyOfAtom(atom.type), value.value,
            value.dataType});
}

void Mp4Reader::readFreeForm(const Atom &atom)
{
    constexpr int versionBytes = 4;
    QString key;
    m_atoms.forEachChild(atom, [&](const Atom &child) {
        if (child.type == atomType("mean") || child.type == atomType("name")) {
            key += (key.isEmpty() ? u""_qs : u"."_qs)
                + QString::fromUtf8(m_atoms.body(child).mid(versionBytes));
        }
        return true;
    });
    const Value value = valueOf(atom);
    if (value.value.isValid()) {
        append(AVMetadataFormatiTunesMetadata,
            {AVMetadataKeySpaceiTunes, key, QString(), value.value, value.dataType});
    }
}

QStringList Mp4Reader::readKeys(const Atom &keys)
{
    constexpr int headBytes = 8; // version, flags, count
    QStringList result;
    m_atoms.forEach(keys.body + headBytes, keys.end, [&](const Atom &key) {
        result.append(QString::fromUtf8(m_atoms.body(key)));
        return true;
    });
    return result;
}

void Mp4Reader::readKeyedItem(const QStringList &keys, const Atom &atom)
{
    const auto index = static_cast<qint64>(atom.type) - 1;
    const Value value = valueOf(atom);
    if (index < 0 || index >= keys.size() || !value.value.isValid()) {
        return;
    }
    const QString &key = keys.at(static_cast<int>(index));
    const QString prefix = u"com.apple.quicktime."_qs;
    if (!key.startsWith(prefix)) {
        // Other writers put plain names there: the field's own key, so that its reader finds it.
        const auto match = FieldTable::find(FieldTable::Names::Dictionary, key);
        if (match) {
            if (match->field == FieldTable::Field::Tempo
                && !FieldTable::isTempo(value.value.toString())) {
                return;
            }
            const AVMetadataItem item = FieldTable::item(match->field, value.value, value.dataType);
            append(AVMetadataFormatQuickTimeMetadata,
                {AVMetadataKeySpaceQuickTimeMetadata, item.key(), item.commonKey(), value.value,
                    value.dataType});
            return;
        }
    }
    const auto match = FieldTable::find(FieldTable::Names::QuickTime, key.mid(prefix.size()));
    QString commonKey;
    if (match && key.startsWith(prefix)) {
        commonKey = match->field == FieldTable::Field::Comment
            ? QString(AVMetadataCommonKeyDescription)
            : FieldTable::commonKey(match->field);
    }
    append(AVMetadataFormatQuickTimeMetadata,
        {AVMetadataKeySpaceQuickTimeMetadata, key, commonKey, value.value, value.dataType});
}

Value Mp4Reader::valueOf(const Atom &item)
{
    constexpr int headBytes = 8; // type, locale
    Value result;
    QStringList texts;
    m_atoms.forEachChild(item, [&](const Atom &data) {
        if (data.type != atomType("data") || data.end - data.body < headBytes) {
            return true;
        }
        if (result.value.isValid() && texts.isEmpty()) {
            return false; // a second picture
        }
        const QByteArray body = m_atoms.body(data);
        if (body.isNull()) {
            return true;
        }
        const Value value = valueOf(item.type, word(body, 0) & 0xFFFFFF, body.mid(headBytes));
        if (value.value.type() == QVariant::String) {
            texts.append(value.value.toString());
        }
        if (!result.value.isValid()) {
            result = value;
        }
        return true;
    });
    texts.removeDuplicates();
    if (texts.size() > 1) {
        result.value = texts.join(u"; "_qs);
    }
    return result;
}

Value Mp4Reader::valueOf(quint32 key, quint32 type, const QByteArray &bytes)
{
    enum Type : quint32
    {
        Implicit = 0,
        Utf8 = 1,
        Utf16 = 2,
        Jpeg = 13,
        Png = 14,
        Signed = 21,
        Unsigned = 22
    };
    if (key == atomType("covr") || type == Jpeg || type == Png) {
        // The bytes decide: pictures are often labelled wrongly.
        return {bytes, MetadataType::picture(bytes)};
    }
    if (key == atomType("trkn") || key == atomType("disk") || key == atomType("gnre")) {
        return {bytes, MetadataType::data()};
    }
    const bool isNumber = type == Signed || type == Unsigned || key == atomType("tmpo");
    if (isNumber && !bytes.isEmpty() && bytes.size() <= 8) {
        return {integerOf(bytes, type != Unsigned), MetadataType::integer()};
    }
    if (type == Utf16) {
        QByteArray marked = bytes;
        if (!bytes.startsWith("\xFE\xFF") && !bytes.startsWith("\xFF\xFE")) {
            marked.prepend("\xFE\xFF");
        }
        return {textOfBytes(marked, "ISO-8859-1"), MetadataType::text()};
    }
    if (type == Utf8 || (type == Implicit && key >> 24 == 0xA9)) {
        return {textOfBytes(bytes, "ISO-8859-1"), MetadataType::text()};
    }
    return {bytes, MetadataType::data()};
}

}

QList<MetadataFormat> mp4Metadata(QIODevice &device)
{
    return Mp4Reader(device).read();
}
