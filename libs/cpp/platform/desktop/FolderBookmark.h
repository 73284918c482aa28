#pragma once

#include <QByteArray>
#include <QString>

namespace Desktop {

/// Opaque data that stands for a folder: its path with device and inode. Empty if there is no such
/// folder.
QByteArray createFolderBookmark(const QString &strFolder);

/// The folder's path; empty if the data isn't a bookmark. The folder may be gone.
QString resolveFolderBookmark(const QByteArray &bookmark);

/// Whether the path is still a folder that can be read and written.
bool isFolderAccessible(const QString &strFolder);

} // namespace Desktop
