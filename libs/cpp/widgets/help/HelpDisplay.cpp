#include "HelpDisplay.h"

#include "App.h"

#include <QPainter>

namespace QMWidgets {

HelpDisplay::HelpDisplay(QWidget *parent)
    : QFrame(parent)
{
    setMinimumSize(App::isPocketDevice() ? QSize(280, 220) : QSize(400, 300));
    // What lies beside a slide belongs to the dialog's dark surface.
    QPalette pal = palette();
    pal.setColor(QPalette::Dark, QColor(24, 24, 25));
    setPalette(pal);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QSize HelpDisplay::sizeHint() const
{
    return {640, 480};
}

void HelpDisplay::setSlide(const QString &strPath)
{
    if (strPath != m_strSlide) {
        m_strSlide = strPath;
        m_pixmap = QPixmap();
        m_pixmapScaled = QPixmap();
    }
    update();
}

QString HelpDisplay::slide() const
{
    return m_strSlide;
}

void HelpDisplay::paintEvent(QPaintEvent *pe)
{
    QFrame::paintEvent(pe);
    if (m_strSlide.isEmpty()) {
        return;
    }
    QPainter painter(this);
    painter.fillRect(rect(), palette().dark().color());
    const double dRatio = devicePixelRatioF();
    const QSize sz = size() * dRatio;
    if (m_pixmap.isNull()) {
        m_pixmap.load(m_strSlide);
    }
    if (m_pixmap.isNull() || sz.isEmpty()) {
        return;
    }
    if (m_pixmapScaled.isNull() || m_szScaledFor != sz) {
        m_pixmapScaled = m_pixmap.scaled(sz, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        m_pixmapScaled.setDevicePixelRatio(dRatio);
        m_szScaledFor = sz;
    }
    const QSizeF szShown = QSizeF(m_pixmapScaled.size()) / dRatio;
    painter.drawPixmap(
        QPointF((width() - szShown.width()) / 2.0, (height() - szShown.height()) / 2.0),
        m_pixmapScaled);
}

} // namespace QMWidgets
