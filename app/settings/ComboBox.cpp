#include "ComboBox.h"

ComboBox::ComboBox(QWidget *parent)
    : QComboBox(parent)
{
}

void ComboBox::mousePressEvent(QMouseEvent * /*event*/)
{
    emit clicked();
}
