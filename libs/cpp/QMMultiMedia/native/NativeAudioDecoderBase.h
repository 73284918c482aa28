#pragma once

#include <QObject>
#include <QString>

namespace QMMultiMedia {

/// The interface of a decoder: interleaved float samples of any source, at the caller's format.
class NativeAudioDecoderBase : public QObject
{
    Q_OBJECT

public:
    explicit NativeAudioDecoderBase(QObject *parent = nullptr);
    ~NativeAudioDecoderBase() override;

    /// Opens the file for decoding at this rate (Hz), width (bits) and channel count; false, with
    /// error(), if that fails.
    virtual bool setFile(
        const QString &path, const int &sampleRate, const int &bitsPerSample, const int &channels)
        = 0;

    /// Fills at most n floats and returns how many came; 0 at the end, on error or without a file.
    virtual int read(float *samples, int n) = 0;

    /// Closes the file.
    virtual void finish() = 0;

Q_SIGNALS:
    /// What failed, as one line of text.
    void error(QString message);

protected:
    QString m_file; ///< path of the source, empty before setFile
    qint64 m_duration = 0; ///< of the source, in ms

private:
    Q_DISABLE_COPY(NativeAudioDecoderBase)
};

}
