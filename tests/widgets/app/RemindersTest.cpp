#include "App.h"
#include "Literals.h"
#include "MediaMaker.h"
#include "OpenedUrls.h"
#include "Os.h"
#include "PlatformVersion.h"
#include "RateAppStoreDialog.h"

#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <QTimer>

using QMWidgets::App;
using QMWidgets::ReminderStateDialog;

namespace {

using Answer = std::function<void(ReminderStateDialog *)>;

/// Answers every reminder that comes up, and counts them.
class User : public OpenedUrls
{
public:
    explicit User(const Answer &answer)
        : m_answer(answer)
    {
        connect(&m_timer, &QTimer::timeout, this, [this] {
            auto *pdlg = qobject_cast<ReminderStateDialog *>(QApplication::activeModalWidget());
            if (pdlg != nullptr) {
                classes << QString::fromLatin1(pdlg->metaObject()->className());
                m_answer(pdlg);
            }
        });
        m_timer.start(10);
    }

    QStringList classes;

private:
    Answer m_answer;
    QTimer m_timer;
};

int count()
{
    return App::settingsValue(u"AutoReminderCount"_qs, 1).toInt();
}

bool isAutomatic()
{
    return App::settingsValue(u"AutoReminder"_qs, true).toBool();
}

class Reminders : public testing::Test
{
protected:
    Reminders()
    {
        setPlatformVersion(15);
        App::setSettingsValue(u"AutoReminder"_qs, true);
        App::setSettingsValue(u"AutoReminderCount"_qs, 1);
    }

    ~Reminders() override
    {
        setPlatformVersion(16);
        App::setClock({});
        QObject::disconnect(App::theApp(), &QCoreApplication::aboutToQuit, App::theApp(),
            &App::slotCallRateReminderInternal);
    }

