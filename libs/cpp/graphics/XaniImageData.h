#pragma once

#include <QImage>
#include <QString>

namespace MGraphX {

/// One frame of an animation; a plain value.
class XaniImageData
{
public:
    QImage image() const { return m_image; }
    QString name() const { return m_strName; }
    /// The name without what follows its first ".".
    QString baseName() const;
    /// The name of the image format in a file, e.g. "PNG".
    QString format() const { return m_strFormat; }
    /// In milliseconds; -1: that of the animation.
    int duration() const { return m_nDuration; }
    bool isBackground() const { return m_bBackground; }
    /// The place in its file, and the size there, in bytes; -1 for a frame that isn't from a file.
    qint64 start() const { return m_nStart; }
    qint64 size() const { return m_nSize; }

    void setImage(const QImage &image) { m_image = image; }
    void setName(const QString &name) { m_strName = name; }
    void setFormat(const QString &format) { m_strFormat = format; }
    void setDuration(int duration) { m_nDuration = duration; }
    void setBackground(bool background) { m_bBackground = background; }
    void setStart(qint64 start) { m_nStart = start; }
    void setSize(qint64 size) { m_nSize = size; }

private:
    QImage m_image;
    QString m_strName;
    QString m_strFormat = QStringLiteral("PNG");
    int m_nDuration = -1;
    bool m_bBackground = false;
    qint64 m_nStart = -1;
    qint64 m_nSize = -1;
};

}
