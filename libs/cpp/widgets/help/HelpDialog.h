#pragma once

#include <QDialog>

class QPushButton;

namespace QMWidgets {

class HelpViewArea;

/// The introduction: a slide show with buttons to close it, to turn it off for good and to watch
/// videos.
class HelpDialog : public QDialog
{
    Q_OBJECT

public:
    explicit HelpDialog(QWidget *parent = nullptr);

    /// Adds a slide, the path of a picture.
    void addSlide(const QString &strPath);

    /// The address of the videos. Without one, and in the mode for children, there is no button.
    void setVideoLink(const QString &strLink);

    /// Takes the button away that turns the introduction off.
    void noNeverShowButton();

    /// False once the user has turned the introduction off.
    static bool isShowOnStartAvailable();

    /// The maker's page that shows the video of a link, for when the link itself can't be opened.
    static QString videoPage(const QString &strLink);

public slots:
    void slotReject();
    void slotNeverShowItAgain();
    void slotWatchVideo();

protected:
    void showEvent(QShowEvent *pe) override;
    void hideEvent(QHideEvent *pe) override;

private:
    void createLayout();
    void setTabOrder();

    HelpViewArea *m_pview = nullptr;
    QPushButton *m_pcmdClose = nullptr;
    QPushButton *m_pcmdSkip = nullptr;
    QPushButton *m_pcmdVideo = nullptr;
    QString m_strVideoLink;
    bool m_bNoNeverShowButton = false;
};

} // namespace QMWidgets
