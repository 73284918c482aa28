#include "App.h"
#include "AudioPlayer.h"
#include "CalderinStyle.h"
#include "ConverterResources.h"
#include "Literals.h"
#include "MainPage.h"
#include "MakerHosts.h"
#include "Os.h"
#include "App_mac.h"
#include "PendingExports.h"
#include "ProgramIdentity.h"
#include "PromoMenuBar.h"
#include "SingleInstance.h"
#include "TerminationSignals.h"
#include "TranslationResources.h"
#include "TranslationsManager.h"

#include <QFileInfo>
#include <QFileOpenEvent>

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
                + u"Slide%1_%2.jpg"_qs.arg(n).arg(language);
    }
    QMWidgets::App::setIntroductionSlides(slides);
    QMWidgets::App::setIntroVideosList(MakerHosts::introductionVideos(language));
}

/// Paths that the desktop put on the command line.
QStringList pathsOfCommandLine()
{
    QStringList paths;
    for (const QString &argument : QCoreApplication::arguments().mid(1)) {
        const QUrl url(argument);
        paths << QFileInfo(url.isLocalFile() ? url.toLocalFile() : argument).absoluteFilePath();
    }
    return paths;
}

}

int main(int argc, char **argv)
{
    ensureUtf8FileNames();
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QMWidgets::App app(argc, argv, programOrganisation(), programName());
    if (!QMWidgets::App::isSigned()) {
        QMWidgets::App::setTerminalOuputToFile();
    }
    app.checkUpdateOnStartLater();
    initProgramIdentity();
    initTranslationResources();
    QMWidgets::TranslationsManager::instance();
    Os::instance();
    App_mac::instance();
    initConverterResources();
    QApplication::setStyleSheet(applicationStyleSheet());
    QMWidgets::App::setVelmoraOrgLinks(u"calderin"_qs);
    QMWidgets::App::setPrivacyPolicyLink(MakerHosts::privacyPolicy());
    QMWidgets::App::setShareMessage(u"Click Convert and enjoy your M4A tracks!"_qs);

    MainPage page(nullptr);
    page.promoMenuBar()->setupAppsMenu(u"audio"_qs);
    setIntroduction();
    QMWidgets::App::setMainWidget(&page);
    page.setWindowTitle(QCoreApplication::applicationName());
    page.show();
    QMWidgets::App::showHelpOnStart();
    return QApplication::exec();
}
