#include "ReminderStateDialog.h"

#include "Common.h"
#include "Literals.h"

#include <QBoxLayout>
#include <QCoreApplication>
#include <QLabel>
#include <QPushButton>

namespace QMWidgets {

ReminderStateDialog::ReminderStateDialog(QWidget *parent)
    : QDialog(parent)
{
    setWindowTitle(QCoreApplication::applicationName());
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
}

int ReminderStateDialog::state() const
{
    return m_nState;
}

void ReminderStateDialog::slotRate()
{
    m_nState = Rate;
    accept();
}

void ReminderStateDialog::slotMail()
{
    m_nState = Mail;
    accept();
}

void ReminderStateDialog::slotMaybeLater()
{
    m_nState = Later;
    accept();
}

void ReminderStateDialog::slotNeverAskMeAgain()
{
    m_nState = Never;
    accept();
}

QLabel *ReminderStateDialog::createLogo()
{
    auto *plbl = new QLabel(this);
    plbl->setObjectName(u"LogoLabel"_qs);
    plbl->setFixedSize(96, 96);
    return plbl;
}

QPushButton *ReminderStateDialog::createButton(const QString &strText, Slot slot)
{
    auto *pcmd = new QPushButton(strText, this);
    Common::applyPushButtonDetails(pcmd);
    connect(pcmd, &QPushButton::clicked, this, slot);
    return pcmd;
}

QPushButton *ReminderStateDialog::createPictureButton(
    const QString &strName, const QString &strText, Slot slot)
{
    QPushButton *pcmd = createButton(strText, slot);
    pcmd->setObjectName(strName);
    // The style sheet's background picture doesn't change sides, but the room for it would.
    pcmd->setLayoutDirection(Qt::LeftToRight);
    return pcmd;
}

void ReminderStateDialog::addLaterAndNever(QBoxLayout *playout)
{
    playout->addWidget(createButton(tr("&Later"), &ReminderStateDialog::slotMaybeLater));
    playout->addWidget(
        createButton(tr("&Don't ask me again"), &ReminderStateDialog::slotNeverAskMeAgain));
}

} // namespace QMWidgets
