#pragma once

#include "ReminderStateDialog.h"

namespace QMWidgets {

/// Asks for a rating in the store.
class RateAppStoreDialog : public ReminderStateDialog
{
    Q_OBJECT

public:
    explicit RateAppStoreDialog(QWidget *parent = nullptr);

    /// True once a dialog of this class has come up in this process.
    static bool wasAlreadyCalled();

protected:
    void showEvent(QShowEvent *pe) override;

private:
    static bool sm_bAlreadyCalled;
};

} // namespace QMWidgets
