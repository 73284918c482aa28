#include "RateAppStoreDialog.h"

#include "Literals.h"

#include <QBoxLayout>
#include <QCoreApplication>
#include <QLabel>
#include <QPushButton>

namespace QMWidgets {

bool RateAppStoreDialog::sm_bAlreadyCalled = false;

RateAppStoreDialog::RateAppStoreDialog(QWidget *parent)
    : ReminderStateDialog(parent)
{
    const QString strName = QCoreApplication::applicationName();
    setObjectName(u"Dialog"_qs);
    setWindowTitle(tr("Rate \"%1\"").arg(strName));

    auto *plblHeader = new QLabel(tr("Enjoying \"%1\" ?").arg(strName), this);
    plblHeader->setObjectName(u"RateHeaderLabel"_qs);
    plblHeader->setAlignment(Qt::AlignCenter);
    auto *plblText = new QLabel(tr("Please rate the app on the App Store.<br>This will help us "
                                   "improve <br>the app's features in the future."),
        this);
    plblText->setObjectName(u"SimpleLabel"_qs);
    plblText->setAlignment(Qt::AlignCenter);
    QPushButton *pcmdRate
        = createPictureButton(u"LikeButton"_qs, tr("&Rate It Now"), &RateAppStoreDialog::slotRate);
    pcmdRate->setDefault(true);

    auto *playoutText = new QVBoxLayout;
    playoutText->addWidget(plblHeader);
    playoutText->addWidget(plblText, 1);
    auto *playoutTop = new QHBoxLayout;
    playoutTop->addWidget(createLogo());
    playoutTop->addLayout(playoutText, 1);
    auto *playoutButtons = new QHBoxLayout;
    playoutButtons->addWidget(pcmdRate);
    addLaterAndNever(playoutButtons);
    auto *playout = new QVBoxLayout(this);
    playout->addLayout(playoutTop, 1);
    playout->addLayout(playoutButtons);
}

bool RateAppStoreDialog::wasAlreadyCalled()
{
    return sm_bAlreadyCalled;
}

void RateAppStoreDialog::showEvent(QShowEvent *pe)
{
    sm_bAlreadyCalled = true;
    ReminderStateDialog::showEvent(pe);
}

} // namespace QMWidgets
