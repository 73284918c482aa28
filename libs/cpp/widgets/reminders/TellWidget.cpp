#include "TellWidget.h"

#include "App.h"
#include "Literals.h"
#include "MakerHosts.h"
#include "NetworkButton.h"
#include "Os.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QUrl>

namespace QMWidgets {

namespace {

QUrl sharedPage()
{
    const App *papp = App::theApp();
    return QUrl(papp != nullptr ? papp->sharedPage() : MakerHosts::homePage());
}

} // namespace

TellWidget::TellWidget(QWidget *parent)
    : QWidget(parent)
    , m_playout(new QHBoxLayout(this))
{
    m_playout->addStretch(1);
    addButton(u"FaceBookShareButton"_qs, u"Facebook"_qs, &TellWidget::slotFaceBook);
    addButton(u"TwitterShareButton"_qs, u"Twitter"_qs, &TellWidget::slotTwitter);
    QPushButton *pcmdVKontakte
        = addButton(u"VKontakteShareButton"_qs, u"VKontakte"_qs, &TellWidget::slotVKontakte);
    addButton(u"LinkedinShareButton"_qs, u"LinkedIn"_qs, &TellWidget::slotLinkedin);
    addButton(u"EmailShareButton"_qs, tr("E-mail"), &TellWidget::slotEmail);
    m_playout->addStretch(1);
    // Not every application has a page to share there.
    pcmdVKontakte->setVisible(!App::vkontakteShareLink().isEmpty());
}

void TellWidget::applyButtonProperties(
    QPushButton *pcmd, const QString &strName, const QString &strToolTip)
{
    applyNetworkButtonProperties(pcmd, strName, strToolTip);
}

QPushButton *TellWidget::addButton(
    const QString &strName, const QString &strToolTip, void (TellWidget::*slot)())
{
    auto *pcmd = new QPushButton(this);
    applyButtonProperties(pcmd, strName, strToolTip);
    connect(pcmd, &QPushButton::clicked, this, slot);
    m_playout->addWidget(pcmd);
    return pcmd;
}

QString TellWidget::sharePage(const QString &strLink)
{
    return MakerHosts::applicationServer() + u"/social/share.php?link="_qs
        + QString::fromLatin1(QUrl::toPercentEncoding(strLink));
}

void TellWidget::openShareLink(const QString &strLink)
{
    App::openAddress(App::isIndependent() ? sharePage(strLink) : strLink);
}

void TellWidget::slotFaceBook()
{
    openShareLink(App::facebookShareLink());
}

void TellWidget::slotTwitter()
{
    openShareLink(App::twitterShareLink());
}

void TellWidget::slotVKontakte()
{
    App::openAddress(App::vkontakteShareLink());
}

void TellWidget::slotLinkedin()
{
    Os::postToLinkedin(App::shareMessage(), QPixmap(u":/app.png"_qs), sharedPage());
}

void TellWidget::slotEmail()
{
    Os::postToEmail(App::shareMessage(), QPixmap(u":/app.png"_qs), sharedPage());
}

} // namespace QMWidgets
