#pragma once

#include <functional>
#include <memory>
#include <QObject>
#include <vector>

class QDBusConnection;
class QDBusMessage;

namespace Desktop {

/// A connection to one of the desktop's message buses.
///
/// It is made on a thread of its own, since a bus that accepts and never answers blocks its caller;
/// what is asked before it stands waits for it. Everything here is for the user-interface thread
/// and returns at once, but for waitForConnected. The answers come on that thread, too.
class Bus : public QObject
{
    Q_OBJECT

public:
    using Answer = std::function<void(const QDBusMessage &)>;
    using Use = std::function<void(QDBusConnection &)>;

    /// How long a service may take to answer, in milliseconds.
    static constexpr int answerLimitMs = 1000;

    /// The same where it may have to be started first and nothing waits for it.
    static constexpr int startLimitMs = 25000;

    /// The two buses; made on first use, kept to the end of the process.
    static Bus *session();
    static Bus *system();

    /// Calls use with the connection, now or once it stands; failed (if given) if there is no bus.
    void whenConnected(const Use &use, const std::function<void()> &failed = {});

    /// Calls a method. The answer (if wanted) is the reply or an error, also where there is no bus.
    void call(const QDBusMessage &message, const Answer &answer = {}, int limitMs = answerLimitMs);

    /// Sends a signal; nothing happens where there is no bus.
    void send(const QDBusMessage &message);

    /// Waits until the connection stands; false if there is none or if it takes longer.
    bool waitForConnected(int limitMs);

    /// False once it is known that there is no bus.
    bool isPossible() const;

private:
    Q_DISABLE_COPY(Bus)

    enum class Kind
    {
        Session,
        System
    };

    struct Attempt;

    struct Waiting
    {
        Use use;
        std::function<void()> failed;
    };

    explicit Bus(Kind kind);
    static void finishBeforeTheEnd(const std::shared_ptr<Attempt> &attempt);
    bool connectInBackground(Kind kind);
    void takeResult();

    std::shared_ptr<Attempt> m_attempt;
    std::vector<Waiting> m_waiting;
    QString m_strName;
    bool m_bTaken = false;
    bool m_bConnected = false;
};

/// One line in the log on a service that can't be used.
void logBusFailure(const char *operation, const QDBusMessage &answer);

} // namespace Desktop
