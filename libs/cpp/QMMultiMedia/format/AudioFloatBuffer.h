#pragma once

#include "Handle.h"
#include <memory>

namespace QMMultiMedia {

/// A block of interleaved float samples, nominally -1.0 to 1.0; owned, not cleared when it is made.
class AudioFloatBuffer
{
public:
    /// frameSize is the number of samples in a frame. With an argument below 1 (or more samples
    /// than an int counts) the buffer is empty: size 0 and no array.
    AudioFloatBuffer(int numFrames, int frameSize);
    AudioFloatBuffer(const AudioFloatBuffer &other);
    AudioFloatBuffer &operator=(const AudioFloatBuffer &other);
    virtual ~AudioFloatBuffer() = default;

    int frameSize() const { return m_nFrameSize; }
    int numFrames() const { return m_nNumFrames; }
    /// In samples: frameSize() times numFrames().
    int size() const { return m_nSize; }
    /// The array, or null if the buffer is empty; it stays the buffer's.
    float *data() { return m_pData.get(); }
    const float *data() const { return m_pData.get(); }

    /// Keeps the samples up to the smaller size and clears what is new; the same count does
    /// nothing.
    void resize(int numFrames);
    /// Copies frames of a buffer whose frames aren't larger; samples that it lacks are cleared.
    ///
    /// Frames outside of one of the buffers are left out.
    void copy(const MTools::Handle<AudioFloatBuffer> &source, unsigned int sourceFrame,
        unsigned int destFrame, unsigned int numFrames);
    /// Reverses the order of the frames.
    void reverse();
    /// Shifts by frames towards the start (positive) or the end (negative); what opens is cleared.
    void move(int frames);

    /// Writes samples of 16 bits in the top of 32; surplus channels are skipped or cleared.
    static void convertFloatTo32(
        const float *source, int *dest, int numFrames, int sourceFrameSize, int destFrameSize);
    /// The opposite way, into a new buffer.
    static MTools::Handle<AudioFloatBuffer> convert32ToFloat(
        const int *source, int numFrames, int sourceFrameSize, int destFrameSize);

private:
    int m_nFrameSize = 0;
    int m_nNumFrames = 0;
    int m_nSize = 0;
    std::unique_ptr<float[]> m_pData;
};

}
