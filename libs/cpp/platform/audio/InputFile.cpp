#include "InputFile.h"

#include <cerrno>
#include <ctime>
#include <fcntl.h>
#include <QFile>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr qint64 NsPerSecond = 1000000000;
/// The kernel's clock for file times ticks every 10 ms or faster.
constexpr qint64 FineTickNs = 20000000;
/// File systems without fractions of a second count in steps of up to two seconds.
constexpr qint64 CoarseTickNs = 2500000000;

qint64 nanoseconds(const timespec &time)
{
    return static_cast<qint64>(time.tv_sec) * NsPerSecond + time.tv_nsec;
}

FileKey keyOf(const struct stat &information)
{
    return {static_cast<quint64>(information.st_dev), static_cast<quint64>(information.st_ino),
        static_cast<qint64>(information.st_size), nanoseconds(information.st_mtim),
        nanoseconds(information.st_ctim)};
}

bool isSettled(const FileKey &key)
{
    timespec now {};
    clock_gettime(CLOCK_REALTIME, &now);
    const qint64 tick = key.changedNs % NsPerSecond == 0 ? CoarseTickNs : FineTickNs;
    return nanoseconds(now) - key.changedNs > tick;
}

}

bool FileKey::operator==(const FileKey &other) const
{
    return device == other.device && inode == other.inode && size == other.size
        && modifiedNs == other.modifiedNs && changedNs == other.changedNs;
}

std::unique_ptr<InputFile> InputFile::open(const QUrl &url, OSStatus *status)
{
    *status = kAudioParamError;
    const QString path = url.toLocalFile();
    if (!url.isLocalFile() || path.isEmpty() || path.contains(QChar::Null)) {
        return nullptr;
    }
    *status = kAudioFileFileNotFoundError;
    std::unique_ptr<InputFile> file(new InputFile);
    file->m_path = QFile::encodeName(path);
    struct stat information
    {
    };
    if (stat(file->m_path.constData(), &information) != 0 || !S_ISREG(information.st_mode)) {
        return nullptr;
    }
    // The name may have become a pipe since: O_NONBLOCK keeps that from blocking.
    file->m_descriptor = ::open(file->m_path.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (file->m_descriptor < 0 || fstat(file->m_descriptor, &information) != 0
        || !S_ISREG(information.st_mode)) {
        return nullptr;
    }
    file->m_key = keyOf(information);
    file->m_settled = isSettled(file->m_key);
    *status = noErr;
    return file;
}

InputFile::~InputFile()
{
    if (m_descriptor >= 0) {
        ::close(m_descriptor);
    }
}

int InputFile::read(void *data, int bytes) const
{
    while (!isCancelled()) {
        const ssize_t count = ::read(m_descriptor, data, static_cast<size_t>(bytes));
        if (count >= 0) {
            return static_cast<int>(count);
        }
        if (errno != EINTR) {
            break;
        }
    }
    return -1;
}

bool InputFile::seek(qint64 offset) const
{
    return offset >= 0 && !isCancelled() && lseek(m_descriptor, offset, SEEK_SET) == offset;
}

bool InputFile::readAt(qint64 offset, void *data, int bytes) const
{
    if (offset < 0 || bytes > m_key.size - offset || isCancelled()) {
        return false;
    }
    return pread(m_descriptor, data, static_cast<size_t>(bytes), offset) == bytes;
}

bool InputFile::isUnchanged() const
{
    struct stat opened
    {
    };
    struct stat named
    {
    };
    return m_settled && fstat(m_descriptor, &opened) == 0 && stat(m_path.constData(), &named) == 0
        && keyOf(opened) == m_key && keyOf(named) == m_key;
}
