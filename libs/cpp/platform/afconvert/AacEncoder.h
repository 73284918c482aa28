#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

class WavSource;
struct AVCodecContext;
struct AVFrame;
struct AVPacket;

/// Samples of each channel that one AAC packet adds to the sound.
constexpr int packetFrames = 1024;

/// What an AAC stream is to be.
struct AacFormat
{
    int sampleRate = 44100; ///< Hz
    int channels = 2; ///< 1 or 2
    int bitRate = 128000; ///< bit/s of all channels together
    bool fastSearch = false; ///< quick choice of the scale factors instead of the full search

    /// Throws ConvertError, naming what doesn't fit, for what AAC can't carry. The encoder itself
    /// would only clamp it.
    void check() const;

    /// The decoder's description of the stream: AudioSpecificConfig of ISO 14496-3, with the
    /// statement that there is no band replication, so that low rates aren't doubled.
    std::vector<std::uint8_t> decoderConfig() const;
};

/// Packets that a sound of so many frames has: one packet of priming and enough for the frames.
constexpr std::int64_t packetCount(std::int64_t frames)
{
    return (frames + packetFrames - 1) / packetFrames + 1;
}

/// One run of libavcodec's AAC-LC encoder.
class AacEncoder
{
public:
    /// Gets the bytes of one packet, which are gone after the call.
    using Sink = std::function<void(const std::uint8_t *bytes, std::size_t count)>;

    explicit AacEncoder(const AacFormat &format);
    ~AacEncoder();
    AacEncoder(const AacEncoder &) = delete;
    AacEncoder &operator=(const AacEncoder &) = delete;

    /// Encodes the packets [firstPacket, endPacket) of the source, in order. Packet i is made of
    /// the input blocks i - 1 and i (of packetFrames each), with a look at block i + 1.
    ///
    /// To be called once: the encoder is first brought into the state that it has in the middle of
    /// a sound. Throws ConvertError if reading or encoding fails, and lets out what sink throws.
    void encode(const WavSource &source, std::int64_t firstPacket, std::int64_t endPacket,
        const Sink &sink);

    /// For a sink that has enough packets: encode() ends after the one at hand.
    void stop() { m_stopped = true; }

private:
    struct Deleter
    {
        void operator()(AVCodecContext *context) const;
        void operator()(AVFrame *frame) const;
        void operator()(AVPacket *packet) const;
    };

    void prime();
    float *const *nextBlock();
    bool push();

    AacFormat m_format;
    std::unique_ptr<AVCodecContext, Deleter> m_context;
    std::unique_ptr<AVFrame, Deleter> m_frame;
    std::unique_ptr<AVPacket, Deleter> m_packet;
    std::int64_t m_position = 0;
    bool m_stopped = false;
};
