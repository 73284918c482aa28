#pragma once

#include <QByteArray>
#include <QEventLoop>
#include <QMutex>
#include <QObject>

namespace QMRequest {

class DownloadManager;

/// Fetches in one call: it waits in a local event loop, so that the user interface stays live. For
/// the user-interface thread.
class Downloader : public QObject
{
    Q_OBJECT

public:
    explicit Downloader(QObject *pobj = nullptr);

    /// Fetches an address into memory. Empty on any failure, after slotAbort, and while another
    /// request of this object is on its way.
    QByteArray get(const QString &strUrl, QEventLoop::ProcessEventsFlags flags);

    /// The same into a file, replaced as a whole; without an answer it is left empty.
    void getToFile(
        const QString &strUrl, const QString &strPath, QEventLoop::ProcessEventsFlags flags);

    /// The text unchanged if it has the scheme "http://" or "https://", else "http://" + the text.
    QString fullRequest(const QString &str) const;

    /// True once a wait is over.
    bool isFinished() const;

    /// An answer of more bytes than this is a failure; 0 for no limit (the default).
    void setSizeLimit(qint64 nBytes);

public slots:
    /// Gives the request on its way up.
    void slotAbort();

signals:
    /// The bytes so far; the largest int for more.
    void progress(int nBytes);

    /// Only where the server tells the size.
    void progressPercent(int nPercent);

private slots:
    void slotFinished(const QUrl &url, const QByteArray &data);
    void slotError();
    void slotProgress(qint64 nReceived, qint64 nTotal);

private:
    Q_DISABLE_COPY(Downloader)
    void endWait();

    DownloadManager *m_pdownloadManager = nullptr;
    QMutex m_mutex;
    bool m_bFinished = false;
    bool m_bBusy = false;
    bool m_bAnswered = false; // ends a wait that hasn't begun
    QEventLoop m_eventLoop;
    QByteArray m_data;
};

} // namespace QMRequest
