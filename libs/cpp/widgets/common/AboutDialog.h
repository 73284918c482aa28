#pragma once

#include <QDate>
#include <QDialog>

class QLabel;
class QPushButton;
class QTextBrowser;
class QUrl;

namespace QMWidgets {

/// The about box: version, build and maker, and on demand the legal notices.
class AboutDialog : public QDialog
{
    Q_OBJECT

public:
    explicit AboutDialog(QWidget *parent = nullptr);

    /// Appends HTML to the notices of all about boxes; "<!bundlepath!>" in it stands for the
    /// directory of the resources.
    static void addLegalNotices(const QString &str);

    /// The application's notices, followed by those that were added here.
    static QString legalNotices();

    /// The info page of a build of that date.
    static QString infoText(const QDate &dateBuild);

    /// true: the info page; false: the legal notices.
    void setMainInfoVisible(bool b);

public slots:
    /// The button below: from the info page to the legal notices or back.
    void slotShowLegalNotices();

    /// A click on a link: the licence file is shown in the box, anything else is opened outside.
    void slotAnchorClicked(const QUrl &url);

private:
    void createWidgets();
    void createLayout();

    static QString sm_strLegalNotices;

    QLabel *m_plblLogo = nullptr;
    QTextBrowser *m_ptxtInfo = nullptr;
    QTextBrowser *m_ptxtLegal = nullptr;
    QPushButton *m_pcmdLegal = nullptr;
    QPushButton *m_pcmdOk = nullptr;
    bool m_bMainInfo = true;
};

} // namespace QMWidgets
