#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

namespace QMMultiMedia {

/// Turns a WAV file into an M4A file by running the command `afconvert` as a child process.
///
/// The command is found through the search path. What came of it is told by the destination file
/// alone: it exists when the conversion succeeded, and it doesn't otherwise.
class AFTransCoder : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(AFTransCoder)

public:
    explicit AFTransCoder(QObject *parent = nullptr);

    /// Effort of the encoder's search, 0 (fast) to 127 (best).
    void setQuality(const int &quality);
    /// Target bit rate in bit/s, all channels together.
    void setBitrate(const int &bitrate);

    /// The file type's code.
    QString format() const;
    QString formatDescription() const;
    /// Suffixes of the file type, the usual one first.
    QStringList extensions() const;
    /// Four-character codes of the sound formats that the file type can hold; the first one is
    /// used.
    QStringList dataFormats() const;

    /// Converts the file at the path source to a new file at the path destination, and blocks until
    /// the child process has ended, without a limit of time.
    void convert(const QString &source, const QString &destination);

private:
    QString command(const QString &source, const QString &destination) const;
    QStringList arguments(const QString &source, const QString &destination) const;

    QString m_strEmpty;
    int m_nQuality = 127;
    int m_nBitrate = 128000;
};

}
