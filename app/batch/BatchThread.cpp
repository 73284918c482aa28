#include "BatchThread.h"

#include "BatchWorker.h"

BatchThread::BatchThread()
    : m_pworker(std::make_unique<BatchWorker>().release())
{
    m_pworker->moveToThread(this);
}

BatchThread::~BatchThread()
{
    quit();
    wait();
    // The thread is over, so its objects may be deleted from here.
    delete m_pworker;
}

void BatchThread::begin()
{
    connect(this, &QThread::started, m_pworker, &BatchWorker::slotDoWork);
    start();
    if (!isRunning()) {
        QMetaObject::invokeMethod(
            this, [this] { m_pworker->refuseAll(); }, Qt::QueuedConnection);
    }
}
