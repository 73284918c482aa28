#include "ApplicationService.h"

#include "Bus.h"
#include "Literals.h"
#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusVirtualObject>
#include <QDebug>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QPointer>
#include <QUrl>

namespace Desktop {

namespace {

const char *const applicationInterface = "org.freedesktop.Application";

// The object path that belongs to a name: its dots as slashes, what a path can't hold as "_".
QString objectPath(const QString &strName)
{
    return u'/' + QString(strName).replace(u'.', u'/').replace(u'-', u'_');
}

// A call of the bus itself.
QDBusMessage busCall(const QString &strMethod)
{
    return QDBusMessage::createMethodCall(u"org.freedesktop.DBus"_qs, u"/org/freedesktop/DBus"_qs,
        u"org.freedesktop.DBus"_qs, strMethod);
}

QStringList localPaths(const QStringList &lstUris)
{
    QStringList lstPaths;
    for (const QString &strUri : lstUris) {
        const QUrl url(strUri);
        if (url.isLocalFile()) {
            lstPaths.append(url.toLocalFile());
        } else {
            qWarning().noquote() << "Can not open what isn't a local file:" << strUri;
        }
    }
    return lstPaths;
}

}

/// The object on the bus that takes the calls.
class ApplicationService::Object : public QDBusVirtualObject
{
public:
    explicit Object(ApplicationService *pservice)
        : m_pservice(pservice)
    {
    }

    QString introspect(const QString &) const override
    {
        return u"<interface name=\"org.freedesktop.Application\">"
               "<method name=\"Activate\"><arg type=\"a{sv}\" direction=\"in\"/></method>"
               "<method name=\"Open\"><arg type=\"as\" direction=\"in\"/>"
               "<arg type=\"a{sv}\" direction=\"in\"/></method>"
               "<method name=\"ActivateAction\"><arg type=\"s\" direction=\"in\"/>"
               "<arg type=\"av\" direction=\"in\"/><arg type=\"a{sv}\" direction=\"in\"/></method>"
               "</interface>"_qs;
    }

    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override
    {
        if (message.interface() != QLatin1String(applicationInterface)) {
            return false;
        }
        if (m_pservice->m_bWithdrawn) {
            connection.send(
                message.createErrorReply(QDBusError::Failed, u"the program is ending"_qs));
            return true;
        }
        const QPointer<ApplicationService> pservice(m_pservice);
        if (message.member() == u"Activate"_qs && message.signature() == u"a{sv}"_qs) {
            connection.send(message.createReply());
            emit pservice->activated();
            return true;
        }
        if (message.member() == u"Open"_qs && message.signature() == u"asa{sv}"_qs) {
            connection.send(message.createReply());
            emit pservice->openRequested(localPaths(message.arguments().first().toStringList()));
            return true;
        }
        return false; // there are no actions; the bus library answers with an error
    }

private:
    ApplicationService *const m_pservice;
};

/// The request for the name, and what came of it.
class ApplicationService::Claim
{
public:
    explicit Claim(const QDBusPendingCall &pending)
        : m_pending(pending)
    {
    }

    /// Waits for the bus's answer, which has a limit of its own.
    bool isHeldByAnother()
    {
        m_pending.waitForFinished();
        constexpr uint exists = 3;
        const QDBusMessage answer = m_pending.reply();
        return answer.type() == QDBusMessage::ReplyMessage
            && answer.arguments().value(0).toUInt() == exists;
    }

private:
    QDBusPendingCall m_pending;
};

ApplicationService::ApplicationService(const QString &strName, QObject *pobj)
    : QObject(pobj)
    , m_strName(strName)
    , m_object(std::make_unique<Object>(this))
{
    const QPointer<ApplicationService> self(this);
    Bus::session()->whenConnected(
        [self](QDBusConnection &) {
            if (!self.isNull()) {
                self->claimName();
            }
        },
        [] { qDebug() << "There is no session bus: the desktop can't hand files over"; });
}

ApplicationService::~ApplicationService()
{
    withdraw();
    if (m_claim != nullptr) {
        const QString strName = m_strName;
        Bus::session()->whenConnected([strName](QDBusConnection &connection) {
            connection.unregisterObject(objectPath(strName));
        });
    }
}

void ApplicationService::withdraw()
{
    if (m_bWithdrawn) {
        return;
    }
    m_bWithdrawn = true;
    if (m_claim == nullptr) {
        return;
    }
    Bus::session()->whenConnected([this](QDBusConnection &connection) {
        connection.asyncCall(busCall(u"ReleaseName"_qs) << m_strName, Bus::answerLimitMs)
            .waitForFinished();
    });
    // What the bus had passed on before is here by now; no event loop may come any more.
    QCoreApplication::sendPostedEvents(m_object.get());
}

void ApplicationService::claimName()
{
    if (m_bWithdrawn) {
        return;
    }
    Bus::session()->whenConnected([this](QDBusConnection &connection) {
        // The object first: a call may follow the name at once.
        if (connection.registerVirtualObject(objectPath(m_strName), m_object.get())) {
            requestName(connection);
        } else {
            emit failed();
        }
    });
}

void ApplicationService::requestName(QDBusConnection &connection)
{
    constexpr uint doNotQueue = 4;
    const QDBusMessage message = busCall(u"RequestName"_qs) << m_strName << doNotQueue;
    m_claim = std::make_unique<Claim>(connection.asyncCall(message, Bus::answerLimitMs / 2));
}

bool ApplicationService::handOver(const QStringList &lstPaths, int limitMs)
{
    QElapsedTimer timer;
    timer.start();
    if (!Bus::session()->waitForConnected(limitMs / 2) || m_claim == nullptr) {
        return false;
    }
    // One that is ending has given the name up when it refuses; a third may be there before us.
    constexpr int mostAttempts = 3;
    for (int nAttempt = 0; nAttempt < mostAttempts && m_claim->isHeldByAnother(); ++nAttempt) {
        const int nLeftMs = limitMs - static_cast<int>(timer.elapsed());
        const QDBusMessage answer = askToOpen(lstPaths, qMax(nLeftMs, 1));
        // One that is busy has the request in its queue.
        if (answer.type() == QDBusMessage::ReplyMessage
            || answer.errorName() == QDBusError::errorString(QDBusError::NoReply)
            || answer.errorName() == QDBusError::errorString(QDBusError::Timeout)) {
            return true;
        }
        Bus::session()->whenConnected(
            [this](QDBusConnection &connection) { requestName(connection); });
    }
    return false;
}

QDBusMessage ApplicationService::askToOpen(const QStringList &lstPaths, int limitMs) const
{
    QStringList lstUris;
    for (const QString &strPath : lstPaths) {
        const QUrl url = QUrl::fromLocalFile(QFileInfo(strPath).absoluteFilePath());
        lstUris.append(QString::fromLatin1(url.toEncoded()));
    }
    auto message = QDBusMessage::createMethodCall(m_strName, objectPath(m_strName),
        QLatin1String(applicationInterface), lstUris.isEmpty() ? u"Activate"_qs : u"Open"_qs);
    if (!lstUris.isEmpty()) {
        message << lstUris;
    }
    message << QVariantMap(); // no data of the platform
    QDBusMessage answer;
    Bus::session()->whenConnected([&answer, &message, limitMs](QDBusConnection &connection) {
        QDBusPendingCall pending = connection.asyncCall(message, limitMs);
        pending.waitForFinished();
        answer = pending.reply();
    });
    return answer;
}

} // namespace Desktop
