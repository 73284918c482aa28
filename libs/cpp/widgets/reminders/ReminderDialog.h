#pragma once

#include "ReminderStateDialog.h"

namespace QMWidgets {

/// The plainest of the requests: rate, mail, later or never.
class ReminderDialog : public ReminderStateDialog
{
    Q_OBJECT

public:
    explicit ReminderDialog(QWidget *parent = nullptr);
};

} // namespace QMWidgets
