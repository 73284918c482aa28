#include "SoundDecoder.h"

#include <algorithm>
#include <cstring>

SoundDecoder::SoundDecoder(std::unique_ptr<SoundSource> source, const ClientFormat &format)
    : m_source(std::move(source))
    , m_format(format)
    , m_shaper(
          format.rate, format.sample == ClientSample::Int24 || format.sample == ClientSample::Int32)
{
}

int SoundDecoder::read(char *out, int bytes)
{
    int filled = 0;
    while (filled < bytes) {
        if (m_taken == m_pending.size() && !decodeMore()) {
            break;
        }
        const std::size_t count
            = std::min(m_pending.size() - m_taken, static_cast<std::size_t>(bytes - filled));
        std::memcpy(out + filled, m_pending.data() + m_taken, count);
        filled += static_cast<int>(count);
        m_taken += count;
    }
    return filled;
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

bool SoundDecoder::decodeMore()
{
    m_pending.clear();
    m_taken = 0;
    const auto sink = [this](const SoundBlock &block) { append(block); };
    while (m_pending.empty() && !m_atEnd) {
        const SoundPiece piece = m_source->next();
        if (piece.frame != nullptr) {
            m_shaper.process(piece, sink);
        } else {
            m_shaper.flush(sink);
            m_atEnd = true;
        }
    }
    return !m_pending.empty();
}

void SoundDecoder::append(const SoundBlock &block)
{
    const std::size_t offset = m_pending.size();
    m_pending.resize(offset
        + static_cast<std::size_t>(block.frames)
            * static_cast<std::size_t>(bytesPerFrame(m_format.sample)));
    packBlock(block, m_format.sample, m_pending.data() + offset);
}
