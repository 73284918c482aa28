#include "ErrorsDialog.h"

#include "Literals.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QTextEdit>
#include <QVBoxLayout>

ErrorsDialog::ErrorsDialog(QWidget *parent)
    : QDialog(parent)
{
    setWindowTitle(tr("ERRORS LOG"));
    m_pErrors = new QTextEdit(this);
    m_pErrors->setReadOnly(true);
    m_pErrors->setObjectName(u"ErrorsText"_qs);
    m_pErrors->setAccessibleName(tr("Errors of the conversion"));
    // Tab is to reach the button: there is nothing to indent in a text that can't be changed.
    m_pErrors->setTabChangesFocus(true);
    auto *ok = new QPushButton(tr("&Ok"), this);
    ok->setObjectName(u"PushButton"_qs);
    ok->setFlat(true);
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &ErrorsDialog::accept);

    auto *buttons = new QHBoxLayout;
    buttons->addStretch(0);
    buttons->addWidget(ok);
    buttons->addStretch(0);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_pErrors);
    layout->addLayout(buttons);
}

void ErrorsDialog::setText(const QString &text)
{
    m_pErrors->setPlainText(text);
}
