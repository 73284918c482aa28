#pragma once

#include <QDialog>

namespace QMWidgets {

/// The menu's dialog to follow the maker.
class JoinDialog : public QDialog
{
    Q_OBJECT

public:
    explicit JoinDialog(QWidget *parent = nullptr);
};

} // namespace QMWidgets
