#pragma once

#include "Resampler.h"
#include "SoundBlock.h"
#include "SoundSource.h"
#include <memory>
#include <vector>

/// Brings decoded sound to one rate and to at most two channels.
///
/// One channel stays one; more than two are mixed down by the standard coefficients (centre and
/// surround 3 dB lower, no low-frequency channel, lessened so that nothing is limited).
/// Whole-numbered samples at the target rate pass unchanged. A change of rate or channels on the
/// way is followed.
class SoundShaper
{
public:
    /// Computes in double if precise, else in float.
    SoundShaper(int rate, bool precise);

    /// Takes the next piece, once take() has nothing left of the last one; its memory stays in use
    /// until then.
    void put(const SoundPiece &piece) { m_piece = piece; }

    /// No piece follows: take() also gives what is left inside.
    void finish() { m_finishing = true; }

    /// The next block of what was put; without frames if there is none. A few thousand frames at
    /// most, whatever the size of the piece. Valid until the next call.
    SoundBlock take();

    /// Forgets what is inside.
    void reset();

private:
    struct Mix
    {
        std::vector<double> gains; ///< left and right for each input channel
        quint64 mask = 0;
        int channels = 0;
    };

    SoundBlock convertPiece(const SoundPiece &piece, SampleKind kind);
    template <typename T> SoundBlock convertPlanes(const SoundPiece &piece, SampleKind kind);
    void prepareMix(const AVFrame &frame);
    bool mustDrain() const;
    SoundBlock takeFromPiece();

    int m_rate;
    bool m_precise;
    SoundPiece m_piece; ///< what is left of it
    bool m_finishing = false;
    Mix m_mix;
    std::unique_ptr<Resampler> m_resampler;
    std::vector<double> m_planes[2]; ///< room for samples of any kind
};
