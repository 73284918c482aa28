#include "PromoAdsBar.h"

#include "Literals.h"
#include "PromoMenuBar.h"

#include <QAction>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QPushButton>
#include <QTime>
#include <QTimer>

#include <algorithm>

namespace QMWidgets {

namespace {

constexpr int Margin = 4;

} // namespace

PromoAdsBar::PromoAdsBar(PromoMenuBar *pmenuBar, QWidget *parent)
    : QFrame(parent)
    , m_pmenuBar(pmenuBar)
    , m_pcmdClose(new QPushButton(this))
    , m_ptimer(new QTimer(this))
{
    setObjectName(u"AdsBar"_qs);
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::StrongFocus);
    setMinimumHeight(40);

    m_pcmdClose->setObjectName(u"AdsBarCloseButton"_qs);
    m_pcmdClose->setFlat(true);
    m_pcmdClose->setIcon(QIcon(u":/close.png"_qs));
    m_pcmdClose->setToolTip(tr("Close the banner"));
    m_pcmdClose->setAccessibleName(m_pcmdClose->toolTip());
    connect(m_pcmdClose, &QPushButton::clicked, this, &PromoAdsBar::slotCloseClicked);

    auto *playout = new QHBoxLayout(this);
    playout->setContentsMargins(Margin, Margin, Margin, Margin);
    playout->addStretch(1);
    playout->addWidget(m_pcmdClose);

    m_ptimer->setInterval(25000);
    connect(m_ptimer, &QTimer::timeout, this, &PromoAdsBar::slotInsertAd);
}

void PromoAdsBar::setChangeInterval(int nMsecs)
{
    m_ptimer->setInterval(nMsecs);
}

void PromoAdsBar::setItemsLimit(int n)
{
    m_nItemsLimit = n;
}

void PromoAdsBar::setHideAfterClick(bool b)
{
    m_bHideAfterClick = b;
}

void PromoAdsBar::setHideAfterCloseClick(bool b)
{
    m_bHideAfterCloseClick = b;
}

QAction *PromoAdsBar::currentAction() const
{
    return m_pact;
}

QString PromoAdsBar::currentText() const
{
    if (m_pact.isNull()) {
        return {};
    }
    QString str;
    const QString strText = m_pact->text();
    for (int i = 0; i < strText.size(); ++i) {
        if (strText.at(i) != u'&') {
            str.append(strText.at(i));
        } else if (i + 1 < strText.size() && strText.at(i + 1) == u'&') {
            str.append(u'&');
            ++i;
        }
    }
    return str;
}

void PromoAdsBar::slotInsertAd()
{
    QList<QAction *> lst = m_pmenuBar.isNull() ? QList<QAction *>() : m_pmenuBar->moreActions();
    if (m_nItemsLimit >= 1) {
        lst = lst.mid(0, m_nItemsLimit);
    }
    lst.erase(std::remove_if(lst.begin(), lst.end(),
                  [](const QAction *pact) { return pact->text().isEmpty(); }),
        lst.end());
    m_pact = lst.isEmpty() ? nullptr : lst.at(m_random.bounded(lst.size()));
    setAccessibleName(currentText());
    update();
}

void PromoAdsBar::slotCloseClicked()
{
    emit closeClicked();
    if (m_bHideAfterCloseClick) {
        hide();
    }
}

void PromoAdsBar::showEvent(QShowEvent *pe)
{
    QFrame::showEvent(pe);
    m_random.seed(static_cast<quint32>(QTime::currentTime().msec()));
    slotInsertAd();
    m_ptimer->start();
}

void PromoAdsBar::hideEvent(QHideEvent *pe)
{
    m_ptimer->stop();
    QFrame::hideEvent(pe);
}

void PromoAdsBar::mousePressEvent(QMouseEvent * /*pe*/)
{
    openAd();
}

void PromoAdsBar::keyPressEvent(QKeyEvent *pe)
{
    if (pe->key() == Qt::Key_Space || pe->key() == Qt::Key_Return || pe->key() == Qt::Key_Enter) {
        openAd();
    } else {
        QFrame::keyPressEvent(pe);
    }
}

void PromoAdsBar::openAd()
{
    if (m_pact.isNull()) {
        return;
    }
    m_pact->trigger();
    emit adClicked();
    if (m_bHideAfterClick) {
        hide();
    }
}

void PromoAdsBar::paintEvent(QPaintEvent *pe)
{
    QFrame::paintEvent(pe);
    if (m_pact.isNull()) {
        return;
    }
    const QRect rc = rect().adjusted(Margin, Margin, -Margin, -Margin);
    const QRect rcIcon(rc.left(), rc.top(), rc.height(), rc.height());
    QRect rcText = rc;
    rcText.setLeft(rcIcon.right() + 2 * Margin);
    rcText.setRight(rc.right() - m_pcmdClose->width() - Margin);

    QPainter painter(this);
    const bool bRight = layoutDirection() == Qt::RightToLeft;
    const auto placed = [this, bRight](const QRect &rcLeft) {
        return bRight
            ? QRect(width() - rcLeft.right() - 1, rcLeft.top(), rcLeft.width(), rcLeft.height())
            : rcLeft;
    };
    m_pact->icon().paint(&painter, placed(rcIcon));
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(placed(rcText),
        Qt::AlignVCenter | Qt::TextWordWrap | (bRight ? Qt::AlignRight : Qt::AlignLeft),
        currentText());
    if (hasFocus()) {
        painter.setPen(Qt::DotLine);
        painter.drawRect(rect().adjusted(1, 1, -2, -2));
    }
}

} // namespace QMWidgets
