#pragma once

#include "MetadataFormat.h"

#include <QList>
#include <QString>

/// What the demultiplexers know of a file.
struct MediaSummary
{
    bool isPlayable = false; ///< an audio or video stream with a decoder is in it
    qint64 durationUs = 0; ///< microseconds; 0 if it isn't known
};

/// Looks at the streams of a file, for at most some seconds.
MediaSummary mediaSummary(const QString &path);

/// The metadata that the demultiplexer reads from a file of any kind, one format at most.
QList<MetadataFormat> dictionaryMetadata(const QString &path);
