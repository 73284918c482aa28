#include "Util.h"

#include <cmath>
#include <cstring>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <vector>

using QMMultiMedia::Util;

namespace {

using ToInt = int (*)(const float *, int *, int);

struct Width
{
    const char *name;
    ToInt convert;
    bool isSigned;
    double scale;
    double upper;
    double lower;
};

const Width widths[] = {
    {"8", &Util::convertFloatTo8, true, 128, 127, -127},
    {"16", &Util::convertFloatTo16, true, 32768, 32767, -32767},
    {"24", &Util::convertFloatTo24, true, 8388608, 8388607, -8388607},
    {"32", &Util::convertFloatTo32, true, 2147483648.0, 2147483647.0, -2147483648.0},
    {"8U", &Util::convertFloatTo8U, false, 128, 255, 0},
    {"16U", &Util::convertFloatTo16U, false, 32768, 65535, 0},
    {"24U", &Util::convertFloatTo24U, false, 8388608, 16777215, 0},
};

/// The rule itself, one value at a time.
int expected(const Width &width, float value)
{
    const double scaled = width.isSigned
        ? static_cast<double>(value * static_cast<float>(width.scale))
        : (value + 1.0) * width.scale;
    if (scaled > width.upper) {
        return static_cast<int>(width.upper);
    }
    return static_cast<int>(scaled < width.lower ? width.lower : scaled);
}

std::vector<float> samples()
{
    constexpr float infinity = std::numeric_limits<float>::infinity();
    std::vector<float> values {0.0f, -0.0f, 1.0f, -1.0f, 1.5f, -1.5f, 0.99999f, -0.99999f, 0.5f,
        -0.5f, 1e-9f, -1e-9f, std::nextafter(1.0f, 0.0f), std::nextafter(-1.0f, 0.0f),
        std::nextafter(1.0f, 2.0f), infinity, -infinity, 1e30f, -1e30f, 32767.5f / 32768.0f};
    std::mt19937 random(7);
    std::uniform_real_distribution<float> anywhere(-1.1f, 1.1f);
    while (values.size() < 1003) {
        values.push_back(anywhere(random));
    }
    return values;
}

}

TEST(Util, FloatToIntLimitsAndCutsInPlaceToo)
{
    const std::vector<float> values = samples();
    const auto n = static_cast<int>(values.size());
    for (const Width &width : widths) {
        std::vector<int> out(values.size());
        width.convert(values.data(), out.data(), n);
        for (std::size_t i = 0; i < values.size(); ++i) {
            ASSERT_EQ(out[i], expected(width, values[i])) << width.name << " of " << values[i];
        }
        std::vector<int> same(values.size());
        std::memcpy(same.data(), values.data(), values.size() * sizeof(float));
        width.convert(reinterpret_cast<const float *>(same.data()), same.data(), n);
        ASSERT_EQ(same, out) << width.name << " in place";
        const float notANumber = std::nanf("");
        int result = 1;
        width.convert(&notANumber, &result, 1);
        ASSERT_EQ(result, static_cast<int>(width.lower)) << width.name;
    }
    std::vector<short> shorts(values.size());
    Util::convertFloatToShort16(values.data(), shorts.data(), n);
    for (std::size_t i = 0; i < values.size(); ++i) {
        ASSERT_EQ(shorts[i], expected(widths[1], values[i]));
    }
}

TEST(Util, IntsAndBytesComeBack)
{
    std::mt19937 random(11);
    std::vector<int> values(1001);
    for (int &value : values) {
        value = static_cast<int>(random());
    }
    const auto n = static_cast<int>(values.size());
    std::vector<char> raw(values.size() * 4);
    std::vector<int> back(values.size());
    const auto lowBytes = [&values](unsigned int mask, std::size_t i) {
        return static_cast<int>(static_cast<unsigned int>(values[i]) & mask);
    };
    // Bytes at the end that don't make a sample are written too.
    for (const int cut : {0, 1, 2}) {
        std::vector<char> guarded(values.size() * 3 + 8, 'x');
        Util::convert24ToRaw(values.data(), guarded.data(), 3 * n - cut);
        Util::convertRawTo24U(guarded.data(), back.data(), n - 1, true);
        for (std::size_t i = 0; i + 1 < values.size(); ++i) {
            ASSERT_EQ(back[i], lowBytes(0xFFFFFF, i));
        }
        ASSERT_EQ(guarded[static_cast<std::size_t>(3 * n - cut)], 'x');
        ASSERT_EQ(guarded[static_cast<std::size_t>(3 * n - 3)], static_cast<char>(values.back()));
    }
    for (const bool little : {true, false}) {
        Util::convert16ToRaw(values.data(), raw.data(), 2 * n, little);
        EXPECT_EQ(raw[little ? 0 : 1], static_cast<char>(values[0]));
        Util::convertRawTo16U(raw.data(), back.data(), n, little);
        for (std::size_t i = 0; i < values.size(); ++i) {
            ASSERT_EQ(back[i], lowBytes(0xFFFF, i));
        }
        Util::convert32ToRaw(values.data(), raw.data(), 4 * n, little);
        EXPECT_EQ(raw[little ? 0 : 3], static_cast<char>(values[0]));
        Util::convertRawTo32U(raw.data(), back.data(), n, little);
        ASSERT_EQ(back, values);
    }
    Util::convert8UToRaw(values.data(), raw.data(), n);
    Util::convertRawTo8U(raw.data(), back.data(), n);
    for (std::size_t i = 0; i < values.size(); ++i) {
        ASSERT_EQ(back[i], lowBytes(0xFF, i));
    }
}

