#pragma once

#include <cstdint>
#include <string>

/// A new file that has no name until it is complete.
///
/// Where the file system has files without a name, the data vanishes with the process however that
/// ends. Elsewhere it has a short name beside its place, which is removed by the destructor and by
/// the signals that end a program.
class OutputFile
{
public:
    /// Where the data lies before it is placed.
    enum class Kind
    {
        BestPossible, ///< without a name if the file system can
        Named, ///< always with a name of its own
    };

    /// Throws ConvertError if the destination exists or can't be written.
    explicit OutputFile(const std::string &destination, Kind kind = Kind::BestPossible);
    ~OutputFile();
    OutputFile(const OutputFile &) = delete;
    OutputFile &operator=(const OutputFile &) = delete;

    /// Writes all the bytes at the position, or throws ConvertError.
    void write(std::int64_t position, const void *bytes, std::size_t count);

    /// Path by which the data can be opened for reading until it is placed.
    std::string temporaryPath() const;

    /// Flushes the data and gives it its name. Throws ConvertError if that fails, also if a file of
    /// this name has appeared: no file is ever replaced.
    void place();

private:
    void createNamed();
    void link();
    [[noreturn]] void fail() const;

    std::string m_destination;
    std::string m_folderPath;
    std::string m_name; ///< in the folder
    std::string m_temporaryName; ///< in the folder; empty for a file without a name
    int m_folder = -1;
    int m_descriptor = -1;
};
