#include "ExtAudioFilePrivate.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <QFile>
#include <vector>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
}

namespace {

constexpr UInt32 MaxChannels = 8;

struct Deleter
{
    void operator()(AVFormatContext *context) const
    {
        if (context->pb != nullptr) {
            avio_closep(&context->pb);
        }
        avformat_free_context(context);
    }
    void operator()(AVCodecContext *context) const { avcodec_free_context(&context); }
    void operator()(AVFrame *frame) const { av_frame_free(&frame); }
    void operator()(AVPacket *packet) const { av_packet_free(&packet); }
};

/// Encodes floats to FLAC; 16 bits a sample stay 16, more become 24.
class FlacFile : public OpaqueExtAudioFile
{
public:
    explicit FlacFile(const AudioStreamBasicDescription &format)
        : m_output(format)
    {
    }

    ~FlacFile() override { FlacFile::close(); }

    OSStatus open(const QByteArray &path)
    {
        const AVCodec *codec = avcodec_find_encoder(AV_CODEC_ID_FLAC);
        AVFormatContext *muxer = nullptr;
        avformat_alloc_output_context2(&muxer, nullptr, "flac", nullptr);
        if (codec == nullptr || muxer == nullptr) {
            avformat_free_context(muxer);
            return kAudioFileUnsupportedDataFormatError;
        }
        m_muxer.reset(muxer);
        m_encoder.reset(avcodec_alloc_context3(codec));
        AVStream *stream = avformat_new_stream(muxer, nullptr);
        m_packet.reset(av_packet_alloc());
        m_frame.reset(av_frame_alloc());
        if (!m_encoder || stream == nullptr || !m_packet || !m_frame) {
            return kAudioMemoryFullError;
        }
        m_encoder->sample_rate = static_cast<int>(m_output.mSampleRate);
        m_encoder->sample_fmt = isWide() ? AV_SAMPLE_FMT_S32 : AV_SAMPLE_FMT_S16;
        m_encoder->bits_per_raw_sample = isWide() ? 24 : 16;
        m_encoder->time_base = {1, m_encoder->sample_rate};
        av_channel_layout_default(&m_encoder->ch_layout, channels());
        if (avcodec_open2(m_encoder.get(), codec, nullptr) < 0
            || avcodec_parameters_from_context(stream->codecpar, m_encoder.get()) < 0) {
            return kAudioFileUnsupportedDataFormatError;
        }
        stream->time_base = m_encoder->time_base;
        if (avio_open(&muxer->pb, ("file:" + path).constData(), AVIO_FLAG_WRITE) < 0) {
            return kAudioFileFileNotFoundError;
        }
        m_isOpen = avformat_write_header(muxer, nullptr) >= 0;
        return m_isOpen ? noErr : kAudioFileWriteError;
    }

    OSStatus setClientFormat(const AudioStreamBasicDescription &format) override
    {
        const bool fits = format.mFormatID == kAudioFormatLinearPCM
            && format.mFormatFlags == (kAudioFormatFlagIsFloat | kAudioFormatFlagIsPacked)
            && format.mBitsPerChannel == 32
            && format.mChannelsPerFrame == m_output.mChannelsPerFrame
            && format.mSampleRate == m_output.mSampleRate
            && format.mBytesPerFrame == format.mChannelsPerFrame * sizeof(float);
        m_client = fits ? format : m_client;
        return fits ? noErr : kAudioFileUnsupportedDataFormatError;
    }

    AudioStreamBasicDescription clientFormat() const override { return m_client; }
    AudioConverterRef converter() override { return &m_converter; }

    OSStatus write(UInt32 frames, const AudioBufferList *data) override
    {
        if (!m_isOpen || m_client.mChannelsPerFrame == 0 || data->mNumberBuffers != 1
            || data->mBuffers[0].mDataByteSize / m_client.mBytesPerFrame < frames) {
            return kAudioParamError;
        }
        const auto *samples = static_cast<const float *>(data->mBuffers[0].mData);
        m_pending.insert(
            m_pending.end(), samples, samples + static_cast<std::size_t>(frames) * channels());
        const std::size_t block = static_cast<std::size_t>(m_encoder->frame_size)
            * static_cast<std::size_t>(channels());
        std::size_t taken = 0;
        while (m_pending.size() - taken >= block) {
            encode(m_pending.data() + taken, m_encoder->frame_size);
            taken += block;
        }
        m_pending.erase(m_pending.begin(), m_pending.begin() + static_cast<std::ptrdiff_t>(taken));
        return m_failed ? kAudioFileWriteError : noErr;
    }

