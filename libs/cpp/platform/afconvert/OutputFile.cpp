#include "OutputFile.h"

#include "ConvertError.h"
#include <algorithm>
#include <array>
#include <atomic>
#include <climits>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr std::array<int, 9> endingSignals {
    SIGHUP, SIGINT, SIGQUIT, SIGTERM, SIGXCPU, SIGALRM, SIGPIPE, SIGUSR1, SIGUSR2};

// What a signal has to remove: set before the handler is there.
int signalFolder = -1;
std::array<char, 64> signalName {};

void removeAndEnd(int number)
{
    ::unlinkat(signalFolder, signalName.data(), 0);
    struct sigaction action
    {
    };
    action.sa_handler = SIG_DFL;
    ::sigaction(number, &action, nullptr);
    ::raise(number);
}

void setSignals(void (*handler)(int))
{
    for (const int number : endingSignals) {
        struct sigaction action
        {
        };
        ::sigaction(number, nullptr, &action);
        if (action.sa_handler == SIG_IGN) {
            continue;
        }
        action.sa_handler = handler;
        action.sa_flags = 0;
        sigemptyset(&action.sa_mask);
        ::sigaction(number, &action, nullptr);
    }
}

/// Keeps those signals waiting as long as it lasts.
class SignalsHeld
{
public:
    SignalsHeld()
    {
        sigset_t held;
        sigemptyset(&held);
        for (const int number : endingSignals) {
            sigaddset(&held, number);
        }
        ::pthread_sigmask(SIG_BLOCK, &held, &m_before);
    }

    ~SignalsHeld() { ::pthread_sigmask(SIG_SETMASK, &m_before, nullptr); }
    SignalsHeld(const SignalsHeld &) = delete;
    SignalsHeld &operator=(const SignalsHeld &) = delete;

private:
    sigset_t m_before {};
};

std::string pathOfDescriptor(int descriptor)
{
    return "/proc/self/fd/" + std::to_string(descriptor);
}

}

OutputFile::OutputFile(const std::string &destination, Kind kind)
    : m_destination(destination)
{
    const std::size_t slash = destination.rfind('/');
    m_folderPath
        = slash == std::string::npos ? "." : destination.substr(0, std::max<std::size_t>(slash, 1));
    m_name = slash == std::string::npos ? destination : destination.substr(slash + 1);
    m_folder = ::open(m_folderPath.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC);
    if (m_folder < 0) {
        throw ConvertError::fromErrno(m_folderPath);
    }
    try {
        struct stat status
        {
        };
        if (m_name.empty()
            || ::fstatat(m_folder, m_name.c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0) {
            errno = EEXIST;
            fail();
        }
        if (errno != ENOENT) {
            fail();
        }
        if (kind == Kind::BestPossible && ::access("/proc/self/fd", X_OK) == 0) {
            m_descriptor = ::openat(m_folder, ".", O_TMPFILE | O_RDWR | O_CLOEXEC, 0666);
        }
        if (m_descriptor < 0) {
            createNamed();
        }
    } catch (...) {
        ::close(m_folder);
        throw;
    }
}

OutputFile::~OutputFile()
{
    ::close(m_descriptor);
    if (!m_temporaryName.empty()) {
        ::unlinkat(m_folder, m_temporaryName.c_str(), 0);
        setSignals(SIG_DFL);
    }
    ::close(m_folder);
}

void OutputFile::fail() const
{
    throw ConvertError::fromErrno(m_destination);
}

void OutputFile::createNamed()
{
    const SignalsHeld held; // from before the file is there until it would be removed
    // The name is short whatever the final one is: that may be as long as a name can be.
    for (unsigned attempt = 0; m_descriptor < 0 && attempt < 1000; ++attempt) {
        std::array<char, 64> name {};
        std::snprintf(
            name.data(), name.size(), ".afconvert-%ld-%u", static_cast<long>(::getpid()), attempt);
        signalFolder = m_folder;
        signalName = name;
        m_descriptor = ::openat(m_folder, name.data(), O_CREAT | O_EXCL | O_RDWR | O_CLOEXEC, 0666);
        if (m_descriptor >= 0) {
            m_temporaryName = name.data();
            setSignals(removeAndEnd);
        } else if (errno != EEXIST) {
            break;
        }
    }
    if (m_descriptor < 0) {
        fail();
    }
}

void OutputFile::write(std::int64_t position, const void *bytes, std::size_t count)
{
    const auto *from = static_cast<const char *>(bytes);
    while (count > 0) {
        const ssize_t done = ::pwrite(m_descriptor, from, count, position);
        if (done < 0 && errno == EINTR) {
            continue;
        }
        if (done <= 0) {
            fail();
        }
        from += done;
        position += done;
        count -= static_cast<std::size_t>(done);
    }
}

std::string OutputFile::temporaryPath() const
{
    return m_temporaryName.empty() ? pathOfDescriptor(m_descriptor)
                                   : m_folderPath + "/" + m_temporaryName;
}

void OutputFile::place()
{
    if (::fsync(m_descriptor) != 0) {
        fail();
    }
    link();
}

void OutputFile::link()
{
    if (m_temporaryName.empty()) {
        if (::linkat(AT_FDCWD, pathOfDescriptor(m_descriptor).c_str(), m_folder, m_name.c_str(),
                AT_SYMLINK_FOLLOW)
            != 0) {
            fail();
        }
        return;
    }
    const char *from = m_temporaryName.c_str();
    if (::linkat(m_folder, from, m_folder, m_name.c_str(), 0) == 0) {
        return; // the other name goes with the object
    }
    if (errno == EEXIST) {
        fail();
    }
    // A file system without links.
    if (::renameat2(m_folder, from, m_folder, m_name.c_str(), RENAME_NOREPLACE) != 0) {
        struct stat status
        {
        };
        if (errno != EINVAL && errno != ENOSYS) {
            fail();
        }
        if (::fstatat(m_folder, m_name.c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0) {
            errno = EEXIST;
            fail();
        }
        if (::renameat(m_folder, from, m_folder, m_name.c_str()) != 0) {
            fail();
        }
    }
}
