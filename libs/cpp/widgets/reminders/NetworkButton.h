#pragma once

#include <QString>

class QPushButton;

namespace QMWidgets {

/// What the buttons of the networks have in common: a flat square that shows the picture which the
/// style sheet gives its object name.
void applyNetworkButtonProperties(
    QPushButton *pcmd, const QString &strName, const QString &strToolTip);

} // namespace QMWidgets
