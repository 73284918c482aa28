#pragma once

#include "XaniImageData.h"

#include <QImage>
#include <QObject>
#include <QTimer>
#include <QVector>

class QFile;

namespace MGraphX {

/// A frame animation in memory and in a file of its own, which also plays itself on a timer.
///
/// The file: a header of "XANI" and "BIND" with the sizes of the file and of the image data, the
/// encoded images one behind the other, and an index of text behind "XMLD". Sizes are hexadecimal,
/// padded with blanks to 16 characters.
class Xani : public QObject
{
    Q_OBJECT

public:
    /// Loads the file, unless its name is empty.
    explicit Xani(const QString &file = QString(), QObject *parent = nullptr);
    /// Copies what is played, not the playing; the copy has no parent.
    Xani(const Xani &other);
    Xani &operator=(const Xani &other);

    /// How often it is to be played; kept for callers.
    int loop() const { return m_nLoop; }
    void setLoop(int loop) { m_nLoop = loop; }
    /// The time of a frame that has none of its own, in milliseconds; kept for callers.
    int frameDuration() const { return m_nFrameDuration; }
    void setFrameDuration(int duration) { m_nFrameDuration = duration; }

    /// A frame; a default one out of range.
    XaniImageData frame(int index) const;
    int count() const { return m_frames.size(); }
    void appendFrame(const XaniImageData &frame);
    /// Out of range it does nothing.
    void setFrame(int index, const XaniImageData &frame);
    void clearFrames();
    /// The image shown at the moment.
    QImage currentImage() const { return m_image; }
    QString fileName() const { return m_strFile; }

    /// Writes a file; quality as in QImage::save (-1: the format's own). False if an image can't be
    /// encoded or the file not be written; then a file from before stays as it was.
    bool save(const QString &file, int quality);
    /// Reads a file; false, with the frames as they were, if it isn't an animation. A frame whose
    /// place isn't inside of the image data, or that can't be decoded, has no image.
    bool load(const QString &file);

public slots:
    /// Plays a frame a second.
    void start();
    void stop();
    /// Shows the next frame; behind the last one comes the first.
    void nextFrame();
    /// Shows a frame, if there is such a one; frameChanged() goes out in any case.
    void setCurrentIndex(int index);

signals:
    void frameChanged();

private:
    bool setXml(const QByteArray &text, QFile *file, qint64 imagesEnd);

    QImage m_image;
    QString m_strFile;
    QTimer m_timer;
    int m_nNextFrame = 0;
    int m_nLoop = 1;
    int m_nFrameDuration = 1000;
    QVector<XaniImageData> m_frames;
};

}
