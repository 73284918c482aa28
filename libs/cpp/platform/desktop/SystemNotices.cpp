#include "SystemNotices.h"

#include "Bus.h"
#include "Literals.h"
#include <QDBusConnection>
#include <QDebug>
#include <QPointer>

namespace Desktop {

SystemNotices::SystemNotices(QObject *pobj)
    : QObject(pobj)
{
    const QPointer<SystemNotices> self(this);
    const auto use = [self](QDBusConnection &connection) {
        if (self.isNull()) {
            return;
        }
        const QString strService = u"org.freedesktop.login1"_qs;
        const QString strPath = u"/org/freedesktop/login1"_qs;
        const QString strInterface = u"org.freedesktop.login1.Manager"_qs;
        const bool bSleep = connection.connect(strService, strPath, strInterface,
            u"PrepareForSleep"_qs, self, SLOT(slotPrepareForSleep(bool)));
        const bool bShutdown = connection.connect(strService, strPath, strInterface,
            u"PrepareForShutdown"_qs, self, SLOT(slotPrepareForShutdown(bool)));
        if (!bSleep || !bShutdown) {
            qWarning() << "The notices of sleep and shutdown can't be listened to";
        }
    };
    Bus::system()->whenConnected(
        use, [] { qWarning() << "There is no system bus: no notices of sleep and shutdown"; });
}

void SystemNotices::slotPrepareForSleep(bool bBegins)
{
    if (bBegins) {
        emit aboutToSleep();
    } else {
        emit woken();
    }
}

void SystemNotices::slotPrepareForShutdown(bool bBegins)
{
    if (bBegins) {
        emit aboutToShutDown();
    }
}

} // namespace Desktop
