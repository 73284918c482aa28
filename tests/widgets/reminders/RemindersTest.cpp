#include "../common/Browser.h"
#include "App.h"
#include "JoinDialog.h"
#include "JoinWidget.h"
#include "MakerHosts.h"
#include "MediaMaker.h"
#include "Os.h"
#include "PlatformVersion.h"
#include "RateAppStoreDialog.h"
#include "RateMailDialog.h"
#include "ReminderDialog.h"
#include "TellDialog.h"
#include "TellReminderDialog.h"
#include "TellWidget.h"

#include <gtest/gtest.h>
#include <memory>
#include <QLabel>
#include <QPushButton>
#include <QSet>
#include <QSettings>
#include <QTimer>

using namespace QMWidgets;

namespace {

/// Ends every modal dialog by the button of that text, and keeps the dialogs' classes.
class User
{
public:
    explicit User(const QString &strButton)
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this, strButton] {
            QWidget *pdlg = QApplication::activeModalWidget();
            if (pdlg == nullptr) {
                return;
            }
            const auto buttons = pdlg->findChildren<QPushButton *>();
            for (QPushButton *pcmd : buttons) {
                if (pcmd->text() == strButton) {
                    seen.append(QString::fromLatin1(pdlg->metaObject()->className()));
                    pcmd->click();
                    return;
                }
            }
            seen.append(u"no such button"_qs);
            pdlg->close();
        });
        m_timer.start(1);
    }

    QStringList seen;

private:
    QTimer m_timer;
};

/// Starts every test with an empty store, on a system without a store's review function.
class Reminders : public ::testing::Test
{
protected:
    Reminders()
    {
        const QStringList keys {u"AutoReminder"_qs, u"AutoReminderCount"_qs,
            u"RequestedReviewsCount"_qs, u"RequestedReviewsCalls"_qs,
            u"RequestedReviewsLastDate"_qs};
        for (const QString &str : keys) {
            App::settings()->remove(App::applicationName() + u'/' + str);
        }
        setPlatformVersion(15);
        Os::s_bReviewWasRequested = false;
        Os::setRequestPeriod(2);
        App::setClock([this] { return today; });
    }

    ~Reminders() override
    {
        setPlatformVersion(16);
        App::setClock({});
        App::setIndependent(false);
    }

    static int occasions() { return App::settingsValue(u"AutoReminderCount"_qs, 1).toInt(); }

    QDate today {2020, 1, 1};
    App *papp = App::theApp();
};

TEST_F(Reminders, dialogsGiveTheAnswerOfTheirButtons)
{
    const auto make = [](int n) -> std::unique_ptr<ReminderStateDialog> {
        switch (n) {
        case 0:
            return std::make_unique<ReminderDialog>();
        case 1:
            return std::make_unique<RateAppStoreDialog>();
        default:
            return std::make_unique<RateMailDialog>();
        }
    };
    const struct
    {
        QString title;
        QString body;
        QList<QPair<QString, int>> answers;
    } rows[] = {
        {u"Calderin M4A"_qs, QString(),
            {{u"&Rate"_qs, 0}, {u"&Mail"_qs, 1}, {u"&Later"_qs, 2},
                {u"&Don't ask me again"_qs, 3}}},
        {u"Rate \"Calderin M4A\""_qs,
            u"Enjoying \"Calderin M4A\" ?Please rate the app on the App Store.<br>This will help "
            u"us "
            u"improve <br>the app's features in the future."_qs,
            {{u"&Rate It Now"_qs, 0}, {u"&Later"_qs, 2}, {u"&Don't ask me again"_qs, 3}}},
        {u"Feedback about \"Calderin M4A\""_qs,
            u"Please rate it on the app store or send us a quick e-mail<br>and tell us what you "
            u"didn't enjoy. <br>Your feedback will help us improve this app."_qs,
            {{u"&Rate"_qs, 0}, {u"&Write email"_qs, 1}, {u"&Later"_qs, 2},
                {u"&Don't ask me again"_qs, 3}}},
    };
    for (int n = 0; n < 3; ++n) {
        for (const auto &answer : rows[n].answers) {
            const auto pdlg = make(n);
            EXPECT_EQ(pdlg->state(), 4);
            EXPECT_EQ(pdlg->windowTitle(), rows[n].title);
            QString strBody;
            const auto labels = pdlg->findChildren<QLabel *>();
            for (const QLabel *plbl : labels) {
                strBody += plbl->text();
            }
            EXPECT_EQ(strBody, rows[n].body);
            User user(answer.first);
            EXPECT_EQ(pdlg->exec(), QDialog::Accepted);
            EXPECT_EQ(pdlg->state(), answer.second);
        }
    }
    EXPECT_TRUE(RateAppStoreDialog::wasAlreadyCalled());
}

