#include "SoundShaper.h"

#include <cstdint>

extern "C" {
#include <libavutil/channel_layout.h>
#include <libavutil/frame.h>
#include <libavutil/samplefmt.h>
#include <libswresample/swresample.h>
}

namespace {

constexpr std::size_t MatrixSide = 64;
constexpr double MinusThreeDecibels = 0.70710678118654752440;
/// Beyond these a header is wrong, and the arithmetic of a resampler may be as well.
constexpr int LowestRate = 100;
constexpr int HighestRate = 6200000;

/// What is converted at once where the rate stays.
constexpr int BlockFrames = 8192;

bool isUsable(const AVFrame &frame)
{
    return frame.ch_layout.nb_channels >= 1 && frame.sample_rate >= LowestRate
        && frame.sample_rate <= HighestRate;
}

bool isWhole(AVSampleFormat format)
{
    const AVSampleFormat packed = av_get_packed_sample_fmt(format);
    return packed == AV_SAMPLE_FMT_U8 || packed == AV_SAMPLE_FMT_S16 || packed == AV_SAMPLE_FMT_S32;
}

/// One channel of a piece in its own sample type.
template <typename S> struct Channel
{
    Channel(const SoundPiece &piece, int channel)
    {
        const AVFrame &frame = *piece.frame;
        const int channels = frame.ch_layout.nb_channels;
        const bool planar = av_sample_fmt_is_planar(static_cast<AVSampleFormat>(frame.format)) != 0;
        stride = planar ? 1 : channels;
        samples = reinterpret_cast<const S *>(frame.extended_data[planar ? channel : 0])
            + (planar ? 0 : channel) + static_cast<std::ptrdiff_t>(piece.begin) * stride;
    }

    const S *samples;
    std::ptrdiff_t stride;
};

template <typename S, typename T> T full(S value)
{
    if constexpr (std::is_same_v<S, std::uint8_t>) {
        if constexpr (std::is_same_v<T, std::int32_t>) {
            return (static_cast<std::int32_t>(value) - 128) * (1 << 24);
        } else {
            return static_cast<T>(value - 128) * T(1.0 / 128.0);
        }
    } else if constexpr (std::is_same_v<T, std::int32_t>) {
        return static_cast<std::int32_t>(value) * (sizeof(S) == 2 ? 1 << 16 : 1);
    } else if constexpr (std::is_integral_v<S>) {
        constexpr T Scale = T(1.0 / (static_cast<double>(1ULL << (8 * sizeof(S) - 1))));
        return static_cast<T>(value) * Scale;
    } else {
        return static_cast<T>(value);
    }
}

template <typename S, typename T> void copyChannel(const Channel<S> &in, int frames, T *out)
{
    if (in.stride == 1) {
        for (int i = 0; i < frames; ++i) {
            out[i] = full<S, T>(in.samples[i]);
        }
    } else if (in.stride == 2) {
        for (int i = 0; i < frames; ++i) {
            out[i] = full<S, T>(in.samples[2 * i]);
        }
    } else {
        for (int i = 0; i < frames; ++i) {
            out[i] = full<S, T>(in.samples[i * in.stride]);
        }
    }
}

template <typename S, typename T>
void addChannel(const Channel<S> &in, int frames, double gain, T *out)
{
    const T factor = static_cast<T>(gain);
    for (int i = 0; i < frames; ++i) {
        out[i] += full<S, T>(in.samples[i * in.stride]) * factor;
    }
}

/// Copies one or two channels, or mixes more by their gains.
template <typename S, typename T>
void fillPlanes(const SoundPiece &piece, const std::vector<double> &gains, T *const planes[2])
{
    const int frames = piece.end - piece.begin;
    const int channels = piece.frame->ch_layout.nb_channels;
    if (channels <= 2) {
        for (int c = 0; c < channels; ++c) {
            copyChannel<S, T>(Channel<S>(piece, c), frames, planes[c]);
        }
        return;
    }
    if constexpr (!std::is_same_v<T, std::int32_t>) {
        for (int side = 0; side < 2; ++side) {
            std::fill(planes[side], planes[side] + frames, T(0));
            for (int c = 0; c < channels; ++c) {
                const double gain = gains[2 * static_cast<std::size_t>(c) + side];
                if (gain != 0.0) {
                    addChannel<S, T>(Channel<S>(piece, c), frames, gain, planes[side]);
                }
            }
        }
    }
}

}

SoundShaper::SoundShaper(int rate, bool precise)
    : m_rate(rate)
    , m_precise(precise)
{
}

void SoundShaper::reset()
{
    m_piece = {};
    m_finishing = false;
    m_resampler.reset();
}

SoundBlock SoundShaper::take()
{
    SoundBlock block;
    while (block.frames == 0) {
        if (mustDrain()) {
            block = m_resampler->flush();
            if (block.frames == 0) {
                m_resampler.reset();
            }
        } else if (m_piece.begin < m_piece.end) {
            block = takeFromPiece();
        } else {
            break;
        }
    }
    return block;
}

/// Whether what is inside of the resampler has to come out first.
bool SoundShaper::mustDrain() const
{
    if (!m_resampler) {
        return false;
    }
    if (m_piece.begin >= m_piece.end) {
        return m_finishing;
    }
    const AVFrame &frame = *m_piece.frame;
    return isUsable(frame)
        && (m_resampler->inputRate() != frame.sample_rate || frame.sample_rate == m_rate
            || m_resampler->channels() != std::min(frame.ch_layout.nb_channels, 2));
}

