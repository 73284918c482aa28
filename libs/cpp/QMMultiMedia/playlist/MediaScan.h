#pragma once

#include <QElapsedTimer>
#include <QList>
#include <QStringList>
#include <QUrl>

class QDir;

namespace QMMultiMedia {

/// Walks files and folders and sorts every file that it meets into lists by kind.
///
/// Works without a window and without an event loop; MediaSearchDialog drives it with both. Hidden
/// files and folders are seen and symbolic links are followed, but not a folder whose canonical
/// path is that of one of its own ancestors. A folder's entries are taken by name, so that two
/// scans of the same folders give the same lists.
class MediaScan
{
public:
    MediaScan() = default;
    virtual ~MediaScan();

    /// The files and folders to look at, in the order in which they are to be listed.
    void setUrls(const QList<QUrl> &urls);

    /// Empties the lists and fills them from the URLs; returns when all is seen or after a cancel.
    ///
    /// A URL that is neither a local file nor a folder is named in the log and passed over.
    void search();

    /// Ends a search that is going on, from within one of its hooks; what was found is kept.
    void cancel();

    /// Empties all lists.
    void reset();

    /// Folders with neither files nor subfolders, as canonical paths.
    QStringList emptyFolders() const { return m_lstEmptyFolders; }
    /// Every subfolder met, as absolute paths.
    QStringList folders() const { return m_lstFolders; }
    QStringList audioFiles() const { return m_lstAudio; }
    QStringList videoFiles() const { return m_lstVideo; }
    QStringList artworkFiles() const { return m_lstArtwork; }
    QStringList textFiles() const { return m_lstText; }
    /// Files of no known kind, hidden media, and media that can't be played.
    QStringList unsuportedFiles() const { return m_lstUnsuported; }

    /// How many names in the folders couldn't be read as text and were passed over.
    int unreadableNames() const { return m_nUnreadableNames; }

protected:
    /// Whether a file with the suffix of a sound or a video is one that the program takes.
    ///
    /// Files of the common kinds are taken by their name unless they are hidden, all others only if
    /// they can be opened and have a duration.
    virtual bool isMediaFile(const QString &file);

    /// Called for every file found in a folder, after it was sorted in.
    virtual void fileSeen(const QString &file);

    /// Called when a folder is entered and every 50 ms besides: the place to let events through.
    virtual void breathe();

    void doSearch(const QDir &dir);
    void addFile(const QString &file);
    void addEmptyFolder(const QString &folder);

    QStringList m_lstFolders;
    QStringList m_lstAudio;
    QStringList m_lstVideo;
    QStringList m_lstArtwork;
    QStringList m_lstText;
    QStringList m_lstUnsuported;
    QStringList m_lstEmptyFolders;
    bool m_bCancelled = false;
    QList<QUrl> m_lstUrls;
    int m_nFiles = 0; ///< files seen in folders so far

private:
    struct Listing;

    Q_DISABLE_COPY(MediaScan)
    bool takeBreath();
    Listing listFolder(const QDir &dir);
    void addMediaFile(QStringList &list, const QString &file);
    bool isOwnAncestor(const QString &canonicalPath) const;

    QStringList m_lstAncestors; ///< canonical paths from the root to the folder at hand
    QElapsedTimer m_sinceBreath;
    int m_nUnreadableNames = 0;
};

}
