#include "ConsoleRun.h"

#include "App.h"
#include "AppSettingsDialog.h"
#include "BatchWorker.h"
#include "ConversionFormat.h"
#include "Literals.h"
#include "MediaCommon.h"
#include "MediaScan.h"
#include "Os.h"
#include "PendingExports.h"

#include <cstdio>
#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QFileInfo>
#include <QTemporaryFile>
#include <QtEndian>
#include <QUrl>
#include <unistd.h>

namespace {

void say(const QString &line)
{
    std::fprintf(stderr, "%s\n", ConsoleProgress::printable(line).toLocal8Bit().constData());
}

/// Makes the folder where it is missing, and tries whether it takes a file.
bool isWritableFolder(const QString &path)
{
    return QDir().mkpath(path) && QTemporaryFile(path + u"calderin-XXXXXX"_qs).open();
}

QString number(int count, const char *one, const char *many)
{
    return QString::number(count) + u" "_qs + QString::fromLatin1(count == 1 ? one : many);
}

/// What the output doesn't have of the source's tags; empty if nothing was lost.
QString lostTags(const RunReceipt &receipt)
{
    using QMMultiMedia::TagReceipt;
    if (!receipt.tags) {
        return {};
    }
    if (receipt.tags->state() == TagReceipt::State::Failed) {
        return u"  tags lost: "_qs + receipt.tags->error();
    }
    const QStringList lost = receipt.tags->lost();
    return lost.isEmpty() ? QString() : u"  tags lost: "_qs + lost.join(u", "_qs);
}

/// The bytes of sound in a finished file: the bodies of its "mdat" atoms (ISO 14496-12).
qint64 soundBytes(const QString &path)
{
    constexpr qint64 headerBytes = 8;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return 0;
    }
    qint64 bytes = 0;
    for (qint64 at = 0; file.seek(at);) {
        const QByteArray header = file.read(headerBytes);
        if (header.size() < headerBytes) {
            break;
        }
        const qint64 size = qFromBigEndian<quint32>(header.constData());
        // Our own files stay below 4 GB, so that there are no atoms of the long form.
        if (size < headerBytes) {
            break;
        }
        bytes += header.endsWith("mdat") ? size - headerBytes : 0;
        at += size;
    }
    return bytes;
}

/// The mean bit rate that the sound of a finished file really came to.
QString realBitRate(const RunReceipt &receipt)
{
    const qint64 bits = soundBytes(receipt.output) * 8;
    return QString::number(
               receipt.lengthMs > 0 ? (bits + receipt.lengthMs / 2) / receipt.lengthMs : 0)
        + u" kbit/s"_qs;
}

}

ConsoleRun::ConsoleRun(const ConsoleArguments &arguments)
    : m_arguments(arguments)
{
}

ConsoleRun::~ConsoleRun() = default;

int ConsoleRun::exec()
{
    if (!scan() || !prepareDestination()) {
        return NothingToDo;
    }
    convert();
    waitForTags();
    report();
    if (m_noSpace) {
        say(u"There is not enough free space for the conversion."_qs);
        return NoFreeSpace;
    }
    if (m_stopped) {
        return Stopped;
    }
    return m_errors.isEmpty() ? AllConverted : SomeFailed;
}

bool ConsoleRun::prepareDestination() const
{
    if (!m_arguments.destination.isEmpty()) {
        QMWidgets::App::overrideSettingsValue(u"DestinationPath"_qs, m_arguments.destination);
    }
    QString destination = QMWidgets::App::settingsValue(
        u"DestinationPath"_qs, QMWidgets::App::musicDirectory(false))
                              .toString();
    if (!destination.endsWith(u'/')) {
        destination += u'/';
        QMWidgets::App::overrideSettingsValue(u"DestinationPath"_qs, destination);
    }
    // A path of the store that isn't absolute would lie wherever the program was started.
    if (QDir::isAbsolutePath(destination) && isWritableFolder(destination)) {
        return true;
    }
    say(u"calderin-m4a-batch: the destination can't be written: "_qs + destination);
    return false;
}

bool ConsoleRun::scan()
{
    QList<QUrl> urls;
    QString problem;
    for (const QString &path : qAsConst(m_arguments.paths)) {
        const QFileInfo info(path);
        if (info.isDir() || info.isFile()) {
            urls.append(QUrl::fromLocalFile(path));
        } else {
            refuse(path);
            problem = info.exists() ? u"neither a file nor a folder: "_qs
                                    : u"no such file or folder: "_qs;
        }
    }
    QMMultiMedia::MediaScan scan;
    scan.setUrls(urls);
    scan.search();
    m_files = (scan.audioFiles() + scan.videoFiles()).toVector();
    if (scan.unreadableNames() > 0) {
        say(u"Passed over, because the name isn't valid text: "_qs
            + number(scan.unreadableNames(), "file", "files"));
    }
    refuseUnreadable(scan);
    if (m_files.isEmpty()) {
        QString line = u"calderin-m4a-batch: there is nothing to convert"_qs;
        if (!m_refused.isEmpty()) {
            line += u"; "_qs + (problem.isEmpty() ? u"can't be read: "_qs : problem)
                + m_refused.first();
        }
        say(line);
        return false;
    }
    for (const QString &path : scan.unsuportedFiles()) {
        const bool asked = m_arguments.paths.contains(path) && !m_refused.contains(path);
        if (asked && !AppSettingsDialog::copyEntireContentActive()) {
            say(u"Passed over, because it isn't known as sound or video: "_qs + path);
        }
    }
    BatchWorker *worker = m_thread.worker();
    worker->setSettings(conversionFormat());
    worker->setInputFiles(m_files);
    worker->setImageFiles(scan.artworkFiles().toVector());
    worker->setTextFiles(scan.textFiles().toVector());
    worker->setUnsuportedFiles(scan.unsuportedFiles().toVector());
    worker->setDroppedUrls(urls);
    return true;
}

