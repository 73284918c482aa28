#pragma once

#include <QComboBox>

/// A combo box that reports a click instead of opening its list.
class ComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit ComboBox(QWidget *parent = nullptr);

signals:
    void clicked();

protected:
    void mousePressEvent(QMouseEvent *event) override;

private:
    Q_DISABLE_COPY(ComboBox)
};
