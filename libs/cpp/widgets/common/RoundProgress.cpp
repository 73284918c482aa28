#include "RoundProgress.h"

#include "Literals.h"

#include <QPainter>
#include <QPainterPath>

namespace QMWidgets {

namespace {

/// Of the radius: where the ring of the value begins and ends.
constexpr double RingOuter = 0.94;
constexpr double RingInner = 0.74;

QRectF circle(const QPointF &center, double dRadius)
{
    return {center.x() - dRadius, center.y() - dRadius, 2 * dRadius, 2 * dRadius};
}

} // namespace

RoundProgress::RoundProgress(QWidget *parent)
    : QWidget(parent)
{
    setMinimumSize(90, 90);
    setFont(QFont(u"System"_qs));
    setAccessibleName(tr("Overall progress"));
    setAccessibleDescription(u"0 %"_qs);
}

int RoundProgress::value() const
{
    return m_nValue;
}

QSize RoundProgress::sizeHint() const
{
    return {180, 180};
}

void RoundProgress::setValue(const int &n)
{
    m_nValue = n;
    setAccessibleDescription(u"%1 %"_qs.arg(n));
    update();
}

void RoundProgress::paintEvent(QPaintEvent * /*pe*/)
{
    const QPointF center(width() / 2.0, height() / 2.0);
    const double dRadius = qMin(width(), height()) / 2.0 - 1.0;
    if (dRadius <= 0.0) {
        return;
    }
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);

    QRadialGradient gradient(center, dRadius);
    gradient.setColorAt(0.0, QColor(70, 70, 70));
    gradient.setColorAt(0.9, QColor(200, 200, 200));
    painter.setBrush(gradient);
    painter.drawEllipse(circle(center, dRadius));

    // From the top, clockwise.
    const double dSpan = -3.6 * qBound(0, m_nValue, 100);
    QPainterPath path;
    path.arcMoveTo(circle(center, dRadius * RingOuter), 90.0);
    path.arcTo(circle(center, dRadius * RingOuter), 90.0, dSpan);
    path.arcTo(circle(center, dRadius * RingInner), 90.0 + dSpan, -dSpan);
    path.closeSubpath();
    QRadialGradient green(center, dRadius);
    green.setColorAt(RingInner, QColor(0, 140, 0));
    green.setColorAt((RingInner + RingOuter) / 2, QColor(0, 230, 0));
    green.setColorAt(RingOuter, QColor(0, 140, 0));
    painter.setBrush(green);
    painter.drawPath(path);

    QFont fontValue(font());
    fontValue.setPixelSize(qMax(8, static_cast<int>(dRadius * 0.45)));
    fontValue.setBold(true);
    painter.setFont(fontValue);
    painter.setPen(QColor(0, 0, 0, 160));
    const QString str = u"%1%"_qs.arg(m_nValue);
    painter.drawText(QRectF(rect()).translated(1, 1), Qt::AlignCenter, str);
    painter.setPen(Qt::white);
    painter.drawText(rect(), Qt::AlignCenter, str);
}

} // namespace QMWidgets
