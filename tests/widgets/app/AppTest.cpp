#include "App.h"
#include "BlenderWidget.h"
#include "Literals.h"
#include "MediaMaker.h"
#include "OpenedUrls.h"
#include "PlatformVersion.h"

#include <gtest/gtest.h>
#include <QDir>
#include <QFileOpenEvent>
#include <QMenuBar>
#include <QRegularExpression>
#include <QSettings>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QThread>
#include <QVBoxLayout>

using QMWidgets::App;

namespace {

QByteArray storeBytes()
{
    App::settings()->sync();
    return MediaMaker::bytesOf(App::supportDirectory(false) + u"settings.plist"_qs);
}

TEST(App, keepsItsFilesAtThePlacesOfThePlatform)
{
    const QString strHome = QDir::homePath();
    EXPECT_EQ(
        App::supportDirectory(false), strHome + u"/Library/Application Support/Calderin M4A/"_qs);
    EXPECT_EQ(App::cachesDirectory(false), strHome + u"/Library/Caches/Calderin M4A/"_qs);
    EXPECT_EQ(App::documentsDirectory(false),
        QStandardPaths::standardLocations(QStandardPaths::DocumentsLocation).first()
            + u"/Velmora/Calderin M4A/"_qs);
    EXPECT_EQ(App::dataDirectory(false),
        QStandardPaths::standardLocations(QStandardPaths::DataLocation).first() + u'/');
    EXPECT_FALSE(QDir(App::moviesDirectory(false)).exists());
    EXPECT_TRUE(QDir(App::moviesDirectory(true)).exists());
    EXPECT_TRUE(App::theApp()->isFirstStart());
    EXPECT_TRUE(App::bundleResourcePath().endsWith(u"/Contents/Resources/"_qs));

    App::setSaveDirPath(u"/a/b/c.m4a"_qs);
    EXPECT_EQ(App::saveDirPath(), u"/a/b"_qs);
    App::setSaveDirPath(u"/a/b/"_qs);
    EXPECT_EQ(App::saveDirPath(), u"/a/b"_qs);
}

TEST(App, storesSettingsInAGroupOfTheApplication)
{
    App::setSettingsValue(u"x"_qs, 1);
    App::setSettingsValue(u"Fraction"_qs, 2.5F);
    App::setSettingsValue(u"/Slash"_qs, true);
    EXPECT_EQ(App::settingsValue(u"x"_qs).toInt(), 1);
    EXPECT_TRUE(App::settingsValue(u"/Slash"_qs).toBool());
    EXPECT_TRUE(storeBytes().startsWith("[Calderin%20M4A]\n")) << storeBytes().constData();
    EXPECT_TRUE(storeBytes().contains("\nFraction=2.5\n")) << storeBytes().constData();

    App::setOldSettingsMode(true);
    EXPECT_FALSE(App::settingsValue(u"x"_qs).isValid());
    App::setSettingsValue(u"x"_qs, 2);
    App::setOldSettingsMode(false);
    EXPECT_EQ(App::settings()->value(u"x"_qs).toInt(), 2);
    EXPECT_EQ(App::settingsValue(u"x"_qs).toInt(), 1);

    App::overrideSettingsValue(u"Over"_qs, u"this process"_qs);
    App::setSettingsValue(u"Over"_qs, u"stored"_qs);
    EXPECT_EQ(App::settingsValue(u"Over"_qs).toString(), u"this process"_qs);
    EXPECT_TRUE(storeBytes().contains("Over=stored"));

    EXPECT_TRUE(App::isAppFirstStart());
    EXPECT_FALSE(App::isAppFirstStart());
}

TEST(App, storeIsReadAndWrittenFromSeveralThreads)
{
    constexpr int rounds = 500;
    const auto work = [](const QString &strKey) {
        for (int i = 0; i < rounds; ++i) {
            App::setSettingsValue(strKey, i);
            if (App::settingsValue(strKey, -1).toInt() != i) {
                ADD_FAILURE() << "lost " << i;
                return;
            }
        }
    };
    const std::unique_ptr<QThread> pthread(QThread::create(work, u"Worker"_qs));
    pthread->start();
    for (int i = 0; i < rounds; ++i) {
        App::setSettingsValue(u"Window"_qs, i);
        if (i % 100 == 0) {
            QCoreApplication::processEvents(); // writes the store
        }
    }
    ASSERT_TRUE(pthread->wait(20000));
    EXPECT_TRUE(storeBytes().contains("Worker=499"));
}

TEST(App, logsOneLineForEachMessage)
{
    const QString strLog = App::supportDirectory(false) + u"protocol.log"_qs;
    QFile::remove(strLog);
    App::setTerminalOuputToFile();
    QMessageLogger("main", 1, "f").warning("Cannot open");
    QMessageLogger(nullptr, 0, nullptr).debug("y");
    App::disableTerminalOuput();
    qWarning("dropped");
    App::enableTerminalOuput();
    const QString strText = QString::fromUtf8(MediaMaker::bytesOf(strLog));
    const QRegularExpression form(
        u"^\\d\\d\\.\\d\\d\\.\\d\\d-\\d\\d:\\d\\d Warning: Cannot open, main\n"
        "\\d\\d\\.\\d\\d\\.\\d\\d-\\d\\d:\\d\\d Debug: y, \n$"_qs);
    EXPECT_TRUE(form.match(strText).hasMatch()) << qPrintable(strText);
}

TEST(AppDeathTest, fatalMessageIsLoggedAndEndsTheProcess)
{
    EXPECT_EXIT(
        {
            App::setTerminalOuputToFile();
            qFatal("the end");
        },
        testing::KilledBySignal(SIGABRT), "");
    EXPECT_TRUE(MediaMaker::bytesOf(App::supportDirectory(false) + u"protocol.log"_qs)
                    .contains(" Fatal: the end, "));
}

TEST(App, knowsItsBuildAndItsSystem)
{
    EXPECT_EQ(App::buildFromCompilerDate(u"Sep  5 2019"_qs), u"9/5/2019"_qs);
    EXPECT_EQ(App::buildFromCompilerDate(u"Dec 25 2019"_qs), u"12/25/2019"_qs);
    EXPECT_TRUE(App::buildDate().isValid());
    EXPECT_EQ(App::osInfo(), u"Mac OS X (10.14)"_qs);
    setPlatformVersion(11);
    EXPECT_EQ(App::osInfo(), u"Mac OS X 10.9"_qs);
    setPlatformVersion(16);
    EXPECT_EQ(App::bundleIdentifier(), u"example.velmora.Calderin M4A"_qs);
}

TEST(App, copiesAFileOnceAndWhole)
{
    const QTemporaryDir dir;
    const QString strSource = dir.filePath(u"source.txt"_qs);
    const QString strTarget = dir.filePath(u"new/deep"_qs);
    ASSERT_TRUE(MediaMaker::writeFile(strSource, "content"));
    EXPECT_TRUE(App::copyTo(strSource, strTarget, QString()));
    EXPECT_EQ(MediaMaker::bytesOf(strTarget + u"/source.txt"_qs), "content");
    ASSERT_TRUE(MediaMaker::writeFile(strSource, "changed"));
    EXPECT_TRUE(App::copyTo(strSource, strTarget, QString()));
    EXPECT_EQ(MediaMaker::bytesOf(strTarget + u"/source.txt"_qs), "content");
    EXPECT_TRUE(App::copyTo(strSource, strTarget, u"other"_qs));
    EXPECT_EQ(MediaMaker::bytesOf(strTarget + u"/other"_qs), "changed");
    EXPECT_FALSE(App::copyTo(dir.filePath(u"none"_qs), strTarget, QString()));
    EXPECT_FALSE(App::copyTo(strSource, u"/proc/none"_qs, QString()));
}

TEST(App, buildsLinksForTheLanguage)
{
    App::setCurrentLanguage(u"de"_qs);
    App::setVelmoraOrgLinks(u"calderin"_qs);
    EXPECT_EQ(App::currentLanguageOptimized(), u"de/"_qs);
    EXPECT_TRUE(App::appSupportPage().endsWith(u"/de/calderin"_qs));
    EXPECT_TRUE(App::facebookShareLink().endsWith(u"?u="_qs + App::appSupportPage()));
    EXPECT_TRUE(App::twitterShareLink().endsWith(u"?status="_qs + App::appSupportPage()));
    App::setCurrentLanguage(u"fr"_qs);
    App::setVelmoraOrgLinks();
    EXPECT_TRUE(App::appSupportPage().endsWith(u"/org/calderin m4a"_qs));
    App::setAdditionalLanguages({u"fr"_qs});
    App::setVelmoraOrgLinks(u"x"_qs);
    EXPECT_TRUE(App::appSupportPage().endsWith(u"/fr/x"_qs));
    App::setCurrentLanguage(u"en"_qs);
    EXPECT_EQ(App::currentLanguageOptimized(), QString());
    App::setVelmoraComLinks(u"x"_qs);
    EXPECT_TRUE(App::vkontakteShareLink().endsWith(u"/apps/x/vkontakte.php"_qs));

    const QString strId = App::theApp()->appId();
    ASSERT_TRUE(strId.startsWith(u"id"_qs));
    const QString strEnd = u"/app/"_qs + strId + u"?mt=12"_qs;
    for (const QString &strAddress :
        {u"https://h/apps/calderinm4a/"_qs, u"https://h/crosspromo.php?appname=calderinm4a"_qs,
            u"https://s/app/calderinm4a/"_qs + strId + u"?ls=1&mt=12"_qs}) {
        const QString strLink = App::theApp()->storeLink(strAddress);
        EXPECT_TRUE(strLink.startsWith(u"macappstore://"_qs)) << qPrintable(strAddress);
        EXPECT_TRUE(strLink.endsWith(strEnd)) << qPrintable(strLink);
    }
    EXPECT_EQ(App::theApp()->storeLink(u"https://h/apps/unknown"_qs), QString());
}

TEST(App, opensTheRightAddresses)
{
    const OpenedUrls browser;
    App *papp = App::theApp();
    App::setAppSupportPage(QString());
    papp->slotSupportPage();
    EXPECT_EQ(browser.last().host(), u"www.velmora.example"_qs);
    papp->slotRateApp();
    EXPECT_EQ(browser.last().scheme(), u"https"_qs);
    EXPECT_TRUE(browser.last().query().endsWith(u"&action=write-review"_qs));
    papp->slotContactUs();
    EXPECT_EQ(
        browser.item(2, u"subject"_qs), u"Contact (Calderin M4A 1.0.2) Mac OS X (10.14) en"_qs);
    App::setShareMessage(u"Loud & clear"_qs);
    papp->slotTellFriend();
    EXPECT_TRUE(browser.item(3, u"body"_qs).startsWith(u"Loud & clear - https://"_qs));
    App::setIndependent(true);
    papp->slotRateApp();
    App::setIndependent(false);
    EXPECT_EQ(browser.last().path(), u"/rate.php"_qs);
    EXPECT_EQ(browser.item(4, u"appname"_qs), u"calderin m4a"_qs);
}

TEST(App, turnsEventsIntoSignals)
{
    App *papp = App::theApp();
    QSignalSpy opened(papp, &App::fileOpenRequest);
    QFileOpenEvent open(QUrl::fromLocalFile(u"/music/a b.wav"_qs));
    EXPECT_TRUE(QCoreApplication::sendEvent(papp, &open));
    ASSERT_EQ(opened.size(), 1);
    EXPECT_EQ(opened.first().first().toString(), u"/music/a b.wav"_qs);

    QSignalSpy deactivated(papp, &App::applicationDeactivated);
    QEvent away(QEvent::ApplicationDeactivate);
    QCoreApplication::sendEvent(papp, &away);
    EXPECT_TRUE(App::isDeactivated());
    QEvent back(QEvent::ApplicationActivate);
    QCoreApplication::sendEvent(papp, &back);
    EXPECT_FALSE(App::isDeactivated());
    EXPECT_EQ(deactivated.size(), 1);
}

TEST(App, veilsAndFurnishesItsMainWidget)
{
    {
        QWidget page;
        auto *playout = new QVBoxLayout(&page);
        playout->addWidget(new QWidget(&page));
        page.resize(420, 300);
        App::setMainWidget(&page);
        EXPECT_NE(qobject_cast<QMenuBar *>(playout->menuBar()), nullptr);
        page.show();
        QSignalSpy pressed(App::theApp(), &App::mouseButtonPress);
        App::theApp()->slotSetBlendMainWidget(true);
        auto *pveil = page.findChild<QMWidgets::BlenderWidget *>(u"MainWidgetBlender"_qs);
        ASSERT_NE(pveil, nullptr);
        EXPECT_TRUE(pveil->isVisible());
        EXPECT_EQ(pveil->geometry(), page.rect());
        App::mouseClick(pveil, App::calculateMousePosition(pveil, 0.5, 0.5));
        EXPECT_GE(pressed.size(), 1);
        App::theApp()->slotSetBlendMainWidget(false);
        EXPECT_FALSE(pveil->isVisible());
        EXPECT_EQ(App::getWidgetByClassName(u"QMWidgets::BlenderWidget"_qs), pveil);
    }
    EXPECT_EQ(App::mainWidget(), nullptr);
    App::theApp()->slotSetBlendMainWidget(true);
}

}
