#pragma once

#include <atomic>
#include <functional>
#include <QApplication>
#include <QDate>
#include <QDialog>
#include <QMap>
#include <QPointer>
#include <QStringList>
#include <QVariant>

class QSettings;

namespace QMWidgets {

class BlenderWidget;

/// The application object of every program of the family: where files are kept, the settings store,
/// the log, the identity of the build, the main widget, and the texts and links of the maker.
///
/// All static accessors may be called without an App: getters give the defaults, setters do
/// nothing. settingsValue, setSettingsValue, the directory functions and bundleResourcePath may be
/// called on any thread; everything else belongs to the user-interface thread.
class App : public QApplication
{
    Q_OBJECT

public:
    /// argc must outlive the object, as for QApplication. The given names become those of
    /// QCoreApplication.
    App(int &argc, char **argv, const QString &strOrganization, const QString &strApplication);
    ~App() override;

    /// The application object; null when there is none, or when it isn't an App.
    static App *theApp();

    // Identity of the build and of the system

    /// The date of the build as month/day/year without leading zeros, e.g. "9/25/2019".
    static QString build();

    /// The same as a date.
    static QDate buildDate();

    /// Turns the compiler's date text ("Sep  5 2019") into the form of build() ("9/5/2019").
    static QString buildFromCompilerDate(const QString &strDate);

    /// The name of the operating system for mails to the maker.
    static QString osInfo();

    /// "yyyy-MM-dd", the form of dates in the store and in the maker's files.
    static QString dateFormat();

    /// Today, by the clock of setClock.
    static QDate today();

    /// Replaces the clock of today(); an empty function restores the system's.
    static void setClock(std::function<QDate()> clock);

    /// True if a directory "_CodeSignature/" lies in the bundle.
    static bool isSigned();

    /// False for a build for direct distribution.
    static bool isAppStore();

    /// Last and first part of the organisation's domain, and the application's name, joined by ".":
    /// "example.velmora.Calderin M4A".
    static QString bundleIdentifier();

    /// True if none of the application's directories existed before the application's name was set.
    bool isFirstStart() const;

    /// True once per user: true at the first call ever, false from then on.
    static bool isAppFirstStart();

    static bool isSandboxed();
    static void setSandboxed(bool b);
    static bool isIndependent();
    static void setIndependent(bool b);
    static bool isKidsMode();
    static void setKidsMode(bool b);

    /// True while another application is the active one.
    static bool isDeactivated();

    /// Adds a function (void()) that the constructor of the application calls. For use before it.
    static void registerFunction(void *pfunction);

    // Directories. All results end in "/"; b: make the directory with its parents. A directory that
    // can't be made isn't reported.

    static QString supportDirectory(bool b);
    static QString workDirectory(bool b);
    static QString cachesDirectory(bool b);
    static QString dataDirectory(bool b);
    static QString documentsDirectory(bool b);
    static QString picturesDirectory(bool b);
    static QString musicDirectory(bool b);
    static QString moviesDirectory(bool b);
    static QString downloadsDirectory(bool b);

    /// Makes a directory with its parents; an empty path does nothing.
    static void ensureDirExists(const QString &strDir);

    /// Writes one debug line for each directory.
    static void printAppDirectories();

    /// The directory of the resources beside that of the executable, ending in "/".
    static QString bundleResourcePath();

    /// The last directory read from, without a trailing "/" once it was set. Default:
    /// workDirectory.
    static QString openDirPath();

    /// Takes the path of a file; keeps the directory that it lies in.
    static void setOpenDirPath(const QString &strPath);

    /// The last directory written to; as openDirPath.
    static QString saveDirPath();
    static void setSaveDirPath(const QString &strPath);

    /// Copies a file into a directory, made if it is missing, under the new name or, if that is
    /// empty, its own. An existing target is left as it is and counts as copied. The target appears
    /// whole or not at all.
    static bool copyTo(const QString &strFile, const QString &strDir, const QString &strNewName);
    static bool copyToSupportDirectory(const QString &strFile, const QString &strNewName);

    // Settings store

    /// The store, owned by the application; null without one.
    static QSettings *settings();

    /// The stored value of a key of this application, or the default.
    static QVariant settingsValue(const QString &strKey, const QVariant &varDefault = QVariant());

    /// Stores a value at once. A float is stored as the double of the same value.
    static void setSettingsValue(const QString &strKey, const QVariant &varValue);

    /// From now on settingsValue gives this value for the key, whatever the store holds; the store
    /// isn't written. For the options of a program without a window.
    static void overrideSettingsValue(const QString &strKey, const QVariant &varValue);

    /// true: keys are used as they stand. false (default): the application's name is their group.
    static void setOldSettingsMode(bool b);

    /// These pass on to the QSettings object.
    static void settingsBeginGroup(const QString &strGroup);
    static void settingsEndGroup();
    static QStringList settingsChildKeys();

    // Log

    /// Back to Qt's own message handler.
    static void enableTerminalOuput();

