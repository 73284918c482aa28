#include "App.h"
#include "AppSettingsDialog.h"
#include "AudioPlayer.h"
#include "BatchDialog.h"
#include "BatchRun.h"
#include "BatchThread.h"
#include "BatchWorker.h"
#include "ConversionFormat.h"
#include "Literals.h"
#include "MainPage.h"
#include "MediaSearchDialog.h"
#include "MMessageBox.h"
#include "Os.h"
#include "PlayListModel.h"
#include "SimpleBookmark.h"
#include <QDebug>
#include <QDir>
#include <QEventLoop>
#include <QMessageBox>
#include <QScopedValueRollback>
#include <QStackedWidget>
#include <QTimer>

using QMMultiMedia::AudioPlayer;
using QMWidgets::App;

namespace {

/// The scan begins when its dialog is on the screen, the thread of a run when its own is.
constexpr int scanDelayMs = 300;
constexpr int runDelayMs = 1500;

}

bool MainPage::isBusy() const
{
    return m_bScanning || m_bConverting;
}

void MainPage::slotFilesDropped(const QList<QUrl> &lst)
{
    if (isBusy()) {
        m_urlsToOpen += lst;
        return;
    }
    if (!lst.isEmpty()) {
        m_droppedUrls = lst;
    }
    {
        const QScopedValueRollback<bool> scanning(m_bScanning, true);
        m_psearchDialog->setUrls(lst);
        QEventLoop loop;
        connect(m_psearchDialog, &QDialog::finished, &loop, &QEventLoop::quit);
        // It ends with this intake: a scan that was cancelled before it began stays so.
        QTimer start;
        start.setSingleShot(true);
        connect(&start, SIGNAL(timeout()), m_psearchDialog, SLOT(slotStart()));
        start.start(scanDelayMs);
        m_psearchDialog->setFixedWidth(350);
        m_psearchDialog->open();
        loop.exec();
    }
    qDebug() << (m_psearchDialog->result() == QDialog::Accepted ? "Accepted" : "Rejected");
    takeScanResults();
    if (!m_urlsToOpen.isEmpty()) {
        m_ptimerOpenFiles->start();
    }
    tellUnreadableNames();
}

void MainPage::takeScanResults()
{
    const QStringList media = m_psearchDialog->audioFiles() + m_psearchDialog->videoFiles();
    m_imageFiles = m_psearchDialog->artworkFiles().toVector();
    m_textFiles = m_psearchDialog->textFiles().toVector();
    m_unsuportedFiles = m_psearchDialog->unsuportedFiles().toVector();
    m_pmodel->setPlayList(media);
}

/// Files whose names aren't text can't be taken; the user hears of them once a scan.
void MainPage::tellUnreadableNames()
{
    const int count = m_psearchDialog->unreadableNames();
    if (count > 0) {
        auto *box = new QMWidgets::MMessageBox(QMWidgets::MMessageBox::Icon::Warning,
            QCoreApplication::applicationName(),
            tr("Files with unreadable names were left out: %1").arg(count), QMessageBox::Ok, this);
        box->setAttribute(Qt::WA_DeleteOnClose);
        box->open();
    }
}

void MainPage::slotFileOpenRequest(const QString &path)
{
    m_urlsToOpen << QUrl::fromLocalFile(path);
    m_ptimerOpenFiles->stop();
    m_ptimerOpenFiles->start();
}

void MainPage::slotOpenFiles()
{
    m_ptimerOpenFiles->stop();
    if (isBusy()) {
        return; // the end of the scan or the run starts the timer again
    }
    const QList<QUrl> urls = m_urlsToOpen;
    openFiles(urls);
    // What came in meanwhile waits for the next time.
    m_urlsToOpen.erase(m_urlsToOpen.begin(), m_urlsToOpen.begin() + urls.size());
}

void MainPage::openFiles(const QList<QUrl> &urls)
{
    if (!m_urlsToOpen.isEmpty()) {
        slotFilesDropped(urls);
    }
}

bool MainPage::isDefaultDestination() const
{
    return destinationPath() == App::musicDirectory(false);
}

bool MainPage::openDestination()
{
    if (isDefaultDestination()) {
        return true;
    }
    m_pbookmark->resolvingBookmark();
    m_pbookmark->startAccessingBookmark();
    if (QDir(destinationPath()).exists()) {
        return true;
    }
    QMessageBox::critical(this, tr("Error"),
        tr("Can not access the destination folder.\nPlease verify the destination."),
        QMessageBox::Ok);
    return false;
}

