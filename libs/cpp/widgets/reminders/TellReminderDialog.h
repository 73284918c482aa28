#pragma once

#include "ReminderStateDialog.h"

namespace QMWidgets {

/// Asks the user to share the application.
class TellReminderDialog : public ReminderStateDialog
{
    Q_OBJECT

public:
    explicit TellReminderDialog(QWidget *parent = nullptr);
};

} // namespace QMWidgets
