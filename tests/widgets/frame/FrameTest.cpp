#include "../common/Browser.h"
#include "App.h"
#include "AppButton.h"
#include "AppCatalog.h"
#include "AppMenu.h"
#include "MediaMaker.h"
#include "MoreAppsButton.h"
#include "PromoAdsBar.h"
#include "PromoMainPage.h"
#include "PromoMenuBar.h"

#include <gtest/gtest.h>
#include <QBoxLayout>
#include <QLabel>
#include <QSet>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

using namespace QMWidgets;

namespace {

/// The texts of a menu's visible actions; "-" for a separator.
QStringList texts(const QList<QAction *> &lst)
{
    QStringList lstTexts;
    for (const QAction *pact : lst) {
        if (pact->isVisible()) {
            lstTexts.append(pact->isSeparator() ? u"-"_qs : pact->text());
        }
    }
    return lstTexts;
}

QAction *action(const QList<QAction *> &lst, const QString &strText)
{
    for (QAction *pact : lst) {
        if (pact->text() == strText) {
            return pact;
        }
    }
    return nullptr;
}

TEST(PromoMenuBar, hasItsButtonsInOrder)
{
    PromoMenuBar bar;
    bar.addCenterWidget(new QLabel(u"centre"_qs));
    bar.resize(700, 42);
    bar.show();
    const struct
    {
        QString name;
        QString toolTip;
    } rows[] = {{u"MoreButton"_qs, u"More"_qs}, {u"IntroButton"_qs, u"Introduction"_qs},
        {u"ShareButton"_qs, u"Share"_qs}, {u"JoinButton"_qs, u"Join Us"_qs},
        {u"MoreAppsButton"_qs, u"More Apps"_qs}, {u"RateButton"_qs, u"Rate App"_qs},
        {u"AppButton"_qs, u"App Menu"_qs}};
    int nRight = 4;
    for (const auto &row : rows) {
        auto *pcmd = bar.findChild<QPushButton *>(row.name);
        ASSERT_NE(pcmd, nullptr) << row.name.toStdString();
        EXPECT_EQ(pcmd->toolTip(), row.toolTip);
        EXPECT_EQ(pcmd->accessibleName(), row.toolTip);
        EXPECT_EQ(pcmd->size(), QSize(60, 32));
        EXPECT_TRUE(pcmd->isFlat() && (pcmd->focusPolicy() & Qt::TabFocus) != 0);
        EXPECT_GT(pcmd->x(), nRight);
        nRight = pcmd->geometry().right();
    }
    EXPECT_EQ(nRight, 700 - 5 - 1);
    const int nCenter = bar.findChild<QLabel *>()->x();
    EXPECT_TRUE(nCenter > 65 && nCenter < 700 - 5 - 360);

    bar.hideRateButton();
    EXPECT_FALSE(bar.findChild<QPushButton *>(u"RateButton"_qs)->isVisible());
    const auto *pmenu = bar.findChild<AppButton *>()->appMenu();
    EXPECT_TRUE(texts(pmenu->actions()).contains(u"Rate this App"_qs));
    bar.hideRateAction();
    bar.hideSupportPageAction();
    EXPECT_FALSE(texts(pmenu->actions()).contains(u"Rate this App"_qs));
    EXPECT_FALSE(texts(pmenu->actions()).contains(u"Support Page"_qs));
}

TEST(PromoMenuBar, fillsTheCatalogueOfEveryCategory)
{
    const Browser browser;
    const QStringList lstCategories {u"graphics"_qs, u"guitar"_qs, u"bass"_qs, u"ukulele"_qs,
        u"mandolin"_qs, u"banjo"_qs, u"balalaika"_qs, u"piano"_qs, u"violin"_qs, u"photo"_qs,
        u"developer"_qs, u"audio"_qs, u"music"_qs, u"no such"_qs};
    const QStringList lstClosing {u"-"_qs, u"-"_qs, u"More Apps"_qs, u"-"_qs};
    QSet<QString> shown;
    PromoMenuBar bar;
    for (const QString &strCategory : lstCategories) {
        bar.setupAppsMenu(strCategory);
        const QStringList lst = texts(bar.moreActions());
        EXPECT_EQ(lst.mid(lst.size() - 4), lstClosing) << strCategory.toStdString();
        EXPECT_EQ(lst.size() > 6, strCategory != u"no such"_qs) << strCategory.toStdString();
        for (const QString &str : lst) {
            EXPECT_FALSE(str.contains(u"Calderin M4A"_qs));
            shown.insert(str);
        }
    }
    for (const AppCatalogItem &item : appCatalog()) {
        EXPECT_EQ(shown.contains(catalogText(item)), item.strKey != u"calderinm4a"_qs)
            << item.strKey.toStdString();
    }

    bar.setupAppsMenu(u"audio"_qs);
    bar.moreActions().constFirst()->trigger();
    EXPECT_EQ(browser.last.scheme(), u"https"_qs);
    EXPECT_TRUE(browser.last.path().contains(findInAppCatalog(u"calderinwav"_qs)->strId));

    const int nActions = bar.moreActions().size();
    bar.addAppItem(u"nothing"_qs);
    bar.addMenuLink(QPixmap(), u"x"_qs, u"https://www.velmora.example/apps/nothing"_qs);
    EXPECT_EQ(bar.moreActions().size(), nActions);
    bar.addMenuAppLink(QPixmap(), u"Own"_qs, u"Calderin WAV"_qs, u"id900000101"_qs);
    ASSERT_EQ(bar.moreActions().size(), nActions + 1);
    bar.moreActions().constLast()->trigger();
    EXPECT_EQ(browser.count, 2);
}

TEST(MoreAppsButton, hasACatalogueOfItsOwn)
{
    const Browser browser;
    MoreAppsButton button;
    QAction own(u"own"_qs);
    button.addMenuAppLink(QPixmap(), u"A"_qs, u"Calderin WAV"_qs, u"id900000101"_qs);
    button.addMenuLink(QPixmap(), u"B"_qs, u"https://www.velmora.example/apps/nothing"_qs);
    button.addMenuSeparator();
    button.addMenuAction(&own);
    const QList<QAction *> lst = button.findChild<QMenu *>()->actions();
    EXPECT_EQ(texts(lst), (QStringList {u"A"_qs, u"-"_qs, u"own"_qs}));
    lst.constFirst()->trigger();
    EXPECT_EQ(browser.count, 1);
}

TEST(AppMenu, showsWhatSuitsTheBuild)
{
    const QStringList lstHead {u"Rate this App"_qs, u"Intro"_qs, u"Share"_qs, u"Join Us"_qs,
        u"More Apps"_qs, u"Contact Us"_qs, u"Support Page"_qs};
    const QStringList lstTail {u"About"_qs, u"-"_qs, u"Quit"_qs};
    for (const bool bIndependent : {false, true}) {
        for (const bool bPrivacy : {false, true}) {
            App::setIndependent(bIndependent);
            App::setPrivacyPolicyLink(bPrivacy ? u"https://p.velmora.example/"_qs : QString());
            QStringList lst = lstHead;
            if (bIndependent) {
                lst.append(u"Check Updates"_qs);
            }
            if (bPrivacy) {
                lst.append(u"Privacy Policy"_qs);
            }
            const AppMenu menu;
            EXPECT_EQ(texts(menu.actions()), lst + lstTail);
            if (bPrivacy) {
                const Browser browser;
                action(menu.actions(), u"Privacy Policy"_qs)->trigger();
                EXPECT_EQ(browser.last.host(), u"p.velmora.example"_qs);
            }
        }
    }
    App::setIndependent(false);
    App::setPrivacyPolicyLink(QString());
}

TEST(PromoMainPage, quitsOrTells)
{
    constexpr int byTimer = 7;
    for (const bool bSignal : {false, true}) {
        PromoMainPage page(nullptr, bSignal);
        QSignalSpy spy(&page, &PromoMainPage::quitApp);
        QTimer::singleShot(0, &page, [&page, bSignal] {
            action(page.findChild<AppMenu *>()->actions(), u"Quit"_qs)->trigger();
            if (bSignal) {
                QTimer::singleShot(50, &page, [] { QCoreApplication::exit(byTimer); });
            }
        });
        EXPECT_EQ(QCoreApplication::exec(), bSignal ? byTimer : 0);
        EXPECT_EQ(spy.count(), bSignal ? 1 : 0);
    }
}

TEST(PromoMenuBar, opensItsMenusByKey)
{
    PromoMenuBar bar;
    bar.setupAppsMenu(u"audio"_qs);
    bar.show();
    for (const QString &strName : {u"MoreButton"_qs, u"AppButton"_qs}) {
        QTest::keyClick(bar.findChild<QPushButton *>(strName), Qt::Key_Space);
        QWidget *pmenu = QApplication::activePopupWidget();
        ASSERT_NE(pmenu, nullptr) << strName.toStdString();
        EXPECT_EQ(pmenu->objectName() == u"CatalogMenu"_qs, strName == u"MoreButton"_qs);
        pmenu->close();
    }
}

TEST(PromoAdsBar, showsRandomEntriesOfTheCatalogue)
{
    PromoMainPage page;
    PromoMenuBar *pbar = page.promoMenuBar();
    pbar->setupAppsMenu(u"audio"_qs);
    PromoAdsBar *pads = page.promoAdsBar();
    EXPECT_EQ(page.promoAdsBar(), pads);
    for (const int nLimit : {1, 4, 0}) {
        pads->setItemsLimit(nLimit);
        QSet<QAction *> seen;
        for (int i = 0; i < 500; ++i) {
            pads->slotInsertAd();
            ASSERT_NE(pads->currentAction(), nullptr);
            seen.insert(pads->currentAction());
        }
        const QList<QAction *> lst = pbar->moreActions().mid(0, nLimit > 0 ? nLimit : -1);
        for (QAction *pact : lst) {
            EXPECT_EQ(seen.contains(pact), !pact->isSeparator());
            seen.remove(pact);
        }
        EXPECT_TRUE(seen.isEmpty());
    }
}

TEST(PromoAdsBar, opensAndHides)
{
    const Browser browser;
    PromoMainPage page;
    page.promoMenuBar()->addMenuAppLink(
        QPixmap(), u"R&&B && &Soul"_qs, u"Calderin WAV"_qs, u"id900000101"_qs);
    PromoAdsBar *pads = page.promoAdsBar();
    QSignalSpy clicked(pads, &PromoAdsBar::adClicked);
    QSignalSpy closed(pads, &PromoAdsBar::closeClicked);
    auto *pcmdClose = pads->findChild<QPushButton *>(u"AdsBarCloseButton"_qs);
    pads->setChangeInterval(1);
    pads->resize(300, 40);
    page.show();
    pads->show();
    EXPECT_EQ(pads->accessibleName(), u"R&B & Soul"_qs);

    QTest::mouseClick(pads, Qt::LeftButton, Qt::NoModifier, QPoint(30, 20));
    pcmdClose->click();
    EXPECT_TRUE(pads->isVisible());
    pads->setHideAfterClick(true);
    QTest::keyClick(pads, Qt::Key_Return);
    EXPECT_FALSE(pads->isVisible());
    pads->show();
    pads->setHideAfterCloseClick(true);
    pcmdClose->click();
    EXPECT_FALSE(pads->isVisible());
    EXPECT_FALSE(pads->findChild<QTimer *>()->isActive());
    EXPECT_EQ(clicked.count(), 2);
    EXPECT_EQ(closed.count(), 2);
    EXPECT_EQ(browser.count, 2);
}

}
