#include "Label.h"
#include "Literals.h"
#include "MediaMaker.h"
#include "RoundProgress.h"
#include "SimpleProgress.h"

#include <cmath>
#include <gtest/gtest.h>
#include <QTimer>

using namespace QMWidgets;

namespace {

QImage picture(QWidget &wgt)
{
    return wgt.grab().toImage();
}

bool isGreen(const QColor &color)
{
    return color.green() > color.red() + 60 && color.green() > color.blue() + 60;
}

TEST(SimpleProgress, fillsThePartOfItsValue)
{
    SimpleProgress wgt;
    wgt.resize(400, 20);
    for (const int n : {-5, 0, 1, 50, 99, 100, 250}) {
        wgt.setValue(n);
        const QImage image = picture(wgt);
        int nGreen = 0;
        for (int x = 0; x < 400; ++x) {
            nGreen += isGreen(image.pixelColor(x, 3)) ? 1 : 0;
        }
        EXPECT_EQ(nGreen, 4 * qBound(0, n, 100)) << n;
    }
    wgt.setValue(50);
    // The middle is brighter than the edges.
    EXPECT_NEAR(picture(wgt).pixelColor(10, 10).green(), 230, 6);
    EXPECT_NEAR(picture(wgt).pixelColor(390, 0).red(), 100, 4);
    wgt.setLayoutDirection(Qt::RightToLeft);
    EXPECT_TRUE(isGreen(picture(wgt).pixelColor(390, 3)));
    EXPECT_FALSE(isGreen(picture(wgt).pixelColor(10, 3)));
}

TEST(SimpleProgress, movesItsStripesWhileItIsZero)
{
    SimpleProgress wgt;
    wgt.resize(60, 20);
    const auto *ptimer = wgt.findChild<QTimer *>();
    EXPECT_TRUE(ptimer->isActive());
    EXPECT_EQ(ptimer->interval(), 100);

    const auto tick = [&wgt] { QMetaObject::invokeMethod(wgt.findChild<QTimer *>(), "timeout"); };
    const QImage first = picture(wgt);
    tick();
    EXPECT_NE(picture(wgt), first);
    // 60 / 20 steps on it begins anew.
    tick();
    tick();
    EXPECT_NE(picture(wgt), first);
    tick();
    EXPECT_EQ(picture(wgt), first);

    wgt.setValue(50);
    const QImage half = picture(wgt);
    EXPECT_TRUE(MediaMaker::waitFor([ptimer] { return !ptimer->isActive(); }, 2000));
    EXPECT_EQ(picture(wgt), half);
    wgt.setValue(0);
    wgt.setValue(0);
    EXPECT_TRUE(ptimer->isActive());
    EXPECT_EQ(wgt.findChildren<QTimer *>().size(), 1);
}

TEST(SimpleProgress, tellsItsStateToAScreenReader)
{
    SimpleProgress wgt;
    wgt.setText(u"a & b.flac"_qs);
    wgt.setValue(7);
    EXPECT_EQ(wgt.accessibleName(), u"a & b.flac"_qs);
    EXPECT_EQ(wgt.accessibleDescription(), u"7 %"_qs);
    const QImage image = picture(wgt);
    wgt.setText(QString(5000, u'W'));
    EXPECT_NE(picture(wgt), image);
}

TEST(RoundProgress, turnsClockwiseFromTheTop)
{
    RoundProgress wgt;
    wgt.resize(300, 200);
    const double dRing = 84.0;
    const struct
    {
        int value;
        bool quarters[4]; // the middle of each quarter, clockwise from the top
    } rows[] = {{0, {false, false, false, false}}, {25, {true, false, false, false}},
        {50, {true, true, false, false}}, {75, {true, true, true, false}},
        {100, {true, true, true, true}}, {400, {true, true, true, true}}};
    for (const auto &row : rows) {
        wgt.setValue(row.value);
        const QImage image = picture(wgt);
        for (int i = 0; i < 4; ++i) {
            const double dAngle = (i + 0.5) * 1.5707963;
            const QPoint pt(
                qRound(150 + dRing * std::sin(dAngle)), qRound(100 - dRing * std::cos(dAngle)));
            EXPECT_EQ(isGreen(image.pixelColor(pt)), row.quarters[i]) << row.value << " " << i;
        }
    }
    wgt.resize(1, 1);
    picture(wgt);
}

TEST(Label, scalesItsPictureIntoOrOverItself)
{
    QPixmap pixmap(100, 100);
    pixmap.fill(Qt::red);
    Label label;
    label.setStyleSheet(u"background: white;"_qs);
    label.resize(200, 100);
    label.setRetinaPixmap(pixmap);
    EXPECT_EQ(picture(label).pixelColor(20, 50), QColor(Qt::white));
    EXPECT_EQ(picture(label).pixelColor(100, 50), QColor(Qt::red));
    label.setMode(Label::Mode::KeepAspectRatioByExpanding);
    EXPECT_EQ(picture(label).pixelColor(20, 50), QColor(Qt::red));
    label.setOpacity(0.5);
    EXPECT_NEAR(picture(label).pixelColor(100, 50).green(), 128, 2);
    label.setRetinaPixmap(QPixmap());
    EXPECT_EQ(picture(label).pixelColor(100, 50), QColor(Qt::white));
}

}
