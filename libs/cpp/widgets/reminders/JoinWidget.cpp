#include "JoinWidget.h"

#include "App.h"
#include "Literals.h"
#include "MakerHosts.h"
#include "MMessageBox.h"
#include "NetworkButton.h"

#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QUrl>
#include <QVBoxLayout>

namespace QMWidgets {

JoinWidget::JoinWidget(QWidget *parent)
    : QWidget(parent)
    , m_playoutButtons(new QHBoxLayout)
{
    auto *plblText = new QLabel(tr("Follow us and stay informed<br>about our"), this);
    plblText->setObjectName(u"SimpleLabel"_qs);
    plblText->setAlignment(Qt::AlignCenter);
    auto *plblList = new QLabel(u"%1<br>%2<br>%3<br>%4"_qs.arg(tr("1. Important News"),
                                    tr("2. New APPs"), tr("3. APP Updates"), tr("and more...")),
        this);

    plblList->setObjectName(u"SimpleLabel"_qs);

    m_playoutButtons->addStretch(1);
    addButton(u"YouTubeJoinButton"_qs, u"YouTube"_qs, &JoinWidget::slotYouTube);
    addButton(u"FaceBookJoinButton"_qs, u"Facebook"_qs, &JoinWidget::slotFaceBook);
    addButton(u"TwitterJoinButton"_qs, u"Twitter"_qs, &JoinWidget::slotTwitter);
    addButton(u"VKontakteJoinButton"_qs, u"VKontakte"_qs, &JoinWidget::slotVKontakte)
        ->setVisible(App::currentLanguage() == u"ru"_qs);
    addButton(u"EmailJoinButton"_qs, tr("E-mail"), &JoinWidget::slotEmail)->hide();
    m_playoutButtons->addStretch(1);

    auto *playout = new QVBoxLayout(this);
    playout->addWidget(plblText);
    playout->addWidget(plblList, 1, Qt::AlignCenter);
    playout->addLayout(m_playoutButtons);
}

QPushButton *JoinWidget::addButton(
    const QString &strName, const QString &strToolTip, void (JoinWidget::*slot)())
{
    auto *pcmd = new QPushButton(this);
    applyNetworkButtonProperties(pcmd, strName, strToolTip);
    connect(pcmd, &QPushButton::clicked, this, slot);
    m_playoutButtons->addWidget(pcmd);
    return pcmd;
}

QString JoinWidget::joinPage(const QString &strLink)
{
    return MakerHosts::applicationServer() + u"/social/join.php?link="_qs
        + QString::fromLatin1(QUrl::toPercentEncoding(strLink));
}

void JoinWidget::openPage(const QString &strLink)
{
    App::openAddress(App::isIndependent() ? joinPage(strLink) : strLink);
}

void JoinWidget::slotYouTube()
{
    openPage(MakerHosts::youtubePage() + u"?sub_confirmation=1"_qs);
}

void JoinWidget::slotFaceBook()
{
    MMessageBox::information(this, tr("Information"),
        tr("<H3>To join us, please \"Like\" %1 on Facebook.</H3>Thank you!")
            .arg(QCoreApplication::organizationName().toHtmlEscaped()),
        QMessageBox::Ok);
    openPage(MakerHosts::facebookPage());
}

void JoinWidget::slotTwitter()
{
    openPage(MakerHosts::twitterPage());
}

void JoinWidget::slotVKontakte()
{
    App::openAddress(MakerHosts::vkontaktePage());
}

void JoinWidget::slotEmail()
{
    App::openAddress(u"mailto:"_qs + MakerHosts::mailAddress());
}

} // namespace QMWidgets
