// The desktop's services over a real bus: our own stand-ins, and a mock of the login manager.
#include "ApplicationService.h"
#include "Bus.h"
#include "FileManager.h"
#include "Launcher.h"
#include "OpenedUrls.h"
#include "SleepInhibitor.h"
#include "SystemNotices.h"
#include "TestBus.h"

#include <gtest/gtest.h>
#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusPendingCall>
#include <QElapsedTimer>
#include <QFile>
#include <QLocalServer>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QUrl>

using MediaMaker::waitFor;

namespace {

const QString loginName = u"org.freedesktop.login1"_qs;
const QString loginPath = u"/org/freedesktop/login1"_qs;
const QString loginInterface = u"org.freedesktop.login1.Manager"_qs;

/// The mock of the login manager, a process of its own.
class LoginManager
{
public:
    LoginManager()
    {
        m_process.start(u"/usr/bin/python3"_qs,
            {u"-m"_qs, u"dbusmock"_qs, u"--system"_qs, u"--template"_qs, u"logind"_qs});
        waitFor(
            [] { return bus().connection().interface()->isServiceRegistered(loginName).value(); });
    }

    ~LoginManager()
    {
        m_process.terminate();
        m_process.waitForFinished(5000);
    }

    static QDBusMessage call(
        const QString &strInterface, const QString &strMethod, const QVariantList &arguments)
    {
        auto message
            = QDBusMessage::createMethodCall(loginName, loginPath, strInterface, strMethod);
        message.setArguments(arguments);
        return bus().connection().call(message, QDBus::Block, 5000);
    }

    static void announce(const QString &strSignal, bool bBegins)
    {
        auto message = QDBusMessage::createMethodCall(
            loginName, loginPath, u"org.freedesktop.DBus.Mock"_qs, u"EmitSignal"_qs);
        message << loginInterface << strSignal << u"b"_qs << QVariantList {bBegins};
        bus().connection().call(message, QDBus::Block, 5000);
    }

