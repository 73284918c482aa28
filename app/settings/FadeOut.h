#pragma once

#include "Fade.h"

/// The curve of a fade-out: it falls from the marker, which follows the mouse, to the right. A
/// length of 0 has its marker on the right edge.
class FadeOut : public Fade
{
    Q_OBJECT

public:
    explicit FadeOut(QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;

private:
    Q_DISABLE_COPY(FadeOut)

    void setValueAt(const QMouseEvent *event);
};
