#pragma once

#include <QString>

namespace MTools {

/// Small tools for paths.
class ToolsCommon
{
public:
    /// The path without a trailing separator, without doubled separators and "." folders.
    ///
    /// A pure operation on text: links and ".." stay as they are. The root gives an empty text.
    static QString normalizePath(const QString &path);
};

}
