#include "Literals.h"
#include "QByteArrayExtensions.h"
#include "TimeInfo.h"
#include "ToolsCommon.h"

#include <gtest/gtest.h>
#include <QRegularExpression>

TEST(Tools, NormalizePath)
{
    const char *const cases[][2] = {{"/m/album", "/m/album"}, {"/m/album/", "/m/album"},
        {"//m///album//", "/m/album"}, {"/m/./album/.", "/m/album"}, {"/m/././a", "/m/a"},
        {"/m/.hidden/a.", "/m/.hidden/a."}, {"/", ""}, {"", ""}, {"a/b", "a/b"}};
    for (const auto &c : cases) {
        EXPECT_EQ(MTools::ToolsCommon::normalizePath(QLatin1String(c[0])), QLatin1String(c[1]))
            << c[0];
    }
}

TEST(Tools, Times)
{
    using MTools::TimeInfo;
    EXPECT_EQ(TimeInfo::msecsToTime(3723004), QTime(1, 2, 3, 4));
    EXPECT_EQ(TimeInfo::msecsToTime(-5), QTime(0, 0));
    EXPECT_TRUE(TimeInfo::msecsToTime(90LL * 3600 * 1000).isValid());
    const QRegularExpression stamp(u"^\\d{4}-\\d\\d-\\d\\d_\\d\\d:\\d\\d:\\d\\d:\\d{3}$"_qs);
    EXPECT_TRUE(stamp.match(MTools::createTimeStamp()).hasMatch());
}

TEST(Tools, CountedFieldsNeedNoEnd)
{
    const char field[4] = {'a', 'b', 'c', 'd'};
    EXPECT_EQ(MTools::QByteArrayExtensions::arrToString(field, 4), u"abcd"_qs);
    EXPECT_EQ(MTools::QByteArrayExtensions::arrToString("ab\0cd", 5), u"ab"_qs);
    EXPECT_TRUE(MTools::QByteArrayExtensions::arrToString(nullptr, 5).isEmpty());
}
