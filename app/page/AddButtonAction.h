#pragma once

#include <QAction>
#include <QModelIndex>
#include <QPixmap>
#include <QRect>

class QPainter;

/// A button of a row: an action that knows where it is drawn and reacts to mouse events itself, so
/// that a row can carry it without any widget.
class AddButtonAction : public QAction
{
    Q_OBJECT

public:
    explicit AddButtonAction(QObject *parent);

    /// Takes a mouse event inside the button; all other events are passed over.
    void event(QEvent *event, const QModelIndex &index);

    /// Where the button lies, in the coordinates of the view's viewport.
    void setGeometry(const QRect &rect);

    /// Draws the picture at a quarter of its height in both directions.
    void draw(QPainter *painter);

signals:
    /// The button was pressed: the row, and the top left corner of the button.
    void triggered(QModelIndex index, const QPoint &corner);

protected:
    using QAction::event;

private:
    Q_DISABLE_COPY(AddButtonAction)
    QRect m_rect;
    QPixmap m_pixmap;
};