TEST_F(Reminders, comeAtEveryTenthOccasion)
{
    User user(u"&Close"_qs);
    papp->callTellReminder(10);
    for (int nOccasion = 1; nOccasion <= 20; ++nOccasion) {
        EXPECT_EQ(occasions(), nOccasion);
        papp->slotCallRateReminderInternal();
        EXPECT_EQ(user.seen.size(), nOccasion / 10) << nOccasion;
    }
    papp->callJoinReminder(7);
    papp->slotCallRateReminderInternal();
    EXPECT_EQ(user.seen,
        (QStringList {u"QMWidgets::TellReminderDialog"_qs, u"QMWidgets::TellReminderDialog"_qs,
            u"QMWidgets::JoinReminderDialog"_qs}));
    EXPECT_TRUE(App::settingsValue(u"AutoReminder"_qs, true).toBool());

    for (const int nCount : {0, -3}) {
        papp->callTellReminder(nCount);
        papp->slotCallRateReminderInternal();
    }
    EXPECT_EQ(user.seen.size(), 3);
    App::setSettingsValue(u"AutoReminderCount"_qs, -2);
    papp->slotCallRateReminderInternal();
    EXPECT_EQ(occasions(), 1);
}

TEST_F(Reminders, endForGoodOnDemand)
{
    const Browser browser;
    const struct
    {
        QString button;
        bool goesOn;
        QString opened;
    } rows[] = {{u"&Later"_qs, true, QString()}, {u"&Don't ask me again"_qs, false, QString()},
        {u"&Rate It Now"_qs, false, u"https"_qs}};
    for (const auto &row : rows) {
        App::setSettingsValue(u"AutoReminder"_qs, true);
        User user(row.button);
        papp->slotImmediatelyRate();
        EXPECT_EQ(user.seen, QStringList {u"QMWidgets::RateAppStoreDialog"_qs});
        EXPECT_EQ(App::settingsValue(u"AutoReminder"_qs, true).toBool(), row.goesOn);
        EXPECT_EQ(browser.last.scheme(), row.opened);
    }
    // Declined: nothing comes any more, and nothing is counted.
    User user(u"&Close"_qs);
    papp->callTellReminder(1);
    papp->slotCallRateReminderInternal();
    EXPECT_TRUE(user.seen.isEmpty());
    EXPECT_EQ(occasions(), 1);
    // The rate dialog shows once per process by itself.
    App::setSettingsValue(u"AutoReminder"_qs, true);
    papp->callRateReminder(1);
    papp->slotCallRateReminderInternal();
    EXPECT_TRUE(user.seen.isEmpty());
    EXPECT_EQ(occasions(), 2);
}

TEST_F(Reminders, comeAfterTheDelayOfTheirSlot)
{
    User user(u"&Close"_qs);
    App::setRemiderDelay(1);
    papp->callTellReminder(1);
    papp->slotCallJoinReminder();
    EXPECT_TRUE(user.seen.isEmpty());
    EXPECT_TRUE(MediaMaker::waitFor([&user] { return !user.seen.isEmpty(); }));
    EXPECT_EQ(user.seen, QStringList {u"QMWidgets::JoinReminderDialog"_qs});
    App::setRemiderDelay(4000);
}

TEST_F(Reminders, drawTheirKindFromTheMask)
{
    const struct
    {
        int mask;
        QSet<int> kinds;
    } rows[] = {{1, {1}}, {2, {2}}, {4, {4}}, {3, {1, 2}}, {5, {1, 4}}, {6, {2, 4}}, {7, {1, 2, 4}},
        {15, {1, 2, 4}}, {8, {1}}, {16, {16}}};
    for (const auto &row : rows) {
        QSet<int> drawn;
        for (int i = 0; i < 300; ++i) {
            papp->callReminder(10, row.mask);
            drawn.insert(papp->reminderKind());
        }
        EXPECT_EQ(drawn, row.kinds) << row.mask;
    }
    App::setIndependent(true);
    papp->callReminder(10, 8);
    EXPECT_EQ(papp->reminderKind(), 2);
}

TEST_F(Reminders, keepTheQuotaOfReviewRequests)
{
    const struct
    {
        int count;
        int days;
        bool exceeded;
        int countAfter;
    } rows[] = {{0, 0, false, 0}, {2, 365, false, 2}, {2, 366, true, 2}, {2, 367, false, 0},
        {3, 0, true, 3}, {3, 100, true, 3}, {3, 366, true, 3}, {3, 367, false, 0}};
    for (const auto &row : rows) {
        App::setSettingsValue(u"RequestedReviewsCount"_qs, row.count);
        App::setSettingsValue(u"RequestedReviewsCalls"_qs, 9);
        App::setSettingsValue(u"RequestedReviewsLastDate"_qs, u"2019-03-01"_qs);
        today = QDate(2019, 3, 1).addDays(row.days);
        EXPECT_EQ(Os::isRequestedReviewsQuotaExceeded(), row.exceeded) << row.days;
        EXPECT_EQ(Os::requestedReviewsCount(), row.countAfter);
        const bool bAnew = row.days == 367;
        EXPECT_EQ(Os::requestedReviewsCalls(), bAnew ? 0 : 9);
        EXPECT_EQ(Os::requestedReviewsLastDate(), bAnew ? today : QDate(2019, 3, 1));
    }
}