    static int numLocks()
    {
        const QDBusMessage answer = call(loginInterface, u"ListInhibitors"_qs, {});
        const auto list = answer.arguments().value(0).value<QDBusArgument>();
        int nLocks = 0;
        list.beginArray();
        for (; !list.atEnd(); ++nLocks) {
            list.beginStructure();
            while (!list.atEnd()) {
                list.asVariant();
            }
            list.endStructure();
        }
        list.endArray();
        return nLocks;
    }

private:
    QProcess m_process;
};

TEST(DesktopBus, showsItemsInTheFileManagerOrOpensTheFolder)
{
    const QTemporaryDir dir;
    const QString strFile = dir.filePath(u"a b%20ü.m4a"_qs);
    ASSERT_TRUE(MediaMaker::writeFile(strFile, "x"));
    const OpenedUrls folders;
    EXPECT_FALSE(Desktop::showInFileManager(dir.filePath(u"none"_qs)));
    EXPECT_FALSE(Desktop::showInFileManager(QString()));
    {
        TestService service(
            u"org.freedesktop.FileManager1"_qs, u"/org/freedesktop/FileManager1"_qs);
        EXPECT_TRUE(Desktop::showInFileManager(strFile));
        ASSERT_TRUE(service.waitForCalls(1));
        EXPECT_EQ(service.calls[0].member(), u"ShowItems"_qs);
        const QStringList lstUris = service.calls[0].arguments().value(0).toStringList();
        ASSERT_EQ(lstUris.size(), 1);
        EXPECT_EQ(QUrl::fromEncoded(lstUris[0].toLatin1()).toLocalFile(), strFile);
        EXPECT_TRUE(lstUris[0].contains(u"%2520"_qs)) << qPrintable(lstUris[0]);

        service.answer = [](const QDBusMessage &message) {
            return message.createErrorReply(QDBusError::Failed, u"no display"_qs);
        };
        EXPECT_TRUE(Desktop::showInFileManager(dir.path() + u'/'));
        EXPECT_TRUE(waitFor([&folders] { return folders.list.size() == 1; }));
    }
    EXPECT_TRUE(Desktop::showInFileManager(strFile));
    ASSERT_TRUE(waitFor([&folders] { return folders.list.size() == 2; }));
    EXPECT_EQ(folders.list[1].toLocalFile(), dir.path());
}

TEST(DesktopBus, keepsTheDisplayAwakeAndGivesEveryCookieBack)
{
    const LoginManager login;
    TestService saver(u"org.freedesktop.ScreenSaver"_qs, u"/org/freedesktop/ScreenSaver"_qs);
    uint nCookie = 6;
    saver.answer = [&nCookie](const QDBusMessage &message) {
        return message.member() == u"Inhibit"_qs ? message.createReply(++nCookie)
                                                 : message.createReply();
    };
    Desktop::inhibitSleep(u"Program Running"_qs);
    Desktop::inhibitSleep(u"Program Running"_qs);
    ASSERT_TRUE(waitFor([] { return LoginManager::numLocks() == 1; }));
    ASSERT_TRUE(saver.waitForCalls(1));
    EXPECT_EQ(saver.calls[0].arguments().value(1).toString(), u"Program Running"_qs);
    Desktop::allowSleep();
    ASSERT_TRUE(saver.waitForCalls(2));
    EXPECT_EQ(saver.calls[1].member(), u"UnInhibit"_qs);
    EXPECT_EQ(saver.calls[1].arguments().value(0).toUInt(), 7U);
    EXPECT_TRUE(waitFor([] { return LoginManager::numLocks() == 0; }));

    // Given up before the answers are there.
    Desktop::inhibitSleep(u"Program Running"_qs);
    Desktop::allowSleep();
    ASSERT_TRUE(saver.waitForCalls(4));
    EXPECT_EQ(saver.calls[3].arguments().value(0).toUInt(), 8U);
    EXPECT_TRUE(waitFor([] { return LoginManager::numLocks() == 0; }));
}

TEST(DesktopBus, passesTheLoginManagersNoticesOn)
{
    const LoginManager login;
    const Desktop::SystemNotices notices;
    QSignalSpy sleeping(&notices, &Desktop::SystemNotices::aboutToSleep);
    QSignalSpy woken(&notices, &Desktop::SystemNotices::woken);
    QSignalSpy ending(&notices, &Desktop::SystemNotices::aboutToShutDown);
    // An answer of the bus comes after it has taken what was asked before.
    bool bListening = false;
    Desktop::Bus::system()->call(QDBusMessage::createMethodCall(u"org.freedesktop.DBus"_qs, u"/"_qs,
                                     u"org.freedesktop.DBus.Peer"_qs, u"Ping"_qs),
        [&bListening](const QDBusMessage &) { bListening = true; });
    ASSERT_TRUE(waitFor([&bListening] { return bListening; }));
    LoginManager::announce(u"PrepareForSleep"_qs, true);
    EXPECT_TRUE(waitFor([&sleeping] { return sleeping.size() == 1; }));
    EXPECT_EQ(woken.size(), 0);
    LoginManager::announce(u"PrepareForSleep"_qs, false);
    LoginManager::announce(u"PrepareForShutdown"_qs, true);
    EXPECT_TRUE(waitFor([&ending] { return ending.size() == 1; }));
    EXPECT_EQ(woken.size(), 1);
}

/// Receives the badge's signals.
class Dock : public QObject
{
    Q_OBJECT

public:
    QString application;
    QVariantMap properties;

public slots:
    void update(const QString &strApplication, const QVariantMap &map)
    {
        application = strApplication;
        properties = map;
    }
};

TEST(DesktopBus, showsTheBadge)
{
    Dock dock;
    ASSERT_TRUE(
        bus().connection().connect(QString(), QString(), u"com.canonical.Unity.LauncherEntry"_qs,
            u"Update"_qs, &dock, SLOT(update(QString, QVariantMap))));
    Desktop::setBadge(12);
    ASSERT_TRUE(waitFor([&dock] { return !dock.properties.isEmpty(); }));
    EXPECT_EQ(dock.application, u"application://"_qs + Desktop::desktopEntryName());
    EXPECT_EQ(dock.properties.value(u"count"_qs).toLongLong(), 12);
    EXPECT_TRUE(dock.properties.value(u"count-visible"_qs).toBool());
    Desktop::setBadge(-1);
    EXPECT_TRUE(waitFor([&dock] { return !dock.properties.value(u"count-visible"_qs).toBool(); }));
}

TEST(DesktopBus, aServiceThatNeverAnswersIsGivenUp)
{
    TestService mute(u"example.Mute"_qs, u"/mute"_qs);
    mute.answer = {};
    QString strError;
    QElapsedTimer timer;
    timer.start();
    Desktop::Bus::session()->call(QDBusMessage::createMethodCall(u"example.Mute"_qs, u"/mute"_qs,
                                      u"example.Mute"_qs, u"Speak"_qs),
        [&strError](const QDBusMessage &answer) { strError = answer.errorName(); });
    EXPECT_LT(timer.elapsed(), 500);
    EXPECT_TRUE(waitFor([&strError] { return !strError.isEmpty(); }, 5000));
    EXPECT_GE(timer.elapsed(), 900);
}

// One instance

/// What a second process of this program came to.
struct SecondStart
{
    bool bHandedOver = false;
    bool bHoldsName = false;
    int nMsecs = -1;
    int nExit = -1;
};

// Runs the test below in a process of its own, with the paths to hand over.
SecondStart startAgain(const QStringList &lstPaths, const QString &strAddress = QString())
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"TEST_PATHS"_qs, lstPaths.join(u'|'));
    environment.insert(u"CALDERIN_TEST_BUS"_qs, u"1"_qs);
    if (!strAddress.isEmpty()) {
        environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_qs, strAddress);
    }
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(u"/usr"_qs);
    process.start(QCoreApplication::applicationFilePath(),
        {u"--gtest_also_run_disabled_tests"_qs,
            u"--gtest_filter=SecondProcess.DISABLED_handsItsPathsOver"_qs});
    SecondStart result;
    waitFor([&process] { return process.state() == QProcess::NotRunning; }, 60000);
    const QString strOutput = QString::fromUtf8(process.readAllStandardOutput());
    const QString strLine = strOutput.mid(strOutput.indexOf(u"HANDOVER "_qs)).section(u'\n', 0, 0);
    result.bHandedOver = strLine.section(u' ', 1, 1) == u"1"_qs;
    result.nMsecs = strLine.section(u' ', 2, 2).toInt();
    result.bHoldsName = strLine.section(u' ', 3, 3) == u"1"_qs;
    result.nExit = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    return result;
}

