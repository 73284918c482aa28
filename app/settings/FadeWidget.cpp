#include "FadeWidget.h"

#include "FadeIn.h"
#include "FadeOut.h"
#include "Literals.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

QPushButton *createButton(const QString &text, const QString &meaning, QWidget *parent)
{
    auto *button = new QPushButton(text, parent);
    button->setFlat(true);
    button->setFixedWidth(32);
    button->setObjectName(u"FadeButton"_qs);
    button->setAutoDefault(false);
    button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    button->setAccessibleName(meaning);
    return button;
}

}

FadeWidget::FadeWidget(bool bFadeIn, QWidget *parent)
    : QWidget(parent)
{
    if (bFadeIn) {
        m_pfade = new FadeIn(this);
        m_pfade->setAccessibleName(tr("Length of the fade-in"));
    } else {
        m_pfade = new FadeOut(this);
        m_pfade->setAccessibleName(tr("Length of the fade-out"));
    }
    auto *increase
        = createButton(u"+"_qs, bFadeIn ? tr("Longer fade-in") : tr("Longer fade-out"), this);
    auto *decrease
        = createButton(u"-"_qs, bFadeIn ? tr("Shorter fade-in") : tr("Shorter fade-out"), this);
    connect(increase, &QPushButton::clicked, this, &FadeWidget::slotInc);
    connect(decrease, &QPushButton::clicked, this, &FadeWidget::slotDec);

    auto *buttons = new QVBoxLayout;
    buttons->setContentsMargins(0, 0, 0, 0);
    buttons->setSpacing(0);
    buttons->addWidget(increase);
    buttons->addWidget(decrease);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_pfade);
    layout->addLayout(buttons);
}

void FadeWidget::setRange(const QPair<int, int> &range)
{
    m_pfade->setRange(range);
}

float FadeWidget::value() const
{
    return m_pfade->value();
}

void FadeWidget::setValue(const float &value)
{
    m_pfade->setValue(value);
}

void FadeWidget::slotInc()
{
    if (m_pfade->value() < static_cast<float>(m_pfade->range().second)) {
        m_pfade->setValue(m_pfade->value() + 1.0F);
    }
}

void FadeWidget::slotDec()
{
    if (m_pfade->value() > static_cast<float>(m_pfade->range().first)) {
        m_pfade->setValue(m_pfade->value() - 1.0F);
    }
}
