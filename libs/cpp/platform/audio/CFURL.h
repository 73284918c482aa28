#pragma once

#include "CoreAudioTypes.h"
#include <QString>

enum class CFURLPathStyle
{
    kCFURLPOSIXPathStyle = 0,
};

/// The file URL of a path. The first argument, the allocator, is always null. A path of a folder
/// gets a trailing slash.
inline CFURLRef CFURLCreateWithFileSystemPath(
    const void * /*allocator*/, const QString &path, CFURLPathStyle /*style*/, bool isDirectory)
{
    const bool needsSlash = isDirectory && !path.endsWith(QLatin1Char('/'));
    return QUrl::fromLocalFile(needsSlash ? path + QLatin1Char('/') : path);
}
