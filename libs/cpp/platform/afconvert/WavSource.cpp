#include "WavSource.h"

#include "ConvertError.h"
#include <algorithm>
#include <array>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using Tag = std::array<char, 4>;

constexpr std::int64_t chunkHeaderBytes = 8;
// In front of the sound; gigabytes of zeros would otherwise be walked eight bytes at a time.
constexpr int mostChunks = 10000;
constexpr std::int64_t sizeFieldRange = std::int64_t {1} << 32;

std::uint32_t little16(const std::uint8_t *bytes)
{
    return bytes[0] | static_cast<std::uint32_t>(bytes[1]) << 8;
}

std::uint32_t little32(const std::uint8_t *bytes)
{
    return little16(bytes) | little16(bytes + 2) << 16;
}

bool isTag(const std::uint8_t *bytes, const char *tag)
{
    return std::memcmp(bytes, tag, 4) == 0;
}

bool looksLikeTag(const std::uint8_t *bytes)
{
    return std::all_of(bytes, bytes + 4, [](std::uint8_t c) { return c >= 0x20 && c < 0x7f; });
}

float fromUnsigned8(const std::uint8_t *bytes)
{
    return static_cast<float>(static_cast<int>(bytes[0]) - 128) * 0x1p-7F;
}

float fromSigned16(const std::uint8_t *bytes)
{
    return static_cast<float>(static_cast<std::int16_t>(little16(bytes))) * 0x1p-15F;
}

float fromSigned24(const std::uint8_t *bytes)
{
    const std::uint32_t high = little16(bytes) << 8 | static_cast<std::uint32_t>(bytes[2]) << 24;
    return static_cast<float>(static_cast<std::int32_t>(high)) * 0x1p-31F;
}

float fromSigned32(const std::uint8_t *bytes)
{
    return static_cast<float>(static_cast<std::int32_t>(little32(bytes))) * 0x1p-31F;
}

// Beyond full scale an encoder makes overflows of it; a number that isn't one makes it fail.
float limited(float value)
{
    return value >= -1.0F && value <= 1.0F ? value
        : value > 1.0F                     ? 1.0F
        : value < -1.0F                    ? -1.0F
                                           : 0.0F;
}

float fromFloat32(const std::uint8_t *bytes)
{
    const std::uint32_t bits = little32(bytes);
    float value = 0;
    std::memcpy(&value, &bits, sizeof value);
    return limited(value);
}

float fromFloat64(const std::uint8_t *bytes)
{
    const std::uint64_t bits
        = little32(bytes) | static_cast<std::uint64_t>(little32(bytes + 4)) << 32;
    double value = 0;
    std::memcpy(&value, &bits, sizeof value);
    return limited(static_cast<float>(std::clamp(value, -2.0, 2.0)));
}

template <float convert(const std::uint8_t *), int sampleBytes>
void spread(const std::uint8_t *bytes, int frames, int channels, float *const *planes, int offset)
{
    for (int channel = 0; channel < channels; ++channel) {
        const std::uint8_t *from = bytes + static_cast<std::ptrdiff_t>(channel) * sampleBytes;
        float *to = planes[channel] + offset;
        const int step = channels * sampleBytes;
        for (int i = 0; i < frames; ++i) {
            to[i] = convert(from + static_cast<std::ptrdiff_t>(i) * step);
        }
    }
}

}

WavSource::WavSource(const std::string &path)
    : m_path(path)
    // A named pipe must not block: it is refused below.
    , m_descriptor(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY))
{
    if (m_descriptor < 0) {
        throw ConvertError::fromErrno(path);
    }
    try {
        readHeader();
    } catch (...) {
        ::close(m_descriptor);
        throw;
    }
}

WavSource::~WavSource()
{
    ::close(m_descriptor);
}

void WavSource::fail(const std::string &why) const
{
    throw ConvertError(m_path + ": " + why);
}

bool WavSource::readAt(std::int64_t position, void *bytes, std::size_t count) const
{
    auto *to = static_cast<char *>(bytes);
    while (count > 0) {
        const ssize_t got = ::pread(m_descriptor, to, count, position);
        if (got < 0 && errno == EINTR) {
            continue;
        }
        if (got < 0) {
            throw ConvertError::fromErrno(m_path);
        }
        if (got == 0) {
            return false;
        }
        to += got;
        position += got;
        count -= static_cast<std::size_t>(got);
    }
    return true;
}

void WavSource::readHeader()
{
    struct stat status
    {
    };
    if (::fstat(m_descriptor, &status) != 0) {
        throw ConvertError::fromErrno(m_path);
    }
    if (!S_ISREG(status.st_mode)) {
        fail("not a regular file");
    }
    m_fileBytes = status.st_size;
    std::array<std::uint8_t, 12> header {};
    if (!readAt(0, header.data(), header.size()) || !isTag(header.data(), "RIFF")
        || !isTag(header.data() + 8, "WAVE")) {
        fail("not a WAV file");
    }
    // The RIFF size isn't trusted: writers leave it 0 or let it wrap.
    std::int64_t position = 12;
    std::array<std::uint8_t, chunkHeaderBytes> chunk {};
    for (int chunks = 0; chunks < mostChunks && position <= m_fileBytes - chunkHeaderBytes;
         ++chunks) {
        if (!readAt(position, chunk.data(), chunk.size())) {
            break;
        }
        const std::uint32_t size = little32(chunk.data() + 4);
        const std::int64_t body = position + chunkHeaderBytes;
        if (isTag(chunk.data(), "data")) {
            locateData(body, size);
            return;
        }
        if (isTag(chunk.data(), "fmt ")) {
            readFormat(body, size);
        }
        position = positionAfter(body, size);
    }
    fail("no sound data in it");
}

