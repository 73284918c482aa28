// The part of the tag record that writes ID3v2.4 tags.

#include "Literals.h"
#include "MetaTagsBase.h"

#include <cstdlib>
#include <cstring>
#include <memory>
#include <new>
#include <QBuffer>
#include <QCoreApplication>
#include <QDebug>
#include <QFile>
#include <QSaveFile>

namespace QMMultiMedia {

namespace {

constexpr int headerBytes = 10; ///< of the tag as of a frame

struct Free
{
    void operator()(char *block) const { std::free(block); } // NOLINT(*-no-malloc)
};
using Block = std::unique_ptr<char, Free>;

/// A block to be freed with free(), of `bytes` bytes, grown from an older one or new.
char *resized(char *block, std::size_t bytes)
{
    void *const grown = std::realloc(block, bytes); // NOLINT(*-no-malloc)
    if (grown == nullptr) {
        throw std::bad_alloc();
    }
    return static_cast<char *>(grown);
}

/// One frame: header, the bytes of the prefix, the data. The size is plain, not synchsafe.
char *newFrame(
    const char *id, const QByteArray &prefix, const char *data, unsigned long length, int *pnSize)
{
    const std::size_t body = static_cast<std::size_t>(prefix.size()) + length;
    char *const frame = resized(nullptr, headerBytes + body);
    std::memcpy(frame, id, 4);
    for (int i = 0; i < 4; ++i) {
        frame[4 + i] = static_cast<char>(body >> (24 - 8 * i) & 0xFF);
    }
    frame[8] = 0;
    frame[9] = 0;
    if (!prefix.isEmpty()) {
        std::memcpy(
            frame + headerBytes, prefix.constData(), static_cast<std::size_t>(prefix.size()));
    }
    if (length > 0) {
        std::memcpy(frame + headerBytes + prefix.size(), data, length);
    }
    *pnSize = static_cast<int>(headerBytes + body);
    return frame;
}

char *appended(char *buffer, const Block &frame, int frameBytes, int *pnSize)
{
    const auto before = static_cast<std::size_t>(*pnSize);
    char *const grown = resized(buffer, before + static_cast<std::size_t>(frameBytes));
    std::memcpy(grown + before, frame.get(), static_cast<std::size_t>(frameBytes));
    *pnSize += frameBytes;
    return grown;
}

/// The body of a text frame: the mark of UTF-8, then the text without a terminator.
QByteArray strId3v3(const QString &text)
{
    return '\x03' + text.toUtf8();
}

/// The body of a picture frame; empty if there is no picture or it can't be encoded.
QByteArray pictureBody(const QImage &image, const QString &type)
{
    const bool isJpeg = type == QLatin1String("JPEG");
    QBuffer picture;
    picture.open(QIODevice::WriteOnly);
    if (!image.save(&picture, type.toLatin1().constData(), isJpeg ? -1 : 0)) {
        return {};
    }
    // End of the type, kind "other", empty description.
    return QByteArray(isJpeg ? "image/jpeg" : "image/png") + QByteArray(3, '\0') + picture.data();
}

}

char *MetaTagsBase::id3v2Frame(
    const char *id, const char *data, unsigned long length, int *pnSize) const
{
    return newFrame(id, QByteArray(1, '\0'), data, length, pnSize);
}

char *MetaTagsBase::id3v3Frame(
    const char *id, const char *data, unsigned long length, int *pnSize) const
{
    return newFrame(id, {}, data, length, pnSize);
}

char *MetaTagsBase::addId3v2Frame(
    char *buffer, const char *id, const char *data, unsigned long length, int *pnSize) const
{
    int frameBytes = 0;
    const Block frame(id3v2Frame(id, data, length, &frameBytes));
    return appended(buffer, frame, frameBytes, pnSize);
}

char *MetaTagsBase::addId3v3Frame(
    char *buffer, const char *id, const char *data, unsigned long length, int *pnSize) const
{
    int frameBytes = 0;
    const Block frame(id3v3Frame(id, data, length, &frameBytes));
    return appended(buffer, frame, frameBytes, pnSize);
}

char *MetaTagsBase::saveId3v2(int *pnSize) const
{
    Block tag(resized(nullptr, headerBytes));
    std::memcpy(tag.get(), "ID3\x04\0\0\0\0\0\0", headerBytes);
    int size = headerBytes;
    // Until the longer block is there, the old one has its owner: building it may throw.
    const auto takeGrown = [&tag](char *grown) {
        static_cast<void>(tag.release());
        tag.reset(grown);
    };
    const auto addBody = [&](const char *id, const QByteArray &body) {
        takeGrown(addId3v3Frame(
            tag.get(), id, body.constData(), static_cast<unsigned long>(body.size()), &size));
    };
    const auto addText = [&](const char *id, const QString &text) {
        if (!text.isEmpty()) {
            addBody(id, strId3v3(text));
        }
    };
    const auto addBinary = [&](const char *id, const QByteArray &body) {
        takeGrown(addId3v2Frame(
            tag.get(), id, body.constData(), static_cast<unsigned long>(body.size()), &size));
    };

    addBody("TENC", strId3v3(QCoreApplication::applicationName()));
    addText("TCOM", m_strComposer);
    if (m_lstGenres.contains(m_strGenre)) {
        addBinary("TCON", m_strGenre.toLatin1());
    }
    addText("TPOS", m_strDiscNumber);
    if (!m_strComments.isEmpty()) {
        addBody("COMM",
            QByteArray("\x03"
                       "eng\0",
                5)
                + m_strComments.toUtf8());
    }
    addText("TPE1", m_strArtist);
    addText("TIT2", m_strTitle);
    addText("TEXT", m_strLyricist);
    addText("TIT3", m_strSubTitle);
    addText("TCOP", m_strCopyright);
    addText("TRCK", m_strTrackNumber);
    addText("TYER", m_strYear);
    addText("TALB", m_strAlbum);
    const QByteArray picture = pictureBody(m_imgAlbumArtwork, m_strPicType);
    if (!picture.isEmpty()) {
        addBinary("APIC", picture);
    }

    const auto body = static_cast<unsigned>(size - headerBytes);
    for (int i = 0; i < 4; ++i) {
        tag.get()[6 + i] = static_cast<char>(body >> (21 - 7 * i) & 0x7F);
    }
    *pnSize = size;
    return tag.release();
}

bool MetaTagsBase::writeToMP3(const QString &path) const
{
    int size = 0;
    const Block tag(saveId3v2(&size));
    QFile source(path);
    if (!source.open(QIODevice::ReadOnly)) {
        return true;
    }
    const QByteArray sound = source.readAll();
    const bool whole = source.error() == QFile::NoError && sound.size() == source.size();
    const QFile::Permissions permissions = source.permissions();
    source.close();

    // Written beside and renamed: the old file is there until the new one is whole.
    QSaveFile file(path);
    if (!whole || !file.open(QIODevice::WriteOnly) || file.write(tag.get(), size) != size
        || file.write(sound) != sound.size() || !file.setPermissions(permissions)
        || !file.commit()) {
        qDebug() << "The tag can't be written:" << path << file.errorString();
        return false;
    }
    return true;
}

}
