#pragma once

class QPushButton;

namespace QMWidgets {

/// Small helpers of the dialogs.
class Common
{
public:
    /// Binds a button to the style sheet's look of dialog buttons: object name "PushButton", flat,
    /// at least 32 pixels high. Its text is
    /// never cut by a layout.
    static void applyPushButtonDetails(QPushButton *pcmd);
};

} // namespace QMWidgets
