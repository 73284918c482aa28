#pragma once

#include "Literals.h"
#include "MediaMaker.h"

#include <functional>
#include <gtest/gtest.h>
#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QProcess>
#include <QVector>

/// A message bus of its own for one test process, as the session's and as the system's. Make it
/// before the code under test asks for either.
class TestBus
{
public:
    TestBus()
    {
        m_daemon.start(u"dbus-daemon"_qs,
            {u"--session"_qs, u"--nofork"_qs, u"--nopidfile"_qs, u"--print-address=1"_qs});
        QByteArray address;
        while (!address.endsWith('\n') && m_daemon.waitForReadyRead(5000)) {
            address += m_daemon.readAllStandardOutput();
        }
        m_address = QString::fromLatin1(address.trimmed());
        qputenv("DBUS_SESSION_BUS_ADDRESS", address.trimmed());
        qputenv("DBUS_SYSTEM_BUS_ADDRESS", address.trimmed());
    }

    ~TestBus()
    {
        m_daemon.terminate();
        m_daemon.waitForFinished(5000);
    }

    /// The services' side of the bus.
    QDBusConnection connection() const
    {
        return QDBusConnection::connectToBus(m_address, u"test-services"_qs);
    }

private:
    Q_DISABLE_COPY(TestBus)
    QProcess m_daemon;
    QString m_address;
};

/// The bus of the process; it is started before the first test asks for one.
inline TestBus &bus()
{
    static TestBus theBus;
    return theBus;
}

/// A service on the bus that notes the calls of one interface and answers as it is told.
class TestService : public QDBusVirtualObject
{
public:
    using Answer = std::function<QDBusMessage(const QDBusMessage &)>;

    TestService(const QString &strName, const QString &strPath)
        : m_connection(bus().connection())
        , m_strName(strName)
        , m_strPath(strPath)
    {
        m_connection.registerVirtualObject(m_strPath, this);
        m_connection.registerService(m_strName);
    }

    ~TestService() override
    {
        m_connection.unregisterService(m_strName);
        m_connection.unregisterObject(m_strPath);
    }

    QString introspect(const QString &) const override { return {}; }

    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override
    {
        calls.append(message);
        if (answer) {
            connection.send(answer(message));
        } else {
            message.setDelayedReply(true); // for ever
        }
        return true;
    }

    bool waitForCalls(int nCalls) const
    {
        return MediaMaker::waitFor([this, nCalls] { return calls.size() >= nCalls; });
    }

    static QDBusMessage reply(const QDBusMessage &message) { return message.createReply(); }

    QVector<QDBusMessage> calls;
    Answer answer = reply;

private:
    QDBusConnection m_connection;
    QString m_strName;
    QString m_strPath;
};

/// Starts the bus, but in a process that is to find its own.
class BusEnvironment : public testing::Environment
{
public:
    void SetUp() override
    {
        if (!qEnvironmentVariableIsSet("TEST_PATHS")) {
            bus();
        }
    }
};
