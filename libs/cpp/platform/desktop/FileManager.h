#pragma once

#include <QString>

namespace Desktop {

/// Shows a file or folder, selected, in the desktop's file manager; where there is none on the bus,
/// opens the folder that holds it (a folder itself).
///
/// Returns at once: true when the request was handed over. False for a path that doesn't exist, or
/// when there is neither a bus nor a program that opens folders.
bool showInFileManager(const QString &strPath);

/// Moves a file or folder to the user's trash; false if that failed, and it is where it was.
bool moveToTrash(const QString &strPath);

} // namespace Desktop
