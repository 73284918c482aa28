#include "Resampler.h"

#include <algorithm>

extern "C" {
#include <libavutil/channel_layout.h>
#include <libavutil/opt.h>
#include <libswresample/swresample.h>
}

namespace {

constexpr int BlockFrames = 8192;
/// Highest frequency that stays, as a part of the lower of the two half rates: 20.2 kHz of 44.1
/// kHz.
constexpr double PassBand = 0.917;

}

void Resampler::Deleter::operator()(SwrContext *context) const
{
    swr_free(&context);
}

std::unique_ptr<Resampler> Resampler::create(
    int inputRate, int outputRate, int channels, SampleKind kind)
{
    AVChannelLayout layout;
    av_channel_layout_default(&layout, channels);
    const AVSampleFormat format
        = kind == SampleKind::Double ? AV_SAMPLE_FMT_DBLP : AV_SAMPLE_FMT_FLTP;
    SwrContext *context = nullptr;
    if (swr_alloc_set_opts2(
            &context, &layout, format, outputRate, &layout, format, inputRate, 0, nullptr)
        < 0) {
        return nullptr;
    }
    std::unique_ptr<Resampler> resampler(new Resampler);
    resampler->m_context.reset(context);
    av_opt_set_int(context, "resampler", SWR_ENGINE_SOXR, 0);
    // In bits; above 20 the library computes in double.
    av_opt_set_double(context, "precision", kind == SampleKind::Double ? 28.0 : 20.0, 0);
    av_opt_set_double(context, "cutoff", PassBand, 0);
    if (swr_init(context) < 0) {
        return nullptr;
    }
    const double ratio = static_cast<double>(outputRate) / inputRate;
    resampler->m_inputRate = inputRate;
    resampler->m_channels = channels;
    resampler->m_kind = kind;
    resampler->m_inputLimit = std::max(1, static_cast<int>(BlockFrames / std::max(1.0, ratio)));
    resampler->m_outputLimit = static_cast<int>(resampler->m_inputLimit * ratio) + BlockFrames;
    const std::size_t width = kind == SampleKind::Double ? sizeof(double) : sizeof(float);
    for (int i = 0; i < channels; ++i) {
        resampler->m_output[i].resize(static_cast<std::size_t>(resampler->m_outputLimit) * width);
    }
    return resampler;
}

Resampler::~Resampler() = default;

SoundBlock Resampler::convert(const SoundBlock &input)
{
    return run(&input);
}

SoundBlock Resampler::flush()
{
    return run(nullptr);
}

SoundBlock Resampler::run(const SoundBlock *input)
{
    unsigned char *out[2] = {m_output[0].data(), m_output[1].data()};
    const unsigned char *in[2] = {nullptr, nullptr};
    for (int i = 0; input != nullptr && i < m_channels; ++i) {
        in[i] = static_cast<const unsigned char *>(input->planes[i]);
    }
    const int frames = swr_convert(m_context.get(), out, m_outputLimit,
        input != nullptr ? in : nullptr, input != nullptr ? input->frames : 0);
    return {m_kind, m_channels, std::max(frames, 0), {out[0], out[1]}};
}
