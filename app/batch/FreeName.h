#pragma once

#include <QString>

/// Finds a path that doesn't exist yet: folder + base + extension, else with " 2", " 3", … behind
/// the base.
///
/// @param folder    ends in "/"
/// @param base      the name without its extension; shortened at a character's end where the whole
/// name
///                  would pass the 255 bytes that a file system takes
/// @param extension with its point, or empty
/// A symbolic link that points nowhere counts as existing, so that nothing is written through it.
QString freeName(const QString &folder, const QString &base, const QString &extension);
