#include "MediaProbe.h"

#include "AVMetadataIdentifiers.h"
#include "ContainerLimits.h"
#include "FieldTable.h"
#include "FileKind.h"
#include "Literals.h"

#include <memory>
#include <QElapsedTimer>
#include <QFile>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
}

namespace {

constexpr qint64 maximumMs = 10'000;

/// An open file; frees its handles.
class Input
{
public:
    explicit Input(const QString &path);
    ~Input();
    Q_DISABLE_COPY(Input)

    AVFormatContext *context() const { return m_context; } ///< null if it can't be opened

private:
    static int isOverdue(void *self);

    AVFormatContext *m_context = nullptr;
    AVIOContext *m_bytes = nullptr;
    QElapsedTimer m_timer;
};

Input::Input(const QString &path)
{
    m_timer.start();
    if (!isReadableFile(path)) {
        return;
    }
    const QByteArray url = "file:" + QFile::encodeName(path);
    if (avio_open2(&m_bytes, url.constData(), AVIO_FLAG_READ, nullptr, nullptr) < 0) {
        return;
    }
    m_context = avformat_alloc_context();
    if (m_context == nullptr) {
        return;
    }
    m_context->pb = m_bytes;
    m_context->interrupt_callback = {&Input::isOverdue, this};
    ContainerLimits::apply(m_context);
    if (avformat_open_input(&m_context, url.constData(), nullptr, nullptr) < 0) {
        m_context = nullptr;
    }
}

Input::~Input()
{
    avformat_close_input(&m_context);
    avio_closep(&m_bytes);
}

int Input::isOverdue(void *self)
{
    return static_cast<Input *>(self)->m_timer.elapsed() > maximumMs ? 1 : 0;
}

bool isPicture(const AVStream &stream)
{
    return (stream.disposition & AV_DISPOSITION_ATTACHED_PIC) != 0;
}

void addDictionary(FieldTable::Collector *collector, const AVDictionary *dictionary)
{
    const AVDictionaryEntry *entry = nullptr;
    while ((entry = av_dict_get(dictionary, "", entry, AV_DICT_IGNORE_SUFFIX)) != nullptr) {
        collector->add(QString::fromUtf8(entry->key), {textOfBytes(entry->value, "windows-1252")});
    }
}

}

MediaSummary mediaSummary(const QString &path)
{
    MediaSummary summary;
    const Input input(path);
    AVFormatContext *const context = input.context();
    if (context == nullptr || avformat_find_stream_info(context, nullptr) < 0) {
        return summary;
    }
    for (unsigned i = 0; i < context->nb_streams; ++i) {
        const AVStream &stream = *context->streams[i];
        const AVMediaType type = stream.codecpar->codec_type;
        // Any text can be taken for the recording of a terminal.
        const bool isMovie = type == AVMEDIA_TYPE_VIDEO && !isPicture(stream)
            && stream.codecpar->codec_id != AV_CODEC_ID_ANSI;
        if ((type == AVMEDIA_TYPE_AUDIO || isMovie)
            && avcodec_find_decoder(stream.codecpar->codec_id) != nullptr) {
            summary.isPlayable = true;
        }
    }
    if (context->duration > 0) {
        summary.durationUs = av_rescale(context->duration, 1'000'000, AV_TIME_BASE);
    }
    return summary;
}

QList<MetadataFormat> dictionaryMetadata(const QString &path)
{
    const Input input(path);
    const AVFormatContext *const context = input.context();
    if (context == nullptr) {
        return {};
    }
    FieldTable::Collector collector(FieldTable::Names::Dictionary);
    addDictionary(&collector, context->metadata);
    bool isFirstSound = true;
    for (unsigned i = 0; i < context->nb_streams; ++i) {
        const AVStream &stream = *context->streams[i];
        if (isPicture(stream)) {
            const AVPacket &picture = stream.attached_pic;
            const AVDictionaryEntry *const kind
                = av_dict_get(stream.metadata, "comment", nullptr, 0);
            const AVDictionaryEntry *const name
                = av_dict_get(stream.metadata, "filename", nullptr, 0);
            collector.addPicture(
                QByteArray(reinterpret_cast<const char *>(picture.data), picture.size),
                (kind != nullptr && qstricmp(kind->value, "Cover (front)") == 0)
                    || (name != nullptr && qstrnicmp(name->value, "cover.", 6) == 0));
        } else if (stream.codecpar->codec_type == AVMEDIA_TYPE_AUDIO && isFirstSound) {
            isFirstSound = false;
            if (context->metadata == nullptr) {
                addDictionary(&collector, stream.metadata);
            }
        }
    }
    const QList<AVMetadataItem> items = collector.items();
    return items.isEmpty() ? QList<MetadataFormat>()
                           : QList<MetadataFormat> {{AVMetadataFormatDictionary, items}};
}
