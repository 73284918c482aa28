#pragma once

#include <cstdio>
#include <memory>

namespace QMMultiMedia {

/// Owns a stdio stream for the length of a scope.
class StdioFile
{
public:
    StdioFile(const char *path, const char *mode)
        : m_pFile(std::fopen(path, mode))
    {
    }

    bool isOpen() const { return m_pFile != nullptr; }
    /// The stream, or null; it stays this object's.
    std::FILE *get() const { return m_pFile.get(); }
    /// Closes it now; false if the system tells of an error (a full disk shows here at the latest).
    [[nodiscard]] bool close() { return m_pFile != nullptr && std::fclose(m_pFile.release()) == 0; }

private:
    struct Closer
    {
        void operator()(std::FILE *file) const { std::fclose(file); }
    };
    std::unique_ptr<std::FILE, Closer> m_pFile;
};

}
