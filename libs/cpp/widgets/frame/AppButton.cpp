#include "AppButton.h"

#include "AppMenu.h"
#include "CatalogMenu.h"

namespace QMWidgets {

AppButton::AppButton(QWidget *parent)
    : QPushButton(parent)
    , m_pmenu(new AppMenu(this))
{
    connect(m_pmenu, &AppMenu::quitPressed, this, &AppButton::quitPressed);
    connect(this, &QPushButton::clicked, this, [this] { popupBelow(m_pmenu, this); });
}

AppMenu *AppButton::appMenu() const
{
    return m_pmenu;
}

void AppButton::hideIntroAction()
{
    m_pmenu->hideIntroAction();
}

void AppButton::hideRateAction()
{
    m_pmenu->hideRateAction();
}

void AppButton::hideMoreAppsAction()
{
    m_pmenu->hideMoreAppsAction();
}

void AppButton::hideShareAction()
{
    m_pmenu->hideShareAction();
}

void AppButton::hideJoinAction()
{
    m_pmenu->hideJoinAction();
}

void AppButton::hideSupportPageAction()
{
    m_pmenu->hideSupportPageAction();
}

} // namespace QMWidgets
