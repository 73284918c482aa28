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
    } while (m_room > 0 && shapeMore());
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

/// Makes the next block of samples; false at the end.
bool SoundDecoder::shapeMore()
{
    for (;;) {
        const SoundBlock block = m_shaper.take();
        if (block.frames > 0) {
            give(block);
            return true;
        }
        if (m_atEnd) {
            return false;
        }
        const SoundPiece piece = m_source->next();
        if (piece.frame != nullptr) {
            m_shaper.put(piece);
        } else {
            m_shaper.finish();
            m_atEnd = true;
        }
    }
}

/// Packs a block straight into the reader's memory if all of it has room there.
void SoundDecoder::give(const SoundBlock &block)
{
    const std::size_t bytes = static_cast<std::size_t>(block.frames)
        * static_cast<std::size_t>(bytesPerFrame(m_format.sample));
    if (bytes <= static_cast<std::size_t>(m_room)) {
        packBlock(block, m_format.sample, m_out);
        advance(static_cast<int>(bytes));
        return;
    }
    m_pending.resize(bytes);
    m_taken = 0;
    packBlock(block, m_format.sample, m_pending.data());
}
