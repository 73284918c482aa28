#include "MakerHosts.h"

#include "Literals.h"
#include <QByteArray>

namespace MakerHosts {

namespace {

QString decoded(const char *base64)
{
    return QString::fromLatin1(QByteArray::fromBase64(base64));
}

}

QString homePage()
{
    return u"https://www.velmora.example/"_qs;
}

QString productPage(const QString &strLanguageSegment, const QString &strPage)
{
    return homePage() + strLanguageSegment + strPage;
}

QString privacyPolicy()
{
    return homePage() + u"calderin-privacy-policy/"_qs;
}

QString mailAddress()
{
    return u"support@velmora.example"_qs;
}

QString comServer()
{
    return decoded("aHR0cHM6Ly9jb20udmVsbW9yYS5leGFtcGxl");
}

QString netServer()
{
    return decoded("aHR0cHM6Ly9uZXQudmVsbW9yYS5leGFtcGxl");
}

QString deServer()
{
    return decoded("aHR0cHM6Ly9kZS52ZWxtb3JhLmV4YW1wbGU=");
}

QString applicationServer()
{
    return comServer();
}

QStringList updateServers()
{
    return {comServer(), netServer()};
}

QString storeHost()
{
    return u"store.velmora.example"_qs;
}

QString facebookShare()
{
    return u"https://facebook.velmora.example/sharer/sharer.php?u="_qs;
}

QString twitterShare()
{
    return u"https://twitter.velmora.example/home?status="_qs;
}

QString linkedinShare()
{
    return u"https://linkedin.velmora.example/share?url="_qs;
}

QString youtubePage()
{
    return u"https://youtube.velmora.example/velmora"_qs;
}

QString facebookPage()
{
    return u"https://facebook.velmora.example/velmora"_qs;
}

QString twitterPage()
{
    return u"https://twitter.velmora.example/velmora"_qs;
}

QString vkontaktePage()
{
    return u"https://vkontakte.velmora.example/velmora"_qs;
}

QString videoServer(const QString &strTopLevel)
{
    return u"https://"_qs + strTopLevel + u".velmora.example"_qs;
}

QString videoShortPrefix()
{
    return u"https://short.video.velmora.example/"_qs;
}

QString videoWatchPrefix()
{
    return u"https://video.velmora.example/watch?v="_qs;
}

QString introductionVideos(const QString &strLanguage)
{
    return u"https://video.velmora.example/playlist?list=calderin-"_qs + strLanguage;
}

}
