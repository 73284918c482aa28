#pragma once

#include <QList>
#include <QStyledItemDelegate>

class QAction;

/// Paints the rows of the track list and finds the presses on their note and their buttons.
class TracksListDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit TracksListDelegate(QObject *parent = nullptr);

    /// Adds a button to every row; the delegate becomes its parent.
    void addAction(QAction *action);

    /// The row's contents without its borders.
    QRect displayArea(const QStyleOptionViewItem &option) const;

    /// Where the buttons lie.
    QRect buttonArea(const QStyleOptionViewItem &option) const;

    /// The picture scaled to the size, its proportions kept; a stand-in for a null picture.
    QPixmap createAvatar(const QPixmap &pixmap, const QSize &size) const;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
        const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

signals:
    /// The row's note was pressed.
    void play(QModelIndex index);

protected:
    bool editorEvent(QEvent *event, QAbstractItemModel *model, const QStyleOptionViewItem &option,
        const QModelIndex &index) override;

private:
    Q_DISABLE_COPY(TracksListDelegate)
    static void paintBackground(QPainter *painter, const QStyleOptionViewItem &option);
    static void paintTexts(QPainter *painter, const QStyleOptionViewItem &option,
        const QString &name, const QDateTime &lastModified);
    void paintNote(QPainter *painter, const QStyleOptionViewItem &option, bool today) const;

    QList<QAction *> m_lstActions;
};
