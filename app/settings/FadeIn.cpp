#include "FadeIn.h"

#include <algorithm>
#include <QMouseEvent>

FadeIn::FadeIn(QWidget *parent)
    : Fade(parent)
{
}

void FadeIn::paintEvent(QPaintEvent *event)
{
    Fade::paintEvent(event);
    const int x = static_cast<int>(width() * valuePercent() / 100.0);
    paintCurve(x, QPoint(0, height()), QPoint(width(), 10));
    paintFrame(event);
}

void FadeIn::mousePressEvent(QMouseEvent *event)
{
    setValueAt(event);
}

void FadeIn::mouseMoveEvent(QMouseEvent *event)
{
    setValueAt(event);
}

void FadeIn::setValueAt(const QMouseEvent *event)
{
    const int x = event->localPos().toPoint().x();
    const int whole = x * rangeWidth() / std::max(1, width());
    setValue(static_cast<float>(whole));
}
