#include "MovEdit.h"

#include "InputFile.h"
#include <algorithm>
#include <iterator>
#include <QtEndian>

namespace {

constexpr quint32 atomName(const char (&text)[5])
{
    return fourCC(text);
}

/// One atom: its name, and where its content lies.
struct Atom
{
    quint32 name = 0;
    qint64 begin = 0;
    qint64 end = 0;
};

/// Goes through the atoms side by side in one range of a file.
class AtomWalk
{
public:
    AtomWalk(const InputFile &file, qint64 begin, qint64 end)
        : m_file(file)
        , m_position(begin)
        , m_end(end)
    {
    }

    bool next(Atom *atom)
    {
        uchar header[16];
        if (m_end - m_position < 8 || !m_file.readAt(m_position, header, 8)) {
            return false;
        }
        qint64 size = qFromBigEndian<quint32>(header);
        qint64 headerSize = 8;
        if (size == 1) {
            if (m_end - m_position < 16 || !m_file.readAt(m_position, header, 16)) {
                return false;
            }
            size = qFromBigEndian<qint64>(header + 8);
            headerSize = 16;
        } else if (size == 0) {
            size = m_end - m_position;
        }
        if (size < headerSize || size > m_end - m_position) {
            return false;
        }
        *atom = {qFromBigEndian<quint32>(header + 4), m_position + headerSize, m_position + size};
        m_position += size;
        return true;
    }

