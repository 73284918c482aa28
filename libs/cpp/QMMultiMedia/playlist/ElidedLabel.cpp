#include "ElidedLabel.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOption>

namespace QMMultiMedia {

ElidedLabel::ElidedLabel(QWidget *parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

QSize ElidedLabel::minimumSizeHint() const
{
    return {0, QLabel::minimumSizeHint().height()};
}

QSize ElidedLabel::sizeHint() const
{
    return minimumSizeHint();
}

void ElidedLabel::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    drawFrame(&painter);
    QStyleOption option;
    option.initFrom(this);
    const QRect area = contentsRect().adjusted(margin(), margin(), -margin(), -margin());
    style()->drawItemText(&painter, area,
        static_cast<int>(QStyle::visualAlignment(layoutDirection(), alignment())), option.palette,
        isEnabled(), fontMetrics().elidedText(text(), Qt::ElideMiddle, area.width()),
        foregroundRole());
}

}