    /// Drops all messages.
    static void disableTerminalOuput();

    /// Appends all messages to "protocol.log" in the support directory.
    static void setTerminalOuputToFile();

    // Language

    /// The language code of the user interface, "en" by default.
    static QString currentLanguage();
    static void setCurrentLanguage(const QString &strLanguage);

    /// A path segment for web addresses: empty for English, else the language and "/".
    static QString currentLanguageOptimized();

    /// Languages that have web pages of their own beside "de" and "ru".
    static void setAdditionalLanguages(const QStringList &lstLanguages);
    static bool isAdditionalLanguageContains(const QString &strLanguage);

    // Main widget

    /// The application's one main window; null before setMainWidget and after the widget's end.
    static QWidget *mainWidget();

    /// Remembers the main window, and gives it its veil and its menu bar. It stays the caller's.
    static void setMainWidget(QWidget *pwgt);

    // Texts and links, each empty by default

    static QStringList introductionSlides();
    static void setIntroductionSlides(const QStringList &lstSlides);
    static QString introVideosList();
    static void setIntroVideosList(const QString &strLink);
    static QString privacyPolicyLink();
    static void setPrivacyPolicyLink(const QString &strLink);
    static QString appSupportPage();
    static void setAppSupportPage(const QString &strLink);
    static QString facebookShareLink();
    static void setFaceBookShareLink(const QString &strLink);
    static QString youtubeShareLink();
    static void setYouTubeShareLink(const QString &strLink);
    static QString twitterShareLink();
    static void setTwitterShareLink(const QString &strLink);
    static QString vkontakteShareLink();
    static void setVKontakteShareLink(const QString &strLink);

    /// The sharing text; the application's name if none was set.
    static QString shareMessage();
    static void setShareMessage(const QString &strMessage);
    static QString shortShareMessage();
    static void setShortShareMessage(const QString &strMessage);

    /// A text held for callers.
    static QString resourceOffset();
    static void setResourceOffset(const QString &str);

    /// HTML for the about box. The heading of the default text is translated at each call.
    static QString legalNotices();
    static void setLegalNotices(const QString &strHtml);
    static void addLegalNotices(const QString &strHtml);

    /// Sets the sharing addresses and the support page from the name of a page; an empty one stands
    /// for the lower-cased application name. The first to pages on the maker's site for the
    /// language, shared through the networks; the second to the sharing pages of the maker's site.
    static void setVelmoraOrgLinks(const QString &strPage = QString());
    static void setVelmoraComLinks(const QString &strPage = QString());

    /// The maker's servers, with their scheme and without a trailing "/".
    static QString velmoraComServer();
    static QString velmoraNetServer();
    static QString velmoraDeServer();

    /// Turns the address of a product's page, of the cross-promotion endpoint, or of a store page
    /// into a store address. Empty for a product that the catalogue doesn't know.
    virtual QString storeLink(const QString &strAddress) const;

    /// The store identifier ("id" and digits) of a catalogue key; empty if it isn't in there.
    QString appNameToId(const QString &strName) const;

    /// What is shared with friends: the support page; without one the maker's page of the
    /// application, in a store build its store page.
    QString sharedPage() const;

    /// The address of a mail to a friend with this text and page.
    static QString mailToFriend(const QString &strText, const QString &strPage);

    /// That of this application.
    QString appId() const;

    /// The catalogue key of this application: its name in lower case without blanks.
    static QString appKey();

    /// Opens an address with the desktop's program for it; a store address in the browser.
    static bool openAddress(const QString &strAddress);

    // Help

    /// Opens the introduction 500 ms later, unless the user has turned that off.
    static void showHelpOnStart();

    // Reminders

    /// A reminder comes at every n-th occasion (default 10); below 1: none.
    static void setRemiderCount(int nCount);

    /// The delay of the reminder slots in milliseconds (default 4000).
    static void setRemiderDelay(int nDelay);

    /// Arm a reminder to rate, to tell or to join for when the user quits.
    void callRateReminder(int nCount);
    void callTellReminder(int nCount);
    void callJoinReminder(int nCount);

    /// The same with a kind drawn from a mask of 1 rate, 2 tell, 4 join; 8 chooses by distribution.
    void callReminder(int nCount, int nMask);

    /// The kind of reminder that is due: 1 rate, 2 tell, 4 join; 0 before one was armed.
    int reminderKind() const;

    // Update check

    /// The version named by the last build file read.
    static QString updateVersion();

    /// Asks the maker's servers whether a newer build exists that suits this system. Waits in a
    /// local event loop, at most twice the time limit. Any failure is false.
    static bool isUpdateAvailable();

    /// The text of the build file from the main server or, if that gives none, the emergency
    /// server.
    static QString getUpdateRequest();

    /// The text of the build file on one server ("https://host"); empty on any failure.
    static QString getUpdateRequest(const QString &strServer);

    /// Tells the result of a check in a modal dialog.
    static void showUpdateIsAvailable(bool bAvailable);

