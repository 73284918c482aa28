#pragma once

#include "MAudioFormat.h"
#include <QObject>
#include <QString>

namespace QMMultiMedia {

/// A streaming encoder that the output stage can be given in place of its WAV writer.
///
/// The base class keeps what it is given and encodes nothing.
class EncoderBase : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(EncoderBase)

public:
    explicit EncoderBase(QObject *parent = nullptr);

    /// 0 while all is well, negative after a failure.
    virtual int status() const;
    /// Path of the source whose tags are carried over; empty for none.
    virtual void setMetaInfoFile(const QString &file);
    /// Path of the file to be written.
    virtual void setFile(const QString &file);
    virtual void setFormat(MAudioFormat format);
    virtual void setCopyMetaTags(bool copy);
    /// Takes count interleaved samples of all channels.
    virtual void write(float *samples, long long count);
    /// Finishes the file.
    virtual void close();

signals:
    /// One line for the error log of the run, with its line end.
    void errorsLog(QString line);

protected:
    QString m_strFile;
    QString m_strMetaInfoFile;
    int m_nStatus = 0;
    MAudioFormat m_format;
    bool m_copyMetaTags = false;
};

}
