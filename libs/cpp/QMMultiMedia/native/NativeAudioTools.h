#pragma once

#include <QUrl>

namespace QMMultiMedia {

/// Two questions about a media file, answered without decoding it.
class NativeAudioTools
{
public:
    /// Whether the platform can play the file.
    static bool isPlayable(const QUrl &url);

    /// The file's length in whole seconds, truncated; -1 if it isn't playable.
    static int duration(const QUrl &url);
};

}
