#pragma once

#include <QLabel>

namespace QMWidgets {

/// A veil over a window: it swallows all mouse clicks.
class BlenderWidget : public QLabel
{
    Q_OBJECT

public:
    explicit BlenderWidget(QWidget *pwgt);

protected:
    void mousePressEvent(QMouseEvent *pe) override;
    void mouseReleaseEvent(QMouseEvent *pe) override;
    void mouseDoubleClickEvent(QMouseEvent *pe) override;
};

} // namespace QMWidgets
