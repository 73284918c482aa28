#include "BlenderWidget.h"

#include <QMouseEvent>

namespace QMWidgets {

BlenderWidget::BlenderWidget(QWidget *pwgt)
    : QLabel(pwgt)
{
}

void BlenderWidget::mousePressEvent(QMouseEvent *pe)
{
    pe->accept();
}

void BlenderWidget::mouseReleaseEvent(QMouseEvent *pe)
{
    pe->accept();
}

void BlenderWidget::mouseDoubleClickEvent(QMouseEvent *pe)
{
    pe->accept();
}

} // namespace QMWidgets
