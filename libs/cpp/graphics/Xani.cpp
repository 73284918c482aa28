#include "Xani.h"

#include "XaniIndex.h"

#include <algorithm>
#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QImageWriter>
#include <QSaveFile>

namespace MGraphX {

namespace {

constexpr int idSize = 4;
constexpr int numberSize = 16;
constexpr int headerSize = 2 * (idSize + numberSize);
constexpr int indexHeaderSize = idSize + numberSize;
constexpr qint64 mostPixels = 100'000'000;
constexpr qint64 longestIndex = 64LL * 1024 * 1024;

QByteArray number(qint64 value)
{
    return QByteArray::number(value, 16).leftJustified(numberSize, ' ');
}

/// The number of a header field; -1 if it is none.
qint64 parsedNumber(const QByteArray &field)
{
    bool ok = false;
    const qint64 value = QByteArray(field).replace(' ', "").toLongLong(&ok, 16);
    return ok && field.size() == numberSize && value >= 0 ? value : -1;
}

bool write(QIODevice *device, const QByteArray &bytes)
{
    return device->write(bytes) == bytes.size();
}

/// The image in its format; none for a frame without an image.
bool encode(const XaniImageData &frame, int quality, QByteArray *bytes)
{
    QBuffer buffer(bytes);
    return frame.image().isNull()
        || (buffer.open(QIODevice::WriteOnly)
            && frame.image().save(&buffer, frame.format().toLatin1().constData(), quality));
}

/// Looks at the size before it decodes: a few bytes can claim gigabytes. No format packs more than
/// mostPixelsPerByte; only formats that save() can write are read.
QImage decoded(QByteArray *bytes, const QString &format)
{
    constexpr qint64 mostPixelsPerByte = 16384;
    const QByteArray formatName = format.toLatin1().toLower();
    QBuffer buffer(bytes);
    if (!QImageWriter::supportedImageFormats().contains(formatName)
        || !buffer.open(QIODevice::ReadOnly)) {
        return {};
    }
    QImageReader reader(&buffer, formatName);
    const QSize size = reader.size();
    if (qint64(size.width()) * size.height()
        > std::min(mostPixels, bytes->size() * mostPixelsPerByte)) {
        return {};
    }
    return reader.read();
}

}

Xani::Xani(const QString &file, QObject *parent)
    : QObject(parent)
{
    connect(&m_timer, &QTimer::timeout, this, &Xani::nextFrame);
    if (!file.isEmpty()) {
        load(file);
    }
}

Xani::Xani(const Xani &other)
    : Xani()
{
    *this = other;
}

Xani &Xani::operator=(const Xani &other)
{
    if (this != &other) {
        stop();
        m_image = other.m_image;
        m_strFile = other.m_strFile;
        m_nNextFrame = other.m_nNextFrame;
        m_nLoop = other.m_nLoop;
        m_nFrameDuration = other.m_nFrameDuration;
        m_frames = other.m_frames;
    }
    return *this;
}

XaniImageData Xani::frame(int index) const
{
    return m_frames.value(index);
}

void Xani::appendFrame(const XaniImageData &frame)
{
    m_frames.append(frame);
}

void Xani::setFrame(int index, const XaniImageData &frame)
{
    if (index >= 0 && index < m_frames.size()) {
        m_frames[index] = frame;
    }
}

void Xani::clearFrames()
{
    m_frames.clear();
}

bool Xani::save(const QString &file, int quality)
{
    QSaveFile output(file);
    if (!output.open(QIODevice::WriteOnly)) {
        return false;
    }
    const QByteArray blanks(numberSize, ' ');
    bool written = write(&output, "XANI" + blanks + "BIND" + blanks);
    XaniIndex index;
    index.loop = m_nLoop;
    index.frameDuration = m_nFrameDuration;
    qint64 imageBytes = 0;
    for (const XaniImageData &frame : m_frames) {
        QByteArray image;
        written = written && encode(frame, quality, &image) && write(&output, image);
        XaniImageData entry = frame;
        entry.setStart(headerSize + imageBytes);
        entry.setSize(image.size());
        imageBytes += image.size();
        index.frames.append(entry);
    }
    const QByteArray text = index.text();
    written = written && write(&output, "XMLD" + number(text.size()) + text);
    const qint64 fileSize = headerSize + imageBytes + indexHeaderSize + text.size();
    written = written && output.seek(idSize) && write(&output, number(fileSize))
        && output.seek(headerSize - numberSize) && write(&output, number(imageBytes));
    return written && output.commit();
}

bool Xani::load(const QString &file)
{
    m_strFile = file;
    QFile input(file);
    // Asked first: opening a named pipe would wait.
    if (!QFileInfo(file).isFile() || !input.open(QIODevice::ReadOnly)) {
        return false;
    }
    const qint64 fileSize = input.size();
    if (input.read(idSize) != "XANI" || !input.seek(headerSize - numberSize)) {
        return false;
    }
    const qint64 imageBytes = parsedNumber(input.read(numberSize));
    if (imageBytes < 0 || imageBytes > fileSize - headerSize - indexHeaderSize
        || !input.seek(headerSize + imageBytes) || input.read(idSize) != "XMLD") {
        return false;
    }
    const qint64 textBytes = parsedNumber(input.read(numberSize));
    if (textBytes < 0 || textBytes > longestIndex
        || textBytes > fileSize - headerSize - imageBytes - indexHeaderSize) {
        return false;
    }
    const QByteArray text = input.read(textBytes);
    return text.size() == textBytes && setXml(text, &input, headerSize + imageBytes);
}

/// Takes the index over, and the images that it tells of.
bool Xani::setXml(const QByteArray &text, QFile *file, qint64 imagesEnd)
{
    XaniIndex index = XaniIndex::fromText(text);
    // Frames may share bytes, but together no more of them is read than the images have.
    qint64 bytesLeft = imagesEnd - headerSize;
    for (XaniImageData &frame : index.frames) {
        const qint64 start = frame.start();
        const qint64 size = frame.size();
        if (start < headerSize || start > imagesEnd || size < 1 || size > imagesEnd - start
            || size > bytesLeft || !file->seek(start)) {
            continue;
        }
        bytesLeft -= size;
        QByteArray bytes = file->read(size);
        frame.setImage(decoded(&bytes, frame.format()));
    }
    m_nLoop = index.loop;
    m_nFrameDuration = index.frameDuration;
    m_frames = index.frames;
    m_nNextFrame = 0;
    return true;
}

void Xani::start()
{
    m_timer.setInterval(1000);
    m_timer.start();
}

void Xani::stop()
{
    m_timer.stop();
}

void Xani::nextFrame()
{
    if (m_frames.isEmpty()) {
        m_timer.stop();
        return;
    }
    if (m_nNextFrame >= m_frames.size()) {
        m_nNextFrame = 0;
    }
    setCurrentIndex(m_nNextFrame);
    ++m_nNextFrame;
}

void Xani::setCurrentIndex(int index)
{
    if (index >= 0 && index < m_frames.size()) {
        m_image = m_frames.at(index).image();
    }
    emit frameChanged();
}

}
