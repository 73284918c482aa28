#include "SoundSource.h"

#include "ContainerLimits.h"
#include "StreamFacts.h"
#include <cstdio>
#include <cstring>
#include <limits>
#include <string>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/opt.h>
}

namespace {

constexpr int IoBufferBytes = 65536;
constexpr int MaxFailuresInARow = 1000;
/// A recording comes in pieces of a second or less; one that came whole would be in memory whole.
constexpr int MaxPacketBytes = 64 * 1024 * 1024;
/// Samples that a decoder needs before its output is right after a seek.
constexpr double PrerollSeconds = 0.1;
constexpr qint64 MaxPaddingFrames = 16384;

constexpr AVRational Microseconds {1, AV_TIME_BASE};

int readBytes(void *opaque, uint8_t *data, int bytes)
{
    const int count = static_cast<InputFile *>(opaque)->read(data, bytes);
    if (count == 0) {
        return AVERROR_EOF;
    }
    return count < 0 ? AVERROR(EIO) : count;
}

int64_t seekBytes(void *opaque, int64_t offset, int whence)
{
    auto *file = static_cast<InputFile *>(opaque);
    if (whence == AVSEEK_SIZE) {
        return file->size();
    }
    return whence == SEEK_SET && file->seek(offset) ? offset : AVERROR(EIO);
}

int isCancelled(void *opaque)
{
    return static_cast<InputFile *>(opaque)->isCancelled() ? 1 : 0;
}

/// All decoders of sound, so that probing a file never decodes its pictures.
const std::string &soundDecoders()
{
    static const std::string names = [] {
        std::string list;
        void *position = nullptr;
        while (const AVCodec *codec = av_codec_iterate(&position)) {
            if (av_codec_is_decoder(codec) && codec->type == AVMEDIA_TYPE_AUDIO) {
                list += list.empty() ? "" : ",";
                list += codec->name;
            }
        }
        return list;
    }();
    return names;
}

bool isVorbisHeader(const AVPacket &packet)
{
    return packet.size >= 7 && std::memcmp(packet.data + 1, "vorbis", 6) == 0;
}

bool isOpusHeader(const AVPacket &packet)
{
    return packet.size >= 19 && std::memcmp(packet.data, "OpusHead", 8) == 0;
}

}

void SoundSource::Deleter::operator()(AVFormatContext *context) const
{
    AVIOContext *io = context->pb;
    avformat_close_input(&context);
    if (io != nullptr) {
        av_freep(&io->buffer);
        avio_context_free(&io);
    }
}

void SoundSource::Deleter::operator()(AVCodecContext *context) const
{
    avcodec_free_context(&context);
}

void SoundSource::Deleter::operator()(AVPacket *packet) const
{
    av_packet_free(&packet);
}

void SoundSource::Deleter::operator()(AVFrame *frame) const
{
    av_frame_free(&frame);
}

std::unique_ptr<SoundSource> SoundSource::open(const QUrl &url, OSStatus *status)
{
    std::unique_ptr<InputFile> file = InputFile::open(url, status);
    return file ? open(std::move(file), status) : nullptr;
}

std::unique_ptr<SoundSource> SoundSource::open(std::unique_ptr<InputFile> file, OSStatus *status)
{
    std::unique_ptr<SoundSource> source(new SoundSource);
    source->m_file = std::move(file);
    source->m_packet.reset(av_packet_alloc());
    source->m_frame.reset(av_frame_alloc());
    const bool hasMemory = source->m_packet && source->m_frame;
    *status = hasMemory ? source->openContainer() : kAudioMemoryFullError;
    if (*status == noErr) {
        *status = source->chooseStream();
    }
    if (*status == noErr) {
        *status = source->openDecoder();
    }
    return *status == noErr ? std::move(source) : nullptr;
}

SoundSource::~SoundSource() = default;

OSStatus SoundSource::openContainer()
{
    auto *buffer = static_cast<unsigned char *>(av_malloc(IoBufferBytes));
    AVIOContext *io = buffer == nullptr
        ? nullptr
        : avio_alloc_context(buffer, IoBufferBytes, 0, m_file.get(), readBytes, nullptr, seekBytes);
    AVFormatContext *container = avformat_alloc_context();
    if (io == nullptr || container == nullptr) {
        avio_context_free(&io);
        av_free(buffer);
        avformat_free_context(container);
        return kAudioMemoryFullError;
    }
    container->pb = io;
    container->flags |= AVFMT_FLAG_CUSTOM_IO;
    container->interrupt_callback = {isCancelled, m_file.get()};
    container->codec_whitelist = av_strdup(soundDecoders().c_str());
    ContainerLimits::apply(container);
    const AVInputFormat *format = nullptr;
    const int probed
        = av_probe_input_buffer2(io, &format, m_file->path().constData(), nullptr, 0, 0);
    if (probed < 0 || m_file->size() == 0 || !ContainerLimits::allow(format)) {
        m_container.reset(container);
        return kAudioFileUnsupportedFileTypeError;
    }
    m_movEdits = readMovEdits(*m_file);
    AVDictionary *options = nullptr;
    av_dict_set(&options, "max_size", "32768", 0);
    if (m_movEdits.areSimple) {
        av_dict_set(&options, "ignore_editlist", "1", 0);
    }
    const int opened
        = avformat_open_input(&container, m_file->path().constData(), format, &options);
    av_dict_free(&options);
    if (opened < 0) {
        av_freep(&io->buffer);
        avio_context_free(&io);
        return kAudioFileInvalidFileError;
    }
    m_container.reset(container);
    return noErr;
}

