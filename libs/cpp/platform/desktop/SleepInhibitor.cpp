#include "SleepInhibitor.h"

#include "Bus.h"
#include "Literals.h"
#include <optional>
#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusUnixFileDescriptor>

namespace Desktop {

namespace {

const char *const screenSaverPaths[] = {"/org/freedesktop/ScreenSaver", "/ScreenSaver"};

/// One period in which sleep isn't wanted: it holds the screen saver's cookie and the login
/// manager's lock, and gives back what comes after its end.
class Period : public std::enable_shared_from_this<Period>
{
public:
    void begin(const QString &strReason)
    {
        askScreenSaver(strReason, 0);
        askLoginManager(strReason);
    }

    void end()
    {
        m_bOver = true;
        m_lock = QDBusUnixFileDescriptor();
        releaseCookie();
    }

private:
    void askScreenSaver(const QString &strReason, std::size_t path);
    void askLoginManager(const QString &strReason);

    void releaseCookie()
    {
        if (m_cookie) {
            Bus::session()->call(screenSaverCall(u"UnInhibit"_qs) << *m_cookie);
            m_cookie.reset();
        }
    }

    QDBusMessage screenSaverCall(const QString &strMethod) const
    {
        return QDBusMessage::createMethodCall(u"org.freedesktop.ScreenSaver"_qs,
            QString::fromLatin1(m_path), u"org.freedesktop.ScreenSaver"_qs, strMethod);
    }

    bool m_bOver = false;
    const char *m_path = screenSaverPaths[0];
    std::optional<uint> m_cookie;
    QDBusUnixFileDescriptor m_lock;
};

void Period::askScreenSaver(const QString &strReason, std::size_t path)
{
    m_path = screenSaverPaths[path];
    const QDBusMessage message = screenSaverCall(u"Inhibit"_qs)
        << QCoreApplication::applicationName() << strReason;
    Bus::session()->call(
        message,
        [self = shared_from_this(), strReason, path](const QDBusMessage &answer) {
            if (answer.type() == QDBusMessage::ReplyMessage && !answer.arguments().isEmpty()) {
                self->m_cookie = answer.arguments().first().toUInt();
                if (self->m_bOver) {
                    self->releaseCookie();
                }
            } else if (path + 1 < std::size(screenSaverPaths)
                && answer.errorName().startsWith(u"org.freedesktop.DBus.Error.Unknown"_qs)
                && !self->m_bOver) {
                self->askScreenSaver(strReason, path + 1);
            } else {
                logBusFailure("Keeping the display awake", answer);
            }
        },
        Bus::startLimitMs);
}

void Period::askLoginManager(const QString &strReason)
{
    auto message = QDBusMessage::createMethodCall(u"org.freedesktop.login1"_qs,
        u"/org/freedesktop/login1"_qs, u"org.freedesktop.login1.Manager"_qs, u"Inhibit"_qs);
    message << u"idle"_qs << QCoreApplication::applicationName() << strReason << u"block"_qs;
    Bus::system()->call(
        message,
        [self = shared_from_this()](const QDBusMessage &answer) {
            if (answer.type() != QDBusMessage::ReplyMessage || answer.arguments().isEmpty()) {
                logBusFailure("Keeping the machine awake", answer);
            } else if (!self->m_bOver) {
                self->m_lock = answer.arguments().first().value<QDBusUnixFileDescriptor>();
            }
        },
        Bus::startLimitMs);
}

std::shared_ptr<Period> &currentPeriod()
{
    static std::shared_ptr<Period> period;
    return period;
}

}

void inhibitSleep(const QString &strReason)
{
    if (!currentPeriod()) {
        currentPeriod() = std::make_shared<Period>();
        currentPeriod()->begin(strReason);
    }
}

void allowSleep()
{
    if (currentPeriod()) {
        currentPeriod()->end();
        currentPeriod().reset();
    }
}

} // namespace Desktop
