#include "AVAssetExportSession.h"

#include "ExportQueue.h"
#include "FileKind.h"
#include "Literals.h"
#include "Mp4Rewriter.h"

#include <atomic>
#include <cerrno>
#include <fcntl.h>
#include <mutex>
#include <QFile>
#include <sys/stat.h>
#include <unistd.h>

struct AVAssetExportSession::State
{
    ~State() { discardOutput(); }

    bool reserve();
    void run();
    bool exportAll();
    bool flush();
    void discardOutput();
    void finish(bool isGood, const QString &reason);

    AVAsset asset;
    QString preset;
    QString fileType;
    QString output;
    QList<AVMetadataItem> metadata;
    std::function<void()> handler;
    std::atomic<AVAssetExportSessionStatus> status {AVAssetExportSessionStatusUnknown};
    int descriptor = -1; ///< of the output while it isn't complete

    mutable std::mutex mutex;
    QString error; ///< guarded by the mutex
};

void AVAssetExportSession::State::finish(bool isGood, const QString &reason)
{
    {
        const std::lock_guard lock(mutex);
        error = reason;
    }
    status = isGood ? AVAssetExportSessionStatusCompleted : AVAssetExportSessionStatusFailed;
}

/// Removes an output that isn't complete.
void AVAssetExportSession::State::discardOutput()
{
    if (descriptor >= 0) {
        ::close(descriptor);
        descriptor = -1;
        QFile::remove(output);
    }
}

bool AVAssetExportSession::State::reserve()
{
    if (descriptor < 0) {
        constexpr mode_t mode = 0666;
        descriptor = ::open(QFile::encodeName(output).constData(),
            O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode); // NOLINT(*-vararg)
        if (descriptor < 0) {
            finish(false, qt_error_string(errno));
        }
    }
    return descriptor >= 0;
}

bool AVAssetExportSession::State::flush()
{
    bool isGood = ::fsync(descriptor) == 0;
    isGood = ::close(descriptor) == 0 && isGood;
    const int reason = errno;
    descriptor = -1;
    if (!isGood) {
        QFile::remove(output);
        finish(false, qt_error_string(reason));
    }
    return isGood;
}

bool AVAssetExportSession::State::exportAll()
{
    const QString path = asset.URL().toLocalFile();
    QFile source(path);
    if (preset != AVAssetExportPresetPassthrough || fileType != AVFileTypeAppleM4A) {
        finish(false, u"only copying into an M4A file is known"_qs);
        return false;
    }
    if (!isReadableFile(path) || !source.open(QIODevice::ReadOnly)) {
        finish(false, u"it can't be opened"_qs);
        return false;
    }
    struct stat info
    {
    };
    if (::fstat(source.handle(), &info) == 0) {
        constexpr mode_t permissions = 0777;
        // A file system without permissions can't be told any: no loss.
        Q_UNUSED(::fchmod(descriptor, info.st_mode & permissions))
    }
    Mp4Rewriter rewriter(source, descriptor);
    if (!rewriter.write(metadata)) {
        finish(false, rewriter.error());
        return false;
    }
    return flush();
}

void AVAssetExportSession::State::run()
{
    status = AVAssetExportSessionStatusExporting;
    if (exportAll()) {
        finish(true, QString());
    } else {
        discardOutput();
    }
    if (handler) {
        handler();
    }
}

AVAssetExportSession::AVAssetExportSession(const AVAsset &asset, const QString &presetName)
    : m_state(std::make_shared<State>())
{
    m_state->asset = asset;
    m_state->preset = presetName;
}

void AVAssetExportSession::setOutputURL(const QUrl &url)
{
    m_state->discardOutput();
    m_state->output = url.toLocalFile();
}

void AVAssetExportSession::setOutputFileType(const QString &fileType)
{
    m_state->fileType = fileType;
}

void AVAssetExportSession::setMetadata(const QList<AVMetadataItem> &metadata)
{
    m_state->metadata = metadata;
}

bool AVAssetExportSession::reserveOutput()
{
    return m_state->reserve();
}

void AVAssetExportSession::exportAsynchronouslyWithCompletionHandler(
    const std::function<void()> &handler)
{
    const std::shared_ptr<State> state = m_state;
    state->handler = handler;
    const bool isReserved = state->reserve();
    if (isReserved) {
        state->status = AVAssetExportSessionStatusWaiting;
    }
    ExportQueue::instance().add(state->output, [state, isReserved] {
        if (isReserved) {
            state->run();
        } else if (state->handler) {
            state->handler();
        }
        // The handler may hold the session.
        state->handler = nullptr;
    });
}

AVAssetExportSessionStatus AVAssetExportSession::status() const
{
    return m_state->status;
}

QString AVAssetExportSession::error() const
{
    const std::lock_guard lock(m_state->mutex);
    return m_state->error;
}
