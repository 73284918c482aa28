#include "PromoMainPage.h"

#include "PromoAdsBar.h"
#include "PromoMenuBar.h"

namespace QMWidgets {

PromoMainPage::PromoMainPage(QWidget *parent, bool bQuitSignal)
    : QFrame(parent)
    , m_pmenuBar(new PromoMenuBar(this, bQuitSignal))
{
    connect(m_pmenuBar, &PromoMenuBar::quitApp, this, &PromoMainPage::quitApp);
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
