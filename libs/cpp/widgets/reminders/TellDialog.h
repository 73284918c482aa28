#pragma once

#include <QDialog>

namespace QMWidgets {

/// The menu's dialog to share the application.
class TellDialog : public QDialog
{
    Q_OBJECT

public:
    explicit TellDialog(QWidget *parent = nullptr);
};

} // namespace QMWidgets
