#include "Label.h"

#include <QPainter>

namespace QMWidgets {

Label::Label(QWidget *parent)
    : QLabel(parent)
{
}

void Label::setMode(Mode mode)
{
    m_mode = mode;
    m_pixmapScaled = QPixmap();
    update();
}

void Label::setRetinaPixmap(const QPixmap &pixmap)
{
    m_pixmapRetina = pixmap;
    m_pixmapScaled = QPixmap();
    update();
}

void Label::setOpacity(const double &dOpacity)
{
    m_dOpacity = qBound(0.0, dOpacity, 1.0);
    update();
}

void Label::paintEvent(QPaintEvent *pe)
{
    QLabel::paintEvent(pe);
    if (m_pixmapRetina.isNull()) {
        return;
    }
    const QPixmap &pixmap = scaledPixmap();
    const QSizeF sz = QSizeF(pixmap.size()) / pixmap.devicePixelRatio();
    QPainter painter(this);
    painter.setOpacity(m_dOpacity);
    painter.drawPixmap(
        QPointF((width() - sz.width()) / 2.0, (height() - sz.height()) / 2.0), pixmap);
}

const QPixmap &Label::scaledPixmap()
{
    const QSize sz = size() * devicePixelRatioF();
    if (m_pixmapScaled.isNull() || m_szScaledFor != sz) {
        m_pixmapScaled = m_pixmapRetina.scaled(sz,
            m_mode == Mode::KeepAspectRatio ? Qt::KeepAspectRatio : Qt::KeepAspectRatioByExpanding,
            Qt::SmoothTransformation);
        m_pixmapScaled.setDevicePixelRatio(devicePixelRatioF());
        m_szScaledFor = sz;
    }
    return m_pixmapScaled;
}

} // namespace QMWidgets
