#include "AsfItems.h"

#include "AVMetadataIdentifiers.h"
#include "FieldTable.h"
#include "Literals.h"

#include <QtEndian>

namespace {

constexpr int idBytes = 16;
constexpr int objectHeaderBytes = 24; ///< id, size
constexpr int headerBytes = 30; ///< of the whole header: id, size, count, reserved
constexpr int maximumObjects = 1000;
constexpr int maximumRecords = 4096;
constexpr qint64 maximumBytes = 128LL * 1024 * 1024;

/// Takes one value after the other from bytes; what isn't there any more is 0 or empty.
class Cursor
{
public:
    explicit Cursor(const QByteArray &bytes)
        : m_bytes(bytes)
    {
    }

    bool atEnd() const { return m_place >= m_bytes.size(); }

    QByteArray take(qint64 count)
    {
        QByteArray result = count > 0 && count <= m_bytes.size() - m_place
            ? m_bytes.mid(m_place, static_cast<int>(count))
            : QByteArray();
        m_place = count <= m_bytes.size() - m_place ? m_place + static_cast<int>(count)
                                                    : m_bytes.size();
        return result;
    }

    template <typename Number> Number number()
    {
        const QByteArray bytes = take(sizeof(Number));
        return bytes.isEmpty() ? Number(0) : qFromLittleEndian<Number>(bytes.constData());
    }

    /// A text in UTF-16 up to its end, which is taken as well.
    void skipText()
    {
        while (!atEnd() && number<quint16>() != 0) { }
    }

private:
    const QByteArray &m_bytes;
    int m_place = 0;
};

QString textOf(const QByteArray &bytes)
{
    QString text(bytes.size() / 2, Qt::Uninitialized);
    for (int i = 0; i < text.size(); ++i) {
        text[i] = QChar(qFromLittleEndian<quint16>(bytes.constData() + qsizetype(i) * 2));
    }
    const int end = text.indexOf(QChar());
    return end < 0 ? text : text.left(end);
}

class AsfReader
{
public:
    explicit AsfReader(QIODevice &device)
        : m_device(device)
    {
    }

    QList<AVMetadataItem> read()
    {
        if (m_device.seek(idBytes)) {
            const QByteArray size = m_device.read(sizeof(quint64));
            if (size.size() == sizeof(quint64)) {
                readObjects(
                    headerBytes, boundedEnd(0, qFromLittleEndian<quint64>(size.constData())));
            }
        }
        return m_collector.items();
    }

private:
    enum class Kind
    {
        Extended,
        Metadata
    };

    qint64 boundedEnd(qint64 start, quint64 size) const
    {
        const qint64 left = m_device.size() - start;
        return size < static_cast<quint64>(left) ? start + static_cast<qint64>(size) : start + left;
    }

    void readObjects(qint64 from, qint64 end);
    void readObject(const QByteArray &id, qint64 body, qint64 end);
    void readDescription(const QByteArray &body);
    void readRecords(const QByteArray &body, Kind kind);
    void readValue(const QString &name, quint16 type, const QByteArray &value);
    void readPicture(const QByteArray &value);

