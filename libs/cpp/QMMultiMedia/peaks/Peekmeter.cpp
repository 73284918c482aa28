#include "Peekmeter.h"

#include <QPainter>

namespace QMMultiMedia {

Peekmeter::Peekmeter(QWidget *parent)
    : QWidget(parent)
{
}

int Peekmeter::value() const
{
    return (m_nValueDb * 100 + 7000) / 80;
}

void Peekmeter::slotSetValue(int db)
{
    if (db > 9) {
        m_nValueDb = 10;
    } else if (db < -70) {
        m_nValueDb = -70;
    } else {
        m_nValueDb = db;
    }
    update();
}

void Peekmeter::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    draw(&painter);
}

void Peekmeter::draw(QPainter *painter)
{
    const int barHeight = height() * value() / 100;
    painter->fillRect(0, height() - barHeight, width(), barHeight, Qt::red);
}

}