    OSStatus close() override
    {
        if (m_isOpen) {
            m_isOpen = false;
            const int rest = static_cast<int>(m_pending.size()) / channels();
            if (rest > 0) {
                encode(m_pending.data(), rest);
            }
            send(nullptr);
            m_failed = av_write_trailer(m_muxer.get()) < 0 || m_failed;
            m_failed = avio_closep(&m_muxer->pb) < 0 || m_failed;
        }
        return m_failed ? kAudioFileWriteError : noErr;
    }

private:
    bool isWide() const { return m_output.mBitsPerChannel > 16; }
    int channels() const { return static_cast<int>(m_output.mChannelsPerFrame); }

    void encode(const float *samples, int frames)
    {
        av_frame_unref(m_frame.get());
        m_frame->nb_samples = frames;
        m_frame->format = m_encoder->sample_fmt;
        m_frame->sample_rate = m_encoder->sample_rate;
        m_frame->pts = m_framesSent;
        av_channel_layout_copy(&m_frame->ch_layout, &m_encoder->ch_layout);
        if (av_frame_get_buffer(m_frame.get(), 0) < 0) {
            m_failed = true;
            return;
        }
        const float scale = isWide() ? 8388608.0F : 32768.0F;
        auto *wide = reinterpret_cast<std::int32_t *>(m_frame->data[0]);
        auto *narrow = reinterpret_cast<std::int16_t *>(m_frame->data[0]);
        for (int i = 0; i < frames * channels(); ++i) {
            const float value = std::isnan(samples[i]) ? 0.0F : samples[i] * scale;
            const auto whole
                = static_cast<std::int32_t>(std::lrintf(std::clamp(value, -scale, scale - 1.0F)));
            if (isWide()) {
                wide[i] = whole * 256;
            } else {
                narrow[i] = static_cast<std::int16_t>(whole);
            }
        }
        m_framesSent += frames;
        send(m_frame.get());
    }

    void send(const AVFrame *frame)
    {
        m_failed = avcodec_send_frame(m_encoder.get(), frame) < 0 || m_failed;
        while (avcodec_receive_packet(m_encoder.get(), m_packet.get()) == 0) {
            m_failed = av_write_frame(m_muxer.get(), m_packet.get()) < 0 || m_failed;
            av_packet_unref(m_packet.get());
        }
    }

    AudioStreamBasicDescription m_output;
    AudioStreamBasicDescription m_client;
    OpaqueAudioConverter m_converter;
    std::unique_ptr<AVFormatContext, Deleter> m_muxer;
    std::unique_ptr<AVCodecContext, Deleter> m_encoder;
    std::unique_ptr<AVFrame, Deleter> m_frame;
    std::unique_ptr<AVPacket, Deleter> m_packet;
    std::vector<float> m_pending;
    qint64 m_framesSent = 0;
    bool m_isOpen = false;
    bool m_failed = false;
};

}

std::unique_ptr<OpaqueExtAudioFile> createFlacFile(
    const CFURLRef &url, const AudioStreamBasicDescription &format, UInt32 flags, OSStatus *status)
{
    const QString path = url.toLocalFile();
    *status = kAudioParamError;
    if (!url.isLocalFile() || path.isEmpty() || format.mFormatID != kAudioFormatFLAC
        || format.mChannelsPerFrame < 1 || format.mChannelsPerFrame > MaxChannels
        || !(format.mSampleRate >= 1.0 && format.mSampleRate <= 655350.0)) {
        return nullptr;
    }
    if ((flags & kAudioFileFlags_EraseFile) == 0 && QFile::exists(path)) {
        *status = kAudioFileExistsError;
        return nullptr;
    }
    auto file = std::make_unique<FlacFile>(format);
    *status = file->open(QFile::encodeName(path));
    return *status == noErr ? std::move(file) : nullptr;
}
