#include "Os_Mac.h"

#include "FileManager.h"
#include "Launcher.h"
#include "Literals.h"
#include "Os.h"
#include "SleepInhibitor.h"
#include "SystemNotices.h"
#include <QGuiApplication>
#include <QScreen>

void Os_Mac::initNotifications()
{
    Os *pos = Os::instance();
    auto *pnotices = new Desktop::SystemNotices(pos);
    QObject::connect(pnotices, &Desktop::SystemNotices::aboutToSleep, pos, &Os::atSwitchToStandBy);
    QObject::connect(pnotices, &Desktop::SystemNotices::woken, pos, &Os::atWakeUpFromStandBy);
    QObject::connect(pnotices, &Desktop::SystemNotices::aboutToShutDown, pos, &Os::atUserLogout);
}

void Os_Mac::setBadge(int nNumber)
{
    Desktop::setBadge(nNumber);
}

bool Os_Mac::isAutorunAtLogon()
{
    return Desktop::isAutostarted();
}

void Os_Mac::changeAutorunAtLogon(bool bAutorun)
{
    Desktop::setAutostarted(bAutorun);
}

bool Os_Mac::openFolderAndSelectFile(const QString &strPath)
{
    return Desktop::showInFileManager(strPath);
}

bool Os_Mac::moveToTrash(const QString &strPath)
{
    return Desktop::moveToTrash(strPath);
}

float Os_Mac::scaleFactor()
{
    const QScreen *pscreen = QGuiApplication::primaryScreen();
    return pscreen != nullptr ? static_cast<float>(pscreen->devicePixelRatio()) : 1.0F;
}

void Os_Mac::setDisableSleepMode(bool bDisable)
{
    if (bDisable) {
        Desktop::inhibitSleep(u"Program Running"_qs);
    } else {
        Desktop::allowSleep();
    }
}

void Os_Mac::requestReview()
{
    Os::simulateRequestReview();
}
