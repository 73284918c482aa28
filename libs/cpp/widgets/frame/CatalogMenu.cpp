#include "CatalogMenu.h"

#include "App.h"
#include "Literals.h"
#include "MakerHosts.h"

#include <QMenu>
#include <QProxyStyle>
#include <QSignalMapper>

namespace QMWidgets {

namespace {

class IconSizeStyle : public QProxyStyle
{
public:
    explicit IconSizeStyle(int nSize)
        : m_nSize(nSize)
    {
    }

    int pixelMetric(
        PixelMetric metric, const QStyleOption *poption, const QWidget *pwgt) const override
    {
        return metric == PM_SmallIconSize ? m_nSize
                                          : QProxyStyle::pixelMetric(metric, poption, pwgt);
    }

private:
    int m_nSize = 0;
};

} // namespace

void addMappedLink(QMenu *pmenu, QSignalMapper *pmapper, const QPixmap &pixmap,
    const QString &strText, const QString &strLink)
{
    const App *papp = App::theApp();
    const QString strAddress = papp != nullptr ? papp->storeLink(strLink) : QString();
    if (strAddress.isEmpty()) {
        return;
    }
    auto *pact = new QAction(QIcon(pixmap), strText, pmenu);
    QObject::connect(pact, &QAction::triggered, pmapper, qOverload<>(&QSignalMapper::map));
    pmapper->setMapping(pact, strAddress);
    pmenu->addAction(pact);
}

void setMenuIconSize(QMenu *pmenu, int nSize)
{
    auto *pstyle = new IconSizeStyle(nSize);
    pstyle->setParent(pmenu);
    pmenu->setStyle(pstyle);
}

QString storePage(const QString &strName, const QString &strId)
{
    return u"https://%1/app/%2/%3?ls=1&mt=12"_qs.arg(
        MakerHosts::storeHost(), strName.toLower(), strId);
}

void popupBelow(QMenu *pmenu, const QWidget *pwgt)
{
    const bool bRight = pwgt->layoutDirection() == Qt::RightToLeft;
    const QPoint pt = bRight ? QPoint(pwgt->width() - pmenu->sizeHint().width(), pwgt->height())
                             : QPoint(0, pwgt->height());
    pmenu->popup(pwgt->mapToGlobal(pt));
}

} // namespace QMWidgets
