#include "SoundBlock.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace {

/// Adding and taking away 1.5 times the power of two from which on a type holds whole numbers only
/// rounds to the nearest one, ties to even; unlike the library's functions it vectorises.
template <typename T> constexpr T Rounder = 6755399441055744.0;
template <> constexpr float Rounder<float> = 12582912.0F;

template <int Bits> int toInteger(std::int32_t value)
{
    if constexpr (Bits == 32) {
        return value;
    } else {
        constexpr int Shift = 32 - Bits;
        constexpr int Highest = (1 << (Bits - 1)) - 1;
        return std::min((value >> Shift) + ((value >> (Shift - 1)) & 1), Highest);
    }
}

template <int Bits, typename T> int toInteger(T value)
{
    constexpr T Scale = static_cast<T>(std::int64_t(1) << (Bits - 1));
    constexpr T Lowest = -Scale;
    constexpr T Highest = Scale - 1;
    T scaled = value * Scale;
    scaled = scaled == scaled ? scaled : T(0); // NOLINT(misc-redundant-expression): not a number
    scaled = scaled < Lowest ? Lowest : scaled;
    scaled = scaled > Highest ? Highest : scaled;
    return static_cast<int>((scaled + Rounder<T>)-Rounder<T>);
}

template <typename T> void pack16(const T *left, const T *right, int frames, char *out)
{
    auto *samples = reinterpret_cast<std::int16_t *>(out);
    for (std::ptrdiff_t i = 0; i < frames; ++i) {
        samples[2 * i] = static_cast<std::int16_t>(toInteger<16>(left[i]));
        samples[2 * i + 1] = static_cast<std::int16_t>(toInteger<16>(right[i]));
    }
}

template <typename T> void pack24(const T *left, const T *right, int frames, char *out)
{
    for (std::ptrdiff_t i = 0; i < frames; ++i) {
        const std::uint64_t first = static_cast<std::uint32_t>(toInteger<24>(left[i])) & 0xFFFFFFU;
        const std::uint64_t second = static_cast<std::uint32_t>(toInteger<24>(right[i]));
        const std::uint64_t both = first | second << 24;
        std::memcpy(out + 6 * i, &both, 6);
    }
}

template <typename T> void pack32(const T *left, const T *right, int frames, char *out)
{
    auto *samples = reinterpret_cast<std::int32_t *>(out);
    for (std::ptrdiff_t i = 0; i < frames; ++i) {
        samples[2 * i] = toInteger<32>(left[i]);
        samples[2 * i + 1] = toInteger<32>(right[i]);
    }
}

template <typename T> void packFloat(const T *left, const T *right, int frames, char *out)
{
    constexpr float Scale = std::is_same_v<T, std::int32_t> ? 1.0F / 2147483648.0F : 1.0F;
    auto *samples = reinterpret_cast<float *>(out);
    for (std::ptrdiff_t i = 0; i < frames; ++i) {
        samples[2 * i] = static_cast<float>(left[i]) * Scale;
        samples[2 * i + 1] = static_cast<float>(right[i]) * Scale;
    }
}

template <typename T> void pack(const SoundBlock &block, ClientSample sample, char *out)
{
    const T *left = static_cast<const T *>(block.planes[0]);
    const T *right = block.channels > 1 ? static_cast<const T *>(block.planes[1]) : left;
    switch (sample) {
    case ClientSample::Int16:
        pack16(left, right, block.frames, out);
        break;
    case ClientSample::Int24:
        pack24(left, right, block.frames, out);
        break;
    case ClientSample::Int32:
        pack32(left, right, block.frames, out);
        break;
    case ClientSample::Float:
        packFloat(left, right, block.frames, out);
        break;
    }
}

}

int bytesPerFrame(ClientSample sample)
{
    switch (sample) {
    case ClientSample::Int16:
        return 4;
    case ClientSample::Int24:
        return 6;
    default:
        return 8;
    }
}

void packBlock(const SoundBlock &block, ClientSample sample, char *out)
{
    switch (block.kind) {
    case SampleKind::Int32:
        pack<std::int32_t>(block, sample, out);
        break;
    case SampleKind::Float:
        pack<float>(block, sample, out);
        break;
    case SampleKind::Double:
        pack<double>(block, sample, out);
        break;
    }
}
