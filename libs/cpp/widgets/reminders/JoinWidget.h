#pragma once

#include <QWidget>

class QHBoxLayout;
class QPushButton;

namespace QMWidgets {

/// The buttons to follow the maker on the networks.
class JoinWidget : public QWidget
{
    Q_OBJECT

public:
    explicit JoinWidget(QWidget *parent = nullptr);

    /// The maker's address that passes on to one of its pages, and counts it.
    static QString joinPage(const QString &strLink);

public slots:
    void slotYouTube();
    void slotFaceBook();
    void slotTwitter();
    void slotVKontakte();
    void slotEmail();

private:
    QPushButton *addButton(
        const QString &strName, const QString &strToolTip, void (JoinWidget::*slot)());
    static void openPage(const QString &strLink);

    QHBoxLayout *m_playoutButtons = nullptr;
};

} // namespace QMWidgets
