#pragma once

#include <QDialog>

class QBoxLayout;
class QLabel;
class QPushButton;

namespace QMWidgets {

/// Base of the dialogs that ask the user for a favour; it holds the answer.
class ReminderStateDialog : public QDialog
{
    Q_OBJECT

public:
    /// The answers, as state() gives them.
    enum State
    {
        Rate = 0,
        Mail = 1,
        Later = 2,
        Never = 3,
        None = 4
    };

    explicit ReminderStateDialog(QWidget *parent = nullptr);

    /// None until the user has answered.
    int state() const;

public slots:
    // Each of these sets the answer and accepts the dialog.
    void slotRate();
    void slotMail();
    void slotMaybeLater();
    void slotNeverAskMeAgain();

protected:
    using Slot = void (ReminderStateDialog::*)();

    /// The application's icon.
    QLabel *createLogo();

    /// A button of the dialog's own look that gives an answer.
    QPushButton *createButton(const QString &strText, Slot slot);

    /// The same with the look of that object name, a picture at its left side.
    QPushButton *createPictureButton(const QString &strName, const QString &strText, Slot slot);

    /// The buttons "later" and "never", in this order, at the end of a row.
    void addLaterAndNever(QBoxLayout *playout);

private:
    int m_nState = None;
};

} // namespace QMWidgets
