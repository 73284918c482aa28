// The texts, links and flags that a program hands to its App at the start.
#include "App.h"

#include "Literals.h"
#include "MakerHosts.h"
#include <QDesktopServices>
#include <QRegularExpression>
#include <QUrl>
#include <QUrlQuery>

namespace QMWidgets {

bool App::isSandboxed()
{
    const App *papp = theApp();
    return papp != nullptr && papp->m_bSandboxed;
}

void App::setSandboxed(bool b)
{
    if (App *papp = theApp()) {
        papp->m_bSandboxed = b;
    }
}

bool App::isIndependent()
{
    const App *papp = theApp();
    return papp != nullptr && papp->m_bIndependent;
}

void App::setIndependent(bool b)
{
    if (App *papp = theApp()) {
        papp->m_bIndependent = b;
    }
}

bool App::isKidsMode()
{
    return held(&App::m_bKidsMode);
}

void App::setKidsMode(bool b)
{
    hold(&App::m_bKidsMode, b);
}

QString App::currentLanguage()
{
    return held(&App::m_strCurrentLanguage, u"en"_qs);
}

void App::setCurrentLanguage(const QString &strLanguage)
{
    hold(&App::m_strCurrentLanguage, strLanguage);
}

QString App::currentLanguageOptimized()
{
    const QString strLanguage = currentLanguage();
    return strLanguage.contains(u"en"_qs) ? QString() : strLanguage + u'/';
}

void App::setAdditionalLanguages(const QStringList &lstLanguages)
{
    hold(&App::m_lstAdditionalLanguages, lstLanguages);
}

bool App::isAdditionalLanguageContains(const QString &strLanguage)
{
    return held(&App::m_lstAdditionalLanguages).contains(strLanguage);
}

QStringList App::introductionSlides()
{
    return held(&App::m_lstSlides);
}

void App::setIntroductionSlides(const QStringList &lstSlides)
{
    hold(&App::m_lstSlides, lstSlides);
}

QString App::introVideosList()
{
    return held(&App::m_strIntroVideosList);
}

void App::setIntroVideosList(const QString &strLink)
{
    hold(&App::m_strIntroVideosList, strLink);
}

QString App::privacyPolicyLink()
{
    return held(&App::m_strPrivacyPolicyLink);
}

void App::setPrivacyPolicyLink(const QString &strLink)
{
    hold(&App::m_strPrivacyPolicyLink, strLink);
}

QString App::appSupportPage()
{
    return held(&App::m_strSupportPage);
}

void App::setAppSupportPage(const QString &strLink)
{
    hold(&App::m_strSupportPage, strLink);
}

QString App::facebookShareLink()
{
    return held(&App::m_strFacebookLink);
}

void App::setFaceBookShareLink(const QString &strLink)
{
    hold(&App::m_strFacebookLink, strLink);
}

QString App::youtubeShareLink()
{
    return held(&App::m_strYoutubeLink);
}

void App::setYouTubeShareLink(const QString &strLink)
{
    hold(&App::m_strYoutubeLink, strLink);
}

QString App::twitterShareLink()
{
    return held(&App::m_strTwitterLink);
}

void App::setTwitterShareLink(const QString &strLink)
{
    hold(&App::m_strTwitterLink, strLink);
}

QString App::vkontakteShareLink()
{
    return held(&App::m_strVKontakteLink);
}

void App::setVKontakteShareLink(const QString &strLink)
{
    hold(&App::m_strVKontakteLink, strLink);
}

QString App::shareMessage()
{
    const QString strMessage = held(&App::m_strShareMessage);
    return strMessage.isEmpty() ? applicationName() : strMessage;
}

void App::setShareMessage(const QString &strMessage)
{
    hold(&App::m_strShareMessage, strMessage);
}

QString App::shortShareMessage()
{
    return held(&App::m_strShortShareMessage);
}

void App::setShortShareMessage(const QString &strMessage)
{
    hold(&App::m_strShortShareMessage, strMessage);
}

QString App::resourceOffset()
{
    return held(&App::m_strResourceOffset);
}

void App::setResourceOffset(const QString &str)
{
    hold(&App::m_strResourceOffset, str);
}

// Legal notices

void App::createLegalNotices()
{
    m_strLegalNotices = u"Qt "_qs + QString::fromLatin1(qVersion()) + u" Toolkit<BR>"_qs
        + u"under LGPLv3 <A HREF=\"file://"_qs + bundleResourcePath()
        + u"LICENSE.LGPL\">(more)</A><BR>the Qt source code is available on<br>"_qs
        + u"<A HREF=\"https://www.qt.io\">www.qt.io</A>"_qs;
}

QString App::legalNotices()
{
    const App *papp = theApp();
    if (papp == nullptr) {
        return {};
    }
    // The language is chosen after the construction, so the heading isn't part of the held text.
    return (papp->m_bOwnLegalHeading ? tr("<H3>This Application Uses:</H3>") : QString())
        + papp->m_strLegalNotices;
}

void App::setLegalNotices(const QString &strHtml)
{
    hold(&App::m_strLegalNotices, strHtml);
    hold(&App::m_bOwnLegalHeading, false);
}

void App::addLegalNotices(const QString &strHtml)
{
    hold(&App::m_strLegalNotices, held(&App::m_strLegalNotices) + strHtml);
}

// Links

void App::setVelmoraOrgLinks(const QString &strPage)
{
    const QString strLanguage = currentLanguage();
    QString strSegment = u"org/"_qs;
    if (strLanguage == u"de"_qs || strLanguage == u"ru"_qs
        || isAdditionalLanguageContains(strLanguage)) {
        strSegment = strLanguage + u'/';
    }
    const QString strAddress = MakerHosts::productPage(
        strSegment, strPage.isEmpty() ? applicationName().toLower() : strPage);
    setFaceBookShareLink(MakerHosts::facebookShare() + strAddress);
    setTwitterShareLink(MakerHosts::twitterShare() + strAddress);
    setAppSupportPage(strAddress);
}

void App::setVelmoraComLinks(const QString &strPage)
{
    const QString strAddress = velmoraComServer() + u"/apps/"_qs
        + (strPage.isEmpty() ? applicationName().toLower() : strPage);
    setFaceBookShareLink(strAddress + u"/facebook.php"_qs);
    setTwitterShareLink(strAddress + u"/twitter.php"_qs);
    setVKontakteShareLink(strAddress + u"/vkontakte.php"_qs);
    setAppSupportPage(strAddress);
}

QString App::velmoraComServer()
{
    return MakerHosts::comServer();
}

QString App::velmoraNetServer()
{
    return MakerHosts::netServer();
}

QString App::velmoraDeServer()
{
    return MakerHosts::deServer();
}

QString App::storeLink(const QString &strAddress) const
{
    QString strPage = strAddress;
    if (strPage.endsWith(u'/')) {
        strPage.chop(1);
    }
    const QUrl url(strPage);
    const QString strQueryName = QUrlQuery(url).queryItemValue(u"appname"_qs);
    const QString strName = strQueryName.isEmpty() ? url.path().section(u'/', -1) : strQueryName;
    static const QRegularExpression identifier(u"^id[0-9]+$"_qs);
    const QString strId = identifier.match(strName).hasMatch() ? strName : appNameToId(strName);
    return strId.isEmpty()
        ? QString()
        : u"macappstore://"_qs + MakerHosts::storeHost() + u"/app/%1?mt=12"_qs.arg(strId);
}

QString App::appNameToId(const QString &strName) const
{
    return m_mapAppsIds.value(strName.toLower());
}

QString App::appId() const
{
    return appNameToId(appKey());
}

QString App::appKey()
{
    return applicationName().toLower().remove(u' ');
}

bool App::openAddress(const QString &strAddress)
{
    QString str = strAddress;
    const QString strStoreScheme = u"macappstore://"_qs;
    if (str.startsWith(strStoreScheme)) {
        str.replace(0, strStoreScheme.size(), u"https://"_qs);
    }
    return QDesktopServices::openUrl(QUrl(str));
}

} // namespace QMWidgets
