#pragma once

#include <QFrame>
#include <QPair>

/// The length of a fade in big figures; FadeIn and FadeOut add the curve and the mouse.
///
/// The value is in the units of the range (seconds in this program) and always lies within it.
class Fade : public QFrame
{
    Q_OBJECT

public:
    explicit Fade(QWidget *parent);

    float value() const;
    /// A value outside the range becomes its nearer end.
    void setValue(const float &value);

    /// The range, minimum first. The value is kept within the new range.
    void setRange(const QPair<int, int> &range);
    QPair<int, int> range() const;

    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

    /// The absolute width of the range, at least 1: what a pixel is measured by.
    int rangeWidth() const;
    /// The value in whole percent of the range's width.
    int valuePercent() const;
    /// Draws the marker at x (px) and the curve through the three points, over what the base drew.
    void paintCurve(int x, const QPoint &silent, const QPoint &full);
    /// Draws the frame alone, over all else.
    void paintFrame(QPaintEvent *event);

    float m_fValue = 0;
    QPair<int, int> m_range {0, 100};

private:
    Q_DISABLE_COPY(Fade)
};
