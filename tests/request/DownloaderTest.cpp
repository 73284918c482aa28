#include "Downloader.h"
#include "TestServer.h"

#include <gtest/gtest.h>
#include <QElapsedTimer>
#include <QSignalSpy>
#include <QSslConfiguration>
#include <QTimer>

using QMRequest::Downloader;

namespace {

constexpr auto allEvents = QEventLoop::AllEvents;

TEST(Downloader, takesWholeAnswersOnly)
{
    struct Case
    {
        const char *name;
        QByteArray answer;
        QByteArray expected;
    };
    const QByteArray chunked = "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n";
    const Case cases[] = {
        {"whole", TestServer::ok("hello"), "hello"},
        {"zero bytes", TestServer::ok(QByteArray("a\0b\0", 4)), QByteArray("a\0b\0", 4)},
        {"until the end", "HTTP/1.0 200 OK\r\n\r\nhello", "hello"},
        {"chunked", chunked + "5\r\nhello\r\n0\r\n\r\n", "hello"},
        {"cut", "HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\nhello", ""},
        {"not found", "HTTP/1.1 404 No\r\nContent-Length: 5\r\n\r\nhello", ""},
        {"garbage", QByteArray("\xff\x00\x01garbage\r\n\r\n", 14), ""},
        {"nothing", "", ""},
        {"a size that is none", "HTTP/1.1 200 OK\r\nContent-Length: -7\r\n\r\n", ""},
        {"a redirect to itself", "HTTP/1.1 302 Go\r\nLocation: /\r\nContent-Length: 0\r\n\r\n", ""},
        {"a redirect to a file", "HTTP/1.1 302 Go\r\nLocation: file:///etc/passwd\r\n\r\n", ""},
    };
    for (const Case &each : cases) {
        const TestServer server(each.answer);
        Downloader downloader;
        EXPECT_EQ(downloader.get(server.address(), allEvents), each.expected) << each.name;
        EXPECT_TRUE(downloader.isFinished()) << each.name;
    }
}

TEST(Downloader, followsARedirectAndCompletesAnAddress)
{
    const TestServer server([](QTcpSocket *psocket, const QByteArray &line) {
        TestServer::send(psocket,
            line.contains("/target")
                ? TestServer::ok("here")
                : QByteArray("HTTP/1.1 301 Go\r\nLocation: /target\r\nContent-Length: 0\r\n\r\n"));
    });
    Downloader downloader;
    QSignalSpy percent(&downloader, &Downloader::progressPercent);
    EXPECT_EQ(downloader.get(server.address().mid(7), allEvents), "here");
    ASSERT_FALSE(percent.isEmpty());
    EXPECT_EQ(percent.last().first().toInt(), 100);
    EXPECT_EQ(downloader.fullRequest(u"https://a"_qs), u"https://a"_qs);
    EXPECT_EQ(downloader.fullRequest(u"httpd/a"_qs), u"http://httpd/a"_qs);
}

TEST(Downloader, limitsTheSize)
{
    constexpr qint64 limit = 65536;
    for (const bool bStated : {false, true}) {
        qint64 nSent = 0;
        const QByteArray block(1 << 20, 'x');
        const TestServer server([&nSent, &block, bStated](QTcpSocket *psocket, const QByteArray &) {
            psocket->write(bStated ? "HTTP/1.1 200 OK\r\nContent-Length: 104857600\r\n\r\n"
                                   : "HTTP/1.1 200 OK\r\n\r\n");
            const auto more = [psocket, &nSent, &block] {
                if (psocket->bytesToWrite() < block.size() && nSent < 100 * block.size()) {
                    nSent += psocket->write(block);
                }
            };
            QObject::connect(psocket, &QTcpSocket::bytesWritten, psocket, more);
            more();
        });
        Downloader downloader;
        downloader.setSizeLimit(limit);
        QElapsedTimer timer;
        timer.start();
        EXPECT_EQ(downloader.get(server.address(), allEvents), "");
        EXPECT_LT(timer.elapsed(), 5000);
        EXPECT_LT(nSent, 20 * block.size());
    }
    const TestServer server(TestServer::ok(QByteArray(limit, 'y')));
    Downloader downloader;
    downloader.setSizeLimit(limit);
    EXPECT_EQ(downloader.get(server.address(), allEvents).size(), limit);
}

TEST(Downloader, givesUpWhenItIsTold)
{
    const TestServer mute([](QTcpSocket *, const QByteArray &) {});
    Downloader downloader;
    QByteArray second = "not asked";
    QTimer::singleShot(
        100, &downloader, [&] { second = downloader.get(mute.address(), allEvents); });
    QTimer::singleShot(300, &downloader, &Downloader::slotAbort);
    QElapsedTimer timer;
    timer.start();
    EXPECT_EQ(downloader.get(mute.address(), allEvents), "");
    EXPECT_LT(timer.elapsed(), 5000);
    EXPECT_EQ(second, "");
    downloader.slotAbort();

    const TestServer server(TestServer::ok("again"));
    EXPECT_EQ(downloader.get(server.address(), allEvents), "again");

    // Refused: nobody listens there any more.
    QString strAddress;
    {
        const TestServer gone(QByteArray {});
        strAddress = gone.address();
    }
    EXPECT_EQ(downloader.get(strAddress, allEvents), "");
    EXPECT_EQ(downloader.get(u"https://"_qs, allEvents), "");
}

TEST(Downloader, writesAFileWhateverComes)
{
    const QTemporaryDir dir;
    const QString strFile = dir.filePath(u"file"_qs);
    Downloader downloader;
    const TestServer server(TestServer::ok("content"));
    downloader.getToFile(server.address(), strFile, allEvents);
    EXPECT_EQ(MediaMaker::bytesOf(strFile), "content");
    const TestServer nothing(QByteArray {});
    downloader.getToFile(nothing.address(), strFile, allEvents);
    EXPECT_TRUE(QFile::exists(strFile));
    EXPECT_EQ(MediaMaker::bytesOf(strFile), "");
}

TEST(Downloader, trustsTheRightCertificateOnly)
{
    const TestCertificate certificate;
    const TestServer server(
        [](QTcpSocket *psocket, const QByteArray &) {
            TestServer::send(psocket, TestServer::ok("secret"));
        },
        &certificate);
    EXPECT_EQ(Downloader().get(server.address(), allEvents), "");
    EXPECT_TRUE(server.requests.isEmpty());

    const QSslConfiguration before = QSslConfiguration::defaultConfiguration();
    QSslConfiguration trusting = before;
    trusting.setCaCertificates({certificate.certificate});
    QSslConfiguration::setDefaultConfiguration(trusting);
    EXPECT_EQ(Downloader().get(server.address(), allEvents), "secret");

    // From a secured address there is no way back to an open one.
    const TestServer open(TestServer::ok("open"));
    const QByteArray location = open.address().toLatin1();
    const TestServer leading(
        [location](QTcpSocket *psocket, const QByteArray &) {
            TestServer::send(psocket,
                "HTTP/1.1 302 Go\r\nContent-Length: 0\r\nLocation: " + location + "\r\n\r\n");
        },
        &certificate);
    EXPECT_EQ(Downloader().get(leading.address(), allEvents), "");
    EXPECT_EQ(open.requests.size(), 0);
    QSslConfiguration::setDefaultConfiguration(before);
}

}
