#include "RateMailDialog.h"

#include "Literals.h"

#include <QBoxLayout>
#include <QCoreApplication>
#include <QLabel>
#include <QPushButton>

namespace QMWidgets {

RateMailDialog::RateMailDialog(QWidget *parent)
    : ReminderStateDialog(parent)
{
    setObjectName(u"Dialog"_qs);
    setWindowTitle(tr("Feedback about \"%1\"").arg(QCoreApplication::applicationName()));
    auto *plblText
        = new QLabel(tr("Please rate it on the app store or send us a quick e-mail<br>and tell us "
                        "what you didn't enjoy. <br>Your feedback will help us improve this app."),
            this);
    plblText->setObjectName(u"SimpleLabel"_qs);
    plblText->setAlignment(Qt::AlignCenter);
    QPushButton *pcmdRate
        = createPictureButton(u"LikeButton"_qs, tr("&Rate"), &RateMailDialog::slotRate);
    QPushButton *pcmdMail
        = createPictureButton(u"DislikeButton"_qs, tr("&Write email"), &RateMailDialog::slotMail);

    auto *playoutTop = new QHBoxLayout;
    playoutTop->addWidget(createLogo());
    playoutTop->addWidget(plblText, 1);
    auto *playoutButtons = new QHBoxLayout;
    playoutButtons->addWidget(pcmdRate);
    playoutButtons->addWidget(pcmdMail);
    addLaterAndNever(playoutButtons);
    auto *playout = new QVBoxLayout(this);
    playout->addLayout(playoutTop, 1);
    playout->addLayout(playoutButtons);
}

} // namespace QMWidgets
