#include "Mp4Rewriter.h"

#include "AVMetadataIdentifiers.h"
#include "Literals.h"

#include <algorithm>
#include <cerrno>
#include <limits>
#include <QBuffer>
#include <QtEndian>
#include <unistd.h>

namespace {

template <typename Number> QByteArray bigEndian(Number number)
{
    QByteArray bytes(sizeof(Number), '\0');
    qToBigEndian(number, bytes.data());
    return bytes;
}

QByteArray dataAtom(quint32 type, const QByteArray &value)
{
    constexpr quint32 anyLocale = 0;
    return atomBytes(atomType("data"), bigEndian(type) + bigEndian(anyLocale) + value);
}

/// The value of an item as its "data" atom; empty if it has none.
QByteArray encodedValue(const AVMetadataItem &item)
{
    constexpr quint32 bytesType = 0;
    constexpr quint32 utf8Type = 1;
    constexpr quint32 jpegType = 13;
    constexpr quint32 pngType = 14;
    constexpr quint32 integerType = 21;
    const QVariant value = item.value();
    if (value.type() == QVariant::String) {
        return dataAtom(utf8Type, value.toString().toUtf8());
    }
    if (value.type() == QVariant::ByteArray) {
        const QString type = item.dataType();
        return dataAtom(type.endsWith(u"JPEG"_qs) ? jpegType
                : type.endsWith(u"PNG"_qs)        ? pngType
                                                  : bytesType,
            value.toByteArray());
    }
    const QVariant number = item.numberValue();
    if (!number.isValid()) {
        return {};
    }
    const int integer = item.intValue();
    const bool isShort = integer >= std::numeric_limits<qint16>::min()
        && integer <= std::numeric_limits<qint16>::max();
    return dataAtom(
        integerType, isShort ? bigEndian(static_cast<qint16>(integer)) : bigEndian(integer));
}

/// A free-form item: its name space and name are atoms of their own.
QByteArray freeFormItem(const QString &key, const QByteArray &data)
{
    const QByteArray version(4, '\0');
    const QString usual = u"com.apple.iTunes"_qs;
    const int dot = key.startsWith(usual + u"."_qs) ? usual.size() : key.lastIndexOf(u'.');
    return atomBytes(atomType("----"),
        atomBytes(atomType("mean"), version + key.left(qMax(dot, 0)).toUtf8())
            + atomBytes(atomType("name"), version + key.mid(dot + 1).toUtf8()) + data);
}

constexpr quint32 m4aBrand = atomType("M4A ");

/// The file type of an M4A file; that of the source stays if it is one.
QByteArray m4aFileType(const QByteArray &source)
{
    constexpr int brandPlace = 8;
    if (source.size() >= brandPlace + 8
        && qFromBigEndian<quint32>(source.constData() + brandPlace) == m4aBrand) {
        return source;
    }
    return atomBytes(atomType("ftyp"), QByteArray("M4A \0\0\2\0M4A mp42isom", 20));
}

}

QByteArray atomBytes(quint32 type, const QByteArray &body)
{
    constexpr int headerBytes = 8;
    return bigEndian(static_cast<quint32>(headerBytes + body.size())) + bigEndian(type) + body;
}

QByteArray encodedItems(const QList<AVMetadataItem> &items)
{
    QByteArray result;
    for (const AVMetadataItem &item : items) {
        const QByteArray data = encodedValue(item);
        if (item.keySpace() != AVMetadataKeySpaceiTunes || data.isEmpty()) {
            continue;
        }
        result += item.key().type() == QVariant::String ? freeFormItem(item.key().toString(), data)
                                                        : atomBytes(item.key().toUInt(), data);
    }
    return result;
}

QByteArray userDataWithItems(const QByteArray &ilstBody, const QByteArray &otherAtoms)
{
    const QByteArray version(4, '\0');
    const QByteArray handler = atomBytes(
        atomType("hdlr"), version + QByteArray("\0\0\0\0mdirappl\0\0\0\0\0\0\0\0\0", 21));
    return atomBytes(atomType("udta"),
        atomBytes(atomType("meta"), version + handler + atomBytes(atomType("ilst"), ilstBody))
            + otherAtoms);
}

Mp4Rewriter::Mp4Rewriter(QFile &source, int destination)
    : m_source(source)
    , m_destination(destination)
{
}

bool Mp4Rewriter::fail(const char16_t *reason)
{
    m_error = QString::fromUtf16(reason);
    return false;
}

bool Mp4Rewriter::write(const QList<AVMetadataItem> &items)
{
    if (!readLayout() || !buildIndex(items) || !moveChunks()) {
        return false;
    }
    if (!writeBytes(m_fileType) || !writeBytes(m_index)) {
        return false;
    }
    return std::all_of(m_mediaData.cbegin(), m_mediaData.cend(),
        [this](const MediaData &data) { return copyRange(data.start, data.end); });
}

