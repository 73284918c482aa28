#include "App.h"
#include "HelpDialog.h"
#include "HelpDisplay.h"
#include "HelpViewArea.h"
#include "Literals.h"
#include "MakerHosts.h"
#include "MediaMaker.h"

#include <gtest/gtest.h>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

using namespace QMWidgets;

namespace {

QPushButton *button(const QWidget &wgt, const QString &strText)
{
    const auto buttons = wgt.findChildren<QPushButton *>();
    for (QPushButton *pcmd : buttons) {
        if (pcmd->text() == strText) {
            return pcmd;
        }
    }
    return nullptr;
}

void timeOut(const QWidget &wgt)
{
    QMetaObject::invokeMethod(wgt.findChild<QTimer *>(), "timeout");
}

TEST(HelpViewArea, changesItsSlidesInACircle)
{
    HelpViewArea area;
    area.slotStartSlideShow();
    area.slotShowNextSlide();
    const auto *ptimer = area.findChild<QTimer *>();
    EXPECT_FALSE(ptimer->isActive());
    EXPECT_TRUE(area.currentSlide().isEmpty());

    for (const QString &str : {u"a"_qs, u"b"_qs, u"c"_qs}) {
        area.addSlide(str);
    }
    area.slotStartSlideShow();
    EXPECT_EQ(ptimer->interval(), 5000);
    QString strShown = area.currentSlide();
    for (int i = 0; i < 4; ++i) {
        timeOut(area);
        strShown += area.currentSlide();
    }
    EXPECT_EQ(strShown, u"abcab"_qs);

    button(area, u"3"_qs)->click();
    EXPECT_EQ(area.currentSlide(), u"c"_qs);
    EXPECT_FALSE(ptimer->isActive());
    const auto *pcmd = area.findChild<QPushButton *>(u"HelpSlideButton"_qs);
    EXPECT_EQ(pcmd->size(), QSize(18, 18));
    EXPECT_EQ(pcmd->accessibleName(), u"Slide 1"_qs);
}

TEST(HelpDialog, showsUntilANumberIsClickedAndRestartsFromThere)
{
    HelpDialog dlg;
    for (const QString &str : {u"a"_qs, u"b"_qs, u"c"_qs}) {
        dlg.addSlide(str);
    }
    const auto *parea = dlg.findChild<HelpViewArea *>();
    const auto *ptimer = dlg.findChild<QTimer *>();
    EXPECT_EQ(dlg.windowTitle(), u"Calderin M4A Introduction"_qs);
    dlg.show();
    EXPECT_TRUE(ptimer->isActive());
    button(dlg, u"2"_qs)->click();
    EXPECT_FALSE(ptimer->isActive());
    button(dlg, u"&Close"_qs)->click();
    EXPECT_FALSE(dlg.isVisible());
    dlg.show();
    EXPECT_EQ(parea->currentSlide(), u"b"_qs);
    EXPECT_TRUE(ptimer->isActive());
    timeOut(dlg);
    EXPECT_EQ(parea->currentSlide(), u"c"_qs);
    dlg.hide();
    EXPECT_FALSE(ptimer->isActive());
}

TEST(HelpDialog, isSkippedForGoodOnDemand)
{
    App::setSettingsValue(u"NeverShowItAgain"_qs, false);
    HelpDialog plain;
    plain.noNeverShowButton();
    plain.show();
    EXPECT_FALSE(button(plain, u"&Always skip intro"_qs)->isVisible());

    HelpDialog dlg;
    dlg.show();
    QPushButton *pcmdSkip = button(dlg, u"&Always skip intro"_qs);
    EXPECT_TRUE(pcmdSkip->isVisible());
    EXPECT_TRUE(HelpDialog::isShowOnStartAvailable());
    pcmdSkip->click();
    EXPECT_FALSE(dlg.isVisible());
    EXPECT_FALSE(HelpDialog::isShowOnStartAvailable());
    dlg.show();
    EXPECT_FALSE(pcmdSkip->isVisible());
    App::setSettingsValue(u"NeverShowItAgain"_qs, false);
}

TEST(HelpDialog, offersVideos)
{
    const struct
    {
        QString link;
        bool kids;
        bool visible;
    } rows[] = {{QString(), false, false}, {u"https://x/"_qs, true, false},
        {u"https://x/"_qs, false, true}};
    for (const auto &row : rows) {
        App::setKidsMode(row.kids);
        HelpDialog dlg;
        dlg.setVideoLink(row.link);
        dlg.show();
        EXPECT_EQ(dlg.findChild<QPushButton *>(u"VideoButton"_qs)->isVisible(), row.visible);
    }
    App::setKidsMode(false);

    for (const QString &str : {u"de"_qs, u"fr"_qs, u"en"_qs, u"ja"_qs}) {
        App::setCurrentLanguage(str);
        const bool bOwn = str == u"de"_qs || str == u"fr"_qs;
        const QString strPage
            = MakerHosts::videoServer(bOwn ? str : u"org"_qs) + u"/video.php?view=abc"_qs;
        EXPECT_EQ(HelpDialog::videoPage(MakerHosts::videoShortPrefix() + u"abc"_qs), strPage);
        EXPECT_EQ(HelpDialog::videoPage(MakerHosts::videoWatchPrefix() + u"abc"_qs), strPage);
    }
    App::setCurrentLanguage(u"en"_qs);
}

TEST(HelpDisplay, scalesItsSlideIntoTheFrame)
{
    const QTemporaryDir dir;
    const QString strRed = dir.filePath(u"red.png"_qs);
    QImage image(100, 100, QImage::Format_RGB32);
    image.fill(Qt::red);
    ASSERT_TRUE(image.save(strRed));
    HelpDisplay display;
    display.resize(500, 300);
    const auto colorAt
        = [&display](int x, int y) { return display.grab().toImage().pixelColor(x, y); };
    display.setSlide(strRed);
    EXPECT_EQ(colorAt(250, 2), QColor(Qt::red));
    EXPECT_EQ(colorAt(102, 150), QColor(Qt::red));
    EXPECT_EQ(colorAt(97, 150), display.palette().dark().color());
    display.setSlide(dir.filePath(u"none.png"_qs));
    EXPECT_EQ(colorAt(250, 150), display.palette().dark().color());
}

}
