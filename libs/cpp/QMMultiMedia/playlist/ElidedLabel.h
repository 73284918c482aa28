#pragma once

#include <QLabel>

namespace QMMultiMedia {

/// A label of one line that is shortened in its middle where it is too long, so that its text
/// doesn't decide the width of the window.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    enum class Kind
    {
        Plain, ///< plain text, whatever looks like markup in it
        Heading ///< the HTML of a heading, which is drawn as one
    };

    explicit ElidedLabel(Kind kind, QWidget *parent = nullptr);

    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString plainText() const;
    QFont drawnFont() const;
    QSize sizeFor(int textWidth) const;

    Kind m_kind;
};

}
