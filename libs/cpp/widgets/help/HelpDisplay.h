#pragma once

#include <QFrame>
#include <QPixmap>

namespace QMWidgets {

/// The frame that shows one slide, as large as it fits.
class HelpDisplay : public QFrame
{
    Q_OBJECT

public:
    explicit HelpDisplay(QWidget *parent = nullptr);

    /// The path of the picture; an empty one, or one that doesn't load, leaves the frame filled.
    void setSlide(const QString &strPath);
    QString slide() const;

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *pe) override;

private:
    QString m_strSlide;
    QPixmap m_pixmap;
    /// The picture in the size of the frame in device pixels; null until it is painted.
    QPixmap m_pixmapScaled;
    QSize m_szScaledFor;
};

} // namespace QMWidgets
