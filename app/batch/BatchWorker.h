#pragma once

#include "MAudioFormat.h"
#include "RunReceipt.h"

#include <atomic>
#include <QList>
#include <QObject>
#include <QString>
#include <QUrl>
#include <QVector>

namespace QMMultiMedia {
class NativeAudioDecoder;
}
class ChunkEffects;
class GeneralOutput;

/// The job of one run: converts the files of a list, one after the other, into a new folder below
/// the destination, then copies what goes along.
///
/// Filled by its setters before its thread starts; slotDoWork does the whole run in one go. While
/// it goes on only stop() and pause() may be called from another thread. A worker serves for one
/// run.
class BatchWorker : public QObject
{
    Q_OBJECT

public:
    explicit BatchWorker(QObject *parent = nullptr);
    ~BatchWorker() override;

    void setSettings(const QMMultiMedia::MAudioFormat &settings) { m_settings = settings; }
    void setInputFiles(const QVector<QString> &files) { m_inputFiles = files; }
    void setImageFiles(const QVector<QString> &files) { m_imageFiles = files; }
    void setTextFiles(const QVector<QString> &files) { m_textFiles = files; }
    void setUnsuportedFiles(const QVector<QString> &files) { m_unsuportedFiles = files; }
    /// Files and folders as the user gave them; the folder structure is rebuilt from them.
    void setDroppedUrls(const QList<QUrl> &urls);

    /// Whether the next source is decoded while one is encoded (the default). For measurements: it
    /// changes nothing but the time that a run takes.
    void setReadAhead(bool on) { m_readAhead = on; }

    /// Ends the run behind the file at hand. Thread-safe; holds also when it comes before the
    /// start.
    void stop();
    /// Holds the run at the next chunk, or lets it go on. Thread-safe.
    void pause(bool on);

    /// The signals of a run that can't begin: an error for each source, and the end, without a
    /// folder. On any thread, in place of slotDoWork.
    void refuseAll();

    /// Converts one source into the WAV path output and on; what goes wrong lands in the error log.
    void convert(const QString &input, const QString &output);
    /// The analysis pass: length, peak, first and last audible value of a source.
    void initAudioFileInfo(const QString &input);

    /// The largest magnitude of the file last analysed.
    float maxPeak() const { return m_maxPeak; }
    /// Interleaved values of the file last analysed.
    qint64 numSamples() const { return m_numSamples; }

    /// The folder below destination for a file, ending in "/", as the dropped URLs have it; empty
    /// if none applies. The last URL that applies decides.
    QString newPathForForlderStructure(const QString &file, const QString &destination);
    /// Copies files below destination, never over one that exists. A copy that fails leaves no
    /// trace.
    void copyFiles(const QVector<QString> &files, const QString &destination);

    /// What the run's percentages are made of: its sources, and each kind of files that is copied
    /// along.
    int numSteps() const;

    /// One entry per source that was taken up, in order. Only after finished().
    const QVector<RunReceipt> &receipts() const { return m_receipts; }

public slots:
    void slotDoWork();
    void slotAppendError(const QString &line);

signals:
    void finished(QString runFolder);
    void fileProgress(int percent);
    void totalProgress(int percent);
    void currentFile(QString text);
    void errorsLog(QString log);
    void notEnoughtFreeSpace();

private:
    Q_DISABLE_COPY(BatchWorker)

    struct CopyStage;

    /// A dropped URL as the folder structure needs it; its paths are normalised.
    struct DroppedUrl
    {
        QString path;
        QString folder; ///< a file's own folder; a folder itself
        bool isFile = false;
    };

    void refuse(const QString &input);
    void convertInputFiles(const QString &runFolder, int total);
    void copySideFiles(const QString &runFolder, int total);
    QVector<CopyStage> copyStages() const;
    const QVector<DroppedUrl> &dropped();
    QString folderFor(const QString &file, const QString &runFolder);
    void emitTotalProgress(int total);
    bool hasConvertibleLength(const QString &input);
    bool waitForFreeSpace(const QString &output);
    bool hasFreeSpace(const QString &output) const;
    void convertDecoded(const QString &input, const QString &output);
    qint64 runSampleLoop(GeneralOutput &output, ChunkEffects &effects);
    bool openDecoder(const QString &input);
    qint64 sizeInBits() const { return m_settings.bitsPerSample * m_numSamples; }
    void hintNextFile();

    std::atomic<bool> m_stop {false};
    std::atomic<bool> m_pause {false};
    QMMultiMedia::MAudioFormat m_settings;
    QVector<QString> m_inputFiles;
    QVector<QString> m_textFiles;
    QVector<QString> m_imageFiles;
    QVector<QString> m_unsuportedFiles;
    QList<QUrl> m_droppedUrls;
    QVector<DroppedUrl> m_dropped; ///< m_droppedUrls, once they were looked at; else empty
    QMMultiMedia::NativeAudioDecoder *m_pDecoder = nullptr;
    qint64 m_numSamples = 0;
    float m_maxPeak = 0.0f;
    qint64 m_firstAudible = 0;
    qint64 m_lastAudible = 0;
    QString m_errors;

    int m_done = 0;
    bool m_readAhead = true;
    QString m_nextInput; ///< the source behind the one at hand, to be read ahead; empty for none
    RunReceipt m_receipt; ///< of the source at hand
    QVector<RunReceipt> m_receipts;
};
