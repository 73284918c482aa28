#include "TellDialog.h"

#include "Common.h"
#include "Literals.h"
#include "TellWidget.h"

#include <QBoxLayout>
#include <QCoreApplication>
#include <QLabel>
#include <QPushButton>

namespace QMWidgets {

TellDialog::TellDialog(QWidget *parent)
    : QDialog(parent)
{
    setObjectName(u"Dialog"_qs);
    setWindowTitle(tr("Share %1").arg(QCoreApplication::applicationName()));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    auto *plblText = new QLabel(
        tr("If you like the app<br>please share it with<br>your friends.<br>Thanks!"), this);
    plblText->setObjectName(u"SimpleLabel"_qs);
    plblText->setAlignment(Qt::AlignCenter);
    auto *pcmdClose = new QPushButton(tr("&Close"), this);
    Common::applyPushButtonDetails(pcmdClose);
    pcmdClose->setDefault(true);
    connect(pcmdClose, &QPushButton::clicked, this, &TellDialog::accept);

    auto *playoutButtons = new QHBoxLayout;
    playoutButtons->addStretch(1);
    playoutButtons->addWidget(pcmdClose);
    playoutButtons->addStretch(1);
    auto *playout = new QVBoxLayout(this);
    playout->addWidget(plblText);
    playout->addWidget(new TellWidget(this), 1);
    playout->addLayout(playoutButtons);
    pcmdClose->setFocus();
}

} // namespace QMWidgets
