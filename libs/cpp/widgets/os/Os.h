#pragma once

#include <QDate>
#include <QObject>
#include <QPixmap>
#include <QUrl>

/// What the program asks of the operating system beyond what Qt gives, and the system's notices.
///
/// All operations are for the user-interface thread and return at once: where a service has to be
/// asked, the request is handed over and a failure is logged.
class Os : public QObject
{
    Q_OBJECT

public:
    /// The one object; made on first use, it then listens to the system's notices.
    static Os *instance();

    /// Shows a number on the application's icon.
    static void setAppIconNumber(int nNumber);
    static void unsetAppIconNumber();

    /// Whether the program starts when the user logs on.
    static bool isAutorunAtLogon();
    static void changeAutorunAtLogon(bool bAutorun);

    /// "lib" + name + ".dylib".
    static QString nativeLibraryName(const QString &strName);

    /// Share a text and an address through a service's page in the browser or a mail. There is no
    /// way to hand the picture over; the user adds it.
    static void postToTwitter(const QString &strText, QPixmap pix, const QUrl &url);
    static void postToFacebook(const QString &strText, QPixmap pix, const QUrl &url);
    static void postToLinkedin(const QString &strText, QPixmap pix, const QUrl &url);
    static void postToEmail(const QString &strText, QPixmap pix, const QUrl &url);

    /// Shows a file or folder in the file manager. True when the request was handed over; false for
    /// a path that doesn't exist or when nothing can show it.
    static bool openFolderAndSelectFile(const QString &strPath);

    /// Moves a file or folder to the trash; false if that failed, and it is left where it is.
    static bool moveToTrash(const QString &strPath);

    /// Device pixels per logical pixel of the main screen; 1 without a screen.
    static float scaleFactor();

    /// true: keeps the display and the machine from sleeping; false: ends that.
    static void setDisableSleepMode(bool bDisable);

    /// Asks for a review, at most once per start of the program and three times a year. bForce:
    /// don't wait for the next call that is a multiple of the period.
    static void requestReview(bool bForce);

    static bool isRequestedReviewsQuotaExceeded();
    static int requestedReviewsCount();
    static int requestedReviewsCalls();

    /// The date of the last request; today if there was none.
    static QDate requestedReviewsLastDate();
    static int numRequestedReviewsAvalable();

    /// A review is asked for at every n-th call only; below 1 counts as 1.
    static void setRequestPeriod(const int &nPeriod);

    /// The program's own dialog in place of a store's.
    static void simulateRequestReview();

    static bool s_bReviewWasRequested;
    static int s_nRequestPeriod;

signals:
    /// The machine is about to sleep.
    void atSwitchToStandBy();

    /// The machine has woken.
    void atWakeUpFromStandBy();

    /// The machine is about to power off.
    void atUserLogout();

    /// Never emitted.
    void atWorkspaceChanged();

private:
    Q_DISABLE_COPY(Os)
    Os();
};
