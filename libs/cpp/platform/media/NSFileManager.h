#pragma once

#include <QString>
#include <QUrl>

/// Operations on files by their "file:" URLs. Every one returns whether it worked; the reason of a
/// failure goes to *error, if that isn't null. Safe to be used from any thread.
class NSFileManager
{
public:
    static NSFileManager &defaultManager();

    /// Removes a file.
    [[nodiscard]] bool removeItemAtURL(const QUrl &url, QString *error = nullptr) const;
    /// Renames a file; fails if the destination exists.
    [[nodiscard]] bool moveItemAtURL(
        const QUrl &from, const QUrl &to, QString *error = nullptr) const;
    /// Puts a file in the place of another one of the same file system, in one step: at every
    /// moment there is either the old or the new one under the name.
    [[nodiscard]] bool replaceItemAtURL(
        const QUrl &url, const QUrl &withItem, QString *error = nullptr) const;
};
