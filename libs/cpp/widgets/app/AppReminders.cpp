// The reminders of an App to rate it, to tell of it, or to join its maker.
#include "App.h"

#include "Literals.h"
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

void App::slotCallRateReminderInternal() { }

void App::slotImmediatelyRate() { }

} // namespace QMWidgets
