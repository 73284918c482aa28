#include "NSFileManager.h"

#include "Literals.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <QFile>
#include <unistd.h>

namespace {

bool report(bool worked, QString *error)
{
    if (!worked && error != nullptr) {
        *error = qt_error_string(errno);
    }
    return worked;
}

QByteArray localName(const QUrl &url)
{
    return QFile::encodeName(url.toLocalFile());
}

}

NSFileManager &NSFileManager::defaultManager()
{
    static NSFileManager manager;
    return manager;
}

bool NSFileManager::removeItemAtURL(const QUrl &url, QString *error) const
{
    return report(std::remove(localName(url).constData()) == 0, error);
}

bool NSFileManager::moveItemAtURL(const QUrl &from, const QUrl &to, QString *error) const
{
    const QByteArray source = localName(from);
    const QByteArray destination = localName(to);
    if (::renameat2(
            AT_FDCWD, source.constData(), AT_FDCWD, destination.constData(), RENAME_NOREPLACE)
        == 0) {
        return true;
    }
    if (errno != EINVAL && errno != ENOSYS) {
        return report(false, error);
    }
    // A file system that can't rename without replacing: a second name, then the first one goes.
    return report(::link(source.constData(), destination.constData()) == 0
            && ::unlink(source.constData()) == 0,
        error);
}

bool NSFileManager::replaceItemAtURL(const QUrl &url, const QUrl &withItem, QString *error) const
{
    return report(
        std::rename(localName(withItem).constData(), localName(url).constData()) == 0, error);
}
