#pragma once

#include <QString>
#include <QStringList>

/// The addresses of the maker, of the store and of the networks: the one place that names a host.
///
/// Servers come with their scheme and without a trailing "/".
namespace MakerHosts {

/// The maker's web site, with a trailing "/".
QString homePage();

/// The page of a product on the maker's site in the language of a path segment ("org/", "de/").
QString productPage(const QString &strLanguageSegment, const QString &strPage);

/// The address of this program's privacy policy.
QString privacyPolicy();

/// The mail address for users.
QString mailAddress();

/// The three servers of the maker.
QString comServer();
QString netServer();
QString deServer();

/// The server of "/rate.php", "/crosspromo.php", "/social/share.php", "/social/join.php" and the
/// pages below "/apps/".
QString applicationServer();

/// The servers that hold the build files, in the order in which they are asked.
QStringList updateServers();

/// The store's host, without a scheme.
QString storeHost();

/// The addresses to share a page through, ending in the query key and "=".
QString facebookShare();
QString twitterShare();
QString linkedinShare();

/// The maker's pages on the networks.
QString youtubePage();
QString facebookPage();
QString twitterPage();
QString vkontaktePage();

/// The maker's site for a top-level part ("org", "de"…), with the video page "/video.php".
QString videoServer(const QString &strTopLevel);

/// The prefixes of the video service's short addresses and of its watch pages.
QString videoShortPrefix();
QString videoWatchPrefix();

/// The play list of the introduction's videos for "en", "de" or "ru".
QString introductionVideos(const QString &strLanguage);

}
