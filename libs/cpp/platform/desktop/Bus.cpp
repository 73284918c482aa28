#include "Bus.h"

#include "Literals.h"
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDebug>
#include <QFileInfo>
#include <system_error>
#include <thread>

namespace Desktop {

/// What the connecting thread and the bus share; it outlives both.
struct Bus::Attempt
{
    std::mutex mutex;
    std::condition_variable changed;
    bool bFinished = false;
    bool bConnected = false;

    bool wait(int limitMs)
    {
        std::unique_lock lock(mutex);
        return changed.wait_for(
            lock, std::chrono::milliseconds(limitMs), [this] { return bFinished; });
    }
};

namespace {

// Without an address the bus library would start a bus of its own for this program alone.
bool hasSessionBus()
{
    return !qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS")
        || QFileInfo::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + u"/bus"_qs);
}

}

// A process that ends at once lets the thread finish: the bus library isn't taken down under it.
void Bus::finishBeforeTheEnd(const std::shared_ptr<Attempt> &attempt)
{
    static std::vector<std::shared_ptr<Attempt>> attempts;
    if (attempts.empty()) {
        qAddPostRoutine([] {
            for (const auto &each : attempts) {
                each->wait(answerLimitMs);
            }
        });
    }
    attempts.push_back(attempt);
}

Bus *Bus::session()
{
    static Bus *const pbus = new Bus(Kind::Session); // never deleted: answers may come to the end
    return pbus;
}

Bus *Bus::system()
{
    static Bus *const pbus = new Bus(Kind::System); // as above
    return pbus;
}

Bus::Bus(Kind kind)
    : m_attempt(std::make_shared<Attempt>())
    , m_strName(kind == Kind::Session ? u"calderin-session"_qs : u"calderin-system"_qs)
{
    if ((kind == Kind::Session && !hasSessionBus()) || !connectInBackground(kind)) {
        m_attempt->bFinished = true;
        takeResult();
    }
}

/// False where there is no thread for it.
bool Bus::connectInBackground(Kind kind)
{
    const auto type
        = kind == Kind::Session ? QDBusConnection::SessionBus : QDBusConnection::SystemBus;
    const auto connectToBus = [this, attempt = m_attempt, type, strName = m_strName] {
        const bool bConnected = QDBusConnection::connectToBus(type, strName).isConnected();
        const std::lock_guard lock(attempt->mutex);
        attempt->bConnected = bConnected;
        attempt->bFinished = true;
        QMetaObject::invokeMethod(this, &Bus::takeResult, Qt::QueuedConnection);
        attempt->changed.notify_all();
    };
    try {
        std::thread(connectToBus).detach();
    } catch (const std::system_error &) {
        return false;
    }
    finishBeforeTheEnd(m_attempt);
    return true;
}

void Bus::takeResult()
{
    if (m_bTaken) {
        return;
    }
    {
        const std::lock_guard lock(m_attempt->mutex);
        m_bConnected = m_attempt->bConnected;
    }
    m_bTaken = true;
    std::vector<Waiting> waiting;
    waiting.swap(m_waiting);
    for (const Waiting &entry : waiting) {
        whenConnected(entry.use, entry.failed);
    }
}

void Bus::whenConnected(const Use &use, const std::function<void()> &failed)
{
    if (!m_bTaken) {
        m_waiting.push_back({use, failed});
    } else if (m_bConnected) {
        QDBusConnection connection(m_strName);
        use(connection);
    } else if (failed) {
        failed();
    }
}

void Bus::call(const QDBusMessage &message, const Answer &answer, int limitMs)
{
    const auto use = [this, message, answer, limitMs](QDBusConnection &connection) {
        const QDBusPendingCall pending = connection.asyncCall(message, limitMs);
        if (answer) {
            auto *pwatcher = new QDBusPendingCallWatcher(pending, this);
            connect(pwatcher, &QDBusPendingCallWatcher::finished, this, [pwatcher, answer] {
                pwatcher->deleteLater();
                answer(pwatcher->reply());
            });
        }
    };
    whenConnected(use, [message, answer] {
        if (answer) {
            answer(message.createErrorReply(QDBusError::Disconnected, u"there is no bus"_qs));
        }
    });
}

void Bus::send(const QDBusMessage &message)
{
    whenConnected([message](QDBusConnection &connection) { connection.send(message); });
}

bool Bus::waitForConnected(int limitMs)
{
    if (!m_bTaken && m_attempt->wait(limitMs)) {
        takeResult();
    }
    return m_bTaken && m_bConnected;
}

bool Bus::isPossible() const
{
    return !m_bTaken || m_bConnected;
}

void logBusFailure(const char *operation, const QDBusMessage &answer)
{
    qWarning().noquote() << operation << "isn't possible:" << answer.errorMessage();
}

} // namespace Desktop
