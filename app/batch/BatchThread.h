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

private:
    Q_DISABLE_COPY(BatchThread)

    BatchWorker *m_pworker = nullptr;
};
