// What the menus ask of an App.
#include "App.h"

#include "Literals.h"
#include "MakerHosts.h"
#include <QTimer>
#include <QUrl>

namespace QMWidgets {

namespace {

QString encoded(const QString &str)
{
    return QString::fromLatin1(QUrl::toPercentEncoding(str));
}

}

void App::initAppsIds() { }

void App::slotShowPrivacyPolicy()
{
    openAddress(m_strPrivacyPolicyLink);
}

void App::slotSupportPage()
{
    openAddress(m_strSupportPage.isEmpty() ? MakerHosts::homePage() : m_strSupportPage);
}

void App::slotShowMoreApps()
{
    openAddress(MakerHosts::applicationServer() + u"/apps/"_qs);
}

void App::slotContactUs()
{
    QString strSubject = u"Contact ("_qs + applicationName() + u' ' + applicationVersion()
        + u") "_qs + osInfo() + u' ' + currentLanguage();
    if (isIndependent()) {
        strSubject += u" I"_qs;
    }
    openAddress(u"mailto:"_qs + MakerHosts::mailAddress() + u"?subject="_qs + encoded(strSubject)
        + u"&body="_qs);
}

void App::slotTellFriend()
{
    QString strPage = m_strSupportPage;
    if (strPage.isEmpty()) {
        strPage = MakerHosts::applicationServer() + u"/apps/"_qs + appKey();
        if (isAppStore()) {
            strPage = storeLink(strPage).replace(u"macappstore"_qs, u"https"_qs);
        }
    }
    openAddress(u"mailto:?subject="_qs
        + encoded(u"Check out the cool "_qs + applicationName() + u" app!"_qs) + u"&body="_qs
        + encoded(shareMessage() + u" - "_qs + strPage));
}

void App::slotRateApp()
{
    const QString strServer = MakerHosts::applicationServer();
    if (isIndependent()) {
        openAddress(strServer + u"/rate.php?appname="_qs + encoded(applicationName().toLower()));
    } else {
        openAddress(storeLink(strServer + u"/apps/"_qs + appKey()) + u"&action=write-review"_qs);
    }
}

void App::slotShowCssEditor() { }

void App::slotHelp() { }

void App::showHelpOnStart() { }

void App::slotShareApp() { }

void App::slotJoin() { }

void App::slotAbout() { }

} // namespace QMWidgets
