#pragma once

#include "MAudioFormat.h"

#include <memory>
#include <QObject>
#include <QString>

namespace QMMultiMedia {
class EncoderBase;
class TagReceipt;
class WaveOutput;
}

/// The output stage of one file: values in, a finished M4A file out.
///
/// Writes an intermediate WAV file at the path that it is given; close() has the platform's
/// converter make the M4A file beside it, removes the WAV file and carries the tags of the source
/// over. Lives on the stack of the conversion, on the thread of the worker.
class GeneralOutput : public QObject
{
    Q_OBJECT

public:
    /// Creates the WAV file at once; whether that worked shows at close().
    explicit GeneralOutput(
        const QString &outputFile, QMMultiMedia::MAudioFormat format, QObject *parent = nullptr);
    ~GeneralOutput() override;

    /// The source whose tags are carried over; empty for none.
    void setMetaInfoFile(const QString &file);

    /// Hands count interleaved values on; returns what the writer returns, 0 for the WAV file.
    qint64 write(float *values, qint64 count);

    /// Finishes the file; to be called once. What goes wrong is told by errorsLog.
    void close();

    /// The finished file after close(); the intermediate one before, or where nothing else is made.
    QString outputFile() const { return m_finalFile; }

    /// What becomes of the tags, known when the export is over; null if none are carried over.
    std::shared_ptr<const QMMultiMedia::TagReceipt> tagReceipt() const { return m_tagReceipt; }

signals:
    /// One line of the error log, with its line end.
    void errorsLog(QString line);

private:
    Q_DISABLE_COPY(GeneralOutput)

    void createEncoder();
    void transcode();
    void copyTags();

    QString m_outputFile;
    QString m_metaInfoFile;
    QMMultiMedia::MAudioFormat m_format;
    std::unique_ptr<QMMultiMedia::WaveOutput> m_pWaveOutput;
    QString m_finalFile;
    std::unique_ptr<QMMultiMedia::EncoderBase> m_pEncoder;
    std::shared_ptr<const QMMultiMedia::TagReceipt> m_tagReceipt;
};
