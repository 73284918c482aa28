#include "CatalogMenu.h"

#include "App.h"
#include "Literals.h"
#include "MakerHosts.h"

#include <QMenu>
#include <QSignalMapper>

namespace QMWidgets {

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
