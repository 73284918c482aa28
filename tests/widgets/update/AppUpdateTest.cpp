#include "App.h"
#include "AppUpdateDialog.h"
#include "MediaMaker.h"
#include "OpenedUrls.h"
#include "TestServer.h"

#include <gtest/gtest.h>
#include <QCheckBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QTimer>

using QMWidgets::App;

namespace {

TEST(AppUpdate, readsTheBuildFile)
{
    struct Case
    {
        QByteArray text;
        bool bAvailable;
    };
    const QByteArray built = App::buildDate().toString(App::dateFormat()).toLatin1();
    const Case cases[] = {
        {"build:2.0;date:2999-01-01;macos:all;", true},
        {"build: 2.0 ;\r\n\tdate:2999-01-01;\nmacos: all ;\n", true},
        {"nonsense;x:y;build:a:2.0;date:2999-01-01;macos:10_09;", true},
        {"build:2.0;date:2999-01-01;macos:10_14;", true},
        {"build:2.0;date:2999-01-01;macos:10_16;", false},
        {"build:2.0;date:2999-01-01;macos:none;", false},
        {"build:2.0;date:2999-01-01;", false},
        {"version:2.0;date:2999-01-01;macos:all;", false},
        {"build:2.0;date:" + built + ";macos:all;", false},
        {"build:2.0;date:soon;macos:all;", false},
        {QByteArray("build:2.0;date:2999-01-01;macos:all\0\xff;", 38), true},
        {QByteArray("build:2.0;\0date:2999-01-01;macos:all;", 37), false},
        {"<html>\xff\xfe</html>", false},
        {"build:" + QByteArray(200000, 'x') + ";date:2999-01-01;macos:all;", false},
        {"", false},
    };
    for (const Case &each : cases) {
        const TestServer server(TestServer::ok(each.text));
        App::setUpdateServers({server.address()});
        EXPECT_EQ(App::isUpdateAvailable(), each.bAvailable) << each.text.left(60).constData();
        ASSERT_EQ(server.requests.size(), 1);
        EXPECT_EQ(server.requests[0], "GET /apps/buildsinfo/calderin%20m4a_mac HTTP/1.1");
    }
    EXPECT_EQ(App::updateVersion(), u"2.0"_qs);
}

TEST(AppUpdate, asksTheEmergencyServerWhenTheFirstIsSilent)
{
    const TestServer mute([](QTcpSocket *, const QByteArray &) {});
    const TestServer server(TestServer::ok("build:3.0;date:2999-01-01;macos:all;"));
    App::setUpdateTimeLimit(300);
    App::setUpdateServers({mute.address(), server.address()});
    QElapsedTimer timer;
    timer.start();
    EXPECT_TRUE(App::isUpdateAvailable());
    EXPECT_GE(timer.elapsed(), 280);
    EXPECT_LT(timer.elapsed(), 5000);
    EXPECT_EQ(App::updateVersion(), u"3.0"_qs);
    App::setUpdateServers({mute.address()});
    EXPECT_FALSE(App::isUpdateAvailable());
    App::setUpdateTimeLimit(7000);
}

/// Notes the dialog that a check brings up, and closes it.
class DialogCloser : public QObject
{
public:
    DialogCloser()
    {
        connect(&m_timer, &QTimer::timeout, this, [this] {
            if (auto *pdlg = qobject_cast<AppUpdateDialog *>(QApplication::activeModalWidget())) {
                texts << pdlg->findChildren<QLabel *>().last()->text();
                pdlg->slotCancel();
            }
        });
        m_timer.start(20);
    }

    QStringList texts;

private:
    QTimer m_timer;
};

TEST(AppUpdate, checksAtTheStartEverySixDays)
{
    const TestServer server(TestServer::ok("build:4.<0>;date:2999-01-01;macos:all;"));
    App::setUpdateServers({server.address()});
    QDate today(2026, 3, 1);
    App::setClock([&today] { return today; });
    App *papp = App::theApp();
    const auto stored = [] { return App::settingsValue(u"LastUpdateCheck"_qs).toString(); };
    {
        // Not on top of a search or a run, but soon behind it.
        QDialog search;
        search.open();
        papp->slotCheckUpdateOnStart();
        EXPECT_TRUE(stored().isEmpty());
    }
    EXPECT_TRUE(MediaMaker::waitFor([&stored] { return stored() == u"2026-03-01"_qs; }));

    const DialogCloser closer;
    today = QDate(2026, 3, 6);
    papp->slotCheckUpdateOnStart();
    EXPECT_TRUE(server.requests.isEmpty());
    today = QDate(2026, 3, 7);
    AppUpdateDialog::setChecked(false);
    papp->slotCheckUpdateOnStart();
    EXPECT_TRUE(server.requests.isEmpty());
    AppUpdateDialog::setChecked(true);
    papp->slotCheckUpdateOnStart();
    EXPECT_EQ(server.requests.size(), 1);
    ASSERT_EQ(closer.texts.size(), 1);
    EXPECT_TRUE(closer.texts[0].contains(u"4.&lt;0&gt; of Calderin M4A is available"_qs));
    EXPECT_EQ(stored(), u"2026-03-07"_qs);

    // Nothing new: the next start asks again.
    const TestServer nothing(TestServer::ok("build:1;date:1999-01-01;macos:all;"));
    App::setUpdateServers({nothing.address()});
    today = QDate(2026, 4, 7);
    papp->slotCheckUpdateOnStart();
    EXPECT_EQ(nothing.requests.size(), 1);
    EXPECT_EQ(stored(), u"2026-03-07"_qs);
    EXPECT_EQ(closer.texts.size(), 1);
    papp->slotCheckUpdate();
    ASSERT_EQ(closer.texts.size(), 2);
    EXPECT_TRUE(closer.texts[1].contains(u"You are using the latest version"_qs));
    App::setClock({});
}

TEST(AppUpdate, dialogStoresItsBoxAndOpensThePage)
{
    const OpenedUrls browser;
    AppUpdateDialog dialog;
    dialog.findChild<QCheckBox *>()->click();
    EXPECT_FALSE(AppUpdateDialog::isChecked());
    dialog.findChild<QCheckBox *>()->click();
    EXPECT_TRUE(AppUpdateDialog::isChecked());
    dialog.slotUpdate();
    EXPECT_EQ(browser.last().path(), u"/apps/updatepage.php"_qs);
    EXPECT_EQ(browser.item(0, u"appname"_qs), u"calderin m4a"_qs);
}

}
