#pragma once

#include <QScrollArea>

/// Holds a page of a dialog: as large as the page, and with a scroll bar where the screen is
/// smaller.
class PageArea : public QScrollArea
{
public:
    /// Takes the page as its widget.
    PageArea(QWidget *page, QWidget *parent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void showEvent(QShowEvent *event) override;

private:
    Q_DISABLE_COPY(PageArea)

    void keepPageWhole();
};
