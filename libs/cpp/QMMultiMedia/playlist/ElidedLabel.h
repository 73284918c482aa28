#pragma once

#include <QLabel>

namespace QMMultiMedia {

/// A label of one line of plain text that is shortened in its middle where it is too long.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget *parent = nullptr);

    /// Asks for the height of a line and for no width.
    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
};

}