    QIODevice &m_device;
    FieldTable::Collector m_collector {FieldTable::Names::Asf};
    int m_objectsLeft = maximumObjects;
    int m_recordsLeft = maximumRecords;
    qint64 m_bytesLeft = maximumBytes;
};

void AsfReader::readObjects(qint64 from, qint64 end)
{
    while (end - from >= objectHeaderBytes && --m_objectsLeft >= 0 && m_device.seek(from)) {
        const QByteArray head = m_device.read(objectHeaderBytes);
        if (head.size() < objectHeaderBytes) {
            return;
        }
        const auto size = qFromLittleEndian<quint64>(head.constData() + idBytes);
        if (size < objectHeaderBytes) {
            return;
        }
        const qint64 next = qMin(end, boundedEnd(from, size));
        readObject(head.left(idBytes), from + objectHeaderBytes, next);
        from = next;
    }
}

void AsfReader::readObject(const QByteArray &id, qint64 body, qint64 end)
{
    static const QByteArray description = QByteArray::fromHex("3326B2758E66CF11A6D900AA0062CE6C");
    static const QByteArray extended = QByteArray::fromHex("40A4D0D207E3D21197F000A0C95EA850");
    static const QByteArray extension = QByteArray::fromHex("B503BF5F2EA9CF118EE300C00C205365");
    static const QByteArray metadata = QByteArray::fromHex("EACBF8C5AF5B48778467AA8C44FA4CCA");
    static const QByteArray library = QByteArray::fromHex("941C23449894D149A1411D134E457054");
    if (id == extension) {
        constexpr int extensionBytes = 22; // reserved, size of the data
        readObjects(body + extensionBytes, end);
        return;
    }
    const bool isKnown = id == description || id == extended || id == metadata || id == library;
    m_bytesLeft -= isKnown ? end - body : 0;
    if (!isKnown || m_bytesLeft < 0 || !m_device.seek(body)) {
        return;
    }
    const QByteArray bytes = m_device.read(end - body);
    if (id == description) {
        readDescription(bytes);
    } else {
        readRecords(bytes, id == extended ? Kind::Extended : Kind::Metadata);
    }
}

void AsfReader::readDescription(const QByteArray &body)
{
    Cursor cursor(body);
    int lengths[4];
    for (int &length : lengths) {
        length = cursor.number<quint16>();
    }
    cursor.number<quint16>(); // the rating's, which comes last
    const char16_t *const names[] = {u"Title", u"Author", u"Copyright", u"Description"};
    for (int i = 0; i < 4; ++i) {
        const QString text = textOf(cursor.take(lengths[i]));
        if (!text.isEmpty()) {
            m_collector.add(QString::fromUtf16(names[i]), {text});
        }
    }
}

void AsfReader::readRecords(const QByteArray &body, Kind kind)
{
    Cursor cursor(body);
    for (int left = cursor.number<quint16>(); left > 0 && !cursor.atEnd(); --left) {
        if (--m_recordsLeft < 0) {
            return;
        }
        if (kind == Kind::Extended) {
            const QString name = textOf(cursor.take(cursor.number<quint16>()));
            const auto type = cursor.number<quint16>();
            readValue(name, type, cursor.take(cursor.number<quint16>()));
        } else {
            cursor.take(4); // language and stream
            const auto nameBytes = cursor.number<quint16>();
            const auto type = cursor.number<quint16>();
            const auto valueBytes = cursor.number<quint32>();
            const QString name = textOf(cursor.take(nameBytes));
            readValue(name, type, cursor.take(valueBytes));
        }
    }
}

void AsfReader::readValue(const QString &name, quint16 type, const QByteArray &value)
{
    enum Type : quint16
    {
        Text = 0,
        Bytes = 1,
        Boolean = 2,
        Word32 = 3,
        Word64 = 4,
        Word16 = 5
    };
    Cursor cursor(value);
    QString text;
    if (type == Bytes && name.compare(u"WM/Picture"_qs, Qt::CaseInsensitive) == 0) {
        readPicture(value);
    } else if (type == Text) {
        text = textOf(value);
    } else if (type == Word32) {
        text = QString::number(cursor.number<quint32>());
    } else if (type == Word64) {
        text = QString::number(cursor.number<quint64>());
    } else if (type == Word16) {
        text = QString::number(cursor.number<quint16>());
    }
    if (!text.isEmpty()) {
        m_collector.add(name, {text});
    }
}

void AsfReader::readPicture(const QByteArray &value)
{
    constexpr quint8 frontCover = 3;
    Cursor cursor(value);
    const auto kind = cursor.number<quint8>();
    const auto size = cursor.number<quint32>();
    cursor.skipText(); // its type
    cursor.skipText(); // its description
    m_collector.addPicture(cursor.take(size), kind == frontCover);
}

}

QList<MetadataFormat> asfMetadata(QIODevice &device)
{
    const QList<AVMetadataItem> items = AsfReader(device).read();
    return items.isEmpty() ? QList<MetadataFormat>()
                           : QList<MetadataFormat> {{AVMetadataFormatAsf, items}};
}
