#pragma once

#include <cstdint>

/// A time as a fraction of seconds: value / timescale.
struct CMTime
{
    std::int64_t value = 0;
    std::int32_t timescale = 1;
};

/// The time in seconds; 0 for a timescale of 0.
inline double CMTimeGetSeconds(const CMTime &time)
{
    return time.timescale == 0
        ? 0.0
        : static_cast<double>(time.value) / static_cast<double>(time.timescale);
}
