#pragma once

#include "AacEncoder.h"
#include <cstdint>
#include <vector>

class WavSource;

/// Where a sound is cut, so that several encoders can work on it: numbers of the packets with which
/// the segments begin, the first being 0.
namespace Segments {

/// The starts of segments for so many packets: evenly long, of bounded length, at least one for
/// each thread where the sound is long enough for it.
std::vector<std::int64_t> evenStarts(std::int64_t packets, const AacFormat &format, int threads);

/// Moves the starts a little, to where the sound is steadiest.
///
/// Behind a pause, and with an attack ahead, two encoders agree least. The segments stay of about
/// the same length and don't get shorter than the shortest that evenStarts() gives. Throws
/// ConvertError if the source can't be read.
std::vector<std::int64_t> steadyStarts(const WavSource &source, const AacFormat &format,
    std::int64_t packets, std::vector<std::int64_t> starts);

}
