#pragma once

#include <QString>

namespace QMMultiMedia {

/// The kind of a file by its suffix, and the text of a duration.
class MediaCommon
{
public:
    /// Values of mediaType().
    enum MediaType : int
    {
        Audio = 0,
        Video = 1,
        Image = 2,
        Document = 4,
        Other = 5
    };

    /// One of MediaType; the case of the suffix doesn't matter.
    static int mediaType(const QString &path);
    static bool isAudio(const QString &path);
    static bool isVideo(const QString &path);
    static bool isImage(const QString &path);
    static bool isDocument(const QString &path);
    /// Always true: the platform decides when it opens a file.
    static bool isPlayable(const QString &path);

    /// Milliseconds as "hh:mm:ss", rounded down; hours go on counting beyond 23.
    static QString msecsToString(const long long &msecs);
};

}
