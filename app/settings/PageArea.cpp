#include "PageArea.h"

#include <QScrollBar>

PageArea::PageArea(QWidget *page, QWidget *parent)
    : QScrollArea(parent)
{
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    setWidget(page);
    // The dialog's ground is to be seen behind the page.
    page->setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);
}

QSize PageArea::sizeHint() const
{
    return widget()->sizeHint();
}

QSize PageArea::minimumSizeHint() const
{
    return {widget()->minimumSizeHint().width() + verticalScrollBar()->sizeHint().width(), 160};
}
