// AIFF files as a whole.

#include "AiffInput.h"
#include "MemoryFile.h"
#include "UseInput.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const MemoryFile file(data, size);
    QMMultiMedia::AiffInput input;
    if (input.load(file.path(), true)) {
        useInput(&input);
    }
    return 0;
}
