#include "App.h"
#include "App_mac.h"
#include "AudioPlayer.h"
#include "ConverterResources.h"
#include "FileInput.h"
#include "Launcher.h"
#include "Literals.h"
#include "MainPage.h"
#include "MakerHosts.h"
#include "Os.h"
#include "PendingExports.h"
#include "ProcessStart.h"
#include "ProgramIdentity.h"
#include "PromoMenuBar.h"
#include "TerminationSignals.h"
#include "TranslationResources.h"
#include "TranslationsManager.h"

#include <QFileInfo>
#include <QFileOpenEvent>
#include <QIcon>
#include <QLabel>
#include <QSessionManager>
#include <QUrl>

namespace {

/// The language of the slides and videos: one of the three that have their own, else English.
QString introductionLanguage()
{
    const QString language = QMWidgets::App::currentLanguage();
    return language == u"de"_qs || language == u"ru"_qs ? language : u"en"_qs;
}

void setIntroduction()
{
    const QString language = introductionLanguage();
    QStringList slides;
    for (int n = 1; n <= 8; ++n) {
        slides << QMWidgets::App::bundleResourcePath()
                + u"Slide%1_%2.jpg"_qs.arg(QString::number(n), language);
    }
    QMWidgets::App::setIntroductionSlides(slides);
    QMWidgets::App::setIntroVideosList(MakerHosts::introductionVideos(language));
}

/// The program's icon in the sizes that were drawn.
QIcon programIcon()
{
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128, 256, 512}) {
        icon.addFile(u":/icons/app-%1.png"_qs.arg(size));
    }
    return icon;
}

/// Paths and file addresses that the desktop put on the command line, as absolute paths.
QStringList pathsFromDesktop()
{
    QStringList paths;
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    for (const QString &argument : arguments) {
        // A name may begin with "file:" as well.
        const QUrl url(argument.startsWith(u"file:/"_qs) ? argument : QString());
        paths << QFileInfo(url.isLocalFile() ? url.toLocalFile() : argument).absoluteFilePath();
    }
    return paths;
}

/// The end of the session and the signals that ask for the end act as Stop, then the program quits:
/// the page waits for the file at hand.
void connectEnd(QMWidgets::App *app, MainPage *page, const TerminationSignals *termination)
{
    const auto end = [page] {
        App_mac::withdraw();
        page->stopAll();
        QCoreApplication::quit();
    };
    QObject::connect(termination, &TerminationSignals::requested, page, end);
    QObject::connect(Os::instance(), &Os::atUserLogout, page, end);
    QObject::connect(
        app, &QGuiApplication::commitDataRequest, page, [page] { page->stopAll(); },
        Qt::DirectConnection);
    // From the moment on in which the end is settled: a request taken after that would be lost.
    QObject::connect(app, &QGuiApplication::lastWindowClosed, page, [] { App_mac::withdraw(); });
    QObject::connect(app, &QCoreApplication::aboutToQuit, page, [] { App_mac::withdraw(); });
    QObject::connect(app, &QCoreApplication::aboutToQuit, QMMultiMedia::AudioPlayer::instance(),
        &QMMultiMedia::AudioPlayer::slotSetAboutToQuit);
}

/// Tags that are still being written are finished before the end; one that takes long is told.
void finishExports()
{
    std::unique_ptr<QLabel> note;
    PendingExports::waitForAll([&note](int, qint64 elapsedMs) {
        if (!note && elapsedMs >= 1000) {
            note = std::make_unique<QLabel>(
                QCoreApplication::translate("main", "Finishing the tags of the converted files…"));
            note->setWindowTitle(QCoreApplication::applicationName());
            note->setMargin(24);
            note->show();
        }
        QCoreApplication::processEvents();
    });
}

}

int main(int argc, char **argv)
{
    MTools::prepareProcess();
    ensureUtf8FileNames();
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QMWidgets::App app(argc, argv, programOrganisation(), programName());
    if (!QMWidgets::App::isSigned()) {
        QMWidgets::App::setTerminalOuputToFile();
    }
    app.checkUpdateOnStartLater();
    initProgramIdentity();
    QMMultiMedia::FileInput::setTempPath(QMWidgets::App::cachesDirectory(false));
    QGuiApplication::setDesktopFileName(Desktop::applicationId());
    initTranslationResources();
    QMWidgets::TranslationsManager::instance();
    Os::instance();
    App_mac::instance();
    if (App_mac::handOverToRunningInstance(pathsFromDesktop())) {
        return 0;
    }
    app.setStyleSheet(converterStyleSheet());
    app.setWindowIcon(programIcon());
    QMWidgets::App::setVelmoraOrgLinks(u"calderin"_qs);
    QMWidgets::App::setPrivacyPolicyLink(MakerHosts::privacyPolicy());
    QMWidgets::App::setShareMessage(u"Click Convert and enjoy your M4A tracks!"_qs);

    int exitCode = 0;
    {
        MainPage page(nullptr);
        page.promoMenuBar()->setupAppsMenu(u"audio"_qs);
        setIntroduction();
        QMWidgets::App::setMainWidget(&page);
        page.setWindowTitle(QCoreApplication::applicationName());
        const TerminationSignals termination(nullptr);
        connectEnd(&app, &page, &termination);
        page.show();
        QMWidgets::App::showHelpOnStart();
        const QStringList paths = pathsFromDesktop();
        for (const QString &path : paths) {
            QCoreApplication::postEvent(&app, new QFileOpenEvent(path));
        }
        exitCode = QApplication::exec();
    }
    finishExports();
    return exitCode;
}
