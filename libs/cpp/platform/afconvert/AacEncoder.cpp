#include "AacEncoder.h"

#include "ConvertError.h"
#include "WavSource.h"
#include <algorithm>
#include <cmath>
#include <new>
#include <random>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavutil/channel_layout.h>
#include <libavutil/log.h>
#include <libavutil/opt.h>
}

namespace {

// ISO 14496-3, table of sampling frequency indexes.
constexpr std::array<int, 13> aacRates {
    96000, 88200, 64000, 48000, 44100, 32000, 24000, 22050, 16000, 12000, 11025, 8000, 7350};

constexpr std::int64_t maxBitsPerChannelAndPacket = 6144;

// Blocks of real sound in front of a segment, until its packets are those of a running encoder.
// Before the very beginning there is none: the first blocks do it.
constexpr int runUpBlocks = 12;
constexpr int runUpBlocksOfTheBeginning = 4;

constexpr int noiseBlocks = 3;
constexpr int noiseBlocksAtHighestRate = 2;

constexpr std::int64_t highestBitRate(const AacFormat &format)
{
    return maxBitsPerChannelAndPacket * format.channels * format.sampleRate / packetFrames;
}

// Bits that the first packets of a segment borrow from the others: an encoder begins with a full
// bit reservoir, which the priming has emptied. So the error behind a joint stays below that of an
// encoder that has come all the way.
class Loan
{
public:
    explicit Loan(std::int64_t packets)
        : m_rest(std::max<std::int64_t>(packets - full - fading, 1))
        , m_share(std::min(highestShare, highestRepayment * static_cast<double>(m_rest) / amount))
        , m_repayment(m_share * amount / static_cast<double>(m_rest))
    {
    }

    /// The factor of the bit rate for a packet, counted from the first one of the segment.
    double factor(std::int64_t packet) const
    {
        if (packet < -lead) {
            return 1;
        }
        const double size = 1.0 - static_cast<double>(packet - full) / fading;
        return size <= 0 ? 1 - m_repayment : 1 + m_share * std::min(size, 1.0);
    }

private:
    static constexpr int lead = 7; ///< packets of the run-up that have the larger size already
    static constexpr int full = 7; ///< packets with the whole share
    static constexpr int fading = 16; ///< packets in which it goes down to nothing
    static constexpr double amount = full + fading / 2.0;
    static constexpr double highestShare = 0.12;
    static constexpr double highestRepayment = 0.01;

    std::int64_t m_rest;
    double m_share;
    double m_repayment;
};

}

void AacFormat::check() const
{
    if (std::find(aacRates.begin(), aacRates.end(), sampleRate) == aacRates.end()) {
        throw ConvertError("AAC has no sample rate of " + std::to_string(sampleRate) + " Hz");
    }
    if (channels < 1 || channels > 2) {
        throw ConvertError(std::to_string(channels) + " channels: only 1 or 2 are supported");
    }
    const std::int64_t highest = highestBitRate(*this);
    if (bitRate > highest) {
        throw ConvertError("-b " + std::to_string(bitRate) + ": AAC carries at most "
            + std::to_string(highest) + " bit/s at " + std::to_string(sampleRate) + " Hz with "
            + std::to_string(channels) + (channels == 1 ? " channel" : " channels"));
    }
}

std::vector<std::uint8_t> AacFormat::decoderConfig() const
{
    constexpr unsigned lowComplexity = 2;
    const auto rateIndex = static_cast<unsigned>(
        std::find(aacRates.begin(), aacRates.end(), sampleRate) - aacRates.begin());
    const unsigned bits
        = lowComplexity << 11 | rateIndex << 7 | static_cast<unsigned>(channels) << 3;
    return {static_cast<std::uint8_t>(bits >> 8), static_cast<std::uint8_t>(bits & 0xff), 0x56,
        0xe5, 0x00};
}

void AacEncoder::Deleter::operator()(AVCodecContext *context) const
{
    avcodec_free_context(&context);
}

void AacEncoder::Deleter::operator()(AVFrame *frame) const
{
    av_frame_free(&frame);
}

void AacEncoder::Deleter::operator()(AVPacket *packet) const
{
    av_packet_free(&packet);
}

