#pragma once

#include "PromoMainPage.h"
#include <QList>
#include <QModelIndex>
#include <QPointer>
#include <QUrl>
#include <QVector>

class AddButtonAction;
class BatchDialog;
class BatchRun;
class BatchThread;
class BatchWorker;
class ListView;
class QComboBox;
class QEventLoop;
class QLabel;
class QLayout;
class QMenu;
class QPushButton;
class QSlider;
class QStackedWidget;
class QTimer;
class TracksListDelegate;

namespace QMMultiMedia {
class MediaSearchDialog;
class PlayListModel;
}
namespace QMWidgets {
class DropWidget;
class Label;
class SimpleBookmark;
}

/// The content of the application's window: the drop area, the destination, the list of tracks, the
/// preview, and what starts a run.
///
/// All ways in which files reach the program end in slotFilesDropped(); a run begins in slotDoIt()
/// and ends in slotDone(). Both wait in an event loop of their own while a scan or a run is on.
///
/// The members are spread over three sources: MainPage.cpp builds the page and keeps the
/// destination, MainPageJob.cpp takes files in and runs them, MainPagePreview.cpp plays tracks.
class MainPage : public QMWidgets::PromoMainPage
{
    Q_OBJECT

public:
    explicit MainPage(QWidget *parent);

    /// Stops a run and waits for the end of its file; saves the size unless it is full screen.
    ~MainPage() override;

    /// The folder below which a run makes its own, as it is stored; the music folder without one.
    QString destinationPath() const;

    /// Stores the folder, with a separator at its end.
    void setDestinationPath(const QString &path);

    /// Breaks off a scan and stops the runs as the buttons do, so that the program can end.
    void stopAll();

    /// Takes the files that the system asked to open.
    virtual void openFiles(const QList<QUrl> &urls);

public slots:
    /// Replaces the job by what is found in the files and folders; returns when the scan is over.
    ///
    /// What comes in during a scan or a run is taken when that is over.
    void slotFilesDropped(const QList<QUrl> &lst);
    /// What follows a run: the folder shown, the bell, the destination released.
    void slotDone(const QString &runFolder);
    void slotError(const QString &strError);

private slots:
    void slotDoIt();
    void slotShowSettings();
    void slotFileOpenRequest(const QString &path);
    void slotOpenFiles();
    void slotUpdateInfo();
    void slotRemove();
    void slotPauseConvertion(bool pause);
    void slotStopConvertion();
    void slotPlay();
    void slotPlay(QModelIndex index);
    void slotStop();
    void slotPlayOrPause();
    void slotButtonClicked(QModelIndex index, QPoint pt);
    void slotUpdatePlayInfo();
    void slotPlayPositionChanged(int nPos);
    void slotGotoFilesLocation() const;
    void slotDestinationActivated(int row);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

    /// The keys of the track list: Space and Enter play the current row, Delete removes it.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    Q_DISABLE_COPY(MainPage)
    void createDropArea();
    QLayout *createDestinationRow();
    void createList();
    void createButtons();
    void createTimers();
    void createPlayWidgets();
    QWidget *createPlayPage();
    void createTrackMenu();
    void createLayout(QLayout *destinationRow);
    void createKeys();
    void connectPlayer();
    void restoreSize();
    void fitToScreen();
    void showDestination();
    void takeScanResults();
    bool isBusy() const;
    bool isDefaultDestination() const;
    bool openDestination();
    void fillWorker(BatchWorker *worker);
    BatchRun *createRun();
    void connectRun(BatchRun *run, BatchDialog *dialog, QEventLoop *loop) const;
    BatchRun *runBefore(BatchRun *run) const;
    void startInTurn(BatchRun *run);
    void tellUnreadableNames();
    static QString sandboxToRealDir(const QString &path);
    bool trackKeyPressed(int key);

    QMWidgets::DropWidget *m_pdropWidget = nullptr;
    QPushButton *m_pcmdSettings = nullptr;
    QPushButton *m_pcmdConvert = nullptr;
    ListView *m_plstTracks = nullptr;
    QMMultiMedia::PlayListModel *m_pmodel = nullptr;
    TracksListDelegate *m_pdelegate = nullptr;
    QMMultiMedia::MediaSearchDialog *m_psearchDialog = nullptr;
    QStackedWidget *m_pstkModes = nullptr;
    QWidget *m_pwgtPlayPage = nullptr;
    QLabel *m_plblInfo = nullptr;
    QComboBox *m_pcbxDestination = nullptr;
    QTimer *m_ptimerOpenFiles = nullptr;
    QTimer *m_ptimerPlayInfo = nullptr;
    QMenu *m_pmenuTrack = nullptr;
    QMWidgets::SimpleBookmark *m_pbookmark = nullptr;

    QMWidgets::Label *m_plblPlayDecoration = nullptr;
    QLabel *m_plblFileName = nullptr;
    QLabel *m_plblPlayed = nullptr;
    QLabel *m_plblRemained = nullptr;
    QSlider *m_psldTimeLine = nullptr;
    QPushButton *m_pcmdPlayAndPause = nullptr;
    QPushButton *m_pcmdStop = nullptr;
    QModelIndex m_indexTrack; ///< the row whose menu was opened last

    QList<QUrl> m_urlsToOpen;
    QList<QUrl> m_droppedUrls;
    QVector<QString> m_imageFiles;
    QVector<QString> m_textFiles;
    QVector<QString> m_unsuportedFiles;

    QPointer<BatchThread> m_pthread; ///< of the current or last run; owned by its BatchRun
    QPointer<BatchRun> m_prun; ///< the run that the dialog's buttons belong to
    QList<BatchRun *> m_lstRuns; ///< all runs that aren't over; children of the page
    bool m_bScanning = false;
    bool m_bConverting = false; ///< slotDoIt() is on the stack
};
