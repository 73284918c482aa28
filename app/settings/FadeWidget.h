#pragma once

#include <QPair>
#include <QWidget>

class Fade;

/// A fade with a button that makes it longer and one that makes it shorter, by one unit each.
class FadeWidget : public QWidget
{
    Q_OBJECT

public:
    /// @param bFadeIn true for a fade-in, false for a fade-out.
    FadeWidget(bool bFadeIn, QWidget *parent);

    void setRange(const QPair<int, int> &range);
    float value() const;
    /// A value outside the range becomes its nearer end.
    void setValue(const float &value);

private slots:
    void slotInc();
    void slotDec();

private:
    Q_DISABLE_COPY(FadeWidget)

    Fade *m_pfade = nullptr;
};
