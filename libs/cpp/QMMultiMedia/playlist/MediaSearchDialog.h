#pragma once

#include "MediaScan.h"
#include <QDialog>

class QLabel;

namespace QMMultiMedia {

/// The window of a media scan: it shows what is being looked at and how much was found, and has a
/// button to break off.
///
/// Serves for every scan of the page that owns it: setUrls(), then open() and slotStart(); when
/// finished(int) comes, the results are there until the next scan. A scan that was broken off keeps
/// what it had found. The scan runs on the user-interface thread and lets events through.
class MediaSearchDialog : public QDialog, protected MediaScan
{
    Q_OBJECT

public:
    explicit MediaSearchDialog(QWidget *parent);

    /// The files and folders of the next scan.
    void setUrls(const QList<QUrl> &urls);

    using MediaScan::artworkFiles;
    using MediaScan::audioFiles;
    using MediaScan::emptyFolders;
    using MediaScan::folders;
    using MediaScan::textFiles;
    using MediaScan::unreadableNames;
    using MediaScan::unsuportedFiles;
    using MediaScan::videoFiles;

public slots:
    /// Esc and the window's own close control break the scan off as the button does.
    void reject() override;

private slots:
    void slotStart();
    void slotCancel();

protected:
    bool isMediaFile(const QString &file) override;
    void fileSeen(const QString &file) override;
    void breathe() override;

private:
    Q_DISABLE_COPY(MediaSearchDialog)
    void showProgress(const QString &file);

    QLabel *m_plblFile = nullptr;
    QLabel *m_plblCounters = nullptr;
    QElapsedTimer m_sincePainted;
    bool m_bSearching = false; ///< slotStart() is on the stack
    bool m_bSkipStart = false; ///< cancelled before it began
};

}
