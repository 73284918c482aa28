// Whole files of all kinds that are read without a demultiplexer.

#include "AsfItems.h"
#include "FileKind.h"
#include "Literals.h"
#include "MemoryFile.h"
#include "TagLibItems.h"

#include <QFile>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const MemoryFile memory(data, size);
    const QString path = QString::fromLatin1(memory.path());
    QFile file(path);
    if (file.open(QIODevice::ReadOnly)) {
        const FileKind kind = fileKind(file, u"mp3"_qs);
        if (kind == FileKind::Asf) {
            asfMetadata(file);
        } else {
            tagLibMetadata(path, kind);
        }
    }
    return 0;
}
