// Broadcast metadata in a file of its own; what was read must be written and read again unchanged.

#include "EBUInfo.h"
#include "MemoryFile.h"

#include <algorithm>

namespace {

bool isAscii(const QString &text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 0x80; });
}

}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const MemoryFile file(data, size);
    QMMultiMedia::EBUInfo info;
    if (!info.load(file.path())) {
        return 0;
    }
    const MemoryFile copy(nullptr, 0);
    QMMultiMedia::EBUInfo again;
    if (!info.save(copy.path()) || !again.load(copy.path())
        || again.timeReference() != info.timeReference() || again.version() != info.version()) {
        __builtin_trap();
    }
    // Bytes that aren't text in the local encoding can't come back.
    if (isAscii(info.description()) && isAscii(info.codingHistory())
        && (again.codingHistory() != info.codingHistory()
            || again.description() != info.description())) {
        __builtin_trap();
    }
    return 0;
}
