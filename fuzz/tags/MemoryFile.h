#pragma once

#include <cstddef>
#include <cstdint>
#include <QString>

/// A file without a disk that is filled anew for every input.
class MemoryFile
{
public:
    MemoryFile();
    ~MemoryFile();
    Q_DISABLE_COPY(MemoryFile)

    /// Replaces the content, and goes back to its begin.
    void fill(const std::uint8_t *data, std::size_t size) const;
    /// A name under which it can be opened in this process.
    QString path() const;
    int descriptor() const { return m_descriptor; }

private:
    int m_descriptor;
};
