// The update check of an App.
#include "App.h"

#include "AppUpdateDialog.h"
#include "Downloader.h"
#include "Literals.h"
#include "MakerHosts.h"
#include "PlatformVersion.h"
#include <QLocale>
#include <QPixmap>
#include <QPointer>
#include <QRegularExpression>
#include <QTimer>
#include <utility>

namespace QMWidgets {

QString App::sm_strUpdateVersion;

namespace {

QString lastCheckKey()
{
    return u"LastUpdateCheck"_qs;
}

// The system's version as the build file writes it: "10_" and the minor version in two digits.
// Empty for a version that isn't one of that numbering.
QString systemNumber()
{
    constexpr int offset = 2;
    constexpr int limit = 100;
    const int nMinor = platformVersion() - offset;
    return nMinor < 0 || nMinor >= limit ? QString() : u"10_%1"_qs.arg(nMinor, 2, 10, QChar(u'0'));
}

bool suitsSystem(const QString &strValue)
{
    return strValue == u"all"_qs || (strValue.contains(u'_') && systemNumber() >= strValue);
}

QString todayText()
{
    return QLocale::c().toString(App::today(), App::dateFormat());
}

}

QString App::updateVersion()
{
    return sm_strUpdateVersion;
}

QString App::getUpdateRequest(const QString &strServer)
{
    constexpr qint64 buildFileLimitBytes = 65536;
    QMRequest::Downloader downloader;
    downloader.setSizeLimit(buildFileLimitBytes);
    QTimer::singleShot(
        held(&App::m_nUpdateTimeLimit, 7000), &downloader, &QMRequest::Downloader::slotAbort);
    const QString strAddress
        = strServer + u"/apps/buildsinfo/"_qs + applicationName().toLower() + u"_mac"_qs;
    const QByteArray text = downloader.get(strAddress, QEventLoop::AllEvents);
    return QString::fromLatin1(text.constData()); // as far as the first zero byte
}

QString App::getUpdateRequest()
{
    QStringList lstServers = held(&App::m_lstUpdateServers);
    if (lstServers.isEmpty()) {
        lstServers = MakerHosts::updateServers();
    }
    for (const QString &strServer : std::as_const(lstServers)) {
        QString strText = getUpdateRequest(strServer);
        if (!strText.isEmpty()) {
            return strText;
        }
    }
    return {};
}

bool App::isUpdateAvailable()
{
    QString strText = getUpdateRequest();
    if (!strText.contains(u"build:"_qs)) {
        return false;
    }
    strText.remove(QRegularExpression(u"[\n\t\r ]"_qs));
    QDate date;
    bool bSuits = false;
    const QStringList lstEntries = strText.split(u';');
    for (const QString &strEntry : lstEntries) {
        const QStringList lstParts = strEntry.split(u':');
        if (lstParts.size() < 2) {
            continue;
        }
        const QString &strValue = lstParts.last();
        if (lstParts.first() == u"build"_qs) {
            sm_strUpdateVersion = strValue;
        } else if (lstParts.first() == u"date"_qs) {
            date = QDate::fromString(strValue, dateFormat());
        } else if (lstParts.first() == u"macos"_qs) {
            bSuits = bSuits || suitsSystem(strValue);
        }
    }
    return bSuits && buildDate() < date;
}

void App::showUpdateIsAvailable(bool bAvailable)
{
    const QPointer<AppUpdateDialog> pdlg(
        new AppUpdateDialog(mainWidget())); // gone with its parent, or below
    if (bAvailable) {
        // The version is another machine's text.
        pdlg->setMessage(tr("<CENTER><H2>The newer version ") + sm_strUpdateVersion.toHtmlEscaped()
            + tr(" of ") + applicationName().toHtmlEscaped()
            + tr(" is available.<br>Get the newest version?</H2></CENTER>"));
        pdlg->setPic(QPixmap(u":/update_available.png"_qs));
    } else {
        pdlg->setMessage(tr("<CENTER><H2>You are using the latest version available.<br>"
                            "Go to the app web page anyway?</H2></CENTER>"));
        pdlg->setPic(QPixmap(u":/update_not_available.png"_qs));
    }
    pdlg->exec();
    delete pdlg;
}

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
    if (App *papp = theApp()) {
        QTimer::singleShot(delayMs, papp, &App::slotCheckUpdateOnStart);
    }
}

void App::slotCheckUpdate()
{
    // The window stays live during a check, and its menu can be used again.
    if (!m_bCheckingUpdate) {
        m_bCheckingUpdate = true;
        showUpdateIsAvailable(isUpdateAvailable());
        m_bCheckingUpdate = false;
    }
}

void App::slotCheckUpdateOnStart()
{
    if (m_bCheckingUpdate || !AppUpdateDialog::isChecked()) {
        return;
    }
    if (activeModalWidget() != nullptr) {
        // Not on top of a search or a run, which would stand still while a server doesn't answer.
        checkUpdateOnStartLater();
        return;
    }
    constexpr int periodDays = 6;
    const QDate date
        = QDate::fromString(settingsValue(lastCheckKey(), QString()).toString(), dateFormat());
    if (!date.isValid()) {
        setSettingsValue(lastCheckKey(), todayText());
        return;
    }
    if (date.daysTo(App::today()) < periodDays) {
        return;
    }
    m_bCheckingUpdate = true;
    if (isUpdateAvailable()) {
        showUpdateIsAvailable(true);
        setSettingsValue(lastCheckKey(), todayText());
    }
    m_bCheckingUpdate = false;
}

} // namespace QMWidgets
