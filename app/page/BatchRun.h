#pragma once

#include <memory>
#include <QObject>

class BatchThread;
class BatchWorker;

/// One run: its thread, its worker, and what has to hold between them and the window.
///
/// A stop or a pause counts from the first moment on, also before the thread has started, and does
/// nothing once the run is over. While the worker works, the machine is kept from sleeping.
/// User-interface thread only. The destructor stops the run and waits for its thread.
class BatchRun : public QObject
{
    Q_OBJECT

public:
    explicit BatchRun(QObject *parent);
    ~BatchRun() override;

    /// The run's own thread and worker; never null, and there until the run is deleted.
    BatchThread *thread() const;
    BatchWorker *worker() const;

    void pause(bool pause);
    void stop();

    /// Whether the worker has sent its last signal and the thread has ended.
    bool isOver() const;

public slots:
    /// Starts the thread. A second call does nothing.
    void start();

signals:
    /// The thread has ended. Comes once, also for a run that was stopped.
    void over();

private slots:
    /// Ends the thread; it comes after all that listens to the worker's finished() was told.
    void slotFinished();
    void slotPausedBySpace();

private:
    Q_DISABLE_COPY(BatchRun)
    void keepAwake(bool awake);

    std::unique_ptr<BatchThread> m_thread;
    bool m_pause = false;
    bool m_started = false;
    bool m_over = false;
    bool m_awake = false;
};
