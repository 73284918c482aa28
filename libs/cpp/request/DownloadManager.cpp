#include "DownloadManager.h"

#include <QDebug>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>

namespace QMRequest {

DownloadManager::DownloadManager(QObject *pobj)
    : QObject(pobj)
    , m_pnam(new QNetworkAccessManager(this))
{
    connect(m_pnam, &QNetworkAccessManager::finished, this, &DownloadManager::slotFinished);
}

void DownloadManager::setSizeLimit(qint64 nBytes)
{
    m_nSizeLimit = nBytes;
}

void DownloadManager::download(const QUrl &url)
{
    QNetworkRequest request(url);
    request.setAttribute(
        QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
    // As it is: an answer that unfolds to a thousand times its size couldn't be limited.
    request.setRawHeader("Accept-Encoding", "identity");
    m_preply = m_pnam->get(request);
    if (m_nSizeLimit > 0) {
        m_preply->setReadBufferSize(m_nSizeLimit + 1);
    }
    connect(m_preply, &QNetworkReply::metaDataChanged, this, &DownloadManager::slotCheckSize);
    connect(m_preply, &QNetworkReply::readyRead, this, &DownloadManager::slotCheckSize);
    connect(
        m_preply, &QNetworkReply::downloadProgress, this, &DownloadManager::slotDownloadProgress);
}

void DownloadManager::slotCheckSize()
{
    if (m_preply == nullptr || m_nSizeLimit <= 0) {
        return;
    }
    const qint64 nStated = m_preply->header(QNetworkRequest::ContentLengthHeader).toLongLong();
    if (nStated > m_nSizeLimit || m_preply->bytesAvailable() > m_nSizeLimit) {
        qWarning().noquote() << "Too large an answer:" << m_preply->url().toDisplayString();
        slotAbort();
    }
}

void DownloadManager::slotDownloadProgress(qint64 nReceived, qint64 nTotal)
{
    emit downloadProgress(nReceived, nTotal);
}

void DownloadManager::slotFinished(QNetworkReply *preply)
{
    if (m_preply == preply) {
        m_preply = nullptr;
    }
    preply->deleteLater();
    if (preply->error() == QNetworkReply::NoError) {
        emit done(preply->url(), preply->readAll());
    } else {
        qDebug().noquote() << "Download:" << preply->errorString();
        emit error();
    }
}

void DownloadManager::slotAbort()
{
    // The end of the reply is told from within the abort, and clears the member.
    if (QNetworkReply *preply = m_preply) {
        m_preply = nullptr;
        preply->abort();
        preply->deleteLater();
    }
}

} // namespace QMRequest
