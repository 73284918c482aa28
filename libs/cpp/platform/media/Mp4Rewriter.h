#pragma once

#include "AtomReader.h"
#include "AVMetadataItem.h"

#include <QByteArray>
#include <QFile>
#include <QList>

/// The iTunes items as the content of an "ilst" atom. Items whose key is a text become free-form
/// ones; those of another key space, and those without a value, are passed over.
QByteArray encodedItems(const QList<AVMetadataItem> &items);

/// An atom with its content; the content has less than 4 GB.
QByteArray atomBytes(quint32 type, const QByteArray &body);

/// The user data of an index that holds the content of an "ilst" atom.
QByteArray userDataWithItems(const QByteArray &ilstBody, const QByteArray &otherAtoms = {});

/// Writes an M4A file again with other metadata.
///
/// Atom by atom: the file type, the index with the given items in the place of all metadata, then
/// the media data. Of the tracks only the chunk offsets change; the gapless item (iTunSMPB) stays.
class Mp4Rewriter
{
public:
    /// The source is open for reading; the destination is the descriptor of an empty file, open for
    /// writing. Both belong to the caller.
    Mp4Rewriter(QFile &source, int destination);

    /// Writes the whole destination; flushing it to the disk is the caller's. On failure error()
    /// tells why, and what the destination holds is of no use.
    [[nodiscard]] bool write(const QList<AVMetadataItem> &items);
    QString error() const { return m_error; }

private:
    /// One "mdat" atom: its place in the source, and how far it moves.
    struct MediaData
    {
        qint64 start = 0;
        qint64 end = 0;
        qint64 shift = 0;
    };
    /// The entries of one table of chunk offsets, in the new index.
    struct ChunkTable
    {
        int place = 0;
        quint32 count = 0;
        int entryBytes = 0;
    };

    bool readLayout();
    bool buildIndex(const QList<AVMetadataItem> &items);
    /// Notes the chunk table of a track, which is copied to `place` in the new index.
    bool readTrack(AtomReader &atoms, const Atom &trak, int place);
    bool readSampleTable(AtomReader &atoms, const Atom &stbl, qint64 move);
    void readUserData(AtomReader &atoms, const Atom &udta);
    bool moveChunks();
    bool moveEntries(const ChunkTable &table);
    const MediaData *mediaDataAt(qint64 offset) const;
    bool writeBytes(const QByteArray &bytes);
    bool copyRange(qint64 from, qint64 end);
    bool fail(const char16_t *reason);

    QFile &m_source;
    int m_destination;
    QString m_error;
    QByteArray m_fileType;
    Atom m_oldIndex;
    QByteArray m_index; ///< the new one, a whole atom
    QByteArray m_gaplessItem; ///< a whole atom; empty if there is none
    QByteArray m_chapters; ///< a whole atom; empty if there is none
    QList<MediaData> m_mediaData;
    QList<ChunkTable> m_chunkTables;
    bool m_hasSound = false;
};