TEST_F(Reminders, requestReviewsAtEverySecondCall)
{
    // The dialog itself has been declined; the counts go on.
    App::setSettingsValue(u"AutoReminder"_qs, false);
    Os::requestReview(false);
    Os::requestReview(true); // the second in a process does nothing
    EXPECT_EQ(Os::requestedReviewsCount(), 1);
    EXPECT_EQ(Os::requestedReviewsCalls(), 1);
    QList<int> counts;
    for (int i = 0; i < 5; ++i) {
        Os::s_bReviewWasRequested = false;
        today = today.addDays(1);
        Os::requestReview(false);
        counts.append(Os::requestedReviewsCount());
    }
    EXPECT_EQ(counts, (QList<int> {1, 2, 2, 3, 3}));
    EXPECT_EQ(Os::requestedReviewsCalls(), 5);
    EXPECT_EQ(Os::requestedReviewsLastDate(), QDate(2020, 1, 5));
    EXPECT_EQ(Os::numRequestedReviewsAvalable(), 0);
}

TEST_F(Reminders, askTheSystemWhereItCanAsk)
{
    setPlatformVersion(16);
    User user(u"&Close"_qs);
    papp->callTellReminder(1);
    papp->slotCallRateReminderInternal();
    EXPECT_TRUE(user.seen.isEmpty());
    EXPECT_TRUE(Os::s_bReviewWasRequested);
    EXPECT_EQ(Os::requestedReviewsCount(), 1);
    EXPECT_EQ(occasions(), 2);
}

QUrl opened(QWidget *pwgt, const QString &strButton)
{
    const Browser browser;
    pwgt->findChild<QPushButton *>(strButton)->click();
    return browser.last;
}

TEST_F(Reminders, shareThroughTheNetworks)
{
    App::setFaceBookShareLink(u"https://f.example/s?u=https://x/?a=1&b=2"_qs);
    App::setVKontakteShareLink(u"https://v.example/"_qs);
    App::setShareMessage(u"Listen & enjoy"_qs);
    TellDialog dlg;
    dlg.show();
    EXPECT_EQ(dlg.windowTitle(), u"Share Calderin M4A"_qs);
    EXPECT_EQ(opened(&dlg, u"FaceBookShareButton"_qs), QUrl(App::facebookShareLink()));
    EXPECT_EQ(opened(&dlg, u"VKontakteShareButton"_qs).host(), u"v.example"_qs);
    const QUrl mail = opened(&dlg, u"EmailShareButton"_qs);
    EXPECT_EQ(mail, QUrl(App::mailToFriend(u"Listen & enjoy"_qs, App::theApp()->sharedPage())));
    EXPECT_EQ(mail.scheme(), u"mailto"_qs);

    App::setIndependent(true);
    const QUrl share = opened(&dlg, u"FaceBookShareButton"_qs);
    EXPECT_EQ(share.path(), u"/social/share.php"_qs);
    EXPECT_EQ(
        QUrlQuery(share).queryItemValue(u"link"_qs, QUrl::FullyDecoded), App::facebookShareLink());
    EXPECT_EQ(opened(&dlg, u"VKontakteShareButton"_qs).host(), u"v.example"_qs);

    // A network without an address to share has no button.
    App::setVKontakteShareLink(QString());
    TellReminderDialog reminder;
    reminder.show();
    EXPECT_FALSE(reminder.findChild<QPushButton *>(u"VKontakteShareButton"_qs)->isVisible());
    EXPECT_EQ(reminder.findChild<QLabel *>()->text(),
        u"If you like the app Calderin M4A,<br>Share it with Your Friends.<br>Thanks!"_qs);
}

TEST_F(Reminders, joinTheNetworks)
{
    for (const QString &strLanguage : {u"en"_qs, u"ru"_qs}) {
        App::setCurrentLanguage(strLanguage);
        JoinDialog dlg;
        dlg.show();
        EXPECT_EQ(dlg.findChild<QPushButton *>(u"VKontakteJoinButton"_qs)->isVisible(),
            strLanguage == u"ru"_qs);
        EXPECT_FALSE(dlg.findChild<QPushButton *>(u"EmailJoinButton"_qs)->isVisible());
        EXPECT_EQ(opened(&dlg, u"YouTubeJoinButton"_qs).query(), u"sub_confirmation=1"_qs);
    }
    App::setCurrentLanguage(u"en"_qs);
    App::setIndependent(true);
    JoinWidget wgt;
    User user(u"Ok"_qs);
    EXPECT_EQ(opened(&wgt, u"YouTubeJoinButton"_qs),
        QUrl(JoinWidget::joinPage(MakerHosts::youtubePage() + u"?sub_confirmation=1"_qs)));
    const QUrl url = opened(&wgt, u"FaceBookJoinButton"_qs);
    EXPECT_EQ(user.seen, QStringList {u"QMWidgets::MMessageBox"_qs});
    EXPECT_EQ(url.path(), u"/social/join.php"_qs);
    EXPECT_EQ(opened(&wgt, u"VKontakteJoinButton"_qs), QUrl(MakerHosts::vkontaktePage()));
}

}