TEST(SecondProcess, DISABLED_handsItsPathsOver)
{
    QElapsedTimer timer;
    timer.start();
    Desktop::ApplicationService service(u"example.velmora.Test"_qs);
    const QStringList lstPaths = qEnvironmentVariable("TEST_PATHS").split(u'|', Qt::SkipEmptyParts);
    const bool bHandedOver = service.handOver(lstPaths, 1000);
    const auto nMsecs = static_cast<int>(timer.elapsed());
    bool bHoldsName = false;
    Desktop::Bus::session()->whenConnected([&bHoldsName](QDBusConnection &connection) {
        const QString strOwner = connection.interface()->serviceOwner(u"example.velmora.Test"_qs);
        bHoldsName = strOwner == connection.baseService();
    });
    std::printf("\nHANDOVER %d %d %d\n", bHandedOver ? 1 : 0, nMsecs, bHoldsName ? 1 : 0);
}

TEST(DesktopBus, aSecondStartHandsItsPathsToTheFirst)
{
    Desktop::ApplicationService service(u"example.velmora.Test"_qs);
    EXPECT_FALSE(service.handOver({}, 1000));
    QSignalSpy opened(&service, &Desktop::ApplicationService::openRequested);
    QSignalSpy activated(&service, &Desktop::ApplicationService::activated);

    SecondStart second = startAgain({u"/music/50% a#b.wav"_qs, u"bin"_qs});
    EXPECT_TRUE(second.bHandedOver);
    EXPECT_EQ(second.nExit, 0);
    ASSERT_EQ(opened.size(), 1);
    EXPECT_EQ(
        opened[0][0].toStringList(), (QStringList {u"/music/50% a#b.wav"_qs, u"/usr/bin"_qs}));
    EXPECT_EQ(activated.size(), 0);

    second = startAgain({});
    EXPECT_TRUE(second.bHandedOver);
    EXPECT_EQ(activated.size(), 1);

    // As a desktop calls it, and as nobody should.
    const QString strPath = u"/example/velmora/Test"_qs;
    auto open = QDBusMessage::createMethodCall(
        u"example.velmora.Test"_qs, strPath, u"org.freedesktop.Application"_qs, u"Open"_qs);
    open << QStringList {u"file:///tmp/x%20y"_qs, u"https://velmora.example/z"_qs} << QVariantMap();
    QDBusMessage wrong = QDBusMessage::createMethodCall(
        u"example.velmora.Test"_qs, strPath, u"org.freedesktop.Application"_qs, u"Open"_qs);
    wrong << 7;
    QDBusPendingCall pendingWrong = bus().connection().asyncCall(wrong, 5000);
    QDBusPendingCall pendingOpen = bus().connection().asyncCall(open, 5000);
    ASSERT_TRUE(waitFor([&] { return pendingOpen.isFinished() && pendingWrong.isFinished(); }));
    EXPECT_FALSE(pendingOpen.isError());
    EXPECT_TRUE(pendingWrong.isError());
    ASSERT_EQ(opened.size(), 2);
    EXPECT_EQ(opened[1][0].toStringList(), QStringList {u"/tmp/x y"_qs});
}

