#include "AddButtonAction.h"

#include "Literals.h"
#include <QIcon>
#include <QMouseEvent>
#include <QPainter>

AddButtonAction::AddButtonAction(QObject *parent)
    : QAction(parent)
    , m_pixmap(u":/PopupButton.png"_qs)
{
    QIcon icon;
    icon.addPixmap(m_pixmap, QIcon::Normal, QIcon::Off);
    icon.addPixmap(m_pixmap, QIcon::Normal, QIcon::On);
    setIcon(icon);
}

void AddButtonAction::event(QEvent *event, const QModelIndex &index)
{
    if (event->type() != QEvent::MouseButtonPress && event->type() != QEvent::MouseButtonRelease) {
        return;
    }
    const auto *mouse = static_cast<QMouseEvent *>(event);
    if (!m_rect.contains(mouse->localPos().toPoint())) {
        return;
    }
    if (event->type() == QEvent::MouseButtonRelease) {
        m_pixmap = icon().pixmap(m_pixmap.size(), QIcon::Normal, QIcon::On);
    } else {
        m_pixmap = icon().pixmap(m_pixmap.size(), QIcon::Normal, QIcon::Off);
        emit triggered(index, m_rect.topLeft());
    }
}

void AddButtonAction::setGeometry(const QRect &rect)
{
    m_rect = rect;
}

void AddButtonAction::draw(QPainter *painter)
{
    const int side = m_pixmap.height() / 4;
    const QRect target(m_rect.left(), m_rect.top() + m_rect.height() / 8, side, side);
    painter->drawPixmap(target, m_pixmap, m_pixmap.rect());
}
