#include "Os.h"

#include "App.h"
#include "Literals.h"
#include "MakerHosts.h"
#include "Os_Mac.h"
#include "PlatformVersion.h"
#include "RateAppStoreDialog.h"
#include <QLocale>
#include <QPointer>

using QMWidgets::App;

namespace {

const char *const countKey = "RequestedReviewsCount";
const char *const callsKey = "RequestedReviewsCalls";
const char *const lastDateKey = "RequestedReviewsLastDate";

constexpr int requestsInPeriod = 3;
constexpr int daysOfPeriod = 366;
constexpr int firstVersionWithSharing = 10;
constexpr int firstVersionWithReviews = 16;

void store(const char *key, const QVariant &value)
{
    App::setSettingsValue(QLatin1String(key), value);
}

int stored(const char *key)
{
    return App::settingsValue(QLatin1String(key), 0).toInt();
}

void storeDate(const QDate &date)
{
    store(lastDateKey, QLocale::c().toString(date, App::dateFormat()));
}

QString encoded(const QString &str)
{
    return QString::fromLatin1(QUrl::toPercentEncoding(str));
}

QString encoded(const QUrl &url)
{
    return encoded(QString::fromLatin1(url.toEncoded()));
}

void share(const QString &strAddress)
{
    if (platformVersion() >= firstVersionWithSharing) {
        App::openAddress(strAddress);
    }
}

}

bool Os::s_bReviewWasRequested = false;
int Os::s_nRequestPeriod = 2;

Os *Os::instance()
{
    static Os *pos = nullptr;
    if (pos == nullptr) {
        pos = new Os; // it lasts as long as the process
        Os_Mac::initNotifications();
    }
    return pos;
}

Os::Os() = default;

void Os::setAppIconNumber(int nNumber)
{
    Os_Mac::setBadge(qMax(nNumber, 0));
}

void Os::unsetAppIconNumber()
{
    Os_Mac::setBadge(-1);
}

bool Os::isAutorunAtLogon()
{
    return Os_Mac::isAutorunAtLogon();
}

void Os::changeAutorunAtLogon(bool bAutorun)
{
    Os_Mac::changeAutorunAtLogon(bAutorun);
}

QString Os::nativeLibraryName(const QString &strName)
{
    return u"lib"_qs + strName + u".dylib"_qs;
}

// NOLINTBEGIN(performance-unnecessary-value-param): the interface's own type of the picture
void Os::postToTwitter(const QString &strText, QPixmap, const QUrl &url)
{
    share(MakerHosts::twitterShare() + encoded(strText + u' ') + encoded(url));
}

void Os::postToFacebook(const QString &strText, QPixmap, const QUrl &url)
{
    share(MakerHosts::facebookShare() + encoded(url) + u"&quote="_qs + encoded(strText));
}

void Os::postToLinkedin(const QString &strText, QPixmap, const QUrl &url)
{
    share(MakerHosts::linkedinShare() + encoded(url) + u"&summary="_qs + encoded(strText));
}

void Os::postToEmail(const QString &strText, QPixmap, const QUrl &url)
{
    share(App::mailToFriend(strText, url.toString()));
}
// NOLINTEND(performance-unnecessary-value-param)

bool Os::openFolderAndSelectFile(const QString &strPath)
{
    return Os_Mac::openFolderAndSelectFile(strPath);
}

bool Os::moveToTrash(const QString &strPath)
{
    return Os_Mac::moveToTrash(strPath);
}

float Os::scaleFactor()
{
    return Os_Mac::scaleFactor();
}

void Os::setDisableSleepMode(bool bDisable)
{
    Os_Mac::setDisableSleepMode(bDisable);
}

// Requests for a review

void Os::requestReview(bool bForce)
{
    if (s_bReviewWasRequested) {
        return;
    }
    s_bReviewWasRequested = true;
    if (isRequestedReviewsQuotaExceeded()) {
        return;
    }
    const int nCount = requestedReviewsCount();
    const int nCalls = requestedReviewsCalls();
    if (nCount == 0 || bForce || nCalls % qMax(s_nRequestPeriod, 1) == 0) {
        if (platformVersion() >= firstVersionWithReviews && !App::isIndependent()) {
            Os_Mac::requestReview();
        } else {
            simulateRequestReview();
        }
        store(countKey, nCount + 1);
        storeDate(App::today());
    }
    store(callsKey, (nCalls < -1 ? 0 : nCalls) + 1);
}

bool Os::isRequestedReviewsQuotaExceeded()
{
    const qint64 nDays = requestedReviewsLastDate().daysTo(App::today());
    if (requestedReviewsCount() < requestsInPeriod && nDays < daysOfPeriod) {
        return false;
    }
    if (nDays <= daysOfPeriod) {
        return true;
    }
    store(callsKey, 0);
    store(countKey, 0);
    storeDate(App::today());
    return false;
}

int Os::requestedReviewsCount()
{
    return stored(countKey);
}

int Os::requestedReviewsCalls()
{
    return stored(callsKey);
}

QDate Os::requestedReviewsLastDate()
{
    const QString strDate = App::settingsValue(QLatin1String(lastDateKey), QString()).toString();
    return strDate.isEmpty() ? App::today() : QDate::fromString(strDate, App::dateFormat());
}

int Os::numRequestedReviewsAvalable()
{
    return isRequestedReviewsQuotaExceeded() ? 0 : requestsInPeriod - requestedReviewsCount();
}

void Os::setRequestPeriod(const int &nPeriod)
{
    s_nRequestPeriod = qMax(nPeriod, 1);
}

void Os::simulateRequestReview()
{
    App *papp = App::theApp();
    const QString strReminderKey = u"AutoReminder"_qs;
    if (papp == nullptr || !App::settingsValue(strReminderKey, true).toBool()
        || QMWidgets::RateAppStoreDialog::wasAlreadyCalled()) {
        return;
    }
    const QPointer<QMWidgets::RateAppStoreDialog> pdlg(
        new QMWidgets::RateAppStoreDialog(App::mainWidget())); // gone with its parent, or below
    pdlg->exec();
    const int nState = pdlg.isNull() ? QMWidgets::ReminderStateDialog::None : pdlg->state();
    delete pdlg;
    if (nState == QMWidgets::ReminderStateDialog::Rate) {
        papp->slotRateApp();
    }
    if (nState == QMWidgets::ReminderStateDialog::Rate
        || nState == QMWidgets::ReminderStateDialog::Never) {
        App::setSettingsValue(strReminderKey, false);
    }
}
