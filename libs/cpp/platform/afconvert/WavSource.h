#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// The samples of a RIFF WAVE file: integer PCM of 8, 16, 24 or 32 bits, or float of 32 or 64.
///
/// Chunks may come in any number before "data"; a chunk of odd size is read with or without the pad
/// byte that belongs behind it, since broadcast-wave writers leave it out. Reading is by position,
/// so that several threads can read from one object.
class WavSource
{
public:
    /// Opens the file and reads its header. Throws ConvertError, naming the file, if it isn't a
    /// regular file of this kind or holds less data than it states.
    explicit WavSource(const std::string &path);
    ~WavSource();
    WavSource(const WavSource &) = delete;
    WavSource &operator=(const WavSource &) = delete;

    int sampleRate() const { return m_sampleRate; } ///< Hz
    int channels() const { return m_channels; }
    std::int64_t frames() const
    {
        return m_frames;
    } ///< a last frame that isn't whole isn't counted

    /// Fills planes[channel][0..count) with the frames from first on, full scale being 1; what lies
    /// before the beginning or behind the end is zero. The scratch space belongs to the calling
    /// thread. Throws ConvertError if the file can't be read.
    void read(std::int64_t first, int count, float *const *planes,
        std::vector<std::uint8_t> &scratch) const;

private:
    enum class Coding
    {
        Unsigned8,
        Signed16,
        Signed24,
        Signed32,
        Float32,
        Float64
    };

    void readHeader();
    void readFormat(std::int64_t position, std::int64_t size);
    std::int64_t positionAfter(std::int64_t body, std::int64_t size) const;
    void locateData(std::int64_t body, std::uint32_t statedBytes);
    bool readAt(std::int64_t position, void *bytes, std::size_t count) const;
    [[noreturn]] void fail(const std::string &why) const;

    std::string m_path;
    int m_descriptor = -1;
    std::int64_t m_fileBytes = 0;
    Coding m_coding = Coding::Signed16;
    int m_sampleRate = 0;
    int m_channels = 0;
    int m_frameBytes = 0;
    std::int64_t m_dataPosition = 0;
    std::int64_t m_frames = 0;
};