bool Mp4Rewriter::readLayout()
{
    constexpr int maximumMediaData = 1000;
    AtomReader atoms(m_source);
    const Atom file = atoms.root();
    qint64 reached = 0;
    int indexes = 0;
    bool isFragmented = false;
    bool isWhole = true;
    QByteArray fileType;
    atoms.forEachChild(file, [&](const Atom &atom) {
        reached = atom.end;
        isWhole = isWhole && atom.isWhole;
        if (atom.type == atomType("ftyp")) {
            fileType = atoms.bytes(atom.start, qMin(atom.end, atom.start + 4096));
        } else if (atom.type == atomType("moov")) {
            m_oldIndex = atom;
            ++indexes;
        } else if (atom.type == atomType("moof")) {
            isFragmented = true;
        } else if (atom.type == atomType("mdat")) {
            m_mediaData.append({atom.start, atom.end, 0});
        }
        return !isFragmented && m_mediaData.size() <= maximumMediaData;
    });
    if (isFragmented || m_mediaData.size() > maximumMediaData) {
        return fail(u"it is a fragmented file");
    }
    if (!isWhole || reached != file.end) {
        return fail(u"it is damaged or cut");
    }
    if (indexes != 1) {
        return fail(u"it is not an MPEG-4 file with one index");
    }
    m_fileType = m4aFileType(fileType);
    return true;
}

bool Mp4Rewriter::buildIndex(const QList<AVMetadataItem> &items)
{
    AtomReader file(m_source);
    QByteArray old = file.body(m_oldIndex);
    QBuffer buffer(&old);
    if (old.isNull() || !buffer.open(QIODevice::ReadOnly)) {
        return fail(u"its index can't be read");
    }
    // A long file's index has megabytes: it is built in place, its header last.
    m_index = atomBytes(atomType("moov"), {});
    m_index.reserve(m_index.size() + old.size());
    AtomReader atoms(buffer);
    qint64 reached = 0;
    bool isGood = true;
    atoms.forEachChild(atoms.root(), [&](const Atom &atom) {
        reached = atom.end;
        isGood = atom.isWhole && !atom.isOpen; // an open one would take in what is put behind it
        if (atom.type == atomType("mvex")) {
            isGood = fail(u"it is a fragmented file");
        } else if (atom.type == atomType("udta")) {
            readUserData(atoms, atom);
        } else if (atom.type != atomType("meta")) {
            if (atom.type == atomType("trak")) {
                isGood = isGood && readTrack(atoms, atom, m_index.size());
            }
            m_index.append(old.constData() + atom.start, static_cast<int>(atom.end - atom.start));
        }
        return isGood;
    });
    if (!m_error.isEmpty()) {
        return false;
    }
    if (!isGood || reached != old.size()) {
        return fail(u"its index is damaged");
    }
    if (!m_hasSound) {
        return fail(u"it has no sound");
    }
    const QByteArray ilst = encodedItems(items) + m_gaplessItem;
    if (!ilst.isEmpty() || !m_chapters.isEmpty()) {
        m_index += userDataWithItems(ilst, m_chapters);
    }
    qToBigEndian(static_cast<quint32>(m_index.size()), m_index.data());
    return true;
}

bool Mp4Rewriter::readTrack(AtomReader &atoms, const Atom &trak, int place)
{
    const std::optional<Atom> mdia = atoms.find(trak.body, trak.end, atomType("mdia"));
    if (!mdia) {
        return fail(u"a track of it is damaged");
    }
    constexpr int handlerPlace = 8;
    const std::optional<Atom> hdlr = atoms.find(mdia->body, mdia->end, atomType("hdlr"));
    const QByteArray handler = hdlr ? atoms.body(*hdlr).mid(handlerPlace, 4) : QByteArray();
    if (handler == "vide") {
        return fail(u"it has a picture track");
    }
    m_hasSound = m_hasSound || handler == "soun";
    const std::optional<Atom> minf = atoms.find(mdia->body, mdia->end, atomType("minf"));
    const std::optional<Atom> stbl
        = minf ? atoms.find(minf->body, minf->end, atomType("stbl")) : std::nullopt;
    return stbl ? readSampleTable(atoms, *stbl, place - trak.start)
                : fail(u"a track of it is damaged");
}

