#pragma once

#include <QObject>

class QNetworkAccessManager;
class QNetworkReply;
class QUrl;

namespace QMRequest {

/// One transfer at a time from an HTTP server into memory. Redirects are followed, but never from a
/// secured address to an open one.
class DownloadManager : public QObject
{
    Q_OBJECT

public:
    explicit DownloadManager(QObject *pobj = nullptr);

    /// Begins to fetch. A second one before the first is over takes its place as the one to abort.
    void download(const QUrl &url);

    /// An answer of more bytes than this is given up as an error; 0 for no limit (the default).
    void setSizeLimit(qint64 nBytes);

public slots:
    void slotFinished(QNetworkReply *preply);
    void slotDownloadProgress(qint64 nReceived, qint64 nTotal);

    /// Gives the transfer up; error() follows. Nothing happens when none is on its way.
    void slotAbort();

signals:
    /// Bytes; nTotal is -1 where the server doesn't tell.
    void downloadProgress(qint64 nReceived, qint64 nTotal);

    /// The whole answer, from the address that gave it in the end.
    void done(const QUrl &url, const QByteArray &data);

    /// No answer, a part of one only, one that tells of an error, or too large a one.
    void error();

private slots:
    void slotCheckSize();

private:
    Q_DISABLE_COPY(DownloadManager)

    QNetworkAccessManager *m_pnam = nullptr;
    QNetworkReply *m_preply = nullptr; // the access manager's child; null when idle
    qint64 m_nSizeLimit = 0;
};

} // namespace QMRequest
