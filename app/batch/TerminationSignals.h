#pragma once

#include <array>
#include <QObject>

class QSocketNotifier;

/// Turns SIGINT, SIGTERM and SIGHUP into a signal of the event loop.
///
/// One object a process, made on the user-interface thread after the application object. The second
/// SIGINT or SIGTERM acts as the system has it: the process ends. A signal that is ignored from
/// outside stays ignored.
class TerminationSignals : public QObject
{
    Q_OBJECT

public:
    explicit TerminationSignals(QObject *parent);
    ~TerminationSignals() override;

signals:
    /// @param signalNumber SIGINT, SIGTERM or SIGHUP
    void requested(int signalNumber);

private slots:
    void slotReadable();

private:
    Q_DISABLE_COPY(TerminationSignals)

    QSocketNotifier *m_pnotifier = nullptr;
    std::array<bool, 3> m_installed {}; ///< for SIGINT, SIGTERM and SIGHUP
};
