#include "NetworkButton.h"

#include <QPushButton>

namespace QMWidgets {

void applyNetworkButtonProperties(
    QPushButton *pcmd, const QString &strName, const QString &strToolTip)
{
    pcmd->setObjectName(strName);
    pcmd->setFlat(true);
    pcmd->setAutoDefault(false);
    pcmd->setFixedSize(52, 52);
    pcmd->setCursor(Qt::PointingHandCursor);
    pcmd->setToolTip(strToolTip);
    pcmd->setAccessibleName(strToolTip);
}

} // namespace QMWidgets
