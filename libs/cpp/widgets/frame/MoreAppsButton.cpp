#include "MoreAppsButton.h"

#include "App.h"
#include "CatalogMenu.h"
#include "Literals.h"

#include <QMenu>
#include <QSignalMapper>

namespace QMWidgets {

MoreAppsButton::MoreAppsButton(QWidget *parent)
    : QPushButton(parent)
    , m_pmenu(new QMenu(this))
    , m_pmapper(new QSignalMapper(this))
{
    setObjectName(u"MoreButton"_qs);
    m_pmenu->setObjectName(u"CatalogMenu"_qs);
    setMenuIconSize(m_pmenu, 32);
    setFlat(true);
    setToolTip(tr("More"));
    setAccessibleName(toolTip());
    connect(this, &QPushButton::clicked, this, [this] { popupBelow(m_pmenu, this); });
    connect(m_pmapper, &QSignalMapper::mappedString, this, &MoreAppsButton::slotCallUrl);
}

void MoreAppsButton::addMenuLink(
    const QPixmap &pixmap, const QString &strText, const QString &strLink)
{
    addMappedLink(m_pmenu, m_pmapper, pixmap, strText, strLink);
}

void MoreAppsButton::addMenuAppLink(
    const QPixmap &pixmap, const QString &strText, const QString &strName, const QString &strId)
{
    addMenuLink(pixmap, strText, storePage(strName, strId));
}

void MoreAppsButton::addMenuAction(QAction *pact)
{
    m_pmenu->addAction(pact);
}

void MoreAppsButton::addMenuSeparator()
{
    m_pmenu->addSeparator();
}

void MoreAppsButton::slotCallUrl(const QString &strUrl)
{
    App::openAddress(strUrl);
}

} // namespace QMWidgets