    static void store(const char *key, const QVariant &value)
    {
        App::setSettingsValue(QLatin1String(key), value);
    }
};

TEST_F(Reminders, comeAtEveryNthOccasionUntilTheUserDeclines)
{
    App *papp = App::theApp();
    App::setRemiderDelay(0);
    App::setRemiderCount(3);
    auto later = std::make_unique<User>(&ReminderStateDialog::slotMaybeLater);
    for (int nOccasion = 1; nOccasion <= 7; ++nOccasion) {
        papp->slotCallTellReminder();
        ASSERT_TRUE(MediaMaker::waitFor([nOccasion] { return count() == nOccasion + 1; }, 5000));
        EXPECT_EQ(later->classes.size(), nOccasion / 3);
    }
    EXPECT_TRUE(isAutomatic());

    App::setRemiderCount(0);
    papp->slotCallRateReminderInternal();
    EXPECT_EQ(later->classes.size(), 2);
    EXPECT_EQ(count(), 9);

    later.reset();
    const User never(&ReminderStateDialog::slotNeverAskMeAgain);
    App::setRemiderCount(1);
    papp->slotCallJoinReminder();
    ASSERT_TRUE(MediaMaker::waitFor([] { return count() == 10; }, 5000));
    EXPECT_FALSE(isAutomatic());
    papp->slotCallRateReminderInternal();
    EXPECT_EQ(count(), 10);
}

TEST_F(Reminders, arePutWhenTheUserQuits)
{
    const User mailing(&ReminderStateDialog::slotMail);
    App::theApp()->callReminder(1, 4);
    EXPECT_EQ(App::theApp()->reminderKind(), 4);
    QTimer::singleShot(0, QCoreApplication::instance(), &QCoreApplication::quit);
    QCoreApplication::exec();
    EXPECT_EQ(mailing.classes, QStringList {u"QMWidgets::JoinReminderDialog"_qs});
    ASSERT_EQ(mailing.list.size(), 1);
    EXPECT_EQ(mailing.list[0].scheme(), u"mailto"_qs);
    EXPECT_FALSE(isAutomatic());
}

TEST_F(Reminders, drawTheirKindFromTheMask)
{
    App *papp = App::theApp();
    const QVector<QPair<int, QVector<int>>> masks {{1, {1}}, {2, {2}}, {4, {4}}, {3, {1, 2}},
        {5, {1, 4}}, {6, {2, 4}}, {7, {1, 2, 4}}, {15, {1, 2, 4}}, {8, {1}}};
    for (const auto &each : masks) {
        QVector<int> drawn;
        for (int n = 0; n < 200; ++n) {
            papp->callReminder(10, each.first);
            if (!drawn.contains(papp->reminderKind())) {
                drawn.append(papp->reminderKind());
            }
        }
        std::sort(drawn.begin(), drawn.end());
        EXPECT_EQ(drawn, each.second) << each.first;
    }
    App::setIndependent(true);
    papp->callReminder(10, 8);
    App::setIndependent(false);
    EXPECT_EQ(papp->reminderKind(), 2);
}

TEST_F(Reminders, reviewsAreAskedForInTheirPeriodAndQuota)
{
    struct Case
    {
        int nCount;
        int nCalls;
        int nDaysAgo; // below 0: never
        bool bForce;
        int nCountAfter;
        int nCallsAfter;
    };
    const Case cases[] = {
        {0, 0, -1, false, 1, 1},
        {0, 1, -1, false, 1, 2},
        {1, 1, 10, false, 1, 2},
        {1, 2, 10, false, 2, 3},
        {1, 1, 10, true, 2, 2},
        {2, -5, 10, true, 3, 1},
        {3, 4, 100, true, 3, 4},
        {2, 4, 365, true, 3, 5},
        {2, 4, 366, true, 2, 4},
        {3, 4, 366, true, 3, 4},
        {3, 5, 367, false, 1, 1},
        {0, 6, 366, false, 0, 6},
    };
    const QDate today(2027, 5, 1);
    App::setClock([today] { return today; });
    store("AutoReminder", false);
    for (const Case &each : cases) {
        const auto tell = [&each] {
            return testing::Message() << each.nCount << ' ' << each.nCalls << ' ' << each.nDaysAgo;
        };
        store("RequestedReviewsCount", each.nCount);
        store("RequestedReviewsCalls", each.nCalls);
        store("RequestedReviewsLastDate",
            each.nDaysAgo < 0 ? QString()
                              : today.addDays(-each.nDaysAgo).toString(App::dateFormat()));
        Os::s_bReviewWasRequested = false;
        Os::requestReview(each.bForce);
        Os::requestReview(true);
        EXPECT_EQ(Os::requestedReviewsCount(), each.nCountAfter) << tell();
        EXPECT_EQ(Os::requestedReviewsCalls(), each.nCallsAfter) << tell();
        if (each.nCountAfter > each.nCount) {
            EXPECT_EQ(Os::requestedReviewsLastDate(), today) << tell();
        }
    }
    store("RequestedReviewsLastDate", u"yesterday"_qs);
    EXPECT_FALSE(Os::requestedReviewsLastDate().isValid());
}

TEST_F(Reminders, aReviewIsTheOwnDialogOnce)
{
    setPlatformVersion(16);
    const User rating(&ReminderStateDialog::slotRate);
    Os::s_bReviewWasRequested = false;
    store("RequestedReviewsCount", 0);
    store("RequestedReviewsLastDate", QString());
    Os::requestReview(false);
    EXPECT_EQ(rating.classes, QStringList {u"QMWidgets::RateAppStoreDialog"_qs});
    ASSERT_EQ(rating.list.size(), 1);
    EXPECT_TRUE(rating.list[0].query().contains(u"write-review"_qs));
    EXPECT_FALSE(isAutomatic());

    store("AutoReminder", true);
    Os::simulateRequestReview();
    EXPECT_EQ(rating.classes.size(), 1);
    App::theApp()->slotImmediatelyRate();
    EXPECT_EQ(rating.classes.size(), 2);
}

}
