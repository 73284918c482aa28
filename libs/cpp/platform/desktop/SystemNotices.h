#pragma once

#include <QObject>

namespace Desktop {

/// What the login manager announces about the machine.
class SystemNotices : public QObject
{
    Q_OBJECT

public:
    /// Begins to listen, in the background.
    explicit SystemNotices(QObject *pobj = nullptr);

signals:
    void aboutToSleep();
    void woken();

    /// The machine is about to power off or to restart.
    void aboutToShutDown();

private slots:
    void slotPrepareForSleep(bool bBegins);
    void slotPrepareForShutdown(bool bBegins);

private:
    Q_DISABLE_COPY(SystemNotices)
};

} // namespace Desktop
