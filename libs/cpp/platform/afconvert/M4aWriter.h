#pragma once

#include "M4aBoxes.h"
#include <cstddef>
#include <cstdint>
#include <vector>

class OutputFile;

/// Writes the packets of one track into a file whose index lies in front of them.
///
/// The number of packets is known before the first one, and with it the size of the index: its room
/// is left free, and filled when the sizes of the packets are known.
class M4aWriter
{
public:
    /// The track without its packets; packets is how many there will be. The file belongs to the
    /// caller and must outlive the writer.
    M4aWriter(OutputFile &file, M4aTrack track, std::int64_t packets);

    /// Appends one packet. Throws ConvertError if it can't be written or is one too many.
    void add(const std::uint8_t *bytes, std::size_t count);

    /// Writes what is left and the index. Throws ConvertError if that fails or packets are missing.
    void finish();

private:
    void flush();

    OutputFile &m_file;
    M4aTrack m_track;
    std::size_t m_added = 0;
    std::int64_t m_mediaHeaderPosition = 0;
    std::int64_t m_position = 0;
    std::vector<std::uint8_t> m_buffer;
};
