#include "StreamFacts.h"

#include <cstring>

extern "C" {
#include <libavformat/avformat.h>
}

bool StreamFacts::isSound(const AVStream *stream)
{
    return stream->codecpar->codec_type == AVMEDIA_TYPE_AUDIO;
}

bool StreamFacts::isComplete(const AVStream *stream)
{
    const AVCodecParameters *parameters = stream->codecpar;
    return parameters->codec_id != AV_CODEC_ID_NONE && parameters->sample_rate > 0
        && parameters->ch_layout.nb_channels > 0;
}

bool StreamFacts::headerTellsAll(const AVFormatContext *container)
{
    if ((container->ctx_flags & AVFMTCTX_NOHEADER) != 0) {
        return false;
    }
    bool found = false;
    for (unsigned i = 0; i < container->nb_streams; ++i) {
        const AVStream *stream = container->streams[i];
        if (!isSound(stream)) {
            continue;
        }
        const bool hasLength = stream->duration > 0 || container->duration > 0;
        if (!isComplete(stream) || !hasLength) {
            return false;
        }
        found = true;
    }
    return found;
}

bool StreamFacts::isEncrypted(const AVFormatContext *container, const AVStream *stream)
{
    const AVDictionaryEntry *extended = av_dict_get(container->metadata, "encryption", nullptr, 0);
    const bool isAsf = std::strcmp(container->iformat->name, "asf") == 0;
    return av_stream_get_side_data(stream, AV_PKT_DATA_ENCRYPTION_INIT_INFO, nullptr) != nullptr
        || av_dict_get(stream->metadata, "enc_key_id", nullptr, 0) != nullptr // Matroska
        || (isAsf
            && (extended != nullptr
                || av_dict_get(container->metadata, "ASF_Protection_Type", nullptr, 0) != nullptr));
}

bool StreamFacts::isEncrypted(const AVPacket &packet)
{
    return av_packet_get_side_data(&packet, AV_PKT_DATA_ENCRYPTION_INFO, nullptr) != nullptr;
}
