#include "Os.h"
#include "App.h"
#include "App_mac.h"
#include "FileDialog.h"
#include "OpenedUrls.h"
#include "PlatformVersion.h"
#include "SimpleBookmark.h"
#include "TestBus.h"

#include <gtest/gtest.h>
#include <QDBusConnectionInterface>
#include <QDBusPendingCall>
#include <QDir>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>

using MediaMaker::waitFor;
using QMWidgets::App;
using QMWidgets::FileDialog;
using QMWidgets::SimpleBookmark;

namespace {

QStringList g_lstLog;

void noteLog(QtMsgType, const QMessageLogContext &, const QString &strMessage)
{
    g_lstLog.append(strMessage);
}

TEST(Os, theDesktopOpensFilesAndActivates)
{
    QWidget page;
    App::setMainWidget(&page);
    page.showMinimized();
    QSignalSpy opened(App::theApp(), &App::fileOpenRequest);
    QSignalSpy clicked(App_mac::instance(), &App_mac::dockClicked);
    QSignalSpy clickedApp(App::theApp(), &App::dockClicked);
    EXPECT_FALSE(App_mac::handOverToRunningInstance({u"/x"_qs}));
    const QString strName = u"example.velmora.CalderinM4A"_qs;
    const auto call = [&strName](const QString &strMethod, const QVariantList &arguments) {
        auto message = QDBusMessage::createMethodCall(strName, u"/example/velmora/CalderinM4A"_qs,
            u"org.freedesktop.Application"_qs, strMethod);
        message.setArguments(arguments);
        bus().connection().send(message);
    };
    call(u"Open"_qs,
        {QStringList {u"file:///music/a%20b.wav"_qs, u"file:///music/c.wav"_qs}, QVariantMap()});
    ASSERT_TRUE(waitFor([&opened] { return opened.size() == 2; }));
    EXPECT_EQ(opened[0][0].toString(), u"/music/a b.wav"_qs);
    EXPECT_EQ(opened[1][0].toString(), u"/music/c.wav"_qs);
    EXPECT_EQ(clicked.size(), 0);
    call(u"Activate"_qs, {QVariantMap()});
    ASSERT_TRUE(waitFor([&clickedApp] { return clickedApp.size() == 1; }));
    EXPECT_EQ(clicked.size(), 1);
    EXPECT_FALSE(page.isMinimized());
}

TEST(Os, sharesThroughPagesAndMail)
{
    const OpenedUrls browser;
    const QUrl url(u"https://velmora.example/x?y=1&z=2"_qs);
    const QString strText = u"Drop & done: 100 % #1"_qs;
    setPlatformVersion(9);
    Os::postToTwitter(strText, QPixmap(), url);
    EXPECT_TRUE(browser.list.isEmpty());
    setPlatformVersion(16);
    Os::postToTwitter(strText, QPixmap(), url);
    Os::postToFacebook(strText, QPixmap(), url);
    Os::postToLinkedin(strText, QPixmap(), url);
    Os::postToEmail(strText, QPixmap(), url);
    ASSERT_EQ(browser.list.size(), 4);
    EXPECT_EQ(browser.item(0, u"status"_qs), strText + u' ' + url.toString());
    EXPECT_EQ(browser.item(1, u"u"_qs), url.toString());
    EXPECT_EQ(browser.item(2, u"url"_qs), url.toString());
    EXPECT_EQ(browser.item(3, u"body"_qs), strText + u" - "_qs + url.toString());
}

TEST(Os, bookmarksAreStoredAndTellWhatIsWrong)
{
    const QTemporaryDir dir;
    qInstallMessageHandler(noteLog);
    SimpleBookmark bookmark;
    EXPECT_TRUE(bookmark.resolvingBookmark().isEmpty());
    bookmark.startAccessingBookmark();
    bookmark.stopAccessingBookmark();
    EXPECT_TRUE(bookmark.url().isEmpty());
    EXPECT_EQ(g_lstLog.count(u"bookmark is not resolved"_qs), 3);

    const QUrl url = QUrl::fromLocalFile(dir.filePath(u"Musik ü"_qs));
    bookmark.createBookmark(url);
    EXPECT_TRUE(App::settingsValue(u"bookmark"_qs).toByteArray().isEmpty());
    ASSERT_TRUE(QDir().mkpath(url.toLocalFile()));
    bookmark.createBookmark(url);
    SimpleBookmark next;
    EXPECT_EQ(next.resolvingBookmark(), url);
    next.startAccessingBookmark();
    next.stopAccessingBookmark();
    EXPECT_EQ(next.url(), url);
    ASSERT_TRUE(QDir().rmdir(url.toLocalFile()));
    EXPECT_EQ(next.resolvingBookmark(), url);
    next.startAccessingBookmark();
    qInstallMessageHandler(nullptr);
    EXPECT_EQ(g_lstLog.count(u"Can not access"_qs), 1) << qPrintable(g_lstLog.join(u'\n'));
    EXPECT_EQ(g_lstLog.count(u"bookmark is not resolved"_qs), 3);
}

TEST(Os, fileDialogsAreSheetsOfTheirParent)
{
    const QTemporaryDir dir;
    const QString strFile = dir.filePath(u"a.css"_qs);
    ASSERT_TRUE(MediaMaker::writeFile(strFile, "x"));
    auto pwgt = std::make_unique<QWidget>();
    pwgt->show();
    // Acts on the dialog as soon as it is there.
    const auto whenShown = [&pwgt](const std::function<void(QFileDialog *)> &act) {
        auto *ptimer = new QTimer(pwgt.get());
        QObject::connect(ptimer, &QTimer::timeout, ptimer, [&pwgt, ptimer, act] {
            if (auto *pdlg = pwgt->findChild<QFileDialog *>()) {
                EXPECT_EQ(pdlg->windowModality(), Qt::WindowModal);
                ptimer->stop();
                act(pdlg);
            }
        });
        ptimer->start(10);
    };
    const auto choose = [](QFileDialog *pdlg) {
        pdlg->findChild<QLineEdit *>(u"fileNameEdit"_qs)->setText(u"a.css"_qs);
        QMetaObject::invokeMethod(pdlg, "accept");
    };
    constexpr auto option = QFileDialog::DontUseNativeDialog;
    const QString strDir = dir.path();
    const QString strFilter = u"Style (*.css)"_qs;
    whenShown(choose);
    EXPECT_EQ(
        FileDialog::getOpenFileName(pwgt.get(), {}, strDir, strFilter, nullptr, option), strFile);
    whenShown(choose);
    EXPECT_EQ(FileDialog::getOpenFileNames(pwgt.get(), {}, strDir, strFilter, nullptr, option),
        QStringList {strFile});
    EXPECT_EQ(pwgt->findChild<QFileDialog *>(), nullptr);
    whenShown([](QFileDialog *pdlg) {
        EXPECT_EQ(pdlg->acceptMode(), QFileDialog::AcceptSave);
        pdlg->reject();
    });
    EXPECT_EQ(
        FileDialog::getSaveFileName(pwgt.get(), {}, strDir, strFilter, nullptr, option), QString());
    whenShown([&pwgt](QFileDialog *) { QTimer::singleShot(0, [&pwgt] { pwgt.reset(); }); });
    EXPECT_EQ(
        FileDialog::getOpenFileName(pwgt.get(), {}, strDir, strFilter, nullptr, option), QString());
}

const auto *const busEnvironment = testing::AddGlobalTestEnvironment(new BusEnvironment);

}
