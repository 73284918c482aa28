#include "AppMenu.h"

#include "App.h"
#include "CatalogMenu.h"
#include "Literals.h"

namespace QMWidgets {

namespace {

QAction *addTo(QMenu *pmenu, const QString &strIcon, const QString &strText, void (App::*slot)())
{
    QAction *pact = pmenu->addAction(strIcon.isEmpty() ? QIcon() : QIcon(strIcon), strText);
    if (App *papp = App::theApp()) {
        QObject::connect(pact, &QAction::triggered, papp, slot);
    }
    return pact;
}

} // namespace

AppMenu::AppMenu(QWidget *parent)
    : QMenu(parent)
{
    setMenuIconSize(this, 24);
    m_pactRate = addTo(this, u":/star.png"_qs, tr("Rate this App"), &App::slotImmediatelyRate);
    m_pactIntro = addTo(this, u":/Help_hover.png"_qs, tr("Intro"), &App::slotHelp);
    m_pactShare = addTo(this, u":/share_hover.png"_qs, tr("Share"), &App::slotShareApp);
    m_pactJoin = addTo(this, u":/join_hover.png"_qs, tr("Join Us"), &App::slotJoin);
    m_pactMoreApps = addTo(this, u":/moreappsicon.png"_qs, tr("More Apps"), &App::slotShowMoreApps);
    addTo(this, u":/feedback.png"_qs, tr("Contact Us"), &App::slotContactUs);
    m_pactSupportPage = addTo(this, u":/webpage.png"_qs, tr("Support Page"), &App::slotSupportPage);
    if (App::isIndependent()) {
        addTo(this, QString(), tr("Check Updates"), &App::slotCheckUpdate);
    }
    if (!App::privacyPolicyLink().isEmpty()) {
        addTo(this, QString(), tr("Privacy Policy"), &App::slotShowPrivacyPolicy);
    }
    addTo(this, u":/appicon.png"_qs, tr("About"), &App::slotAbout);
    addSeparator();
    connect(addAction(tr("Quit")), &QAction::triggered, this, &AppMenu::quitPressed);
}

void AppMenu::hideIntroAction()
{
    m_pactIntro->setVisible(false);
}

void AppMenu::hideRateAction()
{
    m_pactRate->setVisible(false);
}

void AppMenu::hideMoreAppsAction()
{
    m_pactMoreApps->setVisible(false);
}

void AppMenu::hideShareAction()
{
    m_pactShare->setVisible(false);
}

void AppMenu::hideJoinAction()
{
    m_pactJoin->setVisible(false);
}

void AppMenu::hideSupportPageAction()
{
    m_pactSupportPage->setVisible(false);
}

} // namespace QMWidgets