std::int64_t WavSource::positionAfter(std::int64_t body, std::int64_t size) const
{
    const std::int64_t end = body + size;
    if (size % 2 == 0) {
        return end;
    }
    // Pad byte or not: the byte that decides is either the pad or the first letter of a tag.
    std::array<std::uint8_t, 5> next {};
    if (end > m_fileBytes - 5 || !readAt(end, next.data(), next.size())) {
        return end;
    }
    const bool unpadded = looksLikeTag(next.data());
    const bool padded = looksLikeTag(next.data() + 1);
    const auto isKnown = [](const std::uint8_t *tag) {
        return isTag(tag, "fmt ") || isTag(tag, "data") || isTag(tag, "LIST");
    };
    if (unpadded && padded) {
        return isKnown(next.data() + 1) ? end + 1 : end;
    }
    return unpadded ? end : end + 1;
}

void WavSource::readFormat(std::int64_t position, std::int64_t size)
{
    constexpr std::uint32_t pcm = 1;
    constexpr std::uint32_t ieeeFloat = 3;
    constexpr std::uint32_t extensible = 0xfffe;
    std::array<std::uint8_t, 40> body {};
    if (size < 16 || !readAt(position, body.data(), std::min<std::size_t>(size, body.size()))) {
        fail("its format chunk is too short");
    }
    std::uint32_t tag = little16(body.data());
    const auto bits = little16(body.data() + 14);
    if (tag == extensible && size >= 40) {
        tag = little16(body.data() + 24);
    }
    m_channels = static_cast<int>(little16(body.data() + 2));
    m_sampleRate = static_cast<int>(std::min<std::uint32_t>(little32(body.data() + 4), INT32_MAX));
    if (tag == pcm && bits == 8) {
        m_coding = Coding::Unsigned8;
    } else if (tag == pcm && bits == 16) {
        m_coding = Coding::Signed16;
    } else if (tag == pcm && bits == 24) {
        m_coding = Coding::Signed24;
    } else if (tag == pcm && bits == 32) {
        m_coding = Coding::Signed32;
    } else if (tag == ieeeFloat && bits == 32) {
        m_coding = Coding::Float32;
    } else if (tag == ieeeFloat && bits == 64) {
        m_coding = Coding::Float64;
    } else {
        fail("its sample format (tag " + std::to_string(tag) + ", " + std::to_string(bits)
            + " bits) isn't supported");
    }
    m_frameBytes = m_channels * static_cast<int>(bits / 8);
    if (m_frameBytes == 0) {
        fail("it has no channels");
    }
}

void WavSource::locateData(std::int64_t body, std::uint32_t statedBytes)
{
    if (m_frameBytes == 0) {
        fail("no format before its sound data");
    }
    const std::int64_t available = m_fileBytes - body;
    std::int64_t bytes = statedBytes;
    if (available < bytes) {
        fail("it is cut off: " + std::to_string(bytes) + " bytes of sound are stated and "
            + std::to_string(available) + " are there");
    }
    // Data of 4 GiB and more makes the size field wrap. What a writer puts behind it is smaller.
    bytes += (available - bytes) / sizeFieldRange * sizeFieldRange;
    m_dataPosition = body;
    m_frames = bytes / m_frameBytes;
}

void WavSource::read(
    std::int64_t first, int count, float *const *planes, std::vector<std::uint8_t> &scratch) const
{
    const std::int64_t from = std::clamp<std::int64_t>(first, 0, m_frames);
    const std::int64_t to = std::clamp<std::int64_t>(first + count, from, m_frames);
    const int offset = static_cast<int>(std::clamp<std::int64_t>(from - first, 0, count));
    const int frames = static_cast<int>(to - from);
    for (int channel = 0; channel < m_channels; ++channel) {
        std::fill_n(planes[channel], offset, 0.0F);
        std::fill(planes[channel] + offset + frames, planes[channel] + count, 0.0F);
    }
    if (frames == 0) {
        return;
    }
    scratch.resize(static_cast<std::size_t>(frames) * m_frameBytes);
    if (!readAt(m_dataPosition + from * m_frameBytes, scratch.data(), scratch.size())) {
        fail("it became shorter during the conversion");
    }
    const std::uint8_t *bytes = scratch.data();
    switch (m_coding) {
    case Coding::Unsigned8:
        return spread<fromUnsigned8, 1>(bytes, frames, m_channels, planes, offset);
    case Coding::Signed16:
        return spread<fromSigned16, 2>(bytes, frames, m_channels, planes, offset);
    case Coding::Signed24:
        return spread<fromSigned24, 3>(bytes, frames, m_channels, planes, offset);
    case Coding::Signed32:
        return spread<fromSigned32, 4>(bytes, frames, m_channels, planes, offset);
    case Coding::Float32:
        return spread<fromFloat32, 4>(bytes, frames, m_channels, planes, offset);
    case Coding::Float64:
        return spread<fromFloat64, 8>(bytes, frames, m_channels, planes, offset);
    }
}
