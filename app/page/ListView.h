#pragma once

#include <QList>
#include <QListView>
#include <QUrl>

/// The list of tracks: a list view that files and folders can be dropped on.
class ListView : public QListView
{
    Q_OBJECT

public:
    explicit ListView(QWidget *parent = nullptr);

signals:
    /// What was dropped. The drag is still going on: connect it queued to what takes its time.
    void dropped(QList<QUrl> urls);

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    Q_DISABLE_COPY(ListView)
};
