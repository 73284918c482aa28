#include "MMessageBox.h"

#include "Common.h"
#include "Literals.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QStyle>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QVariant>
#include <QVBoxLayout>

namespace QMWidgets {

namespace {

constexpr int IconSize = 48;
/// Texts wider than this, in pixels, are wrapped.
constexpr int WrapWidth = 480;
constexpr char ValueProperty[] = "buttonValue";

QStyle::StandardPixmap standardPixmap(MMessageBox::Icon icon)
{
    switch (icon) {
    case MMessageBox::Icon::Warning:
        return QStyle::SP_MessageBoxWarning;
    case MMessageBox::Icon::Critical:
        return QStyle::SP_MessageBoxCritical;
    case MMessageBox::Icon::Question:
        return QStyle::SP_MessageBoxQuestion;
    case MMessageBox::Icon::Information:
        break;
    }
    return QStyle::SP_MessageBoxInformation;
}

int run(MMessageBox::Icon icon, QWidget *parent, const QString &strTitle, const QString &strText,
    int buttons, int defaultButton)
{
    // On the heap and watched: the parent may go, and take the box with it, while the box is open.
    const QPointer<MMessageBox> pbox = new MMessageBox(icon, strTitle, strText, buttons, parent);
    pbox->setDefaultButton(defaultButton);
    const int result = pbox->exec();
    delete pbox.data();
    return result;
}

} // namespace

MMessageBox::MMessageBox(Icon icon, const QString &strTitle, const QString &strText, int buttons,
    QWidget *parent, const QString &strUser)
    : QDialog(parent)
{
    setObjectName(u"MessageBox"_qs);
    setWindowTitle(strTitle);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    createLabels(icon, strText);

    auto *playoutText = new QHBoxLayout;
    playoutText->setSpacing(12);
    playoutText->addWidget(m_plblIcon, 0, Qt::AlignTop);
    playoutText->addWidget(m_plblText, 1);
    m_playoutButtons = new QHBoxLayout;
    m_playoutButtons->addStretch(1);
    createButtons(buttons, strUser);
    m_playoutButtons->addStretch(1);

    auto *playout = new QVBoxLayout(this);
    playout->setSpacing(12);
    playout->addLayout(playoutText, 1);
    playout->addLayout(m_playoutButtons);
}

void MMessageBox::createLabels(Icon icon, const QString &strText)
{
    m_plblIcon = new QLabel(this);
    m_plblIcon->setPixmap(
        style()->standardIcon(standardPixmap(icon), nullptr, this).pixmap(IconSize, IconSize));
    m_plblText = new QLabel(strText, this);
    const bool bRich = Qt::mightBeRichText(strText);
    if (bRich && strText.contains(u"<a "_qs, Qt::CaseInsensitive)) {
        m_plblText->setTextInteractionFlags(
            Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
        m_plblText->setOpenExternalLinks(true);
    }
    if (m_plblText->sizeHint().width() > WrapWidth) {
        m_plblText->setWordWrap(true);
        m_plblText->setMinimumWidth(WrapWidth);
    }
    // What a screen reader says when the box comes up.
    setAccessibleDescription(
        bRich ? QTextDocumentFragment::fromHtml(strText).toPlainText() : strText);
}

void MMessageBox::createButtons(int buttons, const QString &strUser)
{
    const struct
    {
        QString strText;
        int value;
        void (MMessageBox::*slot)();
    } rows[] = {
        {tr("Ok"), QMessageBox::Ok, &MMessageBox::slotOk},
        {tr("Cancel"), QMessageBox::Cancel, &MMessageBox::slotCancel},
        {tr("No"), QMessageBox::No, &MMessageBox::slotNo},
        {tr("Yes"), QMessageBox::Yes, &MMessageBox::slotYes},
        {tr("Abort"), QMessageBox::Abort, &MMessageBox::slotAbort},
        {tr("Retry"), QMessageBox::Retry, &MMessageBox::slotRetry},
        {tr("Ignore"), QMessageBox::Ignore, &MMessageBox::slotIgnore},
        {tr("YesAll"), QMessageBox::YesToAll, &MMessageBox::slotYesAll},
        {tr("NoAll"), QMessageBox::NoToAll, &MMessageBox::slotNoAll},
    };
    for (const auto &row : rows) {
        if ((buttons & row.value) != 0) {
            addButton(row.strText, row.value, row.slot);
        }
    }
    if (!strUser.isEmpty()) {
        addButton(strUser, UserDefined, &MMessageBox::slotUserDefined);
    }
}

void MMessageBox::addButton(const QString &strText, int value, void (MMessageBox::*slot)())
{
    auto *pcmd = new QPushButton(strText, this);
    Common::applyPushButtonDetails(pcmd);
    pcmd->setProperty(ValueProperty, value);
    connect(pcmd, &QPushButton::clicked, this, slot);
    m_playoutButtons->addWidget(pcmd);
}

void MMessageBox::setDefaultButton(int button)
{
    const auto lst = findChildren<QPushButton *>();
    for (QPushButton *pcmd : lst) {
        if (button != 0 && pcmd->property(ValueProperty).toInt() == button) {
            pcmd->setDefault(true);
            pcmd->setFocus();
        }
    }
}

int MMessageBox::critical(QWidget *parent, const QString &strTitle, const QString &strText,
    int buttons, int defaultButton)
{
    return run(Icon::Critical, parent, strTitle, strText, buttons, defaultButton);
}

int MMessageBox::information(QWidget *parent, const QString &strTitle, const QString &strText,
    int buttons, int defaultButton)
{
    return run(Icon::Information, parent, strTitle, strText, buttons, defaultButton);
}

int MMessageBox::question(QWidget *parent, const QString &strTitle, const QString &strText,
    int buttons, int defaultButton)
{
    return run(Icon::Question, parent, strTitle, strText, buttons, defaultButton);
}

int MMessageBox::warning(QWidget *parent, const QString &strTitle, const QString &strText,
    int buttons, int defaultButton)
{
    return run(Icon::Warning, parent, strTitle, strText, buttons, defaultButton);
}

void MMessageBox::slotOk()
{
    done(QMessageBox::Ok);
}

void MMessageBox::slotCancel()
{
    done(QMessageBox::Cancel);
}

void MMessageBox::slotNo()
{
    done(QMessageBox::No);
}

void MMessageBox::slotYes()
{
    done(QMessageBox::Yes);
}

void MMessageBox::slotAbort()
{
    done(QMessageBox::Abort);
}

void MMessageBox::slotRetry()
{
    done(QMessageBox::Retry);
}

void MMessageBox::slotIgnore()
{
    done(QMessageBox::Ignore);
}

void MMessageBox::slotYesAll()
{
    done(QMessageBox::YesToAll);
}

void MMessageBox::slotNoAll()
{
    done(QMessageBox::NoToAll);
}

void MMessageBox::slotUserDefined()
{
    done(UserDefined);
}

} // namespace QMWidgets
