// Peak envelopes: the fields alone, and a file of its own as an input loads it.

#include "EBUEnvelope.h"
#include "MemoryFile.h"
#include "WaveInput.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const MemoryFile file(data, size);
    QMMultiMedia::EBUEnvelope envelope;
    QMMultiMedia::PeakVector peaks;
    envelope.load(file.path(), peaks);
    QMMultiMedia::WaveInput input;
    if (input.loadEnvelope(file.path())) {
        const MemoryFile copy(nullptr, 0);
        input.saveEnvelope(copy.path(), input.ebuEnvelope()->format());
    }
    return 0;
}
