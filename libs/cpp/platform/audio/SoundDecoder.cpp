#include "SoundDecoder.h"

#include <algorithm>

SoundDecoder::SoundDecoder(std::unique_ptr<SoundSource> source, const ClientFormat &format)
    : m_source(std::move(source))
    , m_format(format)
    , m_shaper(
          format.rate, format.sample == ClientSample::Int24 || format.sample == ClientSample::Int32)
{
}

int SoundDecoder::read(char *out, int bytes)
{
    m_out = out;
    m_room = bytes;
    do {
        takePending();
    } while (m_room > 0 && decodeMore());
    return bytes - m_room;
}

void SoundDecoder::takePending()
{
    const std::size_t count
        = std::min(m_pending.size() - m_taken, static_cast<std::size_t>(m_room));
    std::copy_n(m_pending.begin() + static_cast<std::ptrdiff_t>(m_taken), count, m_out);
    m_taken += count;
    advance(static_cast<int>(count));
}

void SoundDecoder::advance(int bytes)
{
    m_out += bytes;
    m_room -= bytes;
}

bool SoundDecoder::seek(double seconds)
{
    if (!m_source->seek(seconds)) {
        return false;
    }
    m_shaper.reset();
    m_pending.clear();
    m_taken = 0;
    m_atEnd = false;
    return true;
}

/// Decodes until there is something; false at the end.
bool SoundDecoder::decodeMore()
{
    m_pending.clear();
    m_taken = 0;
    const int room = m_room;
    const auto sink = [this](const SoundBlock &block) { append(block); };
    while (m_pending.empty() && m_room == room && !m_atEnd) {
        const SoundPiece piece = m_source->next();
        if (piece.frame != nullptr) {
            m_shaper.process(piece, sink);
        } else {
            m_shaper.flush(sink);
            m_atEnd = true;
        }
    }
    return !m_pending.empty() || m_room < room;
}

/// Packs a block straight into the reader's memory if all of it has room there.
void SoundDecoder::append(const SoundBlock &block)
{
    const int bytes = block.frames * bytesPerFrame(m_format.sample);
    if (m_pending.empty() && bytes <= m_room) {
        packBlock(block, m_format.sample, m_out);
        advance(bytes);
        return;
    }
    const std::size_t offset = m_pending.size();
    m_pending.resize(offset + static_cast<std::size_t>(bytes));
    packBlock(block, m_format.sample, m_pending.data() + offset);
}
