// The reminders of an App to rate it, to tell of it, or to join its maker.
#include "App.h"

#include "JoinReminderDialog.h"
#include "Literals.h"
#include "Os.h"
#include "PlatformVersion.h"
#include "RateAppStoreDialog.h"
#include "TellReminderDialog.h"
#include <QRandomGenerator>
#include <QTimer>

namespace QMWidgets {

namespace {

enum Reminder
{
    Rate = 1,
    Tell = 2,
    Join = 4
};

constexpr int byDistribution = 8;

bool holds(int nMask, int nKinds)
{
    return (nMask & nKinds) == nKinds;
}

int drawnKind(int nMask)
{
    constexpr int kinds[] = {Rate, Tell, Join};
    auto *prandom = QRandomGenerator::global();
    if (holds(nMask, Rate | Tell | Join)) {
        return kinds[prandom->bounded(3)];
    }
    for (const int nPair : {Rate | Tell, Rate | Join, Tell | Join}) {
        if (holds(nMask, nPair)) {
            const int nLower = nPair & -nPair;
            return prandom->bounded(2) == 0 ? nLower : nPair - nLower;
        }
    }
    return nMask;
}

}

void App::setRemiderCount(int nCount)
{
    hold(&App::m_nReminderCount, nCount);
}

void App::setRemiderDelay(int nDelay)
{
    hold(&App::m_nReminderDelay, nDelay);
}

int App::reminderKind() const
{
    return m_nReminderKind;
}

void App::armReminder(int nKind, int nCount)
{
    App *papp = theApp();
    if (papp == nullptr) {
        return;
    }
    papp->m_nReminderKind = nKind;
    papp->m_nReminderCount = nCount;
    if (nCount > 0) {
        connect(papp, &QCoreApplication::aboutToQuit, papp, &App::slotCallRateReminderInternal,
            Qt::UniqueConnection);
    }
}

void App::callRateReminder(int nCount)
{
    armReminder(Rate, nCount);
}

void App::callTellReminder(int nCount)
{
    armReminder(Tell, nCount);
}

void App::callJoinReminder(int nCount)
{
    armReminder(Join, nCount);
}

void App::callReminder(int nCount, int nMask)
{
    if (nMask == byDistribution) {
        armReminder(isAppStore() ? Rate : Tell, nCount);
    } else {
        armReminder(drawnKind(nMask), nCount);
    }
}

void App::scheduleReminder(int nKind)
{
    m_nReminderKind = nKind;
    QTimer::singleShot(m_nReminderDelay, this, &App::slotCallRateReminderInternal);
}

void App::slotCallRateReminder()
{
    scheduleReminder(Rate);
}

void App::slotCallTellReminder()
{
    scheduleReminder(Tell);
}

void App::slotCallJoinReminder()
{
    scheduleReminder(Join);
}

template <typename Dialog> int App::runReminder()
{
    const QPointer<Dialog> pdlg(new Dialog(m_pwgtMain)); // gone with its parent, or below
    pdlg->exec();
    const int nState = pdlg.isNull() ? ReminderStateDialog::None : pdlg->state();
    delete pdlg;
    return nState;
}

void App::takeReminderAnswer(int nState)
{
    switch (nState) {
    case ReminderStateDialog::Rate:
        slotRateApp();
        break;
    case ReminderStateDialog::Mail:
        slotContactUs();
        break;
    case ReminderStateDialog::Never:
        break;
    default:
        return;
    }
    setSettingsValue(u"AutoReminder"_qs, false);
}

void App::runDueReminder()
{
    constexpr int firstVersionWithReviews = 16;
    if (platformVersion() >= firstVersionWithReviews) {
        Os::requestReview(true);
    } else if (m_nReminderKind == Tell) {
        takeReminderAnswer(runReminder<TellReminderDialog>());
    } else if (m_nReminderKind != Rate) {
        takeReminderAnswer(runReminder<JoinReminderDialog>());
    } else if (!RateAppStoreDialog::wasAlreadyCalled()) {
        takeReminderAnswer(runReminder<RateAppStoreDialog>());
    }
}

void App::slotCallRateReminderInternal()
{
    if (!m_pwgtMain.isNull() && !m_pwgtMain->isVisible()) {
        m_pwgtMain->show();
    }
    if (!settingsValue(u"AutoReminder"_qs, true).toBool()) {
        return;
    }
    const QString strCountKey = u"AutoReminderCount"_qs;
    const int nOccasion = settingsValue(strCountKey, 1).toInt();
    if (m_nReminderCount > 0 && nOccasion % m_nReminderCount == 0) {
        runDueReminder();
    }
    setSettingsValue(strCountKey, nOccasion < -1 ? 1 : nOccasion + 1);
}

void App::slotImmediatelyRate()
{
    takeReminderAnswer(runReminder<RateAppStoreDialog>());
}

} // namespace QMWidgets
