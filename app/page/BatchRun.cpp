#include "BatchRun.h"

#include "BatchThread.h"
#include "BatchWorker.h"
#include "Os.h"

BatchRun::BatchRun(QObject *parent)
    : QObject(parent)
    , m_thread(std::make_unique<BatchThread>())
{
    connect(worker(), &BatchWorker::notEnoughtFreeSpace, this, &BatchRun::slotPausedBySpace);
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
    m_thread->begin();
}

void BatchRun::pause(bool pause)
{
    if (m_over) {
        return;
    }
    m_pause = pause;
    worker()->pause(pause);
    keepAwake(m_started && !pause);
}

void BatchRun::stop()
{
    if (!m_over) {
        worker()->stop();
        m_thread->quit();
    }
}

void BatchRun::slotPausedBySpace()
{
    m_pause = true;
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
