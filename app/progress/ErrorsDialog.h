#pragma once

#include <QDialog>

class QTextEdit;

/// Shows the error log of a run. User-interface thread only.
class ErrorsDialog : public QDialog
{
    Q_OBJECT

public:
    /// @param parent the window over which the dialog opens; may be null.
    explicit ErrorsDialog(QWidget *parent);

    /// Shows the log, as plain text: whatever looks like markup in a file's name is shown as it is.
    void setText(const QString &text);

private:
    Q_DISABLE_COPY(ErrorsDialog)

    QTextEdit *m_pErrors = nullptr;
};
