#pragma once

#include <QPushButton>

/// A push button whose text breaks into lines where there is no room for one line.
class WrappingButton : public QPushButton
{
    Q_OBJECT

public:
    WrappingButton(const QString &text, QWidget *parent);

    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override;
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Q_DISABLE_COPY(WrappingButton)

    /// The pixels that the style puts around the text.
    QSize border() const;
};
