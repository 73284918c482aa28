#include "MediaScan.h"

#include "Literals.h"
#include "MediaCommon.h"
#include "NativeAudioPlayer.h"
#include <algorithm>
#include <array>
#include <dirent.h>
#include <memory>
#include <QDebug>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QTextCodec>

namespace QMMultiMedia {

namespace {

constexpr qint64 breathIntervalMs = 50;

/// Media that are taken by their name alone; compared as they stand.
const std::array<QLatin1String, 10> takenByName {QLatin1String(".mp3"), QLatin1String(".mp4"),
    QLatin1String(".m4a"), QLatin1String(".caf"), QLatin1String(".aif"), QLatin1String(".aiff"),
    QLatin1String(".m4r"), QLatin1String(".m4v"), QLatin1String(".mov"), QLatin1String(".flac")};

struct CloseDirectory
{
    void operator()(DIR *directory) const { ::closedir(directory); }
};

/// Qt's listings leave out names that aren't valid in the system's encoding without a word.
int countUnreadableNames(const QString &folder)
{
    const std::unique_ptr<DIR, CloseDirectory> directory(
        ::opendir(QFile::encodeName(folder).constData()));
    int count = 0;
    // readdir is safe here: the stream belongs to this function.
    while (const dirent *entry = directory ? ::readdir(directory.get()) : nullptr) { // NOLINT
        const char *name = static_cast<const char *>(entry->d_name);
        QTextCodec::ConverterState state;
        QTextCodec::codecForLocale()->toUnicode(name, static_cast<int>(qstrlen(name)), &state);
        if (state.invalidChars > 0) {
            ++count;
        }
    }
    return count;
}

/// The canonical paths of a folder's ancestors, from the root on, without the folder itself.
QStringList ancestorsOf(const QDir &dir)
{
    QStringList ancestors;
    QDir ancestor(dir.absolutePath());
    while (ancestor.cdUp()) {
        ancestors.prepend(ancestor.canonicalPath());
    }
    return ancestors;
}

}

struct MediaScan::Listing
{
    QStringList files;
    QStringList folders;
};

MediaScan::~MediaScan() = default;

void MediaScan::setUrls(const QList<QUrl> &urls)
{
    m_lstUrls = urls;
}

void MediaScan::search()
{
    m_bCancelled = false;
    reset();
    m_sinceBreath.start();
    const QList<QUrl> urls = m_lstUrls;
    for (const QUrl &url : urls) {
        const QString path = url.toLocalFile();
        const QFileInfo info(path);
        if (path.isEmpty()) {
            qDebug() << "Unknown" << url.toDisplayString();
        } else if (info.isDir()) {
            m_lstAncestors = ancestorsOf(QDir(path));
            doSearch(QDir(path));
        } else if (info.isFile()) {
            addFile(path);
        } else {
            qDebug() << "Unknown" << path;
        }
        if (!takeBreath()) {
            break;
        }
    }
    m_lstAncestors.clear();
    if (m_nUnreadableNames > 0) {
        qWarning().noquote() << u"Names that can't be read, passed over: %1"_qs.arg(
            m_nUnreadableNames);
    }
}

void MediaScan::cancel()
{
    m_bCancelled = true;
}

void MediaScan::reset()
{
    m_lstFolders.clear();
    m_lstAudio.clear();
    m_lstVideo.clear();
    m_lstArtwork.clear();
    m_lstText.clear();
    m_lstUnsuported.clear();
    m_lstEmptyFolders.clear();
    m_nFiles = 0;
    m_nUnreadableNames = 0;
}

bool MediaScan::isMediaFile(const QString &file)
{
    const bool byName = std::any_of(takenByName.begin(), takenByName.end(),
        [&file](QLatin1String suffix) { return file.endsWith(suffix); });
    // The system decides whether FLAC is a kind of sound at all.
    if (byName && (!file.endsWith(u".flac"_qs) || MediaCommon::isAudio(file))) {
        return !QFileInfo(file).isHidden();
    }
    if (m_bCancelled) {
        return false;
    }
    NativeAudioPlayer player;
    player.setMedia(file);
    return player.duration() > 0;
}

void MediaScan::fileSeen(const QString & /*file*/) { }

void MediaScan::breathe() { }

/// Lets events through when the time has come; false if the search is to end here.
///
/// A cancel lets the work of the current interval go on, so that the files of the folder at hand
/// still reach the lists, but a folder of many files can't hold it up.
bool MediaScan::takeBreath()
{
    if (m_sinceBreath.elapsed() < breathIntervalMs) {
        return true;
    }
    breathe();
    m_sinceBreath.restart();
    return !m_bCancelled;
}

MediaScan::Listing MediaScan::listFolder(const QDir &dir)
{
    Listing listing;
    QDirIterator entries(
        dir.absolutePath(), QDir::Files | QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot);
    while (entries.hasNext() && takeBreath()) {
        entries.next();
        (entries.fileInfo().isDir() ? listing.folders : listing.files) << entries.fileName();
    }
    listing.files.sort();
    listing.folders.sort();
    m_nUnreadableNames += countUnreadableNames(dir.absolutePath());
    return listing;
}

void MediaScan::doSearch(const QDir &dir)
{
    if (m_bCancelled) {
        return;
    }
    breathe();
    m_sinceBreath.restart();
    const Listing listing = listFolder(dir);
    for (const QString &name : listing.files) {
        const QString file = dir.absoluteFilePath(name);
        addFile(file);
        ++m_nFiles;
        fileSeen(file);
        if (!takeBreath()) {
            return;
        }
    }
    const QString canonicalPath = dir.canonicalPath();
    m_lstAncestors << canonicalPath;
    for (const QString &name : listing.folders) {
        const QString folder = dir.absoluteFilePath(name);
        m_lstFolders << folder;
        if (!isOwnAncestor(QFileInfo(folder).canonicalFilePath())) {
            doSearch(QDir(folder));
        }
    }
    m_lstAncestors.removeLast();
    if (!m_bCancelled && listing.files.isEmpty() && listing.folders.isEmpty()) {
        addEmptyFolder(canonicalPath);
    }
}

bool MediaScan::isOwnAncestor(const QString &canonicalPath) const
{
    return m_lstAncestors.contains(canonicalPath);
}

void MediaScan::addFile(const QString &file)
{
    if (MediaCommon::isAudio(file)) {
        addMediaFile(m_lstAudio, file);
    } else if (MediaCommon::isVideo(file)) {
        addMediaFile(m_lstVideo, file);
    } else if (MediaCommon::isImage(file)) {
        m_lstArtwork << file;
    } else if (MediaCommon::isDocument(file)) {
        m_lstText << file;
    } else {
        m_lstUnsuported << file;
    }
}

void MediaScan::addMediaFile(QStringList &list, const QString &file)
{
    if (isMediaFile(file)) {
        list << file;
    } else if (!m_bCancelled) {
        m_lstUnsuported << file;
    }
}

void MediaScan::addEmptyFolder(const QString &folder)
{
    m_lstEmptyFolders << folder;
}

}