AacEncoder::AacEncoder(const AacFormat &format)
    : m_format(format)
{
    av_log_set_level(AV_LOG_QUIET);
    const AVCodec *codec = avcodec_find_encoder_by_name("aac");
    if (codec == nullptr) {
        throw ConvertError("this system's libavcodec has no AAC encoder");
    }
    m_context.reset(avcodec_alloc_context3(codec));
    m_frame.reset(av_frame_alloc());
    m_packet.reset(av_packet_alloc());
    if (!m_context || !m_frame || !m_packet) {
        throw std::bad_alloc();
    }
    m_context->sample_fmt = AV_SAMPLE_FMT_FLTP;
    m_context->sample_rate = format.sampleRate;
    m_context->bit_rate = format.bitRate;
    m_context->thread_count = 1;
    // Without the library's name in every 256th packet: all packets are alike.
    m_context->flags |= AV_CODEC_FLAG_BITEXACT;
    av_channel_layout_default(&m_context->ch_layout, format.channels);
    av_opt_set(m_context->priv_data, "aac_coder", format.fastSearch ? "fast" : "twoloop", 0);
    if (avcodec_open2(m_context.get(), codec, nullptr) < 0
        || m_context->frame_size != packetFrames) {
        throw ConvertError("the AAC encoder can't be opened");
    }
    m_frame->format = m_context->sample_fmt;
    m_frame->sample_rate = m_context->sample_rate;
    m_frame->nb_samples = packetFrames;
    if (av_channel_layout_copy(&m_frame->ch_layout, &m_context->ch_layout) < 0
        || av_frame_get_buffer(m_frame.get(), 0) < 0) {
        throw std::bad_alloc();
    }
}

AacEncoder::~AacEncoder() = default;

float *const *AacEncoder::nextBlock()
{
    if (av_frame_make_writable(m_frame.get()) < 0) {
        throw std::bad_alloc();
    }
    return reinterpret_cast<float *const *>(m_frame->extended_data);
}

// Encodes the block in the frame; true if there is a packet for it.
bool AacEncoder::push()
{
    m_frame->pts = m_position;
    m_position += packetFrames;
    av_packet_unref(m_packet.get());
    int result = avcodec_send_frame(m_context.get(), m_frame.get());
    if (result == 0) {
        result = avcodec_receive_packet(m_context.get(), m_packet.get());
    }
    if (result < 0 && result != AVERROR(EAGAIN)) {
        throw ConvertError("the AAC encoder failed");
    }
    return result == 0;
}

// A fresh encoder spends up to 2.5 times the time on each packet, at worse quality, until its
// psychoacoustic model has seen a shortage of bits. Noise at the highest bit rate brings that about
// at once, and noise at the real one leads back to usual quantizers. There must be no silence
// behind it: the model remembers the least demanding block for hundreds of packets, in which
// everything comes out worse.
void AacEncoder::prime()
{
    std::minstd_rand random(1);
    const auto span = static_cast<float>(std::minstd_rand::max() - std::minstd_rand::min());
    for (int block = 0; block < noiseBlocks; ++block) {
        m_context->bit_rate
            = block < noiseBlocksAtHighestRate ? highestBitRate(m_format) : m_format.bitRate;
        float *const *planes = nextBlock();
        for (int channel = 0; channel < m_format.channels; ++channel) {
            std::generate_n(planes[channel], packetFrames, [&random, span] {
                return static_cast<float>(random() - std::minstd_rand::min()) / span - 0.5F;
            });
        }
        push();
    }
}

void AacEncoder::encode(
    const WavSource &source, std::int64_t firstPacket, std::int64_t endPacket, const Sink &sink)
{
    std::vector<std::uint8_t> scratch;
    const auto pushBlock = [this, &source, &scratch](std::int64_t block) {
        source.read(block * packetFrames, packetFrames, nextBlock(), scratch);
        return push();
    };
    const Loan loan(endPacket - firstPacket);
    prime();
    std::int64_t block = firstPacket - 1 - runUpBlocks;
    if (firstPacket == 0) {
        for (block = 0; block < runUpBlocksOfTheBeginning; ++block) {
            pushBlock(block);
        }
        block = -1;
    }
    for (; block <= endPacket && !m_stopped; ++block) {
        const std::int64_t packet = block - 1;
        m_context->bit_rate = std::llround(m_format.bitRate * loan.factor(packet - firstPacket));
        if (pushBlock(block) && packet >= firstPacket) {
            sink(m_packet->data, static_cast<std::size_t>(m_packet->size));
        }
    }
}
