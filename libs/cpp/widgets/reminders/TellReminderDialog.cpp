#include "TellReminderDialog.h"

#include "Common.h"
#include "Literals.h"
#include "TellWidget.h"

#include <QBoxLayout>
#include <QCoreApplication>
#include <QLabel>
#include <QPushButton>

namespace QMWidgets {

TellReminderDialog::TellReminderDialog(QWidget *parent)
    : ReminderStateDialog(parent)
{
    setObjectName(u"Dialog"_qs);
    setWindowTitle(tr("Share"));
    auto *plblText
        = new QLabel(tr("If you like the app %1,<br>Share it with Your Friends.<br>Thanks!")
                         .arg(QCoreApplication::applicationName().toHtmlEscaped()),
            this);
    plblText->setObjectName(u"SimpleLabel"_qs);
    plblText->setAlignment(Qt::AlignCenter);
    auto *pcmdClose = new QPushButton(tr("&Close"), this);
    Common::applyPushButtonDetails(pcmdClose);
    pcmdClose->setDefault(true);
    connect(pcmdClose, &QPushButton::clicked, this, &TellReminderDialog::accept);

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
