// What the menus ask of an App.
#include "App.h"

#include "AboutDialog.h"
#include "AppCatalog.h"
#include "CssEditor.h"
#include "HelpDialog.h"
#include "JoinDialog.h"
#include "Literals.h"
#include "MakerHosts.h"
#include "TellDialog.h"
#include <QEventLoop>
#include <QTimer>
#include <QUrl>
#include <utility>

namespace QMWidgets {

namespace {

QString encoded(const QString &str)
{
    return QString::fromLatin1(QUrl::toPercentEncoding(str));
}

// Shows the dialog on its window and returns when it is finished; the rest goes on meanwhile.
void runAsSheet(QDialog *pdlg)
{
    const QPointer<QDialog> pdlgAlive(pdlg);
    QEventLoop loop;
    QObject::connect(pdlg, &QDialog::finished, &loop, &QEventLoop::quit);
    QObject::connect(pdlg, &QObject::destroyed, &loop, &QEventLoop::quit);
    pdlg->open();
    loop.exec();
    delete pdlgAlive;
}

}

void App::initAppsIds()
{
    for (const AppCatalogItem &item : appCatalog()) {
        m_mapAppsIds.insert(item.strKey, item.strId);
    }
}

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

QString App::sharedPage() const
{
    if (!m_strSupportPage.isEmpty()) {
        return m_strSupportPage;
    }
    const QString strPage = MakerHosts::applicationServer() + u"/apps/"_qs + appKey();
    return isAppStore() ? storeLink(strPage).replace(u"macappstore"_qs, u"https"_qs) : strPage;
}

QString App::mailToFriend(const QString &strText, const QString &strPage)
{
    return u"mailto:?subject="_qs
        + encoded(u"Check out the cool "_qs + applicationName() + u" app!"_qs) + u"&body="_qs
        + encoded(strText + u" - "_qs + strPage);
}

// NOLINTNEXTLINE(readability-make-member-function-const): one of the slots
void App::slotTellFriend()
{
    openAddress(mailToFriend(shareMessage(), sharedPage()));
}

// NOLINTNEXTLINE(readability-make-member-function-const): one of the slots
void App::slotRateApp()
{
    const QString strServer = MakerHosts::applicationServer();
    if (isIndependent()) {
        openAddress(strServer + u"/rate.php?appname="_qs + encoded(applicationName().toLower()));
    } else {
        openAddress(storeLink(strServer + u"/apps/"_qs + appKey()) + u"&action=write-review"_qs);
    }
}

void App::slotShowCssEditor()
{
    auto *peditor = new CssEditor(nullptr); // it deletes itself when it is closed
    peditor->setAttribute(Qt::WA_DeleteOnClose);
    peditor->setAttribute(Qt::WA_QuitOnClose, false);
    peditor->show();
}

void App::slotHelp()
{
    if (m_phelpDialog.isNull()) {
        auto *pdlg = new HelpDialog(m_pwgtMain); // without a parent it is deleted at the end
        for (const QString &strSlide : std::as_const(m_lstSlides)) {
            pdlg->addSlide(strSlide);
        }
        if (!m_strIntroVideosList.isEmpty()) {
            pdlg->setVideoLink(m_strIntroVideosList);
        }
        m_phelpDialog = pdlg;
    }
    if (m_phelpDialog->parent() == nullptr) {
        m_phelpDialog->exec();
        return;
    }
    m_phelpDialog->show();
    m_phelpDialog->raise();
    m_phelpDialog->activateWindow();
}

void App::showHelpOnStart()
{
    constexpr int delayMs = 500;
    App *papp = theApp();
    if (papp != nullptr && HelpDialog::isShowOnStartAvailable()) {
        QTimer::singleShot(delayMs, papp, &App::slotHelp);
    }
}

void App::slotShareApp()
{
    runAsSheet(new TellDialog(activeWindow())); // deleted there
}

void App::slotJoin()
{
    runAsSheet(new JoinDialog(activeWindow())); // deleted there
}

void App::slotAbout()
{
    const QPointer<AboutDialog> pdlg(new AboutDialog(m_pwgtMain)); // gone with its parent, or below
    pdlg->exec();
    delete pdlg;
}

} // namespace QMWidgets
