#include "PathBox.h"

#include <QStylePainter>

PathBox::PathBox(QWidget *parent)
    : QComboBox(parent)
{
    // The path must not decide the width of the window.
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
}

void PathBox::paintEvent(QPaintEvent * /*event*/)
{
    QStylePainter painter(this);
    painter.setPen(palette().color(QPalette::Text));
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QRect field
        = style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    option.currentText
        = fontMetrics().elidedText(option.currentText, Qt::ElideMiddle, field.width());
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}