SoundBlock SoundShaper::takeFromPiece()
{
    const AVFrame &frame = *m_piece.frame;
    const int channels = frame.ch_layout.nb_channels;
    const bool sameRate = frame.sample_rate == m_rate;
    const SampleKind fraction = m_precise ? SampleKind::Double : SampleKind::Float;
    const SampleKind kind
        = sameRate && channels <= 2 && isWhole(static_cast<AVSampleFormat>(frame.format))
        ? SampleKind::Int32
        : fraction;
    if (!sameRate && !m_resampler && isUsable(frame)) {
        m_resampler = Resampler::create(frame.sample_rate, m_rate, std::min(channels, 2), kind);
    }
    if (!isUsable(frame) || (!sameRate && !m_resampler)) {
        m_piece = {};
        return {};
    }
    SoundPiece part = m_piece;
    const int limit = sameRate ? BlockFrames : m_resampler->inputLimit();
    part.end = part.begin + std::min(limit, part.end - part.begin);
    m_piece.begin = part.end;
    const SoundBlock block = convertPiece(part, kind);
    return sameRate ? block : m_resampler->convert(block);
}

SoundBlock SoundShaper::convertPiece(const SoundPiece &piece, SampleKind kind)
{
    if (piece.frame->ch_layout.nb_channels > 2) {
        prepareMix(*piece.frame);
    }
    switch (kind) {
    case SampleKind::Int32:
        return convertPlanes<std::int32_t>(piece, kind);
    case SampleKind::Float:
        return convertPlanes<float>(piece, kind);
    default:
        return convertPlanes<double>(piece, kind);
    }
}

template <typename T>
SoundBlock SoundShaper::convertPlanes(const SoundPiece &piece, SampleKind kind)
{
    const int frames = piece.end - piece.begin;
    const int channels = std::min(piece.frame->ch_layout.nb_channels, 2);
    T *planes[2] = {nullptr, nullptr};
    for (int i = 0; i < channels; ++i) {
        if (m_planes[i].size() < static_cast<std::size_t>(frames)) {
            m_planes[i].resize(static_cast<std::size_t>(frames));
        }
        planes[i] = reinterpret_cast<T *>(m_planes[i].data());
    }
    switch (av_get_packed_sample_fmt(static_cast<AVSampleFormat>(piece.frame->format))) {
    case AV_SAMPLE_FMT_U8:
        fillPlanes<std::uint8_t, T>(piece, m_mix.gains, planes);
        break;
    case AV_SAMPLE_FMT_S16:
        fillPlanes<std::int16_t, T>(piece, m_mix.gains, planes);
        break;
    case AV_SAMPLE_FMT_S32:
        fillPlanes<std::int32_t, T>(piece, m_mix.gains, planes);
        break;
    case AV_SAMPLE_FMT_S64:
        fillPlanes<std::int64_t, T>(piece, m_mix.gains, planes);
        break;
    case AV_SAMPLE_FMT_FLT:
        fillPlanes<float, T>(piece, m_mix.gains, planes);
        break;
    case AV_SAMPLE_FMT_DBL:
        fillPlanes<double, T>(piece, m_mix.gains, planes);
        break;
    default:
        return {};
    }
    return {kind, channels, frames, {planes[0], planes[1]}};
}

void SoundShaper::prepareMix(const AVFrame &frame)
{
    const int channels = frame.ch_layout.nb_channels;
    const quint64 mask
        = frame.ch_layout.order == AV_CHANNEL_ORDER_NATIVE ? frame.ch_layout.u.mask : 0;
    if (m_mix.channels == channels && m_mix.mask == mask) {
        return;
    }
    m_mix.channels = channels;
    m_mix.mask = mask;
    const auto count = static_cast<std::size_t>(channels);
    m_mix.gains.assign(2 * count, 0.0);
    AVChannelLayout input {};
    if (mask != 0) {
        av_channel_layout_from_mask(&input, mask);
    } else {
        av_channel_layout_default(&input, channels);
    }
    const AVChannelLayout stereo = AV_CHANNEL_LAYOUT_STEREO;
    // The library divides all of a square of its largest size, whatever the layouts.
    std::vector<double> matrix(MatrixSide * MatrixSide, 0.0);
    const bool known = input.order == AV_CHANNEL_ORDER_NATIVE
        && swr_build_matrix2(&input, &stereo, MinusThreeDecibels, MinusThreeDecibels, 0.0, 1.0, 1.0,
               matrix.data(), MatrixSide, AV_MATRIX_ENCODING_NONE, nullptr)
            >= 0;
    const std::size_t onOneSide = (count + 1) / 2;
    for (std::size_t c = 0; c < count; ++c) {
        if (known) {
            m_mix.gains[2 * c] = matrix[c];
            m_mix.gains[2 * c + 1] = matrix[MatrixSide + c];
        } else {
            // Channels without a place: the even ones left, the odd ones right.
            m_mix.gains[2 * c + c % 2] = 1.0 / static_cast<double>(onOneSide);
        }
    }
    av_channel_layout_uninit(&input);
}
