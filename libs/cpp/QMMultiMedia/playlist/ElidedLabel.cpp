#include "ElidedLabel.h"

#include <QFontMetrics>
#include <QPainter>
#include <QStyle>
#include <QTextDocumentFragment>
#include <QtMath>

namespace QMMultiMedia {

ElidedLabel::ElidedLabel(Kind kind, QWidget *parent)
    : QLabel(parent)
    , m_kind(kind)
{
    setTextFormat(kind == Kind::Plain ? Qt::PlainText : Qt::RichText);
}

QString ElidedLabel::plainText() const
{
    return m_kind == Kind::Plain ? text() : QTextDocumentFragment::fromHtml(text()).toPlainText();
}

/// A heading of the second level, as rich text has it, is bold and half as large again.
QFont ElidedLabel::drawnFont() const
{
    QFont drawn = font();
    if (m_kind == Kind::Heading) {
        drawn.setBold(true);
        if (drawn.pointSizeF() > 0) {
            drawn.setPointSizeF(drawn.pointSizeF() * 1.5);
        } else {
            drawn.setPixelSize(drawn.pixelSize() * 3 / 2);
        }
    }
    return drawn;
}

QSize ElidedLabel::sizeFor(int textWidth) const
{
    const QSize borders = size() - contentsRect().size();
    return QSize(textWidth, QFontMetrics(drawnFont()).height()) + borders
        + QSize(margin(), margin()) * 2;
}

QSize ElidedLabel::minimumSizeHint() const
{
    return sizeFor(0);
}

QSize ElidedLabel::sizeHint() const
{
    // Rounded up: a fraction of a pixel less, and the text would be shortened.
    return sizeFor(qCeil(QFontMetricsF(drawnFont()).horizontalAdvance(plainText())));
}

void ElidedLabel::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    drawFrame(&painter);
    const QRect area = contentsRect().adjusted(margin(), margin(), -margin(), -margin());
    painter.setFont(drawnFont());
    // A name runs as its own letters do, whatever the language of the window.
    painter.setLayoutDirection(plainText().isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    style()->drawItemText(&painter, area,
        static_cast<int>(QStyle::visualAlignment(layoutDirection(), alignment())), palette(),
        isEnabled(), painter.fontMetrics().elidedText(plainText(), Qt::ElideMiddle, area.width()),
        foregroundRole());
}

}
