#pragma once

#include <cstdint>
#include <string>

namespace M4aCheck {

/// Opens the file anew and walks it: the boxes must fill it, the table of packets must fill the
/// media data, and the sound must have exactly this many frames in this many packets.
///
/// Throws ConvertError, saying what isn't right, otherwise.
void verify(const std::string &path, std::int64_t frames, std::int64_t packets);

}
