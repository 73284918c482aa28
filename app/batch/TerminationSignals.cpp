#include "TerminationSignals.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <QSocketNotifier>
#include <unistd.h>

namespace {

constexpr std::array<int, 3> numbers {SIGINT, SIGTERM, SIGHUP};

std::array<int, 2> ends {-1, -1};

void handle(int signalNumber)
{
    const int savedErrno = errno;
    const auto byte = static_cast<char>(signalNumber);
    if (::write(ends[1], &byte, 1) != 1) {
        ::_exit(128 + signalNumber);
    }
    errno = savedErrno;
}

}

TerminationSignals::TerminationSignals(QObject *parent)
    : QObject(parent)
{
    if (::pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
        return;
    }
    m_pnotifier = new QSocketNotifier(ends[0], QSocketNotifier::Read, this);
    connect(m_pnotifier, &QSocketNotifier::activated, this, &TerminationSignals::slotReadable);
    struct sigaction action
    {
    };
    action.sa_handler = handle;
    sigemptyset(&action.sa_mask);
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        // A terminal that goes may say so more than once; of the others the second one ends it all.
        const bool isOnce = numbers[i] != SIGHUP;
        action.sa_flags = SA_RESTART | (isOnce ? static_cast<int>(SA_RESETHAND) : 0);
        struct sigaction before
        {
        };
        // Who starts the program with a signal ignored (nohup) wants it to go on.
        if (sigaction(numbers[i], nullptr, &before) == 0 && before.sa_handler != SIG_IGN) {
            m_installed[i] = sigaction(numbers[i], &action, nullptr) == 0;
        }
    }
}

TerminationSignals::~TerminationSignals()
{
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        if (m_installed[i]) {
            std::signal(numbers[i], SIG_DFL);
        }
    }
    for (int &end : ends) {
        if (end >= 0) {
            ::close(end);
            end = -1;
        }
    }
}

void TerminationSignals::slotReadable()
{
    char number = 0;
    while (::read(ends[0], &number, 1) == 1) {
        emit requested(number);
    }
}
