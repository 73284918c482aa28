#pragma once

#include <QWidget>

class QTimer;

namespace QMWidgets {

/// A bar with a text. At 0 stripes move over it, to tell that work is going on.
class SimpleProgress : public QWidget
{
    Q_OBJECT

public:
    explicit SimpleProgress(QWidget *parent = nullptr);

    /// Percent.
    int value() const;
    QString text() const;

    QSize sizeHint() const override;

public slots:
    /// Percent, drawn as 0 to 100.
    void setValue(const int &n);
    void setText(const QString &str);

protected:
    void paintEvent(QPaintEvent *pe) override;

private:
    void slotMoveStripes();
    void drawStripes(QPainter *pp) const;
    void drawText(QPainter *pp) const;
    void updateAccessibility();

    QTimer *m_ptimer = nullptr;
    QString m_strText;
    int m_nValue = 0;
    int m_nStripePos = 0;
};

} // namespace QMWidgets
