#pragma once

#include <QList>
#include <QListView>
#include <QUrl>

/// The list of tracks: a list view that files and folders can be dropped on. A drop is a copy.
///
/// Its rows are as wide as the viewport, whatever the delegate asks for: it never scrolls sideways.
class ListView : public QListView
{
    Q_OBJECT

public:
    explicit ListView(QWidget *parent = nullptr);

    QRect visualRect(const QModelIndex &index) const override;

signals:
    /// What was dropped. The drag is still going on: connect it queued to what takes its time.
    void dropped(QList<QUrl> urls);

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    QStyleOptionViewItem viewOptions() const override;
    void updateGeometries() override;

private:
    Q_DISABLE_COPY(ListView)
};
