// The atom reader and the rewriter of MPEG-4 files. A file that is written again must keep its
// media data and be read again.

#include "FieldTable.h"
#include "Literals.h"
#include "MemoryFile.h"
#include "Mp4Items.h"
#include "Mp4Rewriter.h"

#include <cstdlib>
#include <QBuffer>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const MemoryFile source;
    static const MemoryFile destination;
    QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<int>(size));
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    for (const MetadataFormat &format : mp4Metadata(buffer)) {
        encodedItems(format.items);
    }

    source.fill(data, size);
    destination.fill(data, 0);
    QFile file;
    file.open(source.descriptor(), QIODevice::ReadOnly);
    Mp4Rewriter rewriter(file, destination.descriptor());
    const auto title = FieldTable::item(FieldTable::Field::Title, u"T"_qs, MetadataType::text());
    if (rewriter.write({title})) {
        QFile written(destination.path());
        const bool isRead = written.open(QIODevice::ReadOnly) && [&] {
            const QList<MetadataFormat> formats = mp4Metadata(written);
            return !formats.isEmpty() && formats.first().items.first().stringValue() == u"T"_qs;
        }();
        if (!isRead) {
            std::abort();
        }
    }
    return 0;
}
