#pragma once

#include <QFrame>

class QButtonGroup;
class QHBoxLayout;
class QPushButton;
class QSignalMapper;
class QTimer;

namespace QMWidgets {

class HelpDisplay;

/// A slide show: the current slide above a row of numbered buttons. The slides change by themselves
/// until a number is clicked.
class HelpViewArea : public QFrame
{
    Q_OBJECT

public:
    explicit HelpViewArea(QWidget *parent = nullptr);

    /// Adds a slide, the path of a picture, and its button.
    void addSlide(const QString &strPath);

    /// The path of the slide on show; empty before the first.
    QString currentSlide() const;

    /// Milliseconds between two slides; 5000 at first.
    void setInterval(int nMsecs);

    /// Gives a button the look and behaviour of the numbers.
    static void applyItemButtonProperties(QPushButton *pcmd, const QString &strText);

public slots:
    void slotShowSlide(const QString &strPath);
    void slotShowNextSlide();

    /// Begins with the slide that was on show, else with the first.
    void slotStartSlideShow();
    void slotStopSlideShow();

    /// A number was clicked: its slide stays.
    void slotButtonClicked();

private:
    QTimer *m_ptimer = nullptr;
    HelpDisplay *m_pdisplay = nullptr;
    QSignalMapper *m_pmapper = nullptr;
    QButtonGroup *m_pgroup = nullptr;
    QHBoxLayout *m_playoutButtons = nullptr;
    int m_nSlides = 0;
};

} // namespace QMWidgets
