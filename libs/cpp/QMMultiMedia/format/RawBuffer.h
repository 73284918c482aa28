#pragma once

#include "Buffer.h"

namespace QMMultiMedia {

/// Bytes as they lie in a file.
class RawBuffer : public Buffer<char>
{
public:
    using Buffer<char>::Buffer;
};

}
