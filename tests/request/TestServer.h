#pragma once

#include "Literals.h"
#include "MediaMaker.h"

#include <functional>
#include <memory>
#include <QFile>
#include <QSslCertificate>
#include <QSslKey>
#include <QSslSocket>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>

/// A certificate of its own for one test, for 127.0.0.1.
struct TestCertificate
{
    TestCertificate()
    {
        const QTemporaryDir dir;
        const QString strKey = dir.filePath(u"key.pem"_qs);
        const QString strCertificate = dir.filePath(u"certificate.pem"_qs);
        MediaMaker::runTool(u"openssl"_qs,
            {u"req"_qs, u"-x509"_qs, u"-newkey"_qs, u"rsa:2048"_qs, u"-nodes"_qs, u"-days"_qs,
                u"2"_qs, u"-subj"_qs, u"/CN=127.0.0.1"_qs, u"-addext"_qs,
                u"subjectAltName=IP:127.0.0.1"_qs, u"-keyout"_qs, strKey, u"-out"_qs,
                strCertificate});
        key = QSslKey(MediaMaker::bytesOf(strKey), QSsl::Rsa);
        certificate = QSslCertificate(MediaMaker::bytesOf(strCertificate));
    }

    QSslKey key;
    QSslCertificate certificate;
};

/// A web server on loopback: it notes the request lines, and answers each as it is told.
class TestServer : public QTcpServer
{
public:
    /// What to do with a request; the socket is the server's.
    using Answer = std::function<void(QTcpSocket *, const QByteArray &requestLine)>;

    explicit TestServer(const Answer &answer, const TestCertificate *pcertificate = nullptr)
        : m_answer(answer)
        , m_pcertificate(pcertificate)
    {
        listen(QHostAddress::LocalHost);
    }

    /// A server that sends these bytes and closes.
    explicit TestServer(const QByteArray &answer)
        : TestServer([answer](QTcpSocket *psocket, const QByteArray &) { send(psocket, answer); })
    {
    }

    QString address() const
    {
        return (m_pcertificate != nullptr ? u"https://127.0.0.1:%1"_qs : u"http://127.0.0.1:%1"_qs)
            .arg(serverPort());
    }

    static void send(QTcpSocket *psocket, const QByteArray &bytes)
    {
        psocket->write(bytes);
        psocket->disconnectFromHost();
    }

    static QByteArray ok(const QByteArray &body)
    {
        return "HTTP/1.1 200 OK\r\nContent-Length: " + QByteArray::number(body.size()) + "\r\n\r\n"
            + body;
    }

    QList<QByteArray> requests;

protected:
    void incomingConnection(qintptr handle) override
    {
        auto *psocket = new QSslSocket(this);
        psocket->setSocketDescriptor(handle);
        if (m_pcertificate != nullptr) {
            psocket->setPrivateKey(m_pcertificate->key);
            psocket->setLocalCertificate(m_pcertificate->certificate);
            psocket->startServerEncryption();
        }
        connect(psocket, &QTcpSocket::readyRead, this, [this, psocket] {
            if (psocket->canReadLine()) {
                const QByteArray line = psocket->readLine().trimmed();
                psocket->disconnect(this);
                requests.append(line);
                m_answer(psocket, line);
            }
        });
    }

private:
    Answer m_answer;
    const TestCertificate *m_pcertificate;
};
