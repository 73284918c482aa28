#pragma once

#include <QComboBox>

/// A combo box that shortens the path it shows in the middle where it is too long for the box.
class PathBox : public QComboBox
{
    Q_OBJECT

public:
    explicit PathBox(QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Q_DISABLE_COPY(PathBox)
};
