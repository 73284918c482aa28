#include "Util.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <QtEndian>
#include <type_traits>

namespace QMMultiMedia {

namespace {

constexpr float fullScale = 1.0f / 2147483648.0f;
constexpr unsigned int topBit = 0x80000000U;

// Limiting before the conversion keeps the loops free of branches, so that they vectorise; the
// comparisons are written so that a value that isn't a number takes the lower limit.
inline int limitedToInt(float scaled, float limit)
{
    const float high = scaled > -limit ? scaled : -limit;
    return static_cast<int>(high < limit ? high : limit);
}

inline void floatToSigned(const float *source, int *dest, int n, float scale, float limit)
{
    for (int i = n - 1; i >= 0; --i) {
        dest[i] = limitedToInt(source[i] * scale, limit);
    }
}

inline void floatToUnsigned(const float *source, int *dest, int n, double scale, double limit)
{
    for (int i = n - 1; i >= 0; --i) {
        const double scaled = (source[i] + 1.0) * scale;
        const double high = scaled > 0.0 ? scaled : 0.0;
        dest[i] = static_cast<int>(high < limit ? high : limit);
    }
}

template <unsigned int Shift, unsigned int Flip>
inline void wordToFloat(const int *source, float *dest, int n)
{
    for (int i = n - 1; i >= 0; --i) {
        const unsigned int word = (static_cast<unsigned int>(source[i]) << Shift) ^ Flip;
        dest[i] = static_cast<float>(static_cast<int>(word)) * fullScale;
    }
}

template <typename T, bool Swap> inline T loaded(const char *bytes)
{
    T value;
    std::memcpy(&value, bytes, sizeof value);
    return Swap ? qbswap(value) : value;
}

template <typename T, bool Swap>
inline void rawToFloat(const char *source, float *dest, int n, float scale)
{
    for (int i = 0; i < n; ++i) {
        const auto value = loaded<T, Swap>(source + static_cast<std::ptrdiff_t>(i) * sizeof(T));
        dest[i] = static_cast<float>(static_cast<std::make_signed_t<T>>(value)) * scale;
    }
}

template <typename T, bool Swap> inline void rawToWord(const char *source, int *dest, int n)
{
    for (int i = 0; i < n; ++i) {
        dest[i] = static_cast<int>(
            loaded<T, Swap>(source + static_cast<std::ptrdiff_t>(i) * sizeof(T)));
    }
}

template <typename T, bool Swap> inline void wordToRaw(const int *source, char *dest, int bytes)
{
    constexpr int width = sizeof(T);
    const int n = bytes / width;
    for (int i = 0; i < n; ++i) {
        const auto low = static_cast<T>(source[i]);
        const T value = Swap ? qbswap(low) : low;
        std::memcpy(dest + static_cast<std::ptrdiff_t>(i) * width, &value, width);
    }
    if (bytes % width > 0) {
        const auto low = static_cast<T>(source[n]);
        const T value = Swap ? qbswap(low) : low;
        std::memcpy(dest + static_cast<std::ptrdiff_t>(n) * width, &value,
            static_cast<std::size_t>(bytes % width));
    }
}

inline unsigned int byteAt(const char *bytes, std::ptrdiff_t index)
{
    return static_cast<unsigned char>(bytes[index]);
}

/// The three bytes of sample i in the top of a word.
template <bool LittleEndian> inline unsigned int word24(const char *source, int i)
{
    const std::ptrdiff_t at = static_cast<std::ptrdiff_t>(i) * 3;
    const unsigned int first = byteAt(source, at);
    const unsigned int middle = byteAt(source, at + 1);
    const unsigned int last = byteAt(source, at + 2);
    return LittleEndian ? last << 24U | middle << 16U | first << 8U
                        : first << 24U | middle << 16U | last << 8U;
}

/// Four samples out of three words, each in the top of its word, for every whole four of n; gives
/// how many samples that were.
template <typename Take> inline int takeFours24(const char *source, int n, Take take)
{
    int i = 0;
    for (; i + 4 <= n; i += 4, source += 12) {
        const auto first = loaded<std::uint32_t, false>(source);
        const auto middle = loaded<std::uint32_t, false>(source + 4);
        const auto last = loaded<std::uint32_t, false>(source + 8);
        take(i, first << 8U);
        take(i + 1, (first >> 24U) << 8U | middle << 16U);
        take(i + 2, (middle >> 16U) << 8U | last << 24U);
        take(i + 3, last & 0xFFFFFF00U);
    }
    return i;
}

template <bool LittleEndian, typename Take>
inline void takeAll24(const char *source, int n, Take take)
{
    for (int i = LittleEndian ? takeFours24(source, n, take) : 0; i < n; ++i) {
        take(i, word24<LittleEndian>(source, i));
    }
}

template <bool LittleEndian> inline void raw24ToFloat(const char *source, float *dest, int n)
{
    takeAll24<LittleEndian>(source, n, [dest](int i, std::uint32_t word) {
        dest[i] = static_cast<float>(static_cast<int>(word)) * fullScale;
    });
}

template <bool LittleEndian> inline void raw24ToWord(const char *source, int *dest, int n)
{
    takeAll24<LittleEndian>(
        source, n, [dest](int i, std::uint32_t word) { dest[i] = static_cast<int>(word >> 8U); });
}

}

int Util::convertFloatTo8(const float *source, int *dest, int n)
{
    floatToSigned(source, dest, n, 128.0f, 127.0f);
    return 0;
}

int Util::convertFloatTo16(const float *source, int *dest, int n)
{
    floatToSigned(source, dest, n, 32768.0f, 32767.0f);
    return 0;
}

int Util::convertFloatToShort16(const float *source, short *dest, int n)
{
    // Upwards: what is written is narrower than what is read.
    for (int i = 0; i < n; ++i) {
        dest[i] = static_cast<short>(limitedToInt(source[i] * 32768.0f, 32767.0f));
    }
    return 0;
}

int Util::convertFloatTo24(const float *source, int *dest, int n)
{
    floatToSigned(source, dest, n, 8388608.0f, 8388607.0f);
    return 0;
}

int Util::convertFloatTo32(const float *source, int *dest, int n)
{
    constexpr float limit = 2147483648.0f;
    constexpr float below = 2147483520.0f; // the largest float that an int holds
    for (int i = n - 1; i >= 0; --i) {
        const float scaled = source[i] * limit;
        const float high = scaled > -limit ? scaled : -limit;
        const int value = static_cast<int>(high < below ? high : below);
        dest[i] = scaled >= limit ? std::numeric_limits<int>::max() : value;
    }
    return 0;
}

int Util::convertFloatTo8U(const float *source, int *dest, int n)
{
    floatToUnsigned(source, dest, n, 128.0, 255.0);
    return 0;
}

int Util::convertFloatTo16U(const float *source, int *dest, int n)
{
    floatToUnsigned(source, dest, n, 32768.0, 65535.0);
    return 0;
}

int Util::convertFloatTo24U(const float *source, int *dest, int n)
{
    floatToUnsigned(source, dest, n, 8388608.0, 16777215.0);
    return 0;
}

int Util::convert8ToFloat(const int *source, float *dest, int n)
{
    wordToFloat<24, 0>(source, dest, n);
    return 0;
}

int Util::convert16ToFloat(const int *source, float *dest, int n)
{
    wordToFloat<16, 0>(source, dest, n);
    return 0;
}

int Util::convert24ToFloat(const int *source, float *dest, int n)
{
    wordToFloat<8, 0>(source, dest, n);
    return 0;
}

int Util::convert32ToFloat(const int *source, float *dest, int n)
{
    wordToFloat<0, 0>(source, dest, n);
    return 0;
}

int Util::convert8UToFloat(const int *source, float *dest, int n)
{
    wordToFloat<24, topBit>(source, dest, n);
    return 0;
}

int Util::convert16UToFloat(const int *source, float *dest, int n)
{
    wordToFloat<16, topBit>(source, dest, n);
    return 0;
}

int Util::convert24UToFloat(const int *source, float *dest, int n)
{
    wordToFloat<8, topBit>(source, dest, n);
    return 0;
}

int Util::convert32UToFloat(const int *source, float *dest, int n)
{
    wordToFloat<0, topBit>(source, dest, n);
    return 0;
}

int Util::convertRaw16ToFloat(const char *source, float *dest, int n, bool littleEndian)
{
    constexpr float scale = 1.0f / 32768.0f;
    if (littleEndian) {
        rawToFloat<std::uint16_t, false>(source, dest, n, scale);
    } else {
        rawToFloat<std::uint16_t, true>(source, dest, n, scale);
    }
    return 0;
}

int Util::convertRaw24ToFloat(const char *source, float *dest, int n, bool littleEndian)
{
    if (littleEndian) {
        raw24ToFloat<true>(source, dest, n);
    } else {
        raw24ToFloat<false>(source, dest, n);
    }
    return 0;
}

int Util::convertRaw32ToFloat(const char *source, float *dest, int n, bool littleEndian)
{
    if (littleEndian) {
        rawToFloat<std::uint32_t, false>(source, dest, n, fullScale);
    } else {
        rawToFloat<std::uint32_t, true>(source, dest, n, fullScale);
    }
    return 0;
}

int Util::convertRawTo8U(const char *source, int *dest, int n)
{
    rawToWord<std::uint8_t, false>(source, dest, n);
    return 0;
}

int Util::convertRawTo16U(const char *source, int *dest, int n, bool littleEndian)
{
    if (littleEndian) {
        rawToWord<std::uint16_t, false>(source, dest, n);
    } else {
        rawToWord<std::uint16_t, true>(source, dest, n);
    }
    return 0;
}

int Util::convertRawTo24U(const char *source, int *dest, int n, bool littleEndian)
{
    if (littleEndian) {
        raw24ToWord<true>(source, dest, n);
    } else {
        raw24ToWord<false>(source, dest, n);
    }
    return 0;
}

int Util::convertRawTo32U(const char *source, int *dest, int n, bool littleEndian)
{
    if (littleEndian) {
        rawToWord<std::uint32_t, false>(source, dest, n);
    } else {
        rawToWord<std::uint32_t, true>(source, dest, n);
    }
    return 0;
}

int Util::convert8UToRaw(const int *source, char *dest, int n)
{
    wordToRaw<std::uint8_t, false>(source, dest, n);
    return 0;
}

int Util::convert16ToRaw(const int *source, char *dest, int n, bool littleEndian)
{
    if (littleEndian) {
        wordToRaw<std::uint16_t, false>(source, dest, n);
    } else {
        wordToRaw<std::uint16_t, true>(source, dest, n);
    }
    return 0;
}

int Util::convert24ToRaw(const int *source, char *dest, int n)
{
    // Four bytes at a time, of which the next sample covers the last one again.
    const int whole = n >= 4 ? (n - 4) / 3 + 1 : 0;
    for (int i = 0; i < whole; ++i) {
        std::memcpy(dest + static_cast<std::ptrdiff_t>(i) * 3, source + i, sizeof *source);
    }
    for (int i = whole * 3; i < n; ++i) {
        dest[i] = static_cast<char>(static_cast<std::uint32_t>(source[i / 3]) >> (i % 3 * 8));
    }
    return 0;
}

int Util::convert32ToRaw(const int *source, char *dest, int n, bool littleEndian)
{
    if (littleEndian) {
        wordToRaw<std::uint32_t, false>(source, dest, n);
    } else {
        wordToRaw<std::uint32_t, true>(source, dest, n);
    }
    return 0;
}

double Util::convertFromIeeeExtended(const char *bytes)
{
    const unsigned int first = byteAt(bytes, 0);
    const int exponent = static_cast<int>((first & 0x7FU) << 8U | byteAt(bytes, 1));
    const auto high = qFromBigEndian<std::uint32_t>(bytes + 2);
    const auto low = qFromBigEndian<std::uint32_t>(bytes + 6);
    double result = 0.0;
    if (exponent == 0x7FFF) {
        result = std::numeric_limits<double>::infinity();
    } else if (exponent != 0 || high != 0 || low != 0) {
        result = std::ldexp(high, exponent - 16414) + std::ldexp(low, exponent - 16446);
    }
    return (first & 0x80U) != 0 ? -result : result;
}

}
