#include "MediaCommon.h"
#include "Literals.h"
#include "MAudioFormat.h"
#include "PlatformVersion.h"

#include <gtest/gtest.h>

using QMMultiMedia::MAudioFormat;
using QMMultiMedia::MediaCommon;

TEST(MediaCommon, KindsBySuffix)
{
    const struct
    {
        const char *path;
        int type;
    } cases[] = {{"/a/B.MP3", 0}, {"a.flac", 0}, {"a.m4b", 0}, {"x.awb", 0}, {"a.mp4", 1},
        {"a.M4V", 1}, {"a.ts", 1}, {"a.jpeg", 2}, {"a.xpm", 2}, {"a.docx", 4}, {"a.m4a.bak", 5},
        {"mp3", 5}, {"a.mp3/b", 5}, {"a.", 5}, {"", 5}, {".wav", 0}, {"a.opus", 5}};
    for (const auto &c : cases) {
        EXPECT_EQ(MediaCommon::mediaType(QLatin1String(c.path)), c.type) << c.path;
    }
    setPlatformVersion(14);
    EXPECT_EQ(MediaCommon::mediaType(u"a.flac"_qs), 5);
    setPlatformVersion(16);
}

TEST(MediaCommon, DurationsAreRoundedDown)
{
    EXPECT_EQ(MediaCommon::msecsToString(3661999), u"01:01:01"_qs);
    EXPECT_EQ(MediaCommon::msecsToString(360000000), u"100:00:00"_qs);
    EXPECT_EQ(MediaCommon::msecsToString(-1), u"00:00:00"_qs);
}

TEST(MAudioFormat, CodecsAndQualities)
{
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(MAudioFormat::codecIndex(MAudioFormat::codecName(i)), i);
    }
    EXPECT_TRUE(MAudioFormat::codecName(5).isEmpty());
    EXPECT_EQ(MAudioFormat::codecIndex(u"mp3"_qs), 0);
    const int scale[] = {0, 32, 64, 96, 127, 96};
    for (int i = 0; i < 6; ++i) {
        EXPECT_EQ(MAudioFormat::platformQuality(i), scale[i]);
    }
    const int classes[][2] = {{0, 0}, {22, 0}, {23, 2}, {84, 2}, {85, 4}, {127, 4}, {128, 0}};
    for (const auto &c : classes) {
        EXPECT_EQ(MAudioFormat::qualityClass(c[0]), c[1]) << c[0];
    }
}
