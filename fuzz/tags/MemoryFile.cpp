#include "MemoryFile.h"

#include "Literals.h"

#include <cstdlib>
#include <sys/mman.h>
#include <unistd.h>

MemoryFile::MemoryFile()
    : m_descriptor(::memfd_create("fuzz", MFD_CLOEXEC))
{
    if (m_descriptor < 0) {
        std::abort();
    }
}

MemoryFile::~MemoryFile()
{
    ::close(m_descriptor);
}

void MemoryFile::fill(const std::uint8_t *data, std::size_t size) const
{
    if (::ftruncate(m_descriptor, 0) != 0 || ::lseek(m_descriptor, 0, SEEK_SET) != 0
        || ::pwrite(m_descriptor, data, size, 0) != static_cast<ssize_t>(size)) {
        std::abort();
    }
}

QString MemoryFile::path() const
{
    return u"/proc/self/fd/%1"_qs.arg(m_descriptor);
}