TEST(Util, ToFloatIgnoresWhatLiesAboveTheWidth)
{
    const int values[] = {0x12345678, -1, 0x7F80FF01, 0x00800000, 0x00008000, 0x00000080, 0};
    constexpr int n = 7;
    using ToFloat = int (*)(const int *, float *, int);
    const struct
    {
        ToFloat convert;
        int shift;
        bool flip;
    } cases[] = {{&Util::convert8ToFloat, 24, false}, {&Util::convert16ToFloat, 16, false},
        {&Util::convert24ToFloat, 8, false}, {&Util::convert32ToFloat, 0, false},
        {&Util::convert8UToFloat, 24, true}, {&Util::convert16UToFloat, 16, true},
        {&Util::convert24UToFloat, 8, true}, {&Util::convert32UToFloat, 0, true}};
    for (const auto &c : cases) {
        float out[n];
        c.convert(values, out, n);
        for (int i = 0; i < n; ++i) {
            unsigned int word = static_cast<unsigned int>(values[i]) << c.shift;
            word ^= c.flip ? 0x80000000U : 0U;
            ASSERT_EQ(out[i], std::ldexp(static_cast<float>(static_cast<int>(word)), -31));
        }
    }
}

TEST(Util, RawToFloat)
{
    const char bytes[] = {'\x01', '\x80', '\xFF', '\x7F', '\x00', '\x80', '\x34', '\x12', '\x56',
        '\xC0', '\x00', '\x40'};
    float out[6];
    Util::convertRaw16ToFloat(bytes, out, 6, true);
    EXPECT_EQ(out[0], -32767.0f / 32768.0f);
    EXPECT_EQ(out[1], 32767.0f / 32768.0f);
    EXPECT_EQ(out[2], -1.0f);
    Util::convertRaw16ToFloat(bytes, out, 6, false);
    EXPECT_EQ(out[0], 384.0f / 32768.0f);
    Util::convertRaw24ToFloat(bytes, out, 4, true);
    EXPECT_EQ(out[0], -32767.0f / 8388608.0f);
    EXPECT_EQ(out[1], std::ldexp(static_cast<float>(0x80007F - 0x1000000), -23));
    Util::convertRaw24ToFloat(bytes, out, 4, false);
    EXPECT_EQ(out[0], std::ldexp(static_cast<float>(0x0180FF), -23));
    Util::convertRaw32ToFloat(bytes, out, 3, true);
    EXPECT_EQ(out[0], static_cast<float>(0x7FFF8001) / 2147483648.0f);
    Util::convertRaw32ToFloat(bytes, out, 3, false);
    EXPECT_EQ(out[2], std::ldexp(static_cast<float>(0x56C00040), -31));
}

TEST(Util, IeeeExtended)
{
    const auto value = [](std::initializer_list<int> bytes) {
        std::vector<char> data(bytes.begin(), bytes.end());
        data.resize(10);
        return Util::convertFromIeeeExtended(data.data());
    };
    EXPECT_EQ(value({0x40, 0x0E, 0xAC, 0x44}), 44100.0);
    EXPECT_EQ(value({0x40, 0x0F, 0xBB, 0x80}), 96000.0);
    EXPECT_EQ(value({0xC0, 0x0E, 0xAC, 0x44}), -44100.0);
    EXPECT_EQ(value({0}), 0.0);
    EXPECT_TRUE(std::isinf(value({0x7F, 0xFF, 0x80})));
    EXPECT_EQ(value({0x40, 0x1E, 0x80, 0, 0, 0, 0x80}), 2147483648.5);
}