bool Mp4Rewriter::readSampleTable(AtomReader &atoms, const Atom &stbl, qint64 move)
{
    constexpr int headBytes = 8; // version, flags, count
    bool isGood = true;
    atoms.forEachChild(stbl, [&](const Atom &atom) {
        if (atom.type == atomType("saio")) {
            isGood = fail(u"it is protected");
        } else if (atom.type == atomType("stco") || atom.type == atomType("co64")) {
            ChunkTable table;
            table.place = static_cast<int>(atom.body + headBytes + move);
            table.entryBytes = atom.type == atomType("stco") ? 4 : 8;
            const QByteArray head = atoms.bytes(atom.body, qMin(atom.end, atom.body + headBytes));
            table.count
                = head.size() == headBytes ? qFromBigEndian<quint32>(head.constData() + 4) : 0;
            isGood = atom.isWhole && head.size() == headBytes
                && table.count <= (atom.end - atom.body - headBytes) / table.entryBytes;
            m_chunkTables.append(table);
        }
        return isGood;
    });
    return isGood || (m_error.isEmpty() ? fail(u"a table of its index is damaged") : false);
}

void Mp4Rewriter::readUserData(AtomReader &atoms, const Atom &udta)
{
    if (const auto chapters = atoms.find(udta.body, udta.end, atomType("chpl"))) {
        m_chapters = atoms.bytes(chapters->start, chapters->end);
    }
    constexpr int versionBytes = 4;
    const std::optional<Atom> meta = atoms.find(udta.body, udta.end, atomType("meta"));
    const std::optional<Atom> ilst
        = meta ? atoms.find(meta->body + versionBytes, meta->end, atomType("ilst")) : std::nullopt;
    if (!ilst) {
        return;
    }
    atoms.forEachChild(*ilst, [&](const Atom &item) {
        const std::optional<Atom> name = item.type == atomType("----")
            ? atoms.find(item.body, item.end, atomType("name"))
            : std::nullopt;
        if (name && atoms.body(*name).mid(versionBytes) == "iTunSMPB") {
            m_gaplessItem = atoms.bytes(item.start, item.end);
        }
        return m_gaplessItem.isEmpty();
    });
}

bool Mp4Rewriter::moveChunks()
{
    qint64 place = m_fileType.size() + m_index.size();
    for (MediaData &data : m_mediaData) {
        data.shift = place - data.start;
        place += data.end - data.start;
    }
    return std::all_of(m_chunkTables.cbegin(), m_chunkTables.cend(),
        [this](const ChunkTable &table) { return moveEntries(table); });
}

const Mp4Rewriter::MediaData *Mp4Rewriter::mediaDataAt(qint64 offset) const
{
    for (const MediaData &data : m_mediaData) {
        if (offset > data.start && offset <= data.end) {
            return &data;
        }
    }
    return nullptr;
}

bool Mp4Rewriter::moveEntries(const ChunkTable &table)
{
    const bool isLong = table.entryBytes == 8;
    char *entry = m_index.data() + table.place;
    const MediaData *data = nullptr;
    for (quint32 i = 0; i < table.count; ++i, entry += table.entryBytes) {
        const quint64 number
            = isLong ? qFromBigEndian<quint64>(entry) : qFromBigEndian<quint32>(entry);
        const auto offset = static_cast<qint64>(number);
        if (data == nullptr || offset <= data->start || offset > data->end) {
            data = mediaDataAt(offset);
        }
        if (data == nullptr) {
            return fail(u"its index points outside the sound");
        }
        const qint64 moved = offset + data->shift;
        if (isLong) {
            qToBigEndian<quint64>(static_cast<quint64>(moved), entry);
        } else if (moved <= std::numeric_limits<quint32>::max()) {
            qToBigEndian<quint32>(static_cast<quint32>(moved), entry);
        } else {
            return fail(u"it is too long for its kind of index");
        }
    }
    return true;
}

bool Mp4Rewriter::writeBytes(const QByteArray &bytes)
{
    qint64 written = 0;
    while (written < bytes.size()) {
        const ssize_t count = ::write(m_destination, bytes.constData() + written,
            static_cast<std::size_t>(bytes.size() - written));
        if (count < 0 && errno != EINTR) {
            m_error = qt_error_string(errno);
            return false;
        }
        written += qMax<qint64>(count, 0);
    }
    return true;
}

bool Mp4Rewriter::copyRange(qint64 from, qint64 end)
{
    // The kernel copies by itself where the file system lets it.
    off_t place = from;
    while (place < end) {
        const ssize_t count = ::copy_file_range(m_source.handle(), &place, m_destination, nullptr,
            static_cast<std::size_t>(end - place), 0);
        if (count <= 0 && !(count < 0 && errno == EINTR)) {
            break;
        }
    }
    constexpr qint64 blockBytes = 256LL * 1024;
    if (place < end && !m_source.seek(place)) {
        return fail(u"it can't be read");
    }
    while (place < end) {
        const QByteArray block = m_source.read(qMin(blockBytes, end - place));
        if (block.isEmpty()) {
            return fail(u"it can't be read");
        }
        if (!writeBytes(block)) {
            return false;
        }
        place += block.size();
    }
    return true;
}
