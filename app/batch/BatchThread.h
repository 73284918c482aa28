#pragma once

#include <QThread>

class BatchWorker;

/// The thread of one run. Its default event loop carries one slot, BatchWorker::slotDoWork.
///
/// Owns its worker. Destroy it only after the thread has ended.
class BatchThread : public QThread
{
    Q_OBJECT

public:
    BatchThread();
    ~BatchThread() override;

    /// The job of this run; lives as long as the thread object. Never null.
    BatchWorker *worker() const { return m_pworker; }

    /// Starts the thread, and with it the job. Where the system has no thread left, the worker
    /// refuses its sources from the event loop of the caller's thread: it is finished either way.
    void begin();

private:
    Q_DISABLE_COPY(BatchThread)

    BatchWorker *m_pworker = nullptr;
};
