#pragma once

#include <QList>
#include <QListView>
#include <QPointer>
#include <QUrl>

/// The list of tracks: a list view that files and folders can be dropped on. A drop is a copy.
///
/// Its rows are as wide as the viewport, whatever the delegate asks for: it never scrolls sideways.
class ListView : public QListView
{
    Q_OBJECT

public:
    explicit ListView(QWidget *parent = nullptr);

    /// A widget that lies over the list's lower edge: the last row can be scrolled out from under
    /// it. The list doesn't own it; null for none.
    void setLowerOverlay(QWidget *overlay);

    QRect visualRect(const QModelIndex &index) const override;
    void scrollTo(const QModelIndex &index, ScrollHint hint = EnsureVisible) override;

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
    int clearHeight() const;

    QPointer<QWidget> m_overlay;
};