BatchRun *MainPage::createRun()
{
    auto *run = new BatchRun(this);
    m_lstRuns << run;
    m_prun = run;
    m_pthread = run->thread();
    connect(run->worker(), &BatchWorker::finished, this, &MainPage::slotDone);
    connect(run, &BatchRun::over, this, [this, run] {
        m_lstRuns.removeOne(run);
        run->deleteLater();
    });
    return run;
}

void MainPage::fillWorker(BatchWorker *worker)
{
    worker->setSettings(conversionFormat());
    worker->setInputFiles(m_pmodel->playList().toVector());
    worker->setImageFiles(m_imageFiles);
    worker->setTextFiles(m_textFiles);
    worker->setUnsuportedFiles(m_unsuportedFiles);
    worker->setDroppedUrls(m_droppedUrls);
}

void MainPage::connectRun(BatchRun *run, BatchDialog *dialog, QEventLoop *loop) const
{
    connect(dialog, &QDialog::finished, loop, &QEventLoop::quit);
    connect(dialog, &BatchDialog::paused, this, &MainPage::slotPauseConvertion);
    connect(dialog, &BatchDialog::stop, this, &MainPage::slotStopConvertion);
    BatchWorker *worker = run->worker();
    connect(worker, &BatchWorker::totalProgress, dialog, &BatchDialog::slotProgressChanged);
    connect(worker, &BatchWorker::fileProgress, dialog, &BatchDialog::slotFileProgressChanged);
    connect(worker, &BatchWorker::currentFile, dialog, &BatchDialog::slotShowCurrentFile);
    connect(worker, &BatchWorker::errorsLog, dialog, &BatchDialog::slotSetErrors);
    connect(
        worker, &BatchWorker::notEnoughtFreeSpace, dialog, &BatchDialog::slotNotEnoughtFreeSpace);
}

void MainPage::slotDoIt()
{
    if (isBusy() || !openDestination()) {
        return;
    }
    {
        const QScopedValueRollback<bool> converting(m_bConverting, true);
        BatchRun *run = createRun();
        fillWorker(run->worker());
        BatchDialog dialog(this);
        dialog.setWindowOpacity(0.93);
        dialog.setFixedSize(size());
        dialog.open();
        QEventLoop loop;
        connectRun(run, &dialog, &loop);
        if (runBefore(run) != nullptr) {
            dialog.slotShowCurrentFile(tr("WAITING FOR THE PREVIOUS CONVERSION"));
        }
        QTimer::singleShot(runDelayMs, run, [this, run] { startInTurn(run); });
        loop.exec();
    }
    if (!m_urlsToOpen.isEmpty()) {
        m_ptimerOpenFiles->start();
    }
}

/// A run that was stopped and still finishes its file.
BatchRun *MainPage::runBefore(BatchRun *run) const
{
    const int place = m_lstRuns.indexOf(run);
    return place > 0 ? m_lstRuns.at(place - 1) : nullptr;
}

void MainPage::startInTurn(BatchRun *run)
{
    if (BatchRun *before = runBefore(run)) {
        connect(before, &BatchRun::over, run, &BatchRun::start);
    } else {
        run->start();
    }
}

void MainPage::slotPauseConvertion(bool pause)
{
    if (m_prun) {
        m_prun->pause(pause);
    }
}

void MainPage::slotStopConvertion()
{
    if (m_prun) {
        m_prun->stop();
    }
}

void MainPage::slotError(const QString & /*strError*/) { }

void MainPage::slotDone(const QString &runFolder)
{
    if (AppSettingsDialog::openFolderAfter() && !runFolder.isEmpty()) {
        Os::openFolderAndSelectFile(runFolder);
    }
    if (AppSettingsDialog::playSoundAfter()) {
        // The player is the preview's as well: the panel must not show the bell.
        if (m_pstkModes->currentWidget() == m_pwgtPlayPage) {
            slotStop();
        }
        AudioPlayer::instance()->play(App::bundleResourcePath() + u"bell.wav"_qs, false);
    }
    if (!isDefaultDestination()) {
        m_pbookmark->resolvingBookmark();
        m_pbookmark->stopAccessingBookmark();
    }
    Os::requestReview(false);
    // The run itself ends its thread, right behind this: a later one may have begun already.
}

void MainPage::stopAll()
{
    if (m_bScanning) {
        m_psearchDialog->reject();
    }
    for (BatchRun *run : qAsConst(m_lstRuns)) {
        run->stop();
    }
}
