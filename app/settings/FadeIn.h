#pragma once

#include "Fade.h"

/// The curve of a fade-in: it rises from the left to the marker, which follows the mouse.
class FadeIn : public Fade
{
    Q_OBJECT

public:
    explicit FadeIn(QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;

private:
    Q_DISABLE_COPY(FadeIn)

    void setValueAt(const QMouseEvent *event);
};
