#include "ReminderDialog.h"

#include "Literals.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace QMWidgets {

ReminderDialog::ReminderDialog(QWidget *parent)
    : ReminderStateDialog(parent)
{
    setObjectName(u"Dialog"_qs);
    auto *playoutButtons = new QHBoxLayout;
    playoutButtons->addWidget(createButton(tr("&Rate"), &ReminderDialog::slotRate));
    playoutButtons->addWidget(createButton(tr("&Mail"), &ReminderDialog::slotMail));
    addLaterAndNever(playoutButtons);
    auto *playout = new QVBoxLayout(this);
    playout->addWidget(createLogo(), 0, Qt::AlignHCenter);
    playout->addLayout(playoutButtons);
}

} // namespace QMWidgets
