#include "FrameCount.h"

#include "Literals.h"
#include <gtest/gtest.h>

using MTools::FrameCount;

namespace {

struct TextCase
{
    long long count;
    float fps;
    const char *text;
};

}

TEST(FrameCount, TextsOfCounts)
{
    const TextCase cases[] = {
        {1799, 29.97f, "00;00;59;29"},
        {1800, 29.97f, "00;01;00;02"},
        {17981, 29.97f, "00;09;59;29"},
        {17982, 29.97f, "00;10;00;00"},
        {1440, 23.98f, "00;01;00;02"},
        {14382, 23.98f, "00;10;00;00"},
        {2589408, 29.97f, "00;00;00;00"},
        {2071007, 23.98f, "23;59;59;23"},
        {-1, 30.0f, "23:59:59:29"},
        {-2160001, 25.0f, "23:59:59:24"},
        {2160000, 25.0f, "00:00:00:00"},
        {2160000LL * 1000000 + 25, 25.0f, "00:00:01:00"},
        {100, 0.0f, ""},
        {100, 0.5f, "00:00:00:00"},
    };
    for (const TextCase &c : cases) {
        EXPECT_EQ(FrameCount(c.count, c.fps).timecodeFromFrameCount(), QLatin1String(c.text))
            << c.count << " at " << c.fps;
    }
    EXPECT_EQ(FrameCount(2160000, 25.0f).timecodeFromFrameCount(true), u"24:00:00:00"_qs);
    EXPECT_EQ(FrameCount(4320000, 25.0f).timecodeFromFrameCount(true), u"24:00:00:00"_qs);
}

TEST(FrameCount, EveryCountOfADropDaySurvivesItsText)
{
    for (const float fps : {29.97f, 23.98f, 30.0f, 25.0f, 24.0f}) {
        for (long long count = 0; count < 2000000; count += 37) {
            const FrameCount position(count, fps);
            ASSERT_EQ(position.frameCountFromTimecode(position.timecodeFromFrameCount()), count)
                << fps;
        }
    }
    EXPECT_EQ(
        FrameCount(0, 25.0f).frameCountFromTimecode(u"00:00:01:0"_qs), FrameCount::unknownCount);
    EXPECT_EQ(FrameCount(0, 0.0f).frameCountFromTimecode(1, 2, 3, 4), FrameCount::unknownCount);
}

TEST(FrameCount, PulldownFollowsItsTables)
{
    int field = 7;
    const FrameCount film(0, 24.0f);
    EXPECT_EQ(film.frameCountFromTimecode(0, 0, 1, 22, true, 1, &field), 24 + 17);
    EXPECT_EQ(field, 1);
    // Out of the tables: the nearest entry, never beyond.
    EXPECT_EQ(film.frameCountFromTimecode(0, 0, 0, 99, true, 9), 22);
    EXPECT_EQ(film.frameCountFromTimecode(0, 0, 0, -5, true, -1), 0);

    int hours = 0, minutes = 0, seconds = 0, frames = 0;
    FrameCount(23, 24.0f).timecodeFromFrameCount(
        &hours, &minutes, &seconds, &frames, false, 0, true, 4);
    EXPECT_EQ(frames, -30) << "the frame after the last one carries a second";
    EXPECT_EQ(seconds, 1);
    FrameCount(0, 24.0f).timecodeFromFrameCount(
        &hours, &minutes, &seconds, &frames, false, -1, true, 1);
    EXPECT_EQ(
        (std::vector<int> {hours, minutes, seconds, frames}), (std::vector<int> {23, 59, 59, 29}));
    FrameCount(5, 24.0f).timecodeFromFrameCount(
        &hours, &minutes, &seconds, &frames, false, 0, true, 5);
    EXPECT_EQ(frames, 5) << "an unknown phase leaves the result";
}

TEST(FrameCount, PackedForm)
{
    FrameCount position(FrameCount(0, 25.0f).frameCountFromTimecode(12, 34, 56, 19), 25.0f);
    EXPECT_EQ(position.smpteTimecode(), 0x12345619U);
    position.setFrameCount(25);
    EXPECT_EQ(position.smpteTimecode(), 0x00000100U) << "a new count has a new packed form";

    FrameCount drop;
    drop.setSmpteTimecode(0x00010042U, 29.97f);
    EXPECT_EQ(drop.frame(), 1800);
    drop.setSmpteTimecode(0x00010002U, 29.97f);
    EXPECT_EQ(drop.frame(), 1802);
    EXPECT_EQ(drop.fps(), 30.0f) << "without the flag it is no drop rate";
    drop.setSmpteTimecode(0x00010002U, 50.0f);
    EXPECT_EQ(drop.frame(), FrameCount::unknownCount);
    EXPECT_EQ(drop.smpteTimecode(), 0x00010002U);
    EXPECT_EQ(FrameCount(25.0f, 0x01000000U).frame(), 90000);
}

TEST(FrameCount, RatesAndUnknownCounts)
{
    FrameCount position(100, 25.0f);
    EXPECT_EQ(position.convertFrame(30.0f), 120);
    position.updateFps(-50.0f);
    EXPECT_EQ(position.frame(), 200);
    EXPECT_EQ(position.convertFrame(25.0f), 100) << "a negative rate counts as its magnitude";
    EXPECT_EQ(FrameCount(100, 0.0f).convertFrame(25.0f), FrameCount::unknownCount);
    EXPECT_EQ(FrameCount(1LL << 62, 1.0f).convertFrame(1e30f), FrameCount::unknownCount);

    FrameCount unset(100, 25.0f);
    unset.unsetFrameCount();
    EXPECT_EQ(unset.frame(), -1);
    EXPECT_FALSE(unset == unset);
    EXPECT_FALSE(unset < position || unset > position);
    EXPECT_EQ(unset.smpteTimecode(), 0U);
}

TEST(FrameCount, SeparatorsShowTheRate)
{
    const auto text = [](bool drop, float fps, bool mark) {
        return FrameCount::timecodeToString(1, 2, 3, 4, drop, fps, mark);
    };
    EXPECT_EQ(text(true, 29.97f, true), u"01;02;03;04"_qs);
    EXPECT_EQ(text(false, 24.0f, true), u"01:02:03+04"_qs);
    EXPECT_EQ(text(false, 30.0f, true), u"01:02:03:04"_qs);
    EXPECT_EQ(text(false, 29.97f, true), u"01:02:03"_qs);
    EXPECT_EQ(text(false, 29.97f, false), u"01:02:03:04"_qs);
}
