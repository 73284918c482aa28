// Writes the template of the tags: an M4A file with one silent packet and one item for every field
// that a converted file can have. The values only show the type; none of them is ever carried over.

#include "AVMetadataIdentifiers.h"
#include "FieldTable.h"
#include "Literals.h"
#include "Mp4Rewriter.h"

#include <cstdio>
#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QtEndian>

namespace {

constexpr quint32 sampleRate = 44100;
constexpr quint32 packetFrames = 1024;

/// A packet of silence: AAC-LC, two channels, nothing coded.
QByteArray silentPacket()
{
    return QByteArray::fromHex("211004608c1c");
}

QByteArray word(quint32 number)
{
    QByteArray bytes(4, '\0');
    qToBigEndian(number, bytes.data());
    return bytes;
}

QByteArray half(quint16 number)
{
    return word(number).right(2);
}

QByteArray zeros(int count)
{
    return QByteArray(count, '\0');
}

/// The unit matrix of a picture's place, which a sound has as well.
QByteArray matrix()
{
    return word(0x10000) + zeros(12) + word(0x10000) + zeros(12) + word(0x40000000);
}

QByteArray movieHeader()
{
    return atomBytes(atomType("mvhd"),
        zeros(12) + word(sampleRate) + word(packetFrames) + word(0x10000) + half(0x100) + zeros(10)
            + matrix() + zeros(24) + word(2));
}

QByteArray sampleDescription()
{
    constexpr quint8 elementaryStream = 3;
    constexpr quint8 decoderConfig = 4;
    constexpr quint8 decoderSpecific = 5;
    constexpr quint8 syncConfig = 6;
    const auto descriptor = [](quint8 tag, const QByteArray &body) {
        return QByteArray(1, static_cast<char>(tag)) + QByteArray(1, static_cast<char>(body.size()))
            + body;
    };
    // AAC-LC, 44100 Hz, two channels.
    const QByteArray audio = descriptor(decoderSpecific, QByteArray::fromHex("1210"));
    const QByteArray config
        = descriptor(decoderConfig, QByteArray::fromHex("4015000000") + zeros(8) + audio);
    const QByteArray stream = descriptor(elementaryStream,
        half(1) + zeros(1) + config + descriptor(syncConfig, QByteArray::fromHex("02")));
    const QByteArray entry = atomBytes(atomType("mp4a"),
        zeros(6) + half(1) + zeros(8) + half(2) + half(16) + zeros(4) + word(sampleRate << 16)
            + atomBytes(atomType("esds"), zeros(4) + stream));
    return atomBytes(atomType("stsd"), zeros(4) + word(1) + entry);
}

QByteArray sampleTable(quint32 chunkOffset)
{
    const QByteArray packet = silentPacket();
    return atomBytes(atomType("stbl"),
        sampleDescription()
            + atomBytes(atomType("stts"), zeros(4) + word(1) + word(1) + word(packetFrames))
            + atomBytes(atomType("stsc"), zeros(4) + word(1) + word(1) + word(1) + word(1))
            + atomBytes(
                atomType("stsz"), zeros(4) + word(static_cast<quint32>(packet.size())) + word(1))
            + atomBytes(atomType("stco"), zeros(4) + word(1) + word(chunkOffset)));
}

QByteArray track(quint32 chunkOffset)
{
    const QByteArray header = atomBytes(atomType("tkhd"),
        word(7) + zeros(8) + word(1) + zeros(4) + word(packetFrames) + zeros(12) + half(0x100)
            + zeros(2) + matrix() + zeros(8));
    const QByteArray data = atomBytes(atomType("dinf"),
        atomBytes(atomType("dref"), zeros(4) + word(1) + atomBytes(atomType("url "), word(1))));
    const QByteArray media
        = atomBytes(atomType("mdhd"),
              zeros(12) + word(sampleRate) + word(packetFrames) + half(0x55C4) + zeros(2))
        + atomBytes(atomType("hdlr"), zeros(8) + "soun" + zeros(13))
        + atomBytes(atomType("minf"),
            atomBytes(atomType("smhd"), zeros(8)) + data + sampleTable(chunkOffset));
    return atomBytes(atomType("trak"), header + atomBytes(atomType("mdia"), media));
}

/// A picture of one pixel.
QByteArray picture()
{
    QImage image(1, 1, QImage::Format_RGB32);
    image.fill(Qt::gray);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "JPEG");
    return buffer.data();
}

QList<AVMetadataItem> items()
{
    using FieldTable::Field;
    QList<AVMetadataItem> result;
    const QByteArray cover = picture();
    result.append(FieldTable::item(Field::Artwork, cover, MetadataType::picture(cover)));
    for (const Field field :
        {Field::Copyright, Field::Artist, Field::Album, Field::Title, Field::Software,
            Field::Composer, Field::Comment, Field::Date, Field::Genre, Field::Grouping}) {
        result.append(FieldTable::item(field, u"-"_qs, MetadataType::text()));
    }
    result.append(FieldTable::item(Field::Track, zeros(8), MetadataType::data()));
    result.append(FieldTable::item(Field::Disc, zeros(6), MetadataType::data()));
    result.append(FieldTable::item(Field::Tempo, 0, MetadataType::integer()));
    return result;
}

QByteArray templateFile()
{
    const QByteArray type = atomBytes(atomType("ftyp"), QByteArray("M4A \0\0\2\0M4A mp42isom", 20));
    const QByteArray userData = userDataWithItems(encodedItems(items()));
    const auto index = [&userData](quint32 chunkOffset) {
        return atomBytes(atomType("moov"), movieHeader() + track(chunkOffset) + userData);
    };
    constexpr int headerBytes = 8;
    const int offset = type.size() + index(0).size() + headerBytes;
    return type + index(static_cast<quint32>(offset)) + atomBytes(atomType("mdat"), silentPacket());
}

}

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::fputs("usage: make_template FILE\n", stderr);
        return 2;
    }
    QFile file(QFile::decodeName(argv[1]));
    const QByteArray bytes = templateFile();
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush()) {
        std::fprintf(stderr, "make_template: %s\n", qPrintable(file.errorString()));
        return 1;
    }
    return 0;
}