    bool find(quint32 name, Atom *atom)
    {
        while (next(atom)) {
            if (atom->name == name) {
                return true;
            }
        }
        return false;
    }

private:
    const InputFile &m_file;
    qint64 m_position;
    qint64 m_end;
};

bool findIn(const InputFile &file, const Atom &parent, quint32 name, Atom *atom)
{
    return AtomWalk(file, parent.begin, parent.end).find(name, atom);
}

bool looksLikeMov(const InputFile &file)
{
    uchar bytes[8];
    if (!file.readAt(0, bytes, 8)) {
        return false;
    }
    const auto name = qFromBigEndian<quint32>(bytes + 4);
    const quint32 known[] = {atomName("ftyp"), atomName("moov"), atomName("mdat"), atomName("wide"),
        atomName("free"), atomName("skip"), atomName("pnot")};
    return std::find(std::begin(known), std::end(known), name) != std::end(known);
}

struct Scale
{
    quint32 unitsPerSecond = 0;
    qint64 duration = 0;
};

/// "mvhd" and "mdhd" have the same beginning.
bool readScale(const InputFile &file, const Atom &atom, Scale *scale)
{
    uchar bytes[32];
    if (atom.end - atom.begin < 20 || !file.readAt(atom.begin, bytes, 20)) {
        return false;
    }
    if (bytes[0] == 0) {
        *scale = {qFromBigEndian<quint32>(bytes + 12), qFromBigEndian<quint32>(bytes + 16)};
        return scale->unitsPerSecond != 0;
    }
    if (atom.end - atom.begin < 32 || !file.readAt(atom.begin, bytes, 32)) {
        return false;
    }
    *scale = {qFromBigEndian<quint32>(bytes + 20), qFromBigEndian<qint64>(bytes + 24)};
    return scale->unitsPerSecond != 0;
}

/// The track's number, or 0 for a track that isn't sound.
quint32 soundTrackId(const InputFile &file, const Atom &track, const Atom &media)
{
    Atom header;
    Atom handler;
    uchar bytes[24];
    if (!findIn(file, media, atomName("hdlr"), &handler) || handler.end - handler.begin < 12
        || !file.readAt(handler.begin, bytes, 12)
        || qFromBigEndian<quint32>(bytes + 8) != atomName("soun")
        || !findIn(file, track, atomName("tkhd"), &header) || header.end - header.begin < 24
        || !file.readAt(header.begin, bytes, 24)) {
        return 0;
    }
    return qFromBigEndian<quint32>(bytes + (bytes[0] == 0 ? 12 : 20));
}

struct Span
{
    qint64 length = 0; ///< in the movie's time scale
    qint64 mediaTime = -1; ///< in the track's; -1: empty
};

/// The one span that isn't empty; false if there are several, or one isn't in normal speed.
bool readSpan(const InputFile &file, const Atom &list, Span *span)
{
    uchar bytes[20];
    if (list.end - list.begin < 8 || !file.readAt(list.begin, bytes, 8)) {
        return false;
    }
    const bool wide = bytes[0] != 0;
    const int entrySize = wide ? 20 : 12;
    const auto count = qFromBigEndian<quint32>(bytes + 4);
    if (count == 0 || count > 2 || list.end - list.begin - 8 < entrySize * qint64(count)) {
        return false;
    }
    for (quint32 i = 0; i < count; ++i) {
        if (!file.readAt(list.begin + 8 + entrySize * qint64(i), bytes, entrySize)) {
            return false;
        }
        const qint64 length
            = wide ? qFromBigEndian<qint64>(bytes) : qint64(qFromBigEndian<quint32>(bytes));
        const qint64 time
            = wide ? qFromBigEndian<qint64>(bytes + 8) : qint64(qFromBigEndian<qint32>(bytes + 4));
        const auto speed = qFromBigEndian<quint32>(bytes + entrySize - 4);
        if (time == -1 && span->mediaTime < 0) {
            continue;
        }
        if (time < 0 || length < 0 || speed != 0x10000 || span->mediaTime >= 0) {
            return false;
        }
        *span = {length, time};
    }
    return span->mediaTime >= 0;
}

bool makeEdit(const Span &span, const Scale &movie, const Scale &media, MovEdit *edit)
{
    const double unit = double(media.unitsPerSecond) / movie.unitsPerSecond;
    const double stated = double(span.length) * unit;
    const qint64 rest = media.duration - span.mediaTime;
    // A length of 0 is left open by writers of fragmented files.
    const bool toTheEnd = span.length == 0 || qAbs(stated - double(rest)) <= qMax(unit, 1.0);
    if (rest <= 0 || (!toTheEnd && stated > double(rest))) {
        return false;
    }
    *edit = {span.mediaTime, span.mediaTime + (toTheEnd ? rest : qRound64(stated)),
        media.unitsPerSecond, toTheEnd, qMax(unit, 1.0)};
    return true;
}

/// Adds the track's edit if it is sound and has one; false if it has one that isn't simple.
bool addTrack(const InputFile &file, const Atom &track, const Scale &movieScale, MovEdits *edits)
{
    Atom media;
    Atom list;
    Atom atom;
    if (!findIn(file, track, atomName("mdia"), &media)) {
        return true;
    }
    const quint32 trackId = soundTrackId(file, track, media);
    if (trackId == 0 || !findIn(file, track, atomName("edts"), &list)
        || !findIn(file, list, atomName("elst"), &atom)) {
        return true;
    }
    Span span;
    Scale mediaScale;
    Atom mediaHeader;
    return readSpan(file, atom, &span) && findIn(file, media, atomName("mdhd"), &mediaHeader)
        && readScale(file, mediaHeader, &mediaScale)
        && makeEdit(span, movieScale, mediaScale, &edits->tracks[trackId]);
}

}

MovEdits readMovEdits(const InputFile &file)
{
    MovEdits edits;
    Atom movie;
    Atom atom;
    Scale movieScale;
    AtomWalk top(file, 0, file.size());
    if (!looksLikeMov(file) || !top.find(atomName("moov"), &movie)
        || !findIn(file, movie, atomName("mvhd"), &atom) || !readScale(file, atom, &movieScale)) {
        return edits;
    }
    edits.areSimple = true;
    Atom track;
    AtomWalk tracks(file, movie.begin, movie.end);
    while (edits.areSimple && tracks.next(&track)) {
        if (track.name == atomName("trak")) {
            edits.areSimple = addTrack(file, track, movieScale, &edits);
        } else if (track.name == atomName("mvex")) {
            edits.areSimple = false; // fragments: the length isn't known here
        }
    }
    return edits;
}
