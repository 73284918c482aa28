#include "TracksListDelegate.h"

#include "AddButtonAction.h"
#include "Literals.h"
#include "PlayListModel.h"
#include <QDateTime>
#include <QMouseEvent>
#include <QPainter>
#include <QPixmapCache>

namespace {

constexpr int rowHeight = 55;

/// The square of the note, as it is drawn and as it is pressed.
QRect noteArea(const QRect &row)
{
    const int side = row.bottom() - row.top() - 22;
    return {row.left() + 13, row.top() + 13, side, side};
}

QRect nameArea(const QRect &row)
{
    return {QPoint(row.left() + (row.bottom() - row.top()) + 3, row.top() + 13),
        QPoint(row.right() + 2, row.bottom() - 10)};
}

/// Some languages abbreviate the month with a point of its own.
QString dateText(const QDateTime &time)
{
    return time.toString(u"dd.MMM.yyyy hh:mm:ss"_qs).replace(u".."_qs, u"."_qs);
}

QFont fontOf(const QStyleOptionViewItem &option, int weight, int pixelSize)
{
    QFont font(option.font);
    font.setWeight(weight);
    font.setPixelSize(pixelSize);
    return font;
}

}

TracksListDelegate::TracksListDelegate(QObject *parent)
    : QStyledItemDelegate(parent)
{
}

void TracksListDelegate::addAction(QAction *action)
{
    action->setParent(this);
    m_lstActions << action;
}

QRect TracksListDelegate::displayArea(const QStyleOptionViewItem &option) const
{
    return option.rect.adjusted(13, 13, -10, -10);
}

QRect TracksListDelegate::buttonArea(const QStyleOptionViewItem &option) const
{
    const QRect &row = option.rect;
    const int left = row.right() - row.left() - 32;
    return {QPoint(left, row.top() + 13),
        QPoint(left + (row.bottom() - row.top()) - 23, row.bottom() - 10)};
}

QPixmap TracksListDelegate::createAvatar(const QPixmap &pixmap, const QSize &size) const
{
    const QPixmap source
        = pixmap.isNull() ? QPixmap(u":/_resources/imgs/MoreAppsButton_hover.png"_qs) : pixmap;
    const QString key
        = u"avatar %1 %2 %3"_qs.arg(source.cacheKey()).arg(size.width()).arg(size.height());
    QPixmap scaled;
    if (!QPixmapCache::find(key, &scaled) && !source.isNull()) {
        scaled = source.scaled(size, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        QPixmapCache::insert(key, scaled);
    }
    return scaled;
}

QSize TracksListDelegate::sizeHint(
    const QStyleOptionViewItem &option, const QModelIndex & /*index*/) const
{
    return {option.rect.right() + 1 - option.rect.left(), rowHeight};
}

void TracksListDelegate::paint(
    QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const QString name = index.data(Qt::DisplayRole).toString();
    const QDateTime lastModified
        = index.data(QMMultiMedia::PlayListModel::LastModifiedRole).toDateTime();

    painter->save();
    paintBackground(painter, option);
    paintTexts(painter, option, name, lastModified);
    for (QAction *action : m_lstActions) {
        if (auto *button = qobject_cast<AddButtonAction *>(action)) {
            button->setGeometry(buttonArea(option));
            button->draw(painter);
        }
    }
    paintNote(painter, option, lastModified.date() == QDate::currentDate());
    if (option.state.testFlag(QStyle::State_HasFocus)) {
        // Shows users of the keyboard which row their keys mean.
        painter->setBrush(Qt::NoBrush);
        painter->setPen(Qt::white);
        painter->drawRect(option.rect.adjusted(1, 1, -2, -2));
    }
    painter->restore();
}

void TracksListDelegate::paintBackground(QPainter *painter, const QStyleOptionViewItem &option)
{
    const QRect &row = option.rect;
    painter->setPen(Qt::NoPen);
    QLinearGradient gradient(0, row.top(), 0, row.bottom());
    gradient.setColorAt(0.0, QColor(30, 30, 30));
    gradient.setColorAt(0.5, QColor(60, 60, 60));
    gradient.setColorAt(1.0, QColor(30, 30, 30));
    painter->fillRect(row, gradient);
    if (option.state.testFlag(QStyle::State_MouseOver)) {
        painter->fillRect(row, QColor(30, 180, 30, 50));
    }
}

void TracksListDelegate::paintTexts(QPainter *painter, const QStyleOptionViewItem &option,
    const QString &name, const QDateTime &lastModified)
{
    const QRect &row = option.rect;
    const QRect area = nameArea(row);
    painter->setBrush(Qt::black);
    painter->setPen(Qt::white);
    // A name runs as its own letters do, whatever the language of the window.
    painter->setLayoutDirection(name.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    painter->setFont(fontOf(option, QFont::Bold, 15));
    // The popup button covers what lies to the right of its left edge.
    const int width = row.width() - 36 - area.left();
    painter->drawText(area,
        static_cast<int>(Qt::AlignLeft | Qt::AlignAbsolute) | Qt::TextSingleLine,
        painter->fontMetrics().elidedText(name, Qt::ElideMiddle, width));

    painter->setPen(Qt::lightGray);
    painter->drawLine(row.left() + 8, row.bottom(), row.right() - row.left() - 7, row.bottom());

    painter->setLayoutDirection(Qt::LeftToRight);
    painter->setFont(fontOf(option, QFont::Normal, 10));
    QRect dateArea = area;
    dateArea.moveTop(row.bottom() - 10 + 1 - painter->fontMetrics().height());
    painter->drawText(
        dateArea, static_cast<int>(Qt::AlignLeft | Qt::AlignAbsolute), dateText(lastModified));
}

void TracksListDelegate::paintNote(
    QPainter *painter, const QStyleOptionViewItem &option, bool today) const
{
    const QRect note = noteArea(option.rect);
    const bool hovered = option.state.testFlag(QStyle::State_MouseOver);
    const QPixmap picture(hovered ? u":/noteplay.png"_qs : u":/note.png"_qs);
    painter->drawPixmap(note, createAvatar(picture, note.size() * 2));
    if (today) {
        const QRect band(note.left(), note.top(), note.width(), note.height() / 3);
        painter->fillRect(band, QColor(0, 127, 0, 120));
        painter->setFont(fontOf(option, QFont::Normal, 9));
        painter->setPen(Qt::white);
        painter->drawText(band, static_cast<int>(Qt::AlignCenter), u"today"_qs);
    }
}

bool TracksListDelegate::editorEvent(QEvent *event, QAbstractItemModel *model,
    const QStyleOptionViewItem &option, const QModelIndex &index)
{
    for (QAction *action : m_lstActions) {
        if (auto *button = qobject_cast<AddButtonAction *>(action)) {
            button->setGeometry(buttonArea(option));
            button->event(event, index);
        }
    }
    if (event->type() == QEvent::MouseButtonPress
        && noteArea(option.rect)
               .contains(static_cast<QMouseEvent *>(event)->localPos().toPoint())) {
        emit play(index);
    }
    return QStyledItemDelegate::editorEvent(event, model, option, index);
}
