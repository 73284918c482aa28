#include "PromoMainPage.h"

#include "App.h"
#include "Literals.h"
#include "PromoAdsBar.h"
#include "PromoMenuBar.h"

#include <QShortcut>

namespace QMWidgets {

PromoMainPage::PromoMainPage(QWidget *parent, bool bQuitSignal)
    : QFrame(parent)
    , m_pmenuBar(new PromoMenuBar(this, bQuitSignal))
{
    connect(m_pmenuBar, &PromoMenuBar::quitApp, this, &PromoMainPage::quitApp);
    if (App *papp = App::theApp()) {
        // For whoever works on the application's look; no menu shows it.
        auto *pshortcut = new QShortcut(QKeySequence(u"Ctrl+Shift+E"_qs), this);
        connect(pshortcut, &QShortcut::activated, papp, &App::slotShowCssEditor);
    }
}

PromoMenuBar *PromoMainPage::promoMenuBar() const
{
    return m_pmenuBar;
}

PromoAdsBar *PromoMainPage::promoAdsBar()
{
    if (m_padsBar.isNull()) {
        m_padsBar = new PromoAdsBar(m_pmenuBar, this);
        connect(m_padsBar, &PromoAdsBar::adClicked, this, &PromoMainPage::slotAdClicked);
    }
    return m_padsBar;
}

void PromoMainPage::slotAdClicked() { }

} // namespace QMWidgets
