#pragma once

#include <QWidget>

class QPainter;

namespace QMMultiMedia {

/// A small level bar from -70 to 10 dB.
class Peekmeter : public QWidget
{
    Q_OBJECT

public:
    explicit Peekmeter(QWidget *parent = nullptr);

    /// The level in percent of the range.
    int value() const;
    /// The level in decibels.
    int valueDb() const { return m_nValueDb; }

public slots:
    /// Takes a level in decibels, limited to the range, and repaints.
    void slotSetValue(int db);

protected:
    void paintEvent(QPaintEvent *event) override;
    /// Fills the bar, from the bottom up; the rest isn't painted.
    virtual void draw(QPainter *painter);

private:
    int m_nValueDb = -70;
};

}
