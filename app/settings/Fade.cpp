#include "Fade.h"

#include "Literals.h"

#include <algorithm>
#include <cstdlib>
#include <QPainter>

namespace {

const QColor Ground(210, 210, 210);
const QColor Figures(30, 30, 30);

}

Fade::Fade(QWidget *parent)
    : QFrame(parent)
{
    setObjectName(u"FadeWidget"_qs);
    setFrameStyle(QFrame::Box | QFrame::Raised);
    setMidLineWidth(1);
    // The frame's own shades; those of a light desktop would glare in the dark window.
    QPalette shades = palette();
    shades.setColor(QPalette::Light, QColor(140, 140, 140));
    shades.setColor(QPalette::Mid, QColor(100, 100, 100));
    shades.setColor(QPalette::Dark, QColor(60, 60, 60));
    setPalette(shades);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
}

float Fade::value() const
{
    return m_fValue;
}

void Fade::setValue(const float &value)
{
    // Written so that a value that is no number becomes the minimum.
    const auto minimum = static_cast<float>(m_range.first);
    const auto maximum = static_cast<float>(m_range.second);
    m_fValue = value > maximum ? maximum : (value >= minimum ? value : minimum);
    update();
}

void Fade::setRange(const QPair<int, int> &range)
{
    m_range = range;
    setValue(m_fValue);
}

QPair<int, int> Fade::range() const
{
    return m_range;
}

QSize Fade::minimumSizeHint() const
{
    return {130, 76};
}

QSize Fade::sizeHint() const
{
    return {170, 96};
}

void Fade::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), isEnabled() ? Ground : QColor(0, 0, 0, 0));
    painter.setFont(QFont(u"System"_qs, 50, 50));
    painter.setPen(isEnabled() ? Figures : QColor(Qt::gray));
    painter.drawText(rect(), Qt::AlignCenter, QString::number(static_cast<int>(m_fValue)));
}

void Fade::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
}

int Fade::rangeWidth() const
{
    return std::max(1, std::abs(m_range.second - m_range.first));
}

int Fade::valuePercent() const
{
    return static_cast<int>(m_fValue * 100 / static_cast<float>(rangeWidth()));
}

void Fade::paintCurve(int x, const QPoint &silent, const QPoint &full)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const int bottom = height();
    painter.setPen(Qt::darkRed);
    painter.drawLine(x, 0, x, bottom);
    painter.setBrush(Qt::darkRed);
    painter.drawPolygon(
        QPolygon({QPoint(x, bottom - 15), QPoint(x - 10, bottom), QPoint(x + 10, bottom)}));
    painter.setPen(Qt::blue);
    const QPoint top(x, 10);
    painter.drawLine(silent, top);
    painter.drawLine(top, full);
}

void Fade::paintFrame(QPaintEvent *event)
{
    QFrame::paintEvent(event);
}
