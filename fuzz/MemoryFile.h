#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <sys/mman.h>
#include <unistd.h>

/// A regular file in memory with the given bytes, for readers that want a path.
class MemoryFile
{
public:
    MemoryFile(const std::uint8_t *data, std::size_t size)
        : m_nDescriptor(memfd_create("fuzz", MFD_CLOEXEC))
        , m_strPath("/proc/self/fd/" + std::to_string(m_nDescriptor))
    {
        if (::write(m_nDescriptor, data, size) != static_cast<ssize_t>(size)) {
            __builtin_trap();
        }
    }
    ~MemoryFile() { ::close(m_nDescriptor); }
    MemoryFile(const MemoryFile &) = delete;
    MemoryFile &operator=(const MemoryFile &) = delete;

    const char *path() const { return m_strPath.c_str(); }

private:
    int m_nDescriptor;
    std::string m_strPath;
};
