#pragma once

#include <QFrame>
#include <QPointer>
#include <QRandomGenerator>

class QAction;
class QLabel;
class QPushButton;
class QTimer;

namespace QMWidgets {

class PromoMenuBar;

/// A banner that shows one entry of the strip's catalogue at a time and changes it now and then.
class PromoAdsBar : public QFrame
{
    Q_OBJECT

public:
    /// pmenuBar: the strip whose catalogue is shown; may be null, the banner is empty then.
    explicit PromoAdsBar(PromoMenuBar *pmenuBar, QWidget *parent = nullptr);

    /// Milliseconds between two entries; 25000 at first.
    void setChangeInterval(int nMsecs);

    /// Only the first n catalogue actions take part; all of them if n is below 1. 10 at first.
    void setItemsLimit(int n);

    void setHideAfterClick(bool b);
    void setHideAfterCloseClick(bool b);

    /// The entry on show; null before the first one.
    QAction *currentAction() const;

signals:
    void adClicked();
    void closeClicked();

public slots:
    /// Shows a random entry.
    void slotInsertAd();
    void slotCloseClicked();

protected:
    void showEvent(QShowEvent *pe) override;
    void hideEvent(QHideEvent *pe) override;
    void mousePressEvent(QMouseEvent *pe) override;
    void keyPressEvent(QKeyEvent *pe) override;
    void paintEvent(QPaintEvent *pe) override;

private:
    void openAd();
    QString currentText() const;

    QPointer<PromoMenuBar> m_pmenuBar;
    QPointer<QAction> m_pact;
    QPushButton *m_pcmdClose = nullptr;
    QTimer *m_ptimer = nullptr;
    QRandomGenerator m_random;
    int m_nItemsLimit = 10;
    bool m_bHideAfterClick = false;
    bool m_bHideAfterCloseClick = false;
};

} // namespace QMWidgets
