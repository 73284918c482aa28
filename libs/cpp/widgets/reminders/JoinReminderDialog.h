#pragma once

#include "ReminderStateDialog.h"

namespace QMWidgets {

/// Asks the user to follow the maker.
class JoinReminderDialog : public ReminderStateDialog
{
    Q_OBJECT

public:
    explicit JoinReminderDialog(QWidget *parent = nullptr);
};

} // namespace QMWidgets
