#include "AVAsset.h"

#include "AsfItems.h"
#include "FileKind.h"
#include "MediaProbe.h"
#include "MetadataFormat.h"
#include "Mp4Items.h"
#include "TagLibItems.h"

#include <optional>
#include <QFile>
#include <QFileInfo>

namespace {

QList<MetadataFormat> metadataOf(const QString &path)
{
    if (!isReadableFile(path)) {
        return {};
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    const FileKind kind = fileKind(file, QFileInfo(path).suffix());
    if (kind == FileKind::Mp4) {
        return mp4Metadata(file);
    }
    if (kind == FileKind::Asf) {
        return asfMetadata(file);
    }
    const QList<MetadataFormat> formats = tagLibMetadata(path, kind);
    // An AIFF file may have texts of its own beside an ID3 chunk; they count without it.
    if (formats.isEmpty() && (kind == FileKind::Other || kind == FileKind::Aiff)) {
        return dictionaryMetadata(path);
    }
    return formats;
}

}

struct AVAsset::State
{
    explicit State(const QUrl &source)
        : url(source)
    {
    }

    const QList<MetadataFormat> &formats()
    {
        if (!m_formats) {
            m_formats = metadataOf(url.toLocalFile());
        }
        return *m_formats;
    }

    const MediaSummary &summary()
    {
        if (!m_summary) {
            m_summary = mediaSummary(url.toLocalFile());
        }
        return *m_summary;
    }

    QUrl url;

private:
    std::optional<QList<MetadataFormat>> m_formats;
    std::optional<MediaSummary> m_summary;
};

AVAsset AVAsset::assetWithURL(const QUrl &url)
{
    AVAsset asset;
    asset.m_state = std::make_shared<State>(url);
    return asset;
}

QUrl AVAsset::URL() const
{
    return m_state ? m_state->url : QUrl();
}

bool AVAsset::isPlayable() const
{
    return m_state && m_state->summary().isPlayable;
}

CMTime AVAsset::duration() const
{
    constexpr int microseconds = 1'000'000;
    return m_state ? CMTime {m_state->summary().durationUs, microseconds} : CMTime();
}

QStringList AVAsset::availableMetadataFormats() const
{
    QStringList names;
    if (m_state) {
        for (const MetadataFormat &format : m_state->formats()) {
            names.append(format.name);
        }
    }
    return names;
}

QList<AVMetadataItem> AVAsset::metadataForFormat(const QString &format) const
{
    if (m_state) {
        for (const MetadataFormat &known : m_state->formats()) {
            if (known.name == format) {
                return known.items;
            }
        }
    }
    return {};
}