TEST(DesktopBus, aStartGoesOnWithoutAnAnswer)
{
    {
        TestService frozen(u"example.velmora.Test"_qs, u"/example/velmora/Test"_qs);
        frozen.answer = {};
        const SecondStart second = startAgain({u"/x"_qs});
        EXPECT_TRUE(second.bHandedOver);
        EXPECT_LT(second.nMsecs, 2000);
        EXPECT_EQ(frozen.calls.size(), 1);
    }
    EXPECT_FALSE(startAgain({u"/x"_qs}).bHandedOver);
    EXPECT_FALSE(startAgain({u"/x"_qs}, u"unix:path=/nonexistent"_qs).bHandedOver);

    // A bus that accepts and never answers.
    const QTemporaryDir dir;
    QLocalServer server;
    ASSERT_TRUE(server.listen(dir.filePath(u"bus"_qs)));
    const SecondStart stuck = startAgain({u"/x"_qs}, u"unix:path="_qs + server.fullServerName());
    EXPECT_FALSE(stuck.bHandedOver);
    EXPECT_LT(stuck.nMsecs, 2000);
    EXPECT_EQ(stuck.nExit, 0);
}

TEST(DesktopBus, aStartThatMeetsAnEndBecomesTheFirst)
{
    Desktop::ApplicationService service(u"example.velmora.Test"_qs);
    ASSERT_FALSE(service.handOver({}, 1000));
    const QSignalSpy opened(&service, &Desktop::ApplicationService::openRequested);
    auto open = QDBusMessage::createMethodCall(u"example.velmora.Test"_qs,
        u"/example/velmora/Test"_qs, u"org.freedesktop.Application"_qs, u"Open"_qs);
    open << QStringList {u"file:///x"_qs} << QVariantMap();
    // On its way or in the queue while no event loop runs: never taken and then forgotten.
    QDBusPendingCall pending = bus().connection().asyncCall(open, 5000);
    service.withdraw();
    pending.waitForFinished();
    EXPECT_TRUE(pending.isError());
    EXPECT_NE(pending.error().type(), QDBusError::NoReply);
    EXPECT_EQ(opened.size(), 0);
    const SecondStart second = startAgain({u"/x"_qs});
    EXPECT_FALSE(second.bHandedOver);
    EXPECT_TRUE(second.bHoldsName);

    // The first ends between the question for its name and the request.
    TestService ending(u"example.velmora.Test"_qs, u"/example/velmora/Test"_qs);
    ending.answer = [](const QDBusMessage &message) {
        bus().connection().unregisterService(u"example.velmora.Test"_qs);
        return message.createErrorReply(QDBusError::Failed, u"ending"_qs);
    };
    const SecondStart third = startAgain({u"/x"_qs});
    EXPECT_FALSE(third.bHandedOver);
    EXPECT_TRUE(third.bHoldsName);
    EXPECT_EQ(ending.calls.size(), 1);
}

const auto *const busEnvironment = testing::AddGlobalTestEnvironment(new BusEnvironment);

}

#include "DesktopBusTest.moc"
