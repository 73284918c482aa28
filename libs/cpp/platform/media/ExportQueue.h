#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <QString>
#include <QStringList>
#include <thread>

/// The exports of the process, one after the other on a thread of their own.
///
/// What is in it when the process ends in the ordinary way (a return from main, exit(), the end of
/// the application object) is finished first.
class ExportQueue
{
public:
    static ExportQueue &instance();

    /// Runs the job on the queue's thread, where the output counts as in flight until it is over;
    /// at once, if no thread can be had.
    void add(const QString &output, std::function<void()> job);

    int count() const;
    /// Waits until the predicate holds or the time is over; the predicate gets the outputs in
    /// flight.
    bool waitUntil(const std::function<bool(const QStringList &)> &predicate, int limitMs) const;

private:
    ExportQueue() = default;
    ~ExportQueue();
    Q_DISABLE_COPY(ExportQueue)

    void startThread();
    void run();

    mutable std::mutex m_mutex;
    mutable std::condition_variable m_changed;
    std::deque<std::function<void()>> m_jobs;
    QStringList m_outputs; ///< of the jobs that wait and of the one that runs, in their order
    std::thread m_thread;
    bool m_isEnding = false;
};
