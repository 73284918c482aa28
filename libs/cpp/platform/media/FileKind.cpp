#include "FileKind.h"

#include "AtomReader.h"
#include "Literals.h"

#include <algorithm>
#include <QFileInfo>
#include <QtEndian>

namespace {

constexpr int headBytes = 64;

QByteArray headAt(QIODevice &device, qint64 position)
{
    return device.seek(position) ? device.read(headBytes) : QByteArray();
}

/// How many bytes an ID3v2 tag at the beginning of `head` takes; 0 if there is none.
qint64 id3TagBytes(const QByteArray &head)
{
    constexpr int headerBytes = 10;
    constexpr int footerFlag = 0x10;
    if (head.size() < headerBytes || !head.startsWith("ID3")) {
        return 0;
    }
    qint64 size = 0;
    for (int i = 6; i < headerBytes; ++i) {
        size = size << 7 | (head.at(i) & 0x7F);
    }
    return headerBytes + size + ((head.at(5) & footerFlag) != 0 ? headerBytes : 0);
}

FileKind oggKind(const QByteArray &head)
{
    constexpr int segmentCountPlace = 26;
    if (head.size() <= segmentCountPlace) {
        return FileKind::Other;
    }
    const QByteArray packet
        = head.mid(segmentCountPlace + 1 + static_cast<unsigned char>(head.at(segmentCountPlace)));
    if (packet.startsWith("\x01vorbis")) {
        return FileKind::OggVorbis;
    }
    if (packet.startsWith("OpusHead")) {
        return FileKind::OggOpus;
    }
    if (packet.startsWith("\x7F"
                          "FLAC")) {
        return FileKind::OggFlac;
    }
    return packet.startsWith("Speex   ") ? FileKind::OggSpeex : FileKind::Other;
}

bool isMpegFrame(const QByteArray &head)
{
    if (head.size() < 2 || head.at(0) != '\xFF') {
        return false;
    }
    const auto second = static_cast<unsigned char>(head.at(1));
    const bool hasLayer = (second & 0x06) != 0; // else ADTS
    return (second & 0xE0) == 0xE0 && hasLayer;
}

bool isAtomOfAFile(const QByteArray &head)
{
    static const std::initializer_list<const char *> names
        = {"ftyp", "moov", "mdat", "wide", "free", "skip", "pnot"};
    const QByteArray found = head.mid(4, 4);
    return std::any_of(
        names.begin(), names.end(), [&found](const char *name) { return found == name; });
}

FileKind kindOfHead(const QByteArray &head)
{
    if (head.startsWith("fLaC")) {
        return FileKind::Flac;
    }
    if (head.startsWith("OggS")) {
        return oggKind(head);
    }
    if (head.startsWith("MAC ")) {
        return FileKind::Ape;
    }
    if (head.startsWith("\x30\x26\xB2\x75\x8E\x66\xCF\x11")) {
        return FileKind::Asf;
    }
    if (head.startsWith("FORM") && (head.mid(8, 4) == "AIFF" || head.mid(8, 4) == "AIFC")) {
        return FileKind::Aiff;
    }
    if (head.startsWith("RIFF") && head.mid(8, 4) == "WAVE") {
        return FileKind::Wave;
    }
    if (isMpegFrame(head)) {
        return FileKind::Mpeg;
    }
    return isAtomOfAFile(head) ? FileKind::Mp4 : FileKind::Other;
}

}

FileKind fileKind(QIODevice &device, const QString &suffix)
{
    const QByteArray head = headAt(device, 0);
    const qint64 tagBytes = id3TagBytes(head);
    const FileKind kind = kindOfHead(tagBytes > 0 ? headAt(device, tagBytes) : head);
    const bool isNamedMpeg
        = QStringList {u"mp3"_qs, u"mp2"_qs, u"mp1"_qs, u"mpga"_qs}.contains(suffix.toLower());
    if (kind == FileKind::Other && (tagBytes > 0 || isNamedMpeg)) {
        return FileKind::Mpeg;
    }
    return kind;
}

bool isReadableFile(const QString &path)
{
    const QFileInfo info(path);
    return info.isFile() && info.isReadable();
}

void forEachChunk(QIODevice &device, bool isBigEndian,
    const std::function<bool(const QByteArray &, qint64)> &visit)
{
    constexpr int headerBytes = 8;
    constexpr int maximumChunks = 1000;
    qint64 position = 12;
    for (int i = 0; i < maximumChunks && device.seek(position); ++i) {
        const QByteArray head = device.read(headerBytes + 4);
        if (head.size() < headerBytes || !visit(head, position + headerBytes)) {
            return;
        }
        const quint32 size = isBigEndian ? qFromBigEndian<quint32>(head.constData() + 4)
                                         : qFromLittleEndian<quint32>(head.constData() + 4);
        position += headerBytes + qint64(size) + (size & 1U);
    }
}