void ConsoleRun::refuse(const QString &path)
{
    m_refused.append(path);
    m_errors += u"Can not convert: "_qs + path + u"\n"_qs;
}

/// What the scan left out, although its name says that it is sound, and folders that stay shut.
void ConsoleRun::refuseUnreadable(const QMMultiMedia::MediaScan &scan)
{
    using QMMultiMedia::MediaCommon;
    for (const QString &path : scan.unsuportedFiles()) {
        const bool isMedia = MediaCommon::isAudio(path) || MediaCommon::isVideo(path);
        if (isMedia && !QFileInfo(path).isHidden()) {
            refuse(path);
        }
    }
    for (const QString &path : scan.folders() + m_arguments.paths) {
        const QFileInfo info(path);
        if (info.isDir() && !(info.isReadable() && info.isExecutable())) {
            refuse(path);
        }
    }
}

void ConsoleRun::convert()
{
    say(u"Converting "_qs + number(m_files.size(), "file", "files"));
    BatchWorker *worker = m_thread.worker();
    m_pprogress = std::make_unique<ConsoleProgress>(worker->numSteps());
    QEventLoop loop;
    connect(worker, &BatchWorker::errorsLog, this, &ConsoleRun::slotErrors);
    connect(worker, &BatchWorker::finished, this, &ConsoleRun::slotFinished);
    connect(worker, &BatchWorker::finished, &loop, &QEventLoop::quit);
    connect(worker, &BatchWorker::notEnoughtFreeSpace, this, &ConsoleRun::slotNoFreeSpace);
    connect(worker, &BatchWorker::currentFile, this,
        [this](const QString &text) { m_pprogress->setText(text); });
    connect(worker, &BatchWorker::fileProgress, this,
        [this](int percent) { m_pprogress->setFilePercent(percent); });
    connect(worker, &BatchWorker::totalProgress, this,
        [this](int percent) { m_pprogress->setTotalPercent(percent); });

    Os::instance()->setDisableSleepMode(true);
    m_thread.begin();
    loop.exec();
    m_thread.quit();
    m_thread.wait();
    Os::instance()->setDisableSleepMode(false);
    m_pprogress->finish();
}

void ConsoleRun::waitForTags()
{
    bool told = false;
    PendingExports::waitForAll([&told](int left, qint64 elapsedMs) {
        if (!told && elapsedMs >= 1000) {
            told = true;
            say(u"Finishing the tags of "_qs + number(left, "file", "files"));
        }
    });
}

void ConsoleRun::report() const
{
    for (const RunReceipt &receipt : m_thread.worker()->receipts()) {
        if (receipt.output.isEmpty()) {
            continue;
        }
        QString line = receipt.source + u" -> "_qs + QDir::cleanPath(receipt.output) + u"  "_qs
            + ConsoleProgress::clock((receipt.lengthMs + 500) / 1000) + u"  "_qs;
        if (AppSettingsDialog::normalizationActive()) {
            line += QString::asprintf("%+.1f dB  ", receipt.gainDb);
        }
        const QString cut = receipt.isCut ? u"  cut: the source changed meanwhile"_qs : QString();
        say(line + realBitRate(receipt) + cut + lostTags(receipt));
    }
    if (!m_errors.isEmpty()) {
        std::fputs(errorLines().toLocal8Bit().constData(), stderr);
    }
    if (!m_runFolder.isEmpty()) {
        std::printf("%s\n", QFile::encodeName(m_runFolder).constData());
        std::fflush(stdout);
    }
}

/// The log to the letter, but a terminal isn't to obey the names in it.
QString ConsoleRun::errorLines() const
{
    if (::isatty(STDERR_FILENO) == 0) {
        return m_errors;
    }
    QStringList lines = m_errors.split(u'\n');
    for (QString &line : lines) {
        line = ConsoleProgress::printable(line);
    }
    return lines.join(u'\n');
}

void ConsoleRun::slotTerminate(int)
{
    if (m_pprogress && !m_stopped) {
        m_pprogress->note(u"Stopping behind the file at hand"_qs);
    }
    m_stopped = true;
    m_thread.worker()->stop();
}

void ConsoleRun::slotErrors(const QString &log)
{
    m_errors += log;
}

void ConsoleRun::slotNoFreeSpace()
{
    m_noSpace = true;
    m_thread.worker()->stop();
}

void ConsoleRun::slotFinished(const QString &runFolder)
{
    m_runFolder = runFolder;
}
