#pragma once

#include "AudioFile.h"
#include "ExtAudioFile.h"
#include "Settings.h"
#include <QObject>
#include <QString>

namespace QMMultiMedia {

/// What one conversion works on.
struct MyAudioConverterSettings
{
    AudioStreamBasicDescription outputFormat;
    ExtAudioFileRef inputFile = nullptr;
    AudioFileID outputFile = nullptr;
};

/// Converts any sound to a WAV file of 44100 Hz, two channels and 32 bits in one call.
class NativeAudioConverter : public QObject
{
    Q_OBJECT

public:
    explicit NativeAudioConverter(QObject *parent = nullptr);
    ~NativeAudioConverter() override;

    /// Kept; the format of the result is fixed.
    void setSettings(const Settings &settings);

    /// Converts the source to the destination, which is replaced.
    void doIt(const QString &source, const QString &destination);

    /// Copies all samples from the input to the output of the record.
    void convert(MyAudioConverterSettings *settings);

    /// The sound's length in ms; 0 if it can't be played.
    qint64 duration(const QString &path) const;

Q_SIGNALS:
    void done();
    void progress(int percent);
    /// What failed, as one line of text.
    void error(QString message);

private:
    Q_DISABLE_COPY(NativeAudioConverter)
    bool checkResult(int status, const char *text);

    QString m_source;
    QString m_destination;
    Settings m_settings;
};

}
