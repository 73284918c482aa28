#include "AppUpdateDialog.h"

#include "App.h"
#include "Common.h"
#include "Literals.h"
#include "MakerHosts.h"
#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QUrl>

using QMWidgets::App;

namespace {

QString checkKey()
{
    return u"checkupdates"_qs;
}

}

AppUpdateDialog::AppUpdateDialog(QWidget *pwgt)
    : QDialog(pwgt)
    , m_plblPic(new QLabel(this))
    , m_plblMessage(new QLabel(this))
{
    setObjectName(u"UpdateDialog"_qs);
    setWindowTitle(QCoreApplication::applicationName() + tr(" Updates Notification"));
    m_plblMessage->setAlignment(Qt::AlignCenter);

    auto *pchk = new QCheckBox(tr("Check for updates on start"), this);
    pchk->setChecked(isChecked());
    connect(pchk, &QCheckBox::toggled, this, &AppUpdateDialog::slotSetChecked);

    auto *pcmdYes = new QPushButton(tr("Yes"), this);
    QMWidgets::Common::applyPushButtonDetails(pcmdYes);
    connect(pcmdYes, &QPushButton::clicked, this, &AppUpdateDialog::slotUpdate);
    auto *pcmdNo = new QPushButton(tr("No"), this);
    QMWidgets::Common::applyPushButtonDetails(pcmdNo);
    connect(pcmdNo, &QPushButton::clicked, this, &AppUpdateDialog::slotCancel);
    createLayout(pchk, pcmdYes, pcmdNo);
}

void AppUpdateDialog::createLayout(QWidget *pwgtCheck, QWidget *pwgtYes, QWidget *pwgtNo)
{
    auto *playoutButtons = new QHBoxLayout;
    playoutButtons->setContentsMargins(0, 0, 0, 0);
    playoutButtons->setSpacing(3);
    playoutButtons->addWidget(pwgtCheck);
    playoutButtons->addStretch(1);
    playoutButtons->addWidget(pwgtYes);
    playoutButtons->addWidget(pwgtNo);

    auto *playoutMessage = new QHBoxLayout;
    playoutMessage->setContentsMargins(2, 2, 2, 2);
    playoutMessage->setSpacing(1);
    playoutMessage->addWidget(m_plblPic);
    playoutMessage->addWidget(m_plblMessage, 1);

    auto *playout = new QVBoxLayout(this);
    playout->setContentsMargins(6, 6, 6, 6);
    playout->setSpacing(6);
    playout->addLayout(playoutMessage, 1);
    playout->addLayout(playoutButtons);
}

bool AppUpdateDialog::isChecked()
{
    return App::settingsValue(checkKey(), true).toBool();
}

void AppUpdateDialog::setChecked(bool b)
{
    App::setSettingsValue(checkKey(), b);
}

void AppUpdateDialog::setMessage(const QString &strMessage)
{
    m_plblMessage->setText(strMessage);
}

void AppUpdateDialog::setPic(const QPixmap &pix)
{
    m_plblPic->setPixmap(pix);
}

void AppUpdateDialog::slotSetChecked(bool b)
{
    setChecked(b);
}

void AppUpdateDialog::slotUpdate()
{
    const QByteArray name = QUrl::toPercentEncoding(QCoreApplication::applicationName().toLower());
    App::openAddress(MakerHosts::applicationServer() + u"/apps/updatepage.php?appname="_qs
        + QString::fromLatin1(name));
    reject();
}

void AppUpdateDialog::slotCancel()
{
    reject();
}
