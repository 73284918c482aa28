#include "PageArea.h"

#include <QEvent>
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

bool PageArea::eventFilter(QObject *watched, QEvent *event)
{
    const bool handled = QScrollArea::eventFilter(watched, event);
    if (watched == widget() && event->type() == QEvent::LayoutRequest) {
        keepPageWhole();
    }
    return handled;
}

void PageArea::showEvent(QShowEvent *event)
{
    keepPageWhole();
    QScrollArea::showEvent(event);
}

void PageArea::keepPageWhole()
{
    // A minimum height from a style sheet hides the layout's own from the page: without this the
    // groups would be squeezed instead of scrolled.
    widget()->setMinimumHeight(widget()->sizeHint().height());
}
