#pragma once

#include <memory>
#include <QObject>
#include <QStringList>

class QDBusConnection;
class QDBusMessage;

namespace Desktop {

/// The program on the session bus: the interface org.freedesktop.Application under the program's
/// own name, which one process at a time holds.
class ApplicationService : public QObject
{
    Q_OBJECT

public:
    /// Offers the program under the name, e.g. "example.velmora.CalderinM4A", in the background.
    explicit ApplicationService(const QString &strName, QObject *pobj = nullptr);
    ~ApplicationService() override;

    /// If another process holds the name: asks it to open the paths, or without paths to come to
    /// the front, and returns true. False if this process holds it, or if there is no bus. Takes at
    /// most limitMs, also where the other doesn't answer; the request has then been sent.
    bool handOver(const QStringList &lstPaths, int limitMs);

    /// For the end of the program, which may take a while: gives the name up, so that the next
    /// start is a first one, and refuses what comes or waits from now on, so that the start that
    /// asks opens its paths itself. Returns once the bus has given the name back, or after a second
    /// without an answer.
    void withdraw();

signals:
    /// The desktop asks the program to come to the front.
    void activated();

    /// The desktop asks the program to open these local files and folders.
    void openRequested(const QStringList &lstPaths);

    /// The program can't be offered on the bus.
    void failed();

private:
    Q_DISABLE_COPY(ApplicationService)
    class Object;
    class Claim;

    void claimName();
    void requestName(QDBusConnection &connection);
    QDBusMessage askToOpen(const QStringList &lstPaths, int limitMs) const;

    const QString m_strName;
    bool m_bWithdrawn = false;
    std::unique_ptr<Object> m_object;
    std::unique_ptr<Claim> m_claim;
};

} // namespace Desktop
