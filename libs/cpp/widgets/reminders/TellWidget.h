#pragma once

#include <QWidget>

class QHBoxLayout;
class QPushButton;

namespace QMWidgets {

/// The buttons to share the application through the networks and by mail.
class TellWidget : public QWidget
{
    Q_OBJECT

public:
    explicit TellWidget(QWidget *parent = nullptr);

    /// The maker's address that passes on to a sharing link, and counts it.
    static QString sharePage(const QString &strLink);

public slots:
    void slotFaceBook();
    void slotTwitter();
    void slotVKontakte();
    void slotLinkedin();
    void slotEmail();

private:
    static void applyButtonProperties(
        QPushButton *pcmd, const QString &strName, const QString &strToolTip);
    QPushButton *addButton(
        const QString &strName, const QString &strToolTip, void (TellWidget::*slot)());
    static void openShareLink(const QString &strLink);

    QHBoxLayout *m_playout = nullptr;
};

} // namespace QMWidgets
