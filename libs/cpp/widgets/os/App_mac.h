#pragma once

#include <QObject>
#include <QStringList>

/// The program as the desktop sees it: one instance, which the desktop can activate and ask to open
/// files. Requests to open arrive as QFileOpenEvent at the application object.
class App_mac : public QObject
{
    Q_OBJECT

public:
    /// The one object; made on first use. It offers the program on the session bus in the
    /// background, by the name that Desktop::applicationId() gives.
    static App_mac *instance();

    /// Hands paths over to an instance of this program that is running already; without paths, that
    /// instance is activated. True if there is one: then this process has nothing left to do. False
    /// if this is the first, or if there is no session bus. Takes at most a second.
    static bool handOverToRunningInstance(const QStringList &lstPaths);

    /// The process is no longer the running instance: it is about to end, and the next start gets a
    /// window of its own, however long the end takes.
    static void withdraw();

signals:
    /// The user has asked for the program that is running already.
    void dockClicked();

private slots:
    void slotActivated();
    void slotOpenRequested(const QStringList &lstPaths);

private:
    Q_DISABLE_COPY(App_mac)
    App_mac();
};
