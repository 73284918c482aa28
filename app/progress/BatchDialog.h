#pragma once

#include <QDialog>
#include <QString>

namespace QMWidgets {
class Label;
class RoundProgress;
class SimpleProgress;
}
class QPushButton;

/// What the user sees of a run: the settings in short, the progress of all and of the file at hand,
/// and the buttons to pause, stop and close.
///
/// A pure view: it reports the buttons by its signals and shows what its slots are told, in any
/// order. User-interface thread only.
class BatchDialog : public QDialog
{
    Q_OBJECT

public:
    /// @param parent the window over which the dialog opens; may be null.
    explicit BatchDialog(QWidget *parent);

signals:
    /// The user ends the run: by Stop, by Esc or by closing the window. Once a dialog.
    void stop();
    /// The user pauses the run (true) or resumes it (false).
    void paused(bool pause);

public slots:
    void slotPause();
    void slotStop();
    /// The whole run in percent; at 100 or more the dialog is done and offers Close.
    void slotProgressChanged(int percent);
    /// The file at hand in percent.
    void slotFileProgressChanged(int percent);
    void slotAccept();
    /// The text of the bar: a file's name or the name of a stage.
    void slotShowCurrentFile(QString text);
    /// The error log, as plain text; replaces an earlier one and brings up the button that shows
    /// it.
    void slotSetErrors(QString errors);
    /// Shows the error log and returns when it is closed.
    void slotShowErrors();
    /// The run has paused itself for want of free space: shows so, and returns when the warning is
    /// closed.
    void slotNotEnoughtFreeSpace();

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    Q_DISABLE_COPY(BatchDialog)

    void createWidgets();
    void createLayout();
    void connectSignals();

    QMWidgets::SimpleProgress *m_pprogressFile = nullptr;
    QMWidgets::RoundProgress *m_pprogressTotal = nullptr;
    QPushButton *m_pcmdPause = nullptr;
    QPushButton *m_pcmdStop = nullptr;
    QPushButton *m_pcmdClose = nullptr;
    QPushButton *m_pcmdErrors = nullptr;
    QMWidgets::Label *m_plblPreview = nullptr;
    QString m_strErrors;
};
