#include "M4aWriter.h"

#include "ConvertError.h"
#include "OutputFile.h"
#include <utility>

namespace {

constexpr std::size_t bufferBytes = std::size_t {256} << 10;

std::int64_t sizeOf(const std::vector<std::uint8_t> &bytes)
{
    return static_cast<std::int64_t>(bytes.size());
}

}

M4aWriter::M4aWriter(OutputFile &file, M4aTrack track, std::int64_t packets)
    : m_file(file)
    , m_track(std::move(track))
{
    m_track.packetBytes.assign(static_cast<std::size_t>(packets), 0);
    m_mediaHeaderPosition = sizeOf(M4aBoxes::fileType()) + sizeOf(M4aBoxes::movie(m_track));
    m_track.mediaPosition = m_mediaHeaderPosition + sizeOf(M4aBoxes::mediaHeader(m_track, 0));
    m_position = m_track.mediaPosition;
    m_buffer.reserve(bufferBytes);
}

void M4aWriter::add(const std::uint8_t *bytes, std::size_t count)
{
    if (m_added == m_track.packetBytes.size()) {
        throw ConvertError("the encoder gave more packets than the sound has");
    }
    m_track.packetBytes[m_added++] = static_cast<std::uint32_t>(count);
    if (m_buffer.size() + count > bufferBytes) {
        flush();
    }
    m_buffer.insert(m_buffer.end(), bytes, bytes + count);
}

void M4aWriter::flush()
{
    m_file.write(m_position, m_buffer.data(), m_buffer.size());
    m_position += sizeOf(m_buffer);
    m_buffer.clear();
}

void M4aWriter::finish()
{
    if (m_added != m_track.packetBytes.size()) {
        throw ConvertError("the encoder gave fewer packets than the sound has");
    }
    flush();
    const auto mediaHeader = M4aBoxes::mediaHeader(m_track, m_position - m_track.mediaPosition);
    m_file.write(m_mediaHeaderPosition, mediaHeader.data(), mediaHeader.size());
    const auto fileType = M4aBoxes::fileType();
    m_file.write(0, fileType.data(), fileType.size());
    const auto movie = M4aBoxes::movie(m_track);
    m_file.write(sizeOf(fileType), movie.data(), movie.size());
}
