#pragma once

#include "AVMetadataItem.h"

#include <map>
#include <optional>
#include <QList>
#include <QString>
#include <QStringList>

/// The table of what carries which field in which format of tags: it stands once, here.
namespace FieldTable {

/// A vocabulary of names.
enum class Names
{
    Id3, ///< ID3v2.4 frame ids
    Vorbis,
    Ape,
    Asf,
    RiffInfo,
    Dictionary, ///< FFmpeg's
    QuickTime ///< QuickTime metadata, without its prefix
};

/// A field. The numbers are rows of the table.
enum class Field
{
    Title,
    Artist,
    Album,
    Composer,
    Genre,
    Copyright,
    Date,
    Software,
    Artwork,
    Grouping,
    Comment,
    AlbumArtist,
    Tempo,
    Track,
    Disc,
    TrackTotal, ///< never an item of its own
    DiscTotal ///< never an item of its own
};

/// A field that a name stands for, and which of several names of the field it is (0 counts most).
struct Match
{
    Field field;
    int rank;
};

/// What a name means in a vocabulary, whatever its case; nothing if it isn't in the table.
std::optional<Match> find(Names names, const QString &name);

/// The field's common key; null if it has none.
QString commonKey(Field field);
/// The common key of an iTunes atom or a QuickTime user-data atom; null if it has none.
QString commonKeyOfAtom(quint32 atom);

/// An item of a format without a key space of its own: the field's iTunes key and common key.
AVMetadataItem item(Field field, const QVariant &value, const QString &dataType);

/// Whether a text is a tempo: it begins with a number. One that doesn't would count as 0.
bool isTempo(const QString &text);

/// Collects a file's fields by name; makes one item of each.
class Collector
{
public:
    explicit Collector(Names names)
        : m_names(names)
    {
    }

    /// Adds the texts of a name; names outside the table are passed over.
    void add(const QString &name, const QStringList &texts);
    /// Adds a picture; the front cover counts more than any other, else the first one counts.
    void addPicture(const QByteArray &bytes, bool isFrontCover);

    /// One item a field: of several names the one that counts most, several texts joined by "; ",
    /// and the totals put behind their numbers.
    QList<AVMetadataItem> items() const;

private:
    struct Texts
    {
        int rank = 0;
        QStringList values;
    };
    Names m_names;
    std::map<Field, Texts> m_texts;
    QByteArray m_picture;
    bool m_hasFrontCover = false;
};

}

/// What is told of a value's type.
namespace MetadataType {

QString text(); ///< UTF-8
QString integer(); ///< signed, big-endian
QString data(); ///< bytes whose key says what they are
/// A picture's type by its own first bytes; a kind that isn't known counts as JPEG.
QString picture(const QByteArray &bytes);

}

/// Bytes whose encoding isn't told as text: UTF-16 with a mark, else UTF-8, else the fallback
/// codec. Ends at the first zero character.
QString textOfBytes(const QByteArray &bytes, const char *fallbackCodec);
