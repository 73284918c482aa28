#include "DecoratedDial.h"

#include "Literals.h"

#include <QPainter>

DecoratedDial::DecoratedDial(QWidget *parent)
    : QDial(parent)
{
    setObjectName(u"DecoratedDial"_qs);
}

void DecoratedDial::paintEvent(QPaintEvent *event)
{
    QDial::paintEvent(event);
    QPainter painter(this);
    //: Below the two ends of the dial; keep the distance between the words.
    painter.drawText(rect(), Qt::AlignHCenter | Qt::AlignBottom, tr("min         max"));
}
