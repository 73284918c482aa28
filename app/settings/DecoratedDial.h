#pragma once

#include <QDial>

/// A dial with the words "min" and "max" below its ends.
class DecoratedDial : public QDial
{
    Q_OBJECT

public:
    explicit DecoratedDial(QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Q_DISABLE_COPY(DecoratedDial)
};
