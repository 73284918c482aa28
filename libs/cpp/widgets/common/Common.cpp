#include "Common.h"

#include "Literals.h"

#include <QPushButton>

namespace QMWidgets {

void Common::applyPushButtonDetails(QPushButton *pcmd)
{
    pcmd->setObjectName(u"PushButton"_qs);
    pcmd->setFlat(true);
    pcmd->setMinimumHeight(32);
}

} // namespace QMWidgets
