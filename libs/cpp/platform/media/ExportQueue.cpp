#include "ExportQueue.h"

#include "PendingExports.h"

#include <chrono>
#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <system_error>

namespace {

/// One name for all ways to write a path.
QString absoluteName(const QString &path)
{
    return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

void finishAll()
{
    PendingExports::waitForAll();
}

}

ExportQueue &ExportQueue::instance()
{
    // The destructor runs at the end of the process; where there is an application object, its end
    // comes first and is the better moment.
    static ExportQueue queue;
    return queue;
}

ExportQueue::~ExportQueue()
{
    {
        const std::lock_guard lock(m_mutex);
        m_isEnding = true;
    }
    m_changed.notify_all();
    if (m_thread.joinable()) {
        m_thread.join();
    }
}

void ExportQueue::add(const QString &output, std::function<void()> job)
{
    std::unique_lock lock(m_mutex);
    if (!m_thread.joinable()) {
        startThread();
    }
    if (!m_thread.joinable()) { // there are no more threads: then the caller does it
        lock.unlock();
        job();
        return;
    }
    m_jobs.push_back(std::move(job));
    m_outputs.append(absoluteName(output));
    m_changed.notify_all();
}

void ExportQueue::startThread()
{
    try {
        m_thread = std::thread([this] { run(); });
        qAddPostRoutine(finishAll);
    } catch (const std::system_error &) { // the next export tries again
    }
}

void ExportQueue::run()
{
    std::unique_lock lock(m_mutex);
    while (true) {
        m_changed.wait(lock, [this] { return m_isEnding || !m_jobs.empty(); });
        if (m_jobs.empty()) {
            return;
        }
        std::function<void()> job = std::move(m_jobs.front());
        m_jobs.pop_front();
        lock.unlock();
        job();
        job = nullptr; // what it holds goes before it counts as over
        lock.lock();
        m_outputs.removeFirst();
        m_changed.notify_all();
    }
}

int ExportQueue::count() const
{
    const std::lock_guard lock(m_mutex);
    return m_outputs.size();
}

bool ExportQueue::waitUntil(
    const std::function<bool(const QStringList &)> &predicate, int limitMs) const
{
    std::unique_lock lock(m_mutex);
    return m_changed.wait_for(
        lock, std::chrono::milliseconds(limitMs), [&] { return predicate(m_outputs); });
}

namespace PendingExports {

int count()
{
    return ExportQueue::instance().count();
}

void waitForAll(const std::function<void(int, qint64)> &progress)
{
    constexpr int stepMs = 100;
    QElapsedTimer timer;
    timer.start();
    const ExportQueue &queue = ExportQueue::instance();
    while (!queue.waitUntil([](const QStringList &left) { return left.isEmpty(); }, stepMs)) {
        if (progress) {
            progress(queue.count(), timer.elapsed());
        }
    }
}

void waitForOutput(const QString &path)
{
    constexpr int stepMs = 1000;
    const QString name = absoluteName(path);
    const ExportQueue &queue = ExportQueue::instance();
    while (!queue.waitUntil(
        [&name](const QStringList &outputs) { return !outputs.contains(name); }, stepMs)) { }
}

}
