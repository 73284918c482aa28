#pragma once

#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace MTools {

/// What a program does before all else, so that its own messages neither end nor damage its work.
///
/// A standard stream that the caller has closed becomes /dev/null: the next file to be opened would
/// take its number, and every message would be written into that file. A full quota and a closed
/// pipe become errors of writing like any other.
inline void prepareProcess()
{
    int descriptor = -1;
    do {
        descriptor = ::open("/dev/null", O_RDWR); // NOLINT(cppcoreguidelines-pro-type-vararg)
    } while (descriptor >= 0 && descriptor <= STDERR_FILENO);
    if (descriptor > STDERR_FILENO) {
        ::close(descriptor);
    }
    std::signal(SIGXFSZ, SIG_IGN);
    std::signal(SIGPIPE, SIG_IGN);
}

}
