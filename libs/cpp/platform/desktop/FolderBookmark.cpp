#include "FolderBookmark.h"

#include "Literals.h"
#include <QDataStream>
#include <QDebug>
#include <QFile>
#include <QFileInfo>
#include <sys/stat.h>

namespace Desktop {

namespace {

constexpr quint32 bookmarkMark = 0x63626d31; // "cbm1"

bool identify(const QString &strFolder, quint64 &device, quint64 &inode)
{
    struct stat status = {};
    if (stat(QFile::encodeName(strFolder).constData(), &status) != 0 || !S_ISDIR(status.st_mode)) {
        return false;
    }
    device = status.st_dev;
    inode = status.st_ino;
    return true;
}

}

QByteArray createFolderBookmark(const QString &strFolder)
{
    QByteArray bookmark;
    quint64 device = 0;
    quint64 inode = 0;
    if (!strFolder.isEmpty() && identify(strFolder, device, inode)) {
        QDataStream stream(&bookmark, QIODevice::WriteOnly);
        stream << bookmarkMark << device << inode << QFileInfo(strFolder).absoluteFilePath();
    }
    return bookmark;
}

QString resolveFolderBookmark(const QByteArray &bookmark)
{
    QDataStream stream(bookmark);
    quint32 mark = 0;
    quint64 device = 0;
    quint64 inode = 0;
    QString strFolder;
    stream >> mark >> device >> inode >> strFolder;
    if (mark != bookmarkMark || stream.status() != QDataStream::Ok) {
        return {};
    }
    quint64 deviceNow = 0;
    quint64 inodeNow = 0;
    if (identify(strFolder, deviceNow, inodeNow) && (device != deviceNow || inode != inodeNow)) {
        qDebug().noquote() << "Another folder has taken the place of" << strFolder;
    }
    return strFolder;
}

bool isFolderAccessible(const QString &strFolder)
{
    const QFileInfo info(strFolder);
    return info.isDir() && info.isReadable() && info.isWritable();
}

} // namespace Desktop
