#pragma once

#include "SoundBlock.h"
#include "SoundShaper.h"
#include "SoundSource.h"
#include <memory>
#include <vector>

/// What a reader asks for: two channels at a rate (Hz).
struct ClientFormat
{
    int rate = 0;
    ClientSample sample = ClientSample::Int16;

    bool operator==(const ClientFormat &other) const
    {
        return rate == other.rate && sample == other.sample;
    }
};

/// A file's sound in a client format, from the beginning to the end.
class SoundDecoder
{
public:
    SoundDecoder(std::unique_ptr<SoundSource> source, const ClientFormat &format);

    SoundSource &source() { return *m_source; }

    /// Fills up to `bytes` bytes, a multiple of the frame's size, and returns how many came: fewer
    /// only at the end of the data or after the source was cancelled, and 0 from there on.
    int read(char *out, int bytes);

    /// Goes on at this time (seconds); false if that isn't possible.
    bool seek(double seconds);

private:
    void takePending();
    void advance(int bytes);
    bool shapeMore();
    void give(const SoundBlock &block);

    std::unique_ptr<SoundSource> m_source;
    ClientFormat m_format;
    SoundShaper m_shaper;
    char *m_out = nullptr; ///< where read() goes on
    int m_room = 0; ///< bytes that it still wants
    std::vector<char> m_pending; ///< what it had no room for
    std::size_t m_taken = 0;
    bool m_atEnd = false;
};
