#pragma once

#include "AudioFloatBuffer.h"
#include "AudioIO.h"
#include "Handle.h"
#include "RawBuffer.h"

namespace QMMultiMedia {

/// Base of everything that samples are written to.
class BaseOutput : public AudioIO
{
public:
    /// Writes n bytes as they are; false if not all were written.
    virtual bool write(char *bytes, int n) = 0;
    /// Writes n interleaved samples, all channels counted; gives 0.
    virtual int write(float *samples, int n) = 0;
    /// Writes the first n frames of a buffer, which must hold as many.
    virtual int write(const MTools::Handle<AudioFloatBuffer> &buffer, int n);
    /// Writes the first n bytes of a buffer, which must hold as many.
    virtual bool write(const MTools::Handle<RawBuffer> &buffer, int n);

    virtual bool setFragmentSize(int size);
    /// -1 until it is set.
    virtual int fragmentSize() const;
    /// Logs "Test".
    virtual bool test();

private:
    int m_nFragmentSize = -1;
};

}
