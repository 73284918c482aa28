#include "Downloader.h"

#include "DownloadManager.h"
#include "Literals.h"
#include <limits>
#include <QDebug>
#include <QSaveFile>
#include <QUrl>

namespace QMRequest {

Downloader::Downloader(QObject *pobj)
    : QObject(pobj)
    , m_pdownloadManager(new DownloadManager(this))
{
    connect(m_pdownloadManager, &DownloadManager::done, this, &Downloader::slotFinished);
    connect(m_pdownloadManager, &DownloadManager::error, this, &Downloader::slotError);
    connect(
        m_pdownloadManager, &DownloadManager::downloadProgress, this, &Downloader::slotProgress);
}

QByteArray Downloader::get(const QString &strUrl, QEventLoop::ProcessEventsFlags flags)
{
    if (m_bBusy) {
        return {};
    }
    m_data.clear();
    m_bBusy = true;
    const QMutexLocker locker(&m_mutex);
    m_bAnswered = false;
    m_bFinished = false;
    m_pdownloadManager->download(QUrl(fullRequest(strUrl)));
    if (!m_bAnswered) {
        m_eventLoop.exec(flags);
    }
    if (!m_bAnswered) {
        slotAbort(); // the program ends; so does the transfer
    }
    m_bFinished = true;
    m_bBusy = false;
    return m_data;
}

void Downloader::getToFile(
    const QString &strUrl, const QString &strPath, QEventLoop::ProcessEventsFlags flags)
{
    if (m_bBusy) {
        return;
    }
    const QByteArray data = get(strUrl, flags);
    QSaveFile file(strPath);
    if (!file.open(QIODevice::WriteOnly) || file.write(data) != data.size() || !file.commit()) {
        qWarning().noquote() << "Can not write" << strPath << file.errorString();
    }
}

QString Downloader::fullRequest(const QString &str) const
{
    const bool bComplete = str.startsWith(u"http://"_qs) || str.startsWith(u"https://"_qs);
    return bComplete ? str : u"http://"_qs + str;
}

bool Downloader::isFinished() const
{
    return m_bFinished;
}

void Downloader::setSizeLimit(qint64 nBytes)
{
    m_pdownloadManager->setSizeLimit(nBytes);
}

void Downloader::slotAbort()
{
    m_pdownloadManager->slotAbort();
}

void Downloader::slotFinished(const QUrl &, const QByteArray &data)
{
    m_data = data;
    endWait();
}

void Downloader::slotError()
{
    endWait();
}

void Downloader::endWait()
{
    m_bAnswered = true;
    m_eventLoop.exit(0);
}

void Downloader::slotProgress(qint64 nReceived, qint64 nTotal)
{
    constexpr qint64 largest = std::numeric_limits<int>::max();
    emit progress(static_cast<int>(qMin(nReceived, largest)));
    if (nTotal > 0) {
        emit progressPercent(
            static_cast<int>(static_cast<float>(nReceived) * 100.0F / static_cast<float>(nTotal)));
    }
}

} // namespace QMRequest
