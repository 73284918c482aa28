#pragma once

#include <QString>
#include <QUrl>

namespace QMMultiMedia {

/// Sizes and offsets of a sound file, in bytes; all 0 at first.
class FileInfo
{
public:
    FileInfo() = default;
    FileInfo(const FileInfo &) = default;
    /// Takes over everything but the address.
    FileInfo &operator=(const FileInfo &other);
    virtual ~FileInfo() = default;

    QUrl url() const { return m_url; }
    QString comment() const { return m_strComment; }
    /// The place of the size field (output) or of the header (input) of the sample chunk.
    quint64 dataOffset() const { return m_nDataOffset; }
    /// Samples of all channels.
    quint64 numSamples() const { return m_nNumSamples; }
    /// What the file's outer size field covers.
    quint64 fileSize() const { return m_nFileSize; }
    /// Bytes of samples.
    quint64 dataSize() const { return m_nDataSize; }
    /// The place of the file's outer size field.
    quint64 sizeOffset() const { return m_nSizeOffset; }
    quint64 compression() const { return m_nCompression; }

    void setURL(const QUrl &url) { m_url = url; }
    void setComment(const QString &comment) { m_strComment = comment; }
    void setDataOffset(quint64 offset) { m_nDataOffset = offset; }
    void setNumSamples(quint64 samples) { m_nNumSamples = samples; }
    void setFileSize(quint64 size) { m_nFileSize = size; }
    void setDataSize(quint64 size) { m_nDataSize = size; }
    void setSizeOffset(quint64 offset) { m_nSizeOffset = offset; }
    void setCompression(quint64 compression) { m_nCompression = compression; }

    /// Logs the values.
    void dump() const;

private:
    QUrl m_url;
    QString m_strComment;
    quint64 m_nDataOffset = 0;
    quint64 m_nNumSamples = 0;
    quint64 m_nFileSize = 0;
    quint64 m_nDataSize = 0;
    quint64 m_nSizeOffset = 0;
    quint64 m_nCompression = 0;
};

}