OSStatus SoundSource::chooseStream()
{
    for (unsigned i = 0; i < m_container->nb_streams; ++i) {
        AVStream *stream = m_container->streams[i];
        if ((stream->disposition & AV_DISPOSITION_ATTACHED_PIC) != 0) {
            // Otherwise the search for the picture's size goes on through megabytes of sound.
            stream->codecpar->codec_type = AVMEDIA_TYPE_DATA;
            stream->codecpar->codec_id = AV_CODEC_ID_NONE;
        }
    }
    if (!StreamFacts::headerTellsAll(m_container.get())) {
        avformat_find_stream_info(m_container.get(), nullptr);
    }
    bool anySound = false;
    for (unsigned i = 0; i < m_container->nb_streams; ++i) {
        AVStream *stream = m_container->streams[i];
        stream->discard = AVDISCARD_ALL;
        if (!StreamFacts::isSound(stream)) {
            continue;
        }
        anySound = true;
        const bool preferred = m_stream == nullptr
            || ((stream->disposition & AV_DISPOSITION_DEFAULT) != 0
                && (m_stream->disposition & AV_DISPOSITION_DEFAULT) == 0);
        if (preferred && avcodec_find_decoder(stream->codecpar->codec_id) != nullptr) {
            m_stream = stream;
        }
    }
    if (m_stream == nullptr || StreamFacts::isEncrypted(m_container.get(), m_stream)) {
        return anySound ? kAudioFileUnsupportedDataFormatError : kAudioFileUnsupportedFileTypeError;
    }
    m_stream->discard = AVDISCARD_DEFAULT;
    return StreamFacts::isComplete(m_stream) ? noErr : kAudioFileInvalidFileError;
}

OSStatus SoundSource::openDecoder()
{
    readGaplessInformation();
    const AVCodec *codec = avcodec_find_decoder(m_stream->codecpar->codec_id);
    m_decoder.reset(avcodec_alloc_context3(codec));
    if (!m_decoder) {
        return kAudioMemoryFullError;
    }
    if (avcodec_parameters_to_context(m_decoder.get(), m_stream->codecpar) < 0) {
        return kAudioFileInvalidFileError;
    }
    m_decoder->pkt_timebase = m_stream->time_base;
    m_decoder->thread_count = 1;
    if (codec->id == AV_CODEC_ID_FLAC) {
        m_decoder->err_recognition = AV_EF_CRCCHECK | AV_EF_EXPLODE;
    }
    // Vorbis: the last packet's padding is counted from a block that may be shorter than assumed.
    m_trimsItself = m_hasEdit || codec->id == AV_CODEC_ID_VORBIS;
    if (m_trimsItself) {
        m_decoder->flags2 |= AV_CODEC_FLAG2_SKIP_MANUAL;
    }
    return avcodec_open2(m_decoder.get(), codec, nullptr) < 0 ? kAudioFileUnsupportedDataFormatError
                                                              : noErr;
}

void SoundSource::readGaplessInformation()
{
    const auto found = m_movEdits.tracks.find(static_cast<quint32>(m_stream->id));
    if (m_movEdits.areSimple && found != m_movEdits.tracks.end()) {
        m_edit = found->second;
        m_hasEdit = static_cast<qint64>(m_stream->time_base.den) == m_edit.timeScale;
        const int count = avformat_index_get_entries_count(m_stream);
        const AVIndexEntry *last = avformat_index_get_entry(m_stream, count - 1);
        if (m_edit.toTheEnd && last != nullptr && last->timestamp > m_edit.end + MaxPaddingFrames) {
            m_edit.end = std::numeric_limits<qint64>::max(); // the stated length is wrong
        }
    }
    // The encoder's own count is exact where an edit list is missing or rounded.
    const AVDictionaryEntry *entry
        = av_dict_get(m_container->metadata, "iTunSMPB", nullptr, AV_DICT_IGNORE_SUFFIX);
    unsigned priming = 0;
    unsigned padding = 0;
    unsigned long long length = 0;
    if (entry == nullptr || m_stream->time_base.den != m_stream->codecpar->sample_rate
        || std::sscanf(entry->value, "%*x %x %x %llx", &priming, &padding, &length) != 3
        || length > static_cast<unsigned long long>(std::numeric_limits<qint64>::max() / 2)) {
        return;
    }
    const qint64 end = static_cast<qint64>(length) + priming;
    const qint64 rest = m_stream->duration - end;
    if (length == 0 || priming > MaxPaddingFrames || rest < 0 || rest > MaxPaddingFrames) {
        return;
    }
    const bool agrees = qAbs(m_edit.begin - static_cast<qint64>(priming)) <= m_edit.tolerance
        && qAbs(static_cast<double>(m_edit.end - end)) <= m_edit.tolerance;
    if (!m_hasEdit || agrees) {
        m_edit = {priming, end, static_cast<quint32>(m_stream->time_base.den), true, 1.0};
        m_hasEdit = true;
    }
}

