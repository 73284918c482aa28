#include "SimpleProgress.h"

#include "Literals.h"

#include <QPainter>
#include <QTimer>

namespace QMWidgets {

namespace {

constexpr int TickMsecs = 100;
/// The stripes' step at each tick, in pixels.
constexpr int StripeStep = 20;
constexpr int Stripes = 4;

QLinearGradient barGradient(int nHeight, const QColor &edge, const QColor &middle)
{
    QLinearGradient gradient(0, 0, 0, nHeight);
    gradient.setColorAt(0.0, edge);
    gradient.setColorAt(0.5, middle);
    gradient.setColorAt(1.0, edge);
    return gradient;
}

} // namespace

SimpleProgress::SimpleProgress(QWidget *parent)
    : QWidget(parent)
    , m_ptimer(new QTimer(this))
{
    setMinimumHeight(20);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setFont(QFont(u"System"_qs));
    connect(m_ptimer, &QTimer::timeout, this, &SimpleProgress::slotMoveStripes);
    m_ptimer->start(TickMsecs);
    updateAccessibility();
}

int SimpleProgress::value() const
{
    return m_nValue;
}

QString SimpleProgress::text() const
{
    return m_strText;
}

QSize SimpleProgress::sizeHint() const
{
    return {200, qMax(20, fontMetrics().height() + 6)};
}

void SimpleProgress::setValue(const int &n)
{
    m_nValue = n;
    if (m_nValue == 0 && !m_ptimer->isActive()) {
        m_ptimer->start(TickMsecs);
    }
    updateAccessibility();
    update();
}

void SimpleProgress::setText(const QString &str)
{
    m_strText = str;
    updateAccessibility();
    update();
}

void SimpleProgress::updateAccessibility()
{
    setAccessibleName(m_strText);
    setAccessibleDescription(u"%1 %"_qs.arg(m_nValue));
}

void SimpleProgress::slotMoveStripes()
{
    if (m_nValue != 0) {
        m_ptimer->stop();
        return;
    }
    ++m_nStripePos;
    if (m_nStripePos > width() / StripeStep) {
        m_nStripePos = 0;
    }
    update();
}

void SimpleProgress::paintEvent(QPaintEvent * /*pe*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), barGradient(height(), QColor(100, 100, 100), QColor(150, 150, 150)));
    const int nWidth = static_cast<int>(qint64(width()) * qBound(0, m_nValue, 100) / 100);
    const QRect rc(
        layoutDirection() == Qt::RightToLeft ? width() - nWidth : 0, 0, nWidth, height());
    painter.fillRect(rc, barGradient(height(), QColor(0, 140, 0), QColor(0, 230, 0)));
    if (m_nValue == 0) {
        drawStripes(&painter);
    }
    drawText(&painter);
}

void SimpleProgress::drawStripes(QPainter *pp) const
{
    pp->save();
    pp->setRenderHint(QPainter::Antialiasing);
    pp->setPen(Qt::NoPen);
    if (layoutDirection() == Qt::RightToLeft) {
        pp->translate(width(), 0);
        pp->scale(-1, 1);
    }
    for (int i = 0; i < Stripes; ++i) {
        const double dLeft = (m_nStripePos - i) * double(StripeStep);
        const double dSlant = height() / 2.0;
        pp->setBrush(QColor(255, 255, 255, 90 - i * 20));
        pp->drawPolygon(QPolygonF({{dLeft + dSlant, 0.0}, {dLeft + dSlant + 11.0, 0.0},
            {dLeft + 11.0, double(height())}, {dLeft, double(height())}}));
    }
    pp->restore();
}

void SimpleProgress::drawText(QPainter *pp) const
{
    if (m_strText.isEmpty()) {
        return;
    }
    // The name of a file runs as its own letters do.
    pp->setLayoutDirection(m_strText.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    const QString str = fontMetrics().elidedText(m_strText, Qt::ElideMiddle, width() - 8);
    // The outline keeps the text readable on grey and on green alike. It is drawn as text, not as a
    // path: the pictures of a colour font have no outlines.
    pp->setPen(QColor(0, 0, 0, 130));
    for (int y = -1; y <= 1; ++y) {
        for (int x = -1; x <= 1; ++x) {
            pp->drawText(rect().translated(x, y), Qt::AlignCenter, str);
        }
    }
    pp->setPen(Qt::white);
    pp->drawText(rect(), Qt::AlignCenter, str);
}

} // namespace QMWidgets
