#pragma once

#include "SoundBlock.h"
#include <memory>
#include <QtGlobal>
#include <vector>

struct SwrContext;

/// Changes the sample rate of a stream of one or two channels, without a shift in time.
class Resampler
{
public:
    /// kind is Float or Double and decides the precision; null if the rates can't be converted.
    static std::unique_ptr<Resampler> create(
        int inputRate, int outputRate, int channels, SampleKind kind);

    ~Resampler();

    int inputRate() const { return m_inputRate; }
    int channels() const { return m_channels; }
    SampleKind kind() const { return m_kind; }

    /// Frames to give to one call at most, so that what comes of them stays small.
    int inputLimit() const { return m_inputLimit; }

    /// What a block of this kind and channel count gives; it may have no frames. Valid until the
    /// next call.
    SoundBlock convert(const SoundBlock &input);

    /// A part of what is still inside at the end of the stream; call until it has no frames.
    SoundBlock flush();

private:
    Resampler() = default;
    Q_DISABLE_COPY(Resampler)

    struct Deleter
    {
        void operator()(SwrContext *context) const;
    };

    SoundBlock run(const SoundBlock *input);

    std::unique_ptr<SwrContext, Deleter> m_context;
    int m_inputRate = 0;
    int m_channels = 0;
    int m_inputLimit = 1;
    int m_outputLimit = 0;
    SampleKind m_kind = SampleKind::Float;
    std::vector<unsigned char> m_output[2];
};
