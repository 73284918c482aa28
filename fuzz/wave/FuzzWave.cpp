// RIFF WAVE files as a whole.

#include "MemoryFile.h"
#include "UseInput.h"
#include "WaveInput.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const MemoryFile file(data, size);
    QMMultiMedia::WaveInput input;
    if (input.load(file.path(), true)) {
        useInput(&input);
    }
    return 0;
}
