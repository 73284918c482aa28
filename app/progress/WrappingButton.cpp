#include "WrappingButton.h"

#include <algorithm>
#include <QStyleOptionButton>
#include <QStylePainter>

namespace {

// How the text is laid out and drawn.
constexpr int Lines = static_cast<int>(Qt::AlignCenter) | static_cast<int>(Qt::TextWordWrap);

}

WrappingButton::WrappingButton(const QString &text, QWidget *parent)
    : QPushButton(text, parent)
{
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

QSize WrappingButton::border() const
{
    const QSize line = fontMetrics().size(Qt::TextShowMnemonic, text());
    return (sizeHint() - line).expandedTo(QSize(0, 0));
}

QSize WrappingButton::minimumSizeHint() const
{
    int longest = 0;
    for (const QString &word : text().split(QLatin1Char(' '))) {
        longest = std::max(longest, fontMetrics().horizontalAdvance(word));
    }
    return {longest + border().width(), sizeHint().height()};
}

bool WrappingButton::hasHeightForWidth() const
{
    return true;
}

int WrappingButton::heightForWidth(int width) const
{
    const int textWidth = std::max(1, width - border().width());
    const QRect lines = fontMetrics().boundingRect(QRect(0, 0, textWidth, 10000), Lines, text());
    return std::max(sizeHint().height(), lines.height() + border().height());
}

void WrappingButton::paintEvent(QPaintEvent * /*event*/)
{
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    const QString label = option.text;
    option.text.clear();
    painter.drawControl(QStyle::CE_PushButton, option);
    const QRect contents = style()->subElementRect(QStyle::SE_PushButtonContents, &option, this);
    painter.setPen(palette().color(QPalette::ButtonText));
    painter.drawText(contents, Lines | static_cast<int>(Qt::TextShowMnemonic), label);
}
