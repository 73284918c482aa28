#pragma once

#include "ExtAudioFile.h"
#include "MAudioFormat.h"
#include <QObject>
#include <QString>

namespace QMMultiMedia {

/// Sets the bit rate (bits per second) of the encoder of a file that is written; 0 or an error
/// code.
int setBitRate(ExtAudioFileRef file, unsigned int bitRate);

/// Writes float samples to a FLAC file, replacing one that exists.
class NativeAudioEncoder : public QObject
{
    Q_OBJECT

public:
    NativeAudioEncoder(const QString &path, const MAudioFormat &format, QObject *parent = nullptr);
    ~NativeAudioEncoder() override;

    /// Writes n interleaved floats; returns 1, whatever happens: a failure shows as error().
    int write(float *samples, int n);

    /// Completes and closes the file.
    void finish();

    /// The format of the file.
    void createOutputFormat(AudioStreamBasicDescription *format) const;

    /// The format of the samples given to write.
    void createCanonicalFormat(AudioStreamBasicDescription *format) const;

Q_SIGNALS:
    /// What failed, as one line of text.
    void error(QString message);

private:
    Q_DISABLE_COPY(NativeAudioEncoder)
    bool checkResult(int status, const char *text);

    QString m_path;
    MAudioFormat m_format;
    AudioStreamBasicDescription m_outputFormat;
    AudioStreamBasicDescription m_clientFormat;
    ExtAudioFileRef m_file = nullptr;
};

}
