#include "HelpDialog.h"

#include "App.h"
#include "Common.h"
#include "HelpViewArea.h"
#include "Literals.h"
#include "MakerHosts.h"

#include <QBoxLayout>
#include <QPushButton>
#include <QUrl>

namespace QMWidgets {

namespace {

QString neverShowKey()
{
    return u"NeverShowItAgain"_qs;
}

} // namespace

HelpDialog::HelpDialog(QWidget *parent)
    : QDialog(parent)
    , m_pview(new HelpViewArea(this))
    , m_pcmdClose(new QPushButton(tr("&Close"), this))
    , m_pcmdSkip(new QPushButton(tr("&Always skip intro"), this))
    , m_pcmdVideo(new QPushButton(tr("&Watch videos"), this))
{
    setObjectName(u"Dialog"_qs);
    setWindowTitle(QCoreApplication::applicationName() + tr(" Introduction"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    for (QPushButton *pcmd : {m_pcmdClose, m_pcmdSkip, m_pcmdVideo}) {
        Common::applyPushButtonDetails(pcmd);
        pcmd->setAutoDefault(false);
    }
    m_pcmdVideo->setObjectName(u"VideoButton"_qs);
    m_pcmdVideo->hide();
    m_pcmdClose->setDefault(true);
    connect(m_pcmdClose, &QPushButton::clicked, this, &HelpDialog::slotReject);
    connect(m_pcmdSkip, &QPushButton::clicked, this, &HelpDialog::slotNeverShowItAgain);
    connect(m_pcmdVideo, &QPushButton::clicked, this, &HelpDialog::slotWatchVideo);
    createLayout();
}

void HelpDialog::createLayout()
{
    auto *playoutButtons = new QHBoxLayout;
    playoutButtons->addWidget(m_pcmdSkip);
    playoutButtons->addStretch(1);
    playoutButtons->addWidget(m_pcmdVideo);
    playoutButtons->addWidget(m_pcmdClose);
    auto *playout = new QVBoxLayout(this);
    playout->addWidget(m_pview, 1);
    playout->addLayout(playoutButtons);
    m_pcmdClose->setFocus();
}

void HelpDialog::addSlide(const QString &strPath)
{
    m_pview->addSlide(strPath);
}

void HelpDialog::setVideoLink(const QString &strLink)
{
    if (strLink.isEmpty() || App::isKidsMode()) {
        m_pcmdVideo->hide();
        return;
    }
    m_strVideoLink = strLink;
    m_pcmdVideo->show();
}

void HelpDialog::noNeverShowButton()
{
    m_bNoNeverShowButton = true;
    m_pcmdSkip->hide();
}

bool HelpDialog::isShowOnStartAvailable()
{
    return !App::settingsValue(neverShowKey(), false).toBool();
}

QString HelpDialog::videoPage(const QString &strLink)
{
    const QString strLanguage = App::currentLanguage();
    const QStringList lst {u"de"_qs, u"ru"_qs, u"fr"_qs, u"it"_qs, u"nl"_qs};
    QString strId = strLink;
    strId.remove(MakerHosts::videoShortPrefix());
    strId.remove(MakerHosts::videoWatchPrefix());
    return MakerHosts::videoServer(lst.contains(strLanguage) ? strLanguage : u"org"_qs)
        + u"/video.php?view="_qs + QString::fromLatin1(QUrl::toPercentEncoding(strId));
}

void HelpDialog::showEvent(QShowEvent *pe)
{
    m_pcmdSkip->setVisible(!m_bNoNeverShowButton && isShowOnStartAvailable());
    setTabOrder();
    QDialog::showEvent(pe);
    m_pview->slotStartSlideShow();
}

void HelpDialog::setTabOrder()
{
    // The numbers came last, but stand above the buttons.
    const auto lst = m_pview->findChildren<QPushButton *>();
    QWidget *pwgt = lst.isEmpty() ? static_cast<QWidget *>(m_pview) : lst.constLast();
    for (QPushButton *pcmd : {m_pcmdSkip, m_pcmdVideo, m_pcmdClose}) {
        QWidget::setTabOrder(pwgt, pcmd);
        pwgt = pcmd;
    }
}

void HelpDialog::hideEvent(QHideEvent *pe)
{
    m_pview->slotStopSlideShow();
    QDialog::hideEvent(pe);
}

void HelpDialog::slotReject()
{
    reject();
}

void HelpDialog::slotNeverShowItAgain()
{
    App::setSettingsValue(neverShowKey(), true);
    reject();
}

void HelpDialog::slotWatchVideo()
{
    if (!m_strVideoLink.isEmpty() && !App::openAddress(m_strVideoLink)) {
        App::openAddress(videoPage(m_strVideoLink));
    }
}

} // namespace QMWidgets
