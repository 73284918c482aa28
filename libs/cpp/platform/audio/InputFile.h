#pragma once

#include "CoreAudioTypes.h"
#include <atomic>
#include <memory>
#include <QByteArray>
#include <QUrl>

/// What tells one state of a file from another.
struct FileKey
{
    quint64 device = 0;
    quint64 inode = 0;
    qint64 size = 0;
    qint64 modifiedNs = 0;
    qint64 changedNs = 0;

    bool operator==(const FileKey &other) const;
};

/// A regular file opened for reading, as a stream of bytes whose reads can be called off.
///
/// Pipes, sockets and devices are refused before they are opened: opening one can block, and
/// reading one takes bytes from somebody else.
class InputFile
{
public:
    /// Null with *status set: -50 for an address that isn't a local file, else -43.
    static std::unique_ptr<InputFile> open(const QUrl &url, OSStatus *status);

    ~InputFile();

    /// The path in the file system's encoding.
    const QByteArray &path() const { return m_path; }

    /// The file's state when it was opened.
    const FileKey &key() const { return m_key; }

    qint64 size() const { return m_key.size; }

    /// Reads at most `bytes` bytes at the current place; 0 at the end, -1 on an error or after
    /// cancel().
    int read(void *data, int bytes) const;

    /// Moves to an absolute place; false if that isn't possible.
    bool seek(qint64 offset) const;

    /// Reads exactly these bytes without moving; false if they aren't all there.
    bool readAt(qint64 offset, void *data, int bytes) const;

    /// From any thread: all reads fail from here on.
    void cancel() { m_cancelled.store(true); }
    bool isCancelled() const { return m_cancelled.load(); }

    /// Whether the file and the name still are what was opened, and no change can have gone unseen:
    /// a file that was changed in the tick of the clock before its opening may change again without
    /// another time.
    bool isUnchanged() const;

private:
    InputFile() = default;
    Q_DISABLE_COPY(InputFile)

    QByteArray m_path;
    FileKey m_key;
    int m_descriptor = -1;
    bool m_settled = false;
    std::atomic<bool> m_cancelled {false};
};
