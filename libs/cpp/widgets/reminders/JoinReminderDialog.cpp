#include "JoinReminderDialog.h"

#include "Common.h"
#include "JoinWidget.h"
#include "Literals.h"

#include <QBoxLayout>
#include <QPushButton>

namespace QMWidgets {

JoinReminderDialog::JoinReminderDialog(QWidget *parent)
    : ReminderStateDialog(parent)
{
    setObjectName(u"Dialog"_qs);
    setWindowTitle(tr("Join Us"));
    auto *pcmdClose = new QPushButton(tr("&Close"), this);
    Common::applyPushButtonDetails(pcmdClose);
    pcmdClose->setDefault(true);
    connect(pcmdClose, &QPushButton::clicked, this, &JoinReminderDialog::accept);

    auto *playoutButtons = new QHBoxLayout;
    playoutButtons->addStretch(1);
    playoutButtons->addWidget(pcmdClose);
    playoutButtons->addStretch(1);
    auto *playout = new QVBoxLayout(this);
    playout->addWidget(new JoinWidget(this), 1);
    playout->addLayout(playoutButtons);
    pcmdClose->setFocus();
}

} // namespace QMWidgets
