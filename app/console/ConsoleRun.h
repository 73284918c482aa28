#pragma once

#include "BatchThread.h"
#include "ConsoleArguments.h"
#include "ConsoleProgress.h"

#include <memory>
#include <QObject>
#include <QStringList>
#include <QVector>

namespace QMMultiMedia {
class MediaScan;
}

/// One run without a window: scan, conversion, report.
///
/// The words for the user go to the standard error stream; the last line on the standard output is
/// the folder of the run.
class ConsoleRun : public QObject
{
    Q_OBJECT

public:
    /// What the program ends with.
    enum ExitStatus
    {
        AllConverted = 0,
        SomeFailed = 1,
        NothingToDo = 2,
        NoFreeSpace = 3,
        Stopped = 130
    };

    explicit ConsoleRun(const ConsoleArguments &arguments);
    ~ConsoleRun() override;

    /// Does the whole run and returns an ExitStatus. Runs an event loop of its own.
    int exec();

public slots:
    /// Ends the run behind the file at hand. The signal's number is only told.
    void slotTerminate(int signalNumber);

private slots:
    void slotErrors(const QString &log);
    void slotNoFreeSpace();
    void slotFinished(const QString &runFolder);

private:
    Q_DISABLE_COPY(ConsoleRun)

    bool prepareDestination() const;
    bool scan();
    void refuse(const QString &path);
    void refuseUnreadable(const QMMultiMedia::MediaScan &scan);
    void convert();
    void waitForTags();
    void report() const;
    QString errorLines() const;

    ConsoleArguments m_arguments;
    BatchThread m_thread;
    std::unique_ptr<ConsoleProgress> m_pprogress;
    QVector<QString> m_files;
    QStringList m_refused; ///< paths that were told as "Can not convert" before the run
    QString m_runFolder;
    QString m_errors;
    bool m_stopped = false;
    bool m_noSpace = false;
};
