#include "AboutDialog.h"

#include "App.h"
#include "Common.h"
#include "Literals.h"
#include "MakerHosts.h"

#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>

namespace QMWidgets {

namespace {

/// A licence text is some tens of kilobytes; anything larger isn't one.
constexpr qint64 MaxLicenceBytes = 1 << 20;

} // namespace

QString AboutDialog::sm_strLegalNotices;

AboutDialog::AboutDialog(QWidget *parent)
    : QDialog(parent)
{
    setObjectName(u"AboutDialog"_qs);
    setWindowTitle(QCoreApplication::applicationName() + tr(" Info"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    createWidgets();
    createLayout();
    setMainInfoVisible(true);
}

void AboutDialog::createWidgets()
{
    m_plblLogo = new QLabel(this);
    m_plblLogo->setObjectName(u"LogoLabel"_qs);
    m_plblLogo->setFixedHeight(87);

    m_ptxtInfo = new QTextBrowser(this);
    m_ptxtInfo->setObjectName(u"AboutInfoLabel"_qs);
    m_ptxtInfo->setStyleSheet(u"background: black;"_qs);
    m_ptxtInfo->setAccessibleName(tr("About the program"));

    m_ptxtLegal = new QTextBrowser(this);
    m_ptxtLegal->setObjectName(u"AboutLegalInfo"_qs);
    m_ptxtLegal->setAccessibleName(tr("Legal notices"));

    for (QTextBrowser *ptxt : {m_ptxtInfo, m_ptxtLegal}) {
        ptxt->setOpenLinks(false);
        ptxt->setTabChangesFocus(true);
        ptxt->document()->setDefaultStyleSheet(u"a { color: #00A0E0; }"_qs);
        ptxt->setMinimumSize(320, 120);
        connect(ptxt, &QTextBrowser::anchorClicked, this, &AboutDialog::slotAnchorClicked);
    }
    m_ptxtInfo->setHtml(infoText(App::buildDate()));

    m_pcmdLegal = new QPushButton(this);
    m_pcmdOk = new QPushButton(tr("&Ok"), this);
    Common::applyPushButtonDetails(m_pcmdLegal);
    Common::applyPushButtonDetails(m_pcmdOk);
    m_pcmdOk->setDefault(true);
    connect(m_pcmdLegal, &QPushButton::clicked, this, &AboutDialog::slotShowLegalNotices);
    connect(m_pcmdOk, &QPushButton::clicked, this, &AboutDialog::accept);
}

void AboutDialog::createLayout()
{
    auto *playoutButtons = new QHBoxLayout;
    playoutButtons->addWidget(m_pcmdLegal);
    playoutButtons->addStretch(1);
    playoutButtons->addWidget(m_pcmdOk);
    auto *playout = new QVBoxLayout(this);
    playout->addWidget(m_plblLogo);
    playout->addWidget(m_ptxtInfo, 1);
    playout->addWidget(m_ptxtLegal, 1);
    playout->addLayout(playoutButtons);
    m_pcmdOk->setFocus();
}

void AboutDialog::addLegalNotices(const QString &str)
{
    QString strNotices = str;
    sm_strLegalNotices += strNotices.replace(u"<!bundlepath!>"_qs, App::bundleResourcePath());
}

QString AboutDialog::legalNotices()
{
    return App::legalNotices() + sm_strLegalNotices;
}

QString AboutDialog::infoText(const QDate &dateBuild)
{
    const QString strLogo = u":/velmora.png"_qs;
    // An absent picture would show as a broken one.
    const QString strImage
        = QFile::exists(strLogo) ? u"<BR><BR><IMG SRC=\"%1\">"_qs.arg(strLogo) : QString();
    return u"<BODY BGCOLOR=#000000><FONT COLOR=#00A0E0 SIZE=2><CENTER>%1 v%2 Build: %3<BR>"
           u"Copyright \u00a9 %4 %5<BR><A HREF=\"%6\"><FONT COLOR=#00A0E0>%6</FONT></A>%7</CENTER>"_qs
               .arg(QCoreApplication::applicationName().toHtmlEscaped(),
                   QCoreApplication::applicationVersion().toHtmlEscaped(),
                   dateBuild.toString(u"dd.MM.yyyy"_qs), dateBuild.toString(u"yyyy"_qs),
                   QCoreApplication::organizationName().toHtmlEscaped(), MakerHosts::homePage(),
                   strImage);
}

void AboutDialog::setMainInfoVisible(bool b)
{
    m_bMainInfo = b;
    m_pcmdLegal->setText(b ? tr("&Legal Notices") : tr("&Back"));
    if (!b) {
        m_ptxtLegal->setHtml(u"<BODY><CENTER>"_qs + legalNotices() + u"</CENTER></BODY>"_qs);
    }
    m_ptxtInfo->setVisible(b);
    m_ptxtLegal->setVisible(!b);
}

void AboutDialog::slotShowLegalNotices()
{
    setMainInfoVisible(!m_bMainInfo);
}

void AboutDialog::slotAnchorClicked(const QUrl &url)
{
    if (!url.toLocalFile().contains(u".LGPL"_qs)) {
        App::openAddress(url.toString());
        return;
    }
    QFile file(App::bundleResourcePath() + u"LICENSE.LGPL"_qs);
    if (file.open(QIODevice::ReadOnly)) {
        m_ptxtLegal->setPlainText(QString::fromUtf8(file.read(MaxLicenceBytes)));
    }
}

} // namespace QMWidgets
