#include "HelpViewArea.h"

#include "HelpDisplay.h"
#include "Literals.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QPushButton>
#include <QSignalMapper>
#include <QTimer>

namespace QMWidgets {

HelpViewArea::HelpViewArea(QWidget *parent)
    : QFrame(parent)
    , m_ptimer(new QTimer(this))
    , m_pdisplay(new HelpDisplay(this))
    , m_pmapper(new QSignalMapper(this))
    , m_pgroup(new QButtonGroup(this))
    , m_playoutButtons(new QHBoxLayout)
{
    m_ptimer->setInterval(5000);
    m_pgroup->setExclusive(true);
    connect(m_ptimer, &QTimer::timeout, this, &HelpViewArea::slotShowNextSlide);
    connect(m_pmapper, &QSignalMapper::mappedString, this, &HelpViewArea::slotShowSlide);

    auto *playoutRow = new QHBoxLayout;
    playoutRow->addStretch(1);
    playoutRow->addLayout(m_playoutButtons);
    playoutRow->addStretch(1);
    auto *playout = new QVBoxLayout(this);
    playout->setContentsMargins(0, 0, 0, 0);
    playout->addWidget(m_pdisplay, 1);
    playout->addLayout(playoutRow);
}

void HelpViewArea::addSlide(const QString &strPath)
{
    ++m_nSlides;
    auto *pcmd = new QPushButton(this);
    applyItemButtonProperties(pcmd, QString::number(m_nSlides));
    pcmd->setAccessibleName(tr("Slide %1").arg(m_nSlides));
    m_pgroup->addButton(pcmd);
    m_playoutButtons->addWidget(pcmd);
    m_pmapper->setMapping(pcmd, strPath);
    connect(pcmd, &QPushButton::toggled, m_pmapper, [this, pcmd](bool b) {
        if (b) {
            m_pmapper->map(pcmd);
        }
    });
    connect(pcmd, &QPushButton::clicked, this, &HelpViewArea::slotButtonClicked);
}

QString HelpViewArea::currentSlide() const
{
    return m_pdisplay->slide();
}

void HelpViewArea::setInterval(int nMsecs)
{
    m_ptimer->setInterval(nMsecs);
}

void HelpViewArea::applyItemButtonProperties(QPushButton *pcmd, const QString &strText)
{
    pcmd->setObjectName(u"HelpSlideButton"_qs);
    pcmd->setText(strText);
    pcmd->setFlat(true);
    pcmd->setCheckable(true);
    pcmd->setAutoDefault(false);
    pcmd->setFixedSize(18, 18);
}

void HelpViewArea::slotShowSlide(const QString &strPath)
{
    m_pdisplay->setSlide(strPath);
    const QAbstractButton *pcmd = m_pgroup->checkedButton();
    m_pdisplay->setAccessibleName(pcmd != nullptr ? pcmd->accessibleName() : QString());
}

void HelpViewArea::slotShowNextSlide()
{
    const QList<QAbstractButton *> lst = m_pgroup->buttons();
    if (!lst.isEmpty()) {
        const int n = lst.indexOf(m_pgroup->checkedButton());
        lst.at((n + 1) % lst.size())->setChecked(true);
    }
}

void HelpViewArea::slotStartSlideShow()
{
    const QList<QAbstractButton *> lst = m_pgroup->buttons();
    if (lst.isEmpty()) {
        return;
    }
    if (m_pgroup->checkedButton() == nullptr) {
        lst.constFirst()->setChecked(true);
    }
    m_ptimer->start();
}

void HelpViewArea::slotStopSlideShow()
{
    m_ptimer->stop();
}

void HelpViewArea::slotButtonClicked()
{
    slotStopSlideShow();
}

} // namespace QMWidgets
