#include "AudioFloatBuffer.h"

#include <algorithm>
#include <cstddef>
#include <limits>

namespace QMMultiMedia {

namespace {

std::unique_ptr<float[]> allocated(int size)
{
    return std::unique_ptr<float[]>(size > 0 ? new float[static_cast<std::size_t>(size)] : nullptr);
}

}

AudioFloatBuffer::AudioFloatBuffer(int numFrames, int frameSize)
    : m_nFrameSize(std::max(frameSize, 0))
    , m_nNumFrames(std::max(numFrames, 0))
{
    const long long samples = static_cast<long long>(m_nFrameSize) * m_nNumFrames;
    if (samples > std::numeric_limits<int>::max()) {
        m_nNumFrames = 0;
        return;
    }
    m_nSize = static_cast<int>(samples);
    m_pData = allocated(m_nSize);
}

AudioFloatBuffer::AudioFloatBuffer(const AudioFloatBuffer &other)
    : AudioFloatBuffer(other.m_nNumFrames, other.m_nFrameSize)
{
    std::copy_n(other.data(), m_nSize, data());
}

AudioFloatBuffer &AudioFloatBuffer::operator=(const AudioFloatBuffer &other)
{
    if (this != &other) {
        if (m_nSize != other.m_nSize) {
            m_pData = allocated(other.m_nSize);
        }
        m_nFrameSize = other.m_nFrameSize;
        m_nNumFrames = other.m_nNumFrames;
        m_nSize = other.m_nSize;
        std::copy_n(other.data(), m_nSize, data());
    }
    return *this;
}

void AudioFloatBuffer::resize(int numFrames)
{
    if (numFrames == m_nNumFrames) {
        return;
    }
    AudioFloatBuffer resized(numFrames, m_nFrameSize);
    const int kept = std::min(m_nSize, resized.m_nSize);
    std::copy_n(data(), kept, resized.data());
    std::fill(resized.data() + kept, resized.data() + resized.m_nSize, 0.0f);
    m_nNumFrames = resized.m_nNumFrames;
    m_nSize = resized.m_nSize;
    m_pData = std::move(resized.m_pData);
}

void AudioFloatBuffer::copy(const MTools::Handle<AudioFloatBuffer> &source,
    unsigned int sourceFrame, unsigned int destFrame, unsigned int numFrames)
{
    const auto available = static_cast<unsigned int>(source->m_nNumFrames);
    const auto room = static_cast<unsigned int>(m_nNumFrames);
    if (sourceFrame >= available || destFrame >= room || source->m_nFrameSize > m_nFrameSize) {
        return;
    }
    const auto frames = static_cast<std::ptrdiff_t>(
        std::min({numFrames, available - sourceFrame, room - destFrame}));
    const std::ptrdiff_t sourceSize = source->m_nFrameSize;
    const std::ptrdiff_t destSize = m_nFrameSize;
    const float *from = source->data() + sourceFrame * sourceSize;
    float *to = data() + destFrame * destSize;
    if (sourceSize == destSize) {
        std::copy_n(from, frames * destSize, to);
        return;
    }
    for (std::ptrdiff_t i = 0; i < frames; ++i, from += sourceSize, to += destSize) {
        std::copy_n(from, sourceSize, to);
        std::fill(to + sourceSize, to + destSize, 0.0f);
    }
}

void AudioFloatBuffer::reverse()
{
    for (std::ptrdiff_t first = 0, last = m_nNumFrames - 1; first < last; ++first, --last) {
        float *front = data() + first * m_nFrameSize;
        std::swap_ranges(front, front + m_nFrameSize, data() + last * m_nFrameSize);
    }
}

void AudioFloatBuffer::move(int frames)
{
    const long long distance = frames < 0 ? -static_cast<long long>(frames) : frames;
    if (distance >= m_nNumFrames) {
        std::fill_n(data(), m_nSize, 0.0f);
        return;
    }
    const std::ptrdiff_t shift = static_cast<std::ptrdiff_t>(distance) * m_nFrameSize;
    float *begin = data();
    float *end = data() + m_nSize;
    if (frames > 0) {
        std::fill(std::copy(begin + shift, end, begin), end, 0.0f);
    } else if (frames < 0) {
        std::fill(begin, std::copy_backward(begin, end - shift, end), 0.0f);
    }
}

void AudioFloatBuffer::convertFloatTo32(
    const float *source, int *dest, int numFrames, int sourceFrameSize, int destFrameSize)
{
    const int common = std::min(sourceFrameSize, destFrameSize);
    for (int frame = 0; frame < numFrames; ++frame) {
        for (int i = 0; i < common; ++i) {
            // A value that isn't a number becomes the lower limit.
            const float scaled = source[i] * 32768.0f;
            const float high = scaled > -32767.0f ? scaled : -32767.0f;
            const int value = static_cast<int>(high > 32767.0f ? 32767.0f : high);
            dest[i] = static_cast<int>(static_cast<unsigned int>(value) << 16U);
        }
        std::fill(dest + common, dest + std::max(common, destFrameSize), 0);
        source += sourceFrameSize;
        dest += destFrameSize;
    }
}

MTools::Handle<AudioFloatBuffer> AudioFloatBuffer::convert32ToFloat(
    const int *source, int numFrames, int sourceFrameSize, int destFrameSize)
{
    MTools::Handle<AudioFloatBuffer> result(
        std::make_unique<AudioFloatBuffer>(numFrames, destFrameSize).release());
    if (result->size() == 0) {
        return result;
    }
    const int common = std::min(sourceFrameSize, destFrameSize);
    float *dest = result->data();
    for (int frame = 0; frame < numFrames; ++frame) {
        for (int i = 0; i < common; ++i) {
            dest[i] = static_cast<float>(source[i] >> 16) * (1.0f / 32768.0f);
        }
        std::fill(dest + common, dest + destFrameSize, 0.0f);
        source += sourceFrameSize;
        dest += destFrameSize;
    }
    return result;
}

}
