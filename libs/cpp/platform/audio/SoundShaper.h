#pragma once

#include "Resampler.h"
#include "SoundBlock.h"
#include "SoundSource.h"
#include <functional>
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
    using Sink = std::function<void(const SoundBlock &)>;

    /// Computes in double if precise, else in float.
    SoundShaper(int rate, bool precise);

    /// Gives what comes of a piece to the sink; its blocks are valid during the call.
    void process(const SoundPiece &piece, const Sink &sink);

    /// Gives what is left inside to the sink; afterwards a new stream can begin.
    void flush(const Sink &sink);

    /// Forgets what is inside.
    void reset() { m_resampler.reset(); }

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
    bool prepareResampler(int inputRate, int channels, SampleKind kind, const Sink &sink);

    int m_rate;
    bool m_precise;
    Mix m_mix;
    std::unique_ptr<Resampler> m_resampler;
    std::vector<double> m_planes[2]; ///< room for samples of any kind
};
