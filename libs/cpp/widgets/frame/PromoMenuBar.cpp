#include "PromoMenuBar.h"

#include "App.h"
#include "AppButton.h"
#include "AppCatalog.h"
#include "AppMenu.h"
#include "CatalogMenu.h"
#include "Literals.h"
#include "MakerHosts.h"

#include <QHBoxLayout>
#include <QMenu>
#include <QSignalMapper>

namespace QMWidgets {

PromoMenuBar::PromoMenuBar(QWidget *parent, bool bQuitSignal)
    : QFrame(parent)
    , m_pmenuMore(new QMenu(this))
    , m_pmapper(new QSignalMapper(this))
{
    setObjectName(u"MenuBar"_qs);
    m_pmenuMore->setObjectName(u"CatalogMenu"_qs);
    setMenuIconSize(m_pmenuMore, 32);
    createButtons(bQuitSignal);
    createLayout();
    connectButtons();
}

void PromoMenuBar::prepareButton(
    QPushButton *pcmd, const QString &strName, const QString &strToolTip)
{
    pcmd->setObjectName(strName);
    pcmd->setFlat(true);
    pcmd->setFixedSize(60, 32);
    pcmd->setToolTip(strToolTip);
    pcmd->setAccessibleName(strToolTip);
}

QPushButton *PromoMenuBar::createButton(const QString &strName, const QString &strToolTip)
{
    auto *pcmd = new QPushButton(this);
    prepareButton(pcmd, strName, strToolTip);
    return pcmd;
}

void PromoMenuBar::createButtons(bool bQuitSignal)
{
    // In the order of the layout, which is that of the Tab key.
    m_pcmdMore = createButton(u"MoreButton"_qs, tr("More"));
    m_pcmdIntro = createButton(u"IntroButton"_qs, tr("Introduction"));
    m_pcmdShare = createButton(u"ShareButton"_qs, tr("Share"));
    m_pcmdJoin = createButton(u"JoinButton"_qs, tr("Join Us"));
    m_pcmdMoreApps = createButton(u"MoreAppsButton"_qs, tr("More Apps"));
    m_pcmdRate = createButton(u"RateButton"_qs, tr("Rate App"));
    m_pcmdApp = new AppButton(this);
    prepareButton(m_pcmdApp, u"AppButton"_qs, tr("App Menu"));
    if (bQuitSignal) {
        connect(m_pcmdApp, &AppButton::quitPressed, this, &PromoMenuBar::quitApp);
    } else {
        connect(m_pcmdApp, &AppButton::quitPressed, this, [] { QCoreApplication::quit(); });
    }
}

void PromoMenuBar::createLayout()
{
    m_playoutCenter = new QHBoxLayout;
    m_playoutCenter->setContentsMargins(0, 0, 0, 0);
    m_playoutCenter->setSpacing(0);
    m_playoutRight = new QHBoxLayout;
    m_playoutRight->setContentsMargins(0, 0, 0, 0);
    m_playoutRight->setSpacing(0);

    auto *playout = new QHBoxLayout(this);
    playout->setContentsMargins(5, 5, 5, 5);
    playout->setSpacing(0);
    playout->addWidget(m_pcmdMore);
    playout->addStretch(1);
    playout->addLayout(m_playoutCenter);
    playout->addStretch(1);
    playout->addLayout(m_playoutRight);
    for (QPushButton *pcmd : {m_pcmdIntro, m_pcmdShare, m_pcmdJoin, m_pcmdMoreApps, m_pcmdRate}) {
        playout->addWidget(pcmd);
    }
    playout->addWidget(m_pcmdApp);
}

void PromoMenuBar::connectButtons()
{
    connect(
        m_pcmdMore, &QPushButton::clicked, this, [this] { popupBelow(m_pmenuMore, m_pcmdMore); });
    connect(m_pmapper, &QSignalMapper::mappedString, this, &PromoMenuBar::slotCallUrl);
    if (App *papp = App::theApp()) {
        connect(m_pcmdIntro, &QPushButton::clicked, papp, &App::slotHelp);
        connect(m_pcmdRate, &QPushButton::clicked, papp, &App::slotRateApp);
        connect(m_pcmdMoreApps, &QPushButton::clicked, papp, &App::slotShowMoreApps);
        connect(m_pcmdShare, &QPushButton::clicked, papp, &App::slotShareApp);
        connect(m_pcmdJoin, &QPushButton::clicked, papp, &App::slotJoin);
    }
}

void PromoMenuBar::addAppItem(const QString &strKey)
{
    if (strKey == App::appKey()) {
        return;
    }
    const AppCatalogItem *pitem = findInAppCatalog(strKey);
    if (pitem == nullptr) {
        return;
    }
    addMenuLink(QPixmap(pitem->strIcon), catalogText(*pitem),
        MakerHosts::applicationServer() + u"/crosspromo.php?appname="_qs + strKey);
}

void PromoMenuBar::addMenuLink(
    const QPixmap &pixmap, const QString &strText, const QString &strLink)
{
    addMappedLink(m_pmenuMore, m_pmapper, pixmap, strText, strLink);
}

void PromoMenuBar::addMenuAppLink(
    const QPixmap &pixmap, const QString &strText, const QString &strName, const QString &strId)
{
    addMenuLink(pixmap, strText, storePage(strName, strId));
}

void PromoMenuBar::addMoreAppsLink()
{
    m_pmenuMore->addSeparator();
    QAction *pact = m_pmenuMore->addAction(QIcon(u":/moreappsicon.png"_qs), tr("More Apps"));
    if (App *papp = App::theApp()) {
        connect(pact, &QAction::triggered, papp, &App::slotShowMoreApps);
    }
    m_pmenuMore->addSeparator();
}

void PromoMenuBar::addCenterWidget(QWidget *pwgt)
{
    m_playoutCenter->addWidget(pwgt);
}

QList<QAction *> PromoMenuBar::moreActions() const
{
    return m_pmenuMore->actions();
}

void PromoMenuBar::hideIntroButton()
{
    m_pcmdIntro->hide();
}

void PromoMenuBar::hideRateButton()
{
    m_pcmdRate->hide();
}

void PromoMenuBar::hideMoreAppsButton()
{
    m_pcmdMoreApps->hide();
}

void PromoMenuBar::hideShareButton()
{
    m_pcmdShare->hide();
}

void PromoMenuBar::hideJoinButton()
{
    m_pcmdJoin->hide();
}

void PromoMenuBar::hideMoreAction()
{
    m_pcmdMore->hide();
}

void PromoMenuBar::hideIntroAction()
{
    m_pcmdApp->hideIntroAction();
}

void PromoMenuBar::hideRateAction()
{
    m_pcmdApp->hideRateAction();
}

void PromoMenuBar::hideMoreAppsAction()
{
    m_pcmdApp->hideMoreAppsAction();
}

void PromoMenuBar::hideShareAction()
{
    m_pcmdApp->hideShareAction();
}

void PromoMenuBar::hideJoinAction()
{
    m_pcmdApp->hideJoinAction();
}

void PromoMenuBar::hideSupportPageAction()
{
    m_pcmdApp->hideSupportPageAction();
}

void PromoMenuBar::slotCallUrl(const QString &strUrl)
{
    App::openAddress(strUrl);
}

} // namespace QMWidgets
