#pragma once

#include <QString>

namespace Desktop {

/// Keeps the display and the machine from sleeping on their own, until allowSleep or the end of the
/// process. strReason is shown by the desktop. A second call changes nothing.
void inhibitSleep(const QString &strReason);

/// Ends that; the answer to an inhibitSleep that is still on its way is given back at once.
void allowSleep();

} // namespace Desktop