    /// The servers to ask, in order, and the limit for each in milliseconds (default 7000).
    static void setUpdateServers(const QStringList &lstServers);
    static void setUpdateTimeLimit(int nMsecs);

    /// Arms slotCheckUpdateOnStart for 2000 ms from now.
    static void checkUpdateOnStartLater();

    // Scripted use of widgets

    /// True if pobj is pparent or one of its descendants.
    static bool isChildOf(QObject *pobj, QObject *pparent);

    /// The first widget of that class name, visible ones first; null if there is none.
    static QWidget *getWidgetByClassName(const QString &strClass);

    /// Sends a press, a release or both of the left button to the widget at a point of its own.
    static void mousePress(QWidget *pwgt, const QPoint &pt);
    static void mouseRelease(QWidget *pwgt, const QPoint &pt);
    static void mouseClick(QWidget *pwgt, const QPoint &pt);

    /// The point of a widget at these parts (0 to 1) of its width and height.
    static QPoint calculateMousePosition(const QWidget *pwgt, double dX, double dY);

    // The screen

    /// The main screen's device pixels per logical pixel; 1 without a screen.
    static double devicePixelRatio();

    /// True if the desktop's width or height is below 480 pixels.
    static bool isPocketDevice();
    static int smallestDimention();
    static int biggestDimention();
    static bool isLandscape();
    static bool isPortrait();

    bool notify(QObject *pobj, QEvent *pe) override;

signals:
    void mouseButtonPress();
    void applicationActivated();
    void applicationDeactivated();
    void applicationExposed();
    void dockClicked();

    /// The desktop asks to open a file: its path.
    void fileOpenRequest(QString strFile);

public slots:
    /// A reminder occasion: counts, and shows what is due.
    void slotCallRateReminderInternal();
    void slotCallRateReminder();
    void slotCallTellReminder();
    void slotCallJoinReminder();

    /// Asks for a rating at once.
    void slotImmediatelyRate();
    void slotShowPrivacyPolicy();
    void slotShowCssEditor();
    void slotContactUs();
    void slotTellFriend();
    void slotRateApp();
    void slotSupportPage();
    void slotHelp();
    void slotShareApp();
    void slotJoin();
    void slotAbout();

    /// Draws a veil over the whole main window, or takes it away.
    void slotSetBlendMainWidget(bool b);
    void slotCheckUpdate();
    void slotCheckUpdateOnStart();
    void slotShowMoreApps();

protected:
    bool event(QEvent *pe) override;

private:
    Q_DISABLE_COPY(App)

    template <typename T> static T held(T App::*pmember, const T &standard = T())
    {
        const App *papp = theApp();
        return papp != nullptr ? papp->*pmember : standard;
    }

    template <typename T> static void hold(T App::*pmember, const T &value)
    {
        if (App *papp = theApp()) {
            papp->*pmember = value;
        }
    }

    static bool isFirstStartInternal();
    static QString fullKey(const QString &strKey);
    static void armReminder(int nKind, int nCount);
    void createStore();
    void createLegalNotices();
    void initAppsIds();
    void scheduleReminder(int nKind);
    void runDueReminder();
    void takeReminderAnswer(int nState);
    template <typename Dialog> int runReminder();

    static QList<void *> sm_lstRegisteredFunctions;
    static QString sm_strUpdateVersion;

    QSettings *m_psettings = nullptr;
    QMap<QString, QVariant> m_mapOverrides;
    std::atomic_bool m_bOldSettingsMode {false};
    bool m_bFirstStart = false;
    std::atomic_bool m_bDeactivated {false};
    std::atomic_bool m_bSandboxed {false};
    std::atomic_bool m_bIndependent {false};
    bool m_bKidsMode = false;
    std::function<QDate()> m_clock;

    QString m_strCurrentLanguage;
    QStringList m_lstAdditionalLanguages;
    QString m_strOpenDirPath;
    QString m_strSaveDirPath;
    QPointer<QWidget> m_pwgtMain;
    QPointer<BlenderWidget> m_pblender;

    QPointer<QDialog> m_phelpDialog;
    QStringList m_lstSlides;
    QString m_strIntroVideosList;
    QString m_strPrivacyPolicyLink;
    QString m_strSupportPage;
    QString m_strFacebookLink;
    QString m_strYoutubeLink;
    QString m_strTwitterLink;
    QString m_strVKontakteLink;
    QString m_strShareMessage;
    QString m_strShortShareMessage;
    QString m_strResourceOffset;
    QString m_strLegalNotices;
    bool m_bOwnLegalHeading = true;

    QMap<QString, QString> m_mapAppsIds;
    int m_nReminderKind = 0;
    int m_nReminderCount = 10;
    int m_nReminderDelay = 4000;
    QStringList m_lstUpdateServers;
    int m_nUpdateTimeLimit = 7000;
    bool m_bCheckingUpdate = false;
};

} // namespace QMWidgets
