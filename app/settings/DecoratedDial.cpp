#include "DecoratedDial.h"

#include "Literals.h"

#include <algorithm>
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
    // The words are to stand beside the knob, whose lower part lies between them.
    QFont font = painter.font();
    const int blanks = fontMetrics().horizontalAdvance(QString(9, QLatin1Char(' ')));
    font.setWordSpacing(std::max(0, std::min(width(), height()) * 2 / 3 - blanks));
    painter.setFont(font);
    // The knob turns to the right in every language: so do the words, each within itself.
    painter.setLayoutDirection(Qt::LeftToRight);
    const QString gap(9, QLatin1Char(' '));
    const QChar mark(0x200E); // left-to-right mark
    //: Below the two ends of the dial; keep the distance between the words.
    const QString words = tr("min         max").replace(gap, mark + gap + mark);
    painter.drawText(rect(), Qt::AlignHCenter | Qt::AlignBottom, words);
}
