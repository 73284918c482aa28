#include "BatchRun.h"

#include "BatchThread.h"
#include "BatchWorker.h"
#include "Os.h"
#include <QMutexLocker>

BatchRun::BatchRun(QObject *parent)
    : QObject(parent)
    , m_thread(std::make_unique<BatchThread>())
{
    connect(worker(), &BatchWorker::notEnoughtFreeSpace, this, &BatchRun::slotPausedBySpace);
    // On the worker's own thread: nothing is converted between its beginning and the pause.
    connect(
        worker(), &BatchWorker::fileProgress, this, [this] { workerBegins(); },
        Qt::DirectConnection);
}

BatchRun::~BatchRun()
{
    if (!m_over) {
        worker()->stop();
        m_thread->quit();
        m_thread->wait();
        keepAwake(false);
    }
}

BatchThread *BatchRun::thread() const
{
    return m_thread.get();
}

BatchWorker *BatchRun::worker() const
{
    return m_thread->worker();
}

bool BatchRun::isOver() const
{
    return m_over;
}

void BatchRun::start()
{
    if (m_started) {
        return;
    }
    m_started = true;
    // Made last, so that it is told of the end after all others.
    connect(worker(), &BatchWorker::finished, this, &BatchRun::slotFinished);
    keepAwake(!m_pause);
    m_thread->start();
}

void BatchRun::pause(bool pause)
{
    if (m_over) {
        return;
    }
    {
        const QMutexLocker lock(&m_pauseMutex);
        m_pause = pause;
        worker()->pause(pause);
    }
    keepAwake(m_started && !pause);
}

void BatchRun::stop()
{
    if (!m_over) {
        worker()->stop();
        m_thread->quit();
    }
}

/// The worker clears its pause when it begins: one that was asked for before is set again.
void BatchRun::workerBegins()
{
    const QMutexLocker lock(&m_pauseMutex);
    if (!m_begun) {
        m_begun = true;
        worker()->pause(m_pause);
    }
}

void BatchRun::slotPausedBySpace()
{
    {
        const QMutexLocker lock(&m_pauseMutex);
        m_pause = true;
    }
    keepAwake(false);
}

void BatchRun::slotFinished()
{
    m_thread->quit();
    m_thread->wait();
    m_over = true;
    keepAwake(false);
    emit over();
}

void BatchRun::keepAwake(bool awake)
{
    if (m_awake != awake) {
        m_awake = awake;
        Os::setDisableSleepMode(awake);
    }
}