int SoundSource::sampleRate() const
{
    return m_decoder->sample_rate > 0 ? m_decoder->sample_rate : m_stream->codecpar->sample_rate;
}

int SoundSource::channels() const
{
    return m_stream->codecpar->ch_layout.nb_channels;
}

double SoundSource::duration() const
{
    if (m_hasEdit && m_edit.end != std::numeric_limits<qint64>::max()) {
        return static_cast<double>(m_edit.end - m_edit.begin) / m_edit.timeScale;
    }
    if (m_stream->duration != AV_NOPTS_VALUE && m_stream->duration > 0) {
        const bool delayed = m_stream->codecpar->codec_id == AV_CODEC_ID_MP3
            && m_stream->start_time != AV_NOPTS_VALUE && m_stream->start_time > 0
            && m_stream->start_time < m_stream->duration;
        const qint64 units = m_stream->duration - (delayed ? m_stream->start_time : 0);
        return static_cast<double>(units) * av_q2d(m_stream->time_base);
    }
    return m_container->duration > 0
        ? static_cast<double>(m_container->duration) * av_q2d(Microseconds)
        : 0.0;
}

SoundPiece SoundSource::next()
{
    while (!m_atEnd && !m_file->isCancelled()) {
        if (receiveFrame()) {
            const SoundPiece piece = trim();
            if (piece.begin < piece.end) {
                return piece;
            }
        }
    }
    return {};
}

bool SoundSource::receiveFrame()
{
    const int received = avcodec_receive_frame(m_decoder.get(), m_frame.get());
    if (received == 0) {
        m_failuresInARow = 0;
        return m_frame->nb_samples > 0 && m_frame->sample_rate > 0;
    }
    if (received == AVERROR(ENOMEM)) {
        fail(kAudioMemoryFullError);
    } else if (received == AVERROR_EOF || (m_drained && ++m_failuresInARow > MaxFailuresInARow)) {
        m_atEnd = true;
    } else if (!m_drained) {
        feedDecoder();
    }
    return false;
}

void SoundSource::feedDecoder()
{
    if (!readPacket()) {
        m_drained = true;
        avcodec_send_packet(m_decoder.get(), nullptr);
        return;
    }
    noticeNewLink();
    const int sent = avcodec_send_packet(m_decoder.get(), m_packet.get());
    av_packet_unref(m_packet.get());
    if (sent == AVERROR(ENOMEM)) { // another error: a damaged packet is left out
        fail(kAudioMemoryFullError);
    }
}

/// Ends the data before its time.
void SoundSource::fail(OSStatus status)
{
    m_failure = status;
    m_atEnd = true;
}

/// Another link of a chain begins: nothing overlaps with its first block.
void SoundSource::noticeNewLink()
{
    const AVCodecID codec = m_decoder->codec_id;
    if (codec == AV_CODEC_ID_VORBIS && isVorbisHeader(*m_packet)) {
        if (m_packet->data[0] == 1) {
            avcodec_flush_buffers(m_decoder.get());
            m_firstPacketTime = UnknownTime;
            m_leadKnown = false;
        }
    } else if (codec == AV_CODEC_ID_OPUS && isOpusHeader(*m_packet)) {
        // A link with the serial number of the one before comes without a word from the demuxer.
        avcodec_flush_buffers(m_decoder.get());
        m_framesToSkip = m_packet->data[10] | m_packet->data[11] << 8;
    } else if (m_firstPacketTime == UnknownTime) {
        m_firstPacketTime = m_packet->pts;
    }
}

