// The update check of an App.
#include "App.h"

#include <QTimer>

namespace QMWidgets {

QString App::sm_strUpdateVersion;

QString App::updateVersion()
{
    return sm_strUpdateVersion;
}

bool App::isUpdateAvailable()
{
    return false;
}

QString App::getUpdateRequest()
{
    return {};
}

QString App::getUpdateRequest(const QString &)
{
    return {};
}

void App::showUpdateIsAvailable(bool) { }

void App::setUpdateServers(const QStringList &lstServers)
{
    hold(&App::m_lstUpdateServers, lstServers);
}

void App::setUpdateTimeLimit(int nMsecs)
{
    hold(&App::m_nUpdateTimeLimit, nMsecs);
}

void App::checkUpdateOnStartLater()
{
    constexpr int delayMs = 2000;
    QTimer::singleShot(delayMs, this, &App::slotCheckUpdateOnStart);
}

void App::slotCheckUpdate() { }

void App::slotCheckUpdateOnStart() { }

} // namespace QMWidgets
