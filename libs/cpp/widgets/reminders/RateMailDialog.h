#pragma once

#include "ReminderStateDialog.h"

namespace QMWidgets {

/// Asks a user who isn't content for a rating or a mail.
class RateMailDialog : public ReminderStateDialog
{
    Q_OBJECT

public:
    explicit RateMailDialog(QWidget *parent = nullptr);
};

} // namespace QMWidgets
