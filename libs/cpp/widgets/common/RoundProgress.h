#pragma once

#include <QWidget>

namespace QMWidgets {

/// A round display of a percentage.
class RoundProgress : public QWidget
{
    Q_OBJECT

public:
    explicit RoundProgress(QWidget *parent = nullptr);

    /// Percent.
    int value() const;

    QSize sizeHint() const override;

public slots:
    /// Percent, drawn as 0 to 100.
    void setValue(const int &n);

protected:
    void paintEvent(QPaintEvent *pe) override;

private:
    int m_nValue = 0;
};

} // namespace QMWidgets
