#pragma once

#include <QDialog>

class QHBoxLayout;
class QLabel;

namespace QMWidgets {

/// The message box of all dialogs.
///
/// Its result is the value (QMessageBox::StandardButton) of the button that ended it, or 0
/// (QMessageBox::NoButton) when it was closed by Esc or by its window.
class MMessageBox : public QDialog
{
    Q_OBJECT

public:
    enum class Icon
    {
        Information = 1,
        Warning = 2,
        Critical = 3,
        Question = 4
    };

    /// The result of the button with the caller's own text.
    static constexpr int UserDefined = 1;

    /// buttons: a mask of QMessageBox::StandardButton; Ok, Cancel, No, Yes, Abort, Retry, Ignore,
    /// YesToAll and NoToAll are known. strUser: the text of one more button; empty for none.
    MMessageBox(Icon icon, const QString &strTitle, const QString &strText, int buttons,
        QWidget *parent = nullptr, const QString &strUser = QString());

    /// Makes the button of that value the one that Enter presses; an absent one changes nothing.
    void setDefaultButton(int button);

    /// Each of these runs a box and returns the value of the button.
    static int critical(QWidget *parent, const QString &strTitle, const QString &strText,
        int buttons = 0x400, int defaultButton = 0);
    static int information(QWidget *parent, const QString &strTitle, const QString &strText,
        int buttons = 0x400, int defaultButton = 0);
    static int question(QWidget *parent, const QString &strTitle, const QString &strText,
        int buttons = 0x14000, int defaultButton = 0);
    static int warning(QWidget *parent, const QString &strTitle, const QString &strText,
        int buttons = 0x400, int defaultButton = 0);

public slots:
    void slotOk();
    void slotCancel();
    void slotNo();
    void slotYes();
    void slotAbort();
    void slotRetry();
    void slotIgnore();
    void slotYesAll();
    void slotNoAll();
    void slotUserDefined();

private:
    void createLabels(Icon icon, const QString &strText);
    void createButtons(int buttons, const QString &strUser);
    void addButton(const QString &strText, int value, void (MMessageBox::*slot)());

    QLabel *m_plblText = nullptr;
    QLabel *m_plblIcon = nullptr;
    QHBoxLayout *m_playoutButtons = nullptr;
};

} // namespace QMWidgets
