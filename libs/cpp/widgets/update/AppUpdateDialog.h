#pragma once

#include <QDialog>

class QLabel;

/// Tells the result of an update check, and opens the application's page on demand.
class AppUpdateDialog : public QDialog
{
    Q_OBJECT

public:
    explicit AppUpdateDialog(QWidget *pwgt = nullptr);

    /// Whether updates are looked for at the start. Stored at once.
    static bool isChecked();
    static void setChecked(bool b);

    void setMessage(const QString &strMessage);
    void setPic(const QPixmap &pix);

public slots:
    void slotSetChecked(bool b);

    /// Opens the page of updates in the browser and closes the dialog.
    void slotUpdate();
    void slotCancel();

private:
    void createLayout(QWidget *pwgtCheck, QWidget *pwgtYes, QWidget *pwgtNo);

    QLabel *m_plblPic = nullptr;
    QLabel *m_plblMessage = nullptr;
};
