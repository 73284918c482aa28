#pragma once

#include "AVMetadataItem.h"
#include "CMTime.h"

#include <memory>
#include <QList>
#include <QString>
#include <QStringList>
#include <QUrl>

/// A local audio or video file, open to inspection.
///
/// A handle: copies share what was found. Making one costs nothing; the file is read on the first
/// question about it, its metadata without decoding any sound, and never again. One asset is asked
/// from one thread at a time; different assets may live on different threads.
class AVAsset
{
public:
    /// An asset of no file: nothing is playable in it and it has no metadata.
    AVAsset() = default;

    /// An asset of the file at a "file:" URL. Sockets, pipes and devices are never opened.
    static AVAsset assetWithURL(const QUrl &url);

    QUrl URL() const;

    /// Whether the file has an audio or video stream that can be decoded here.
    bool isPlayable() const;
    /// The length of the file; 0 s where it isn't known.
    CMTime duration() const;

    /// The metadata formats (AVMetadataFormat…) of the file, in the order in which it holds them.
    QStringList availableMetadataFormats() const;
    /// The items of one format, in the file's order; empty if the file doesn't have it.
    QList<AVMetadataItem> metadataForFormat(const QString &format) const;

private:
    struct State;
    std::shared_ptr<State> m_state;
};
