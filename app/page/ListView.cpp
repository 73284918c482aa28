#include "ListView.h"

#include "Literals.h"
#include <algorithm>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QScrollBar>

namespace {

bool holdsUrls(const QDropEvent *event)
{
    return event->mimeData()->hasFormat(u"text/uri-list"_qs);
}

}

ListView::ListView(QWidget *parent)
    : QListView(parent)
{
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setUniformItemSizes(true);
}

void ListView::dragEnterEvent(QDragEnterEvent *event)
{
    if (holdsUrls(event)) {
        event->acceptProposedAction();
    }
}

void ListView::dragMoveEvent(QDragMoveEvent *event)
{
    // For the drop indicator and the scrolling at the edges; its answer depends on the row.
    QListView::dragMoveEvent(event);
    if (holdsUrls(event)) {
        event->setDropAction(Qt::CopyAction);
        event->accept();
    }
}

void ListView::dropEvent(QDropEvent *event)
{
    const QList<QUrl> urls = event->mimeData()->urls();
    QDragLeaveEvent leave;
    dragLeaveEvent(&leave); // takes the indicator away and ends the scrolling
    // A source that offered to move its files would delete them otherwise.
    event->setDropAction(Qt::CopyAction);
    event->accept();
    emit dropped(urls);
}

QRect ListView::visualRect(const QModelIndex &index) const
{
    // The base class never makes rows narrower again when the window shrinks.
    QRect row = QListView::visualRect(index);
    if (row.isValid()) {
        row.setLeft(0);
        row.setWidth(viewport()->width());
    }
    return row;
}

void ListView::setLowerOverlay(QWidget *overlay)
{
    m_overlay = overlay;
    updateGeometries();
}

/// How much of the viewport's height no overlay covers.
int ListView::clearHeight() const
{
    return viewport()->height() - (m_overlay ? m_overlay->height() : 0);
}

void ListView::scrollTo(const QModelIndex &index, ScrollHint hint)
{
    QListView::scrollTo(index, hint);
    const int covered = visualRect(index).bottom() + 1 - clearHeight();
    if (covered > 0) {
        verticalScrollBar()->setValue(verticalScrollBar()->value() + covered);
    }
}

void ListView::updateGeometries()
{
    // The bar goes by what the overlay leaves free. Left to the base class, which goes by the whole
    // height, it would come and go without end for rows that fit the one and not the other.
    const int covered = contentsSize().height() - clearHeight();
    setVerticalScrollBarPolicy(covered > 0 ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
    const int value = verticalScrollBar()->value();
    QListView::updateGeometries();
    horizontalScrollBar()->setRange(0, 0);
    verticalScrollBar()->setMaximum(std::max(0, covered));
    verticalScrollBar()->setValue(value);
}

QStyleOptionViewItem ListView::viewOptions() const
{
    QStyleOptionViewItem option = QListView::viewOptions();
    option.rect.setWidth(0);
    return option;
}
