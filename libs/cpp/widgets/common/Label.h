#pragma once

#include <QLabel>

namespace QMWidgets {

/// A label with a second picture that fills the widget at the screen's full resolution.
class Label : public QLabel
{
    Q_OBJECT

public:
    /// How the picture is scaled to the widget: wholly inside it, or covering it.
    enum class Mode
    {
        KeepAspectRatio = 0,
        KeepAspectRatioByExpanding = 1
    };

    explicit Label(QWidget *parent = nullptr);

    void setMode(Mode mode);

    /// The picture that is drawn over the label's own contents; a null pixmap for none.
    void setRetinaPixmap(const QPixmap &pixmap);

    /// 0.0 (invisible) to 1.0.
    void setOpacity(const double &dOpacity);

protected:
    void paintEvent(QPaintEvent *pe) override;

private:
    const QPixmap &scaledPixmap();

    QPixmap m_pixmapRetina;
    QPixmap m_pixmapScaled;
    QSize m_szScaledFor;
    Mode m_mode = Mode::KeepAspectRatio;
    double m_dOpacity = 1.0;
};

} // namespace QMWidgets
