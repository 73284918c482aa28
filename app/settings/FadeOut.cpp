#include "FadeOut.h"

#include <algorithm>
#include <QMouseEvent>

FadeOut::FadeOut(QWidget *parent)
    : Fade(parent)
{
}

void FadeOut::paintEvent(QPaintEvent *event)
{
    Fade::paintEvent(event);
    const int x = static_cast<int>(width() - width() * valuePercent() / 100.0);
    paintCurve(x, QPoint(width(), height()), QPoint(0, 10));
    paintFrame(event);
}

void FadeOut::mousePressEvent(QMouseEvent *event)
{
    setValueAt(event);
}

void FadeOut::mouseMoveEvent(QMouseEvent *event)
{
    setValueAt(event);
}

void FadeOut::setValueAt(const QMouseEvent *event)
{
    const int x = event->localPos().toPoint().x();
    const int length = rangeWidth();
    const int whole = length - x * length / std::max(1, width());
    setValue(static_cast<float>(whole));
}