bool SoundSource::readPacket()
{
    int failures = 0;
    while (failures < MaxFailuresInARow && !m_file->isCancelled()) {
        const int read = av_read_frame(m_container.get(), m_packet.get());
        if (read == AVERROR_EOF) {
            return false;
        }
        if (read == AVERROR(ENOMEM)) {
            fail(kAudioMemoryFullError);
            return false;
        }
        if (read < 0) {
            ++failures;
        } else if (m_packet->stream_index == m_stream->index
            && !StreamFacts::isEncrypted(*m_packet)) {
            if (m_packet->size > MaxPacketBytes) {
                av_packet_unref(m_packet.get());
                fail(kAudioFileInvalidChunkError);
                return false;
            }
            return true;
        } else {
            av_packet_unref(m_packet.get());
        }
    }
    return false;
}

qint64 SoundSource::timeOfFrame() const
{
    return m_frame->pts != AV_NOPTS_VALUE ? m_frame->pts : m_nextTime;
}

SoundPiece SoundSource::trim()
{
    SoundPiece piece {m_frame.get(), 0, m_frame->nb_samples};
    const AVRational perFrame {1, m_frame->sample_rate};
    const qint64 time = timeOfFrame();
    if (!m_leadKnown) {
        m_lead = m_firstPacketTime == 0 ? time : 0;
        m_leadKnown = true;
    }
    m_nextTime = time + av_rescale_q(m_frame->nb_samples, perFrame, m_stream->time_base);
    if (m_hasEdit) {
        piece = trimToEdit(piece);
    } else if (m_trimsItself) {
        const AVFrameSideData *data
            = av_frame_get_side_data(m_frame.get(), AV_FRAME_DATA_SKIP_SAMPLES);
        if (data != nullptr && data->size >= 10) {
            piece = trimPadding(piece, data->data);
        }
    }
    if (m_framesToSkip > 0) {
        const int skipped = qMin(m_framesToSkip, piece.end - piece.begin);
        piece.begin += skipped;
        m_framesToSkip -= skipped;
    }
    if (m_seeking) {
        const qint64 skip = av_rescale_q(m_seekTo - time, m_stream->time_base, perFrame);
        piece.begin = static_cast<int>(qBound<qint64>(piece.begin, skip, piece.end));
        m_seeking = piece.begin >= piece.end && !m_atEnd;
    }
    if (!m_zeroKnown && piece.begin < piece.end) {
        m_zero = time + av_rescale_q(piece.begin, perFrame, m_stream->time_base);
        m_zeroKnown = true;
    }
    return piece;
}

SoundPiece SoundSource::trimToEdit(SoundPiece piece)
{
    const qint64 time = timeOfFrame();
    const AVRational perFrame {1, m_frame->sample_rate};
    const qint64 skip = av_rescale_q(m_edit.begin - time, m_stream->time_base, perFrame);
    piece.begin = static_cast<int>(qBound<qint64>(0, skip, piece.end));
    if (m_edit.end != std::numeric_limits<qint64>::max()) {
        const qint64 left = av_rescale_q(m_edit.end - time, m_stream->time_base, perFrame);
        piece.end = static_cast<int>(qBound<qint64>(0, left, piece.end));
        if (left <= 0) {
            m_atEnd = true;
        }
    }
    return piece;
}

SoundPiece SoundSource::trimPadding(SoundPiece piece, const unsigned char *counts) const
{
    const auto little = [counts](int offset) {
        return qint64(counts[offset]) | qint64(counts[offset + 1]) << 8
            | qint64(counts[offset + 2]) << 16 | qint64(counts[offset + 3]) << 24;
    };
    piece.begin = static_cast<int>(qMin<qint64>(little(0), piece.end));
    const qint64 padding = little(4);
    if (padding > 0) {
        // In Ogg the packet's length counts samples up to the stated end, whatever the rate is now.
        const qint64 kept = m_frame->pkt_duration > 0
                && m_stream->time_base.den == m_stream->codecpar->sample_rate
            ? m_frame->pkt_duration + m_lead
            : piece.end - padding;
        piece.end = static_cast<int>(qBound<qint64>(piece.begin, kept, piece.end));
    }
    return piece;
}

bool SoundSource::seek(double seconds)
{
    if (!m_zeroKnown) {
        next();
    }
    const double unitsPerSecond = 1.0 / av_q2d(m_stream->time_base);
    const qint64 target = m_zero + qRound64(qMax(seconds, 0.0) * unitsPerSecond);
    const qint64 from
        = qMax(target - qRound64(PrerollSeconds * unitsPerSecond), qMin<qint64>(m_zero, 0));
    if (av_seek_frame(m_container.get(), m_stream->index, from, AVSEEK_FLAG_BACKWARD) < 0) {
        return false;
    }
    avcodec_flush_buffers(m_decoder.get());
    m_drained = false;
    m_atEnd = false;
    m_failure = noErr;
    m_failuresInARow = 0;
    m_seeking = true;
    m_seekTo = target;
    m_nextTime = from;
    m_leadKnown = true;
    return true;
}
