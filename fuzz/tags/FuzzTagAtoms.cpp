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
    QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<int>(size));
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    for (const MetadataFormat &format : mp4Metadata(buffer)) {
        encodedItems(format.items);
    }

    const MemoryFile source(data, size);
    const MemoryFile destination(data, 0);
    QFile file(QString::fromLatin1(source.path()));
    QFile written(QString::fromLatin1(destination.path()));
    if (!file.open(QIODevice::ReadOnly) || !written.open(QIODevice::ReadWrite)) {
        std::abort();
    }
    Mp4Rewriter rewriter(file, written.handle());
    const auto title = FieldTable::item(FieldTable::Field::Title, u"T"_qs, MetadataType::text());
    if (rewriter.write({title})) {
        const QList<MetadataFormat> formats = mp4Metadata(written);
        const bool isRead
            = !formats.isEmpty() && formats.first().items.first().stringValue() == u"T"_qs;
        if (!isRead) {
            std::abort();
        }
    }
    return 0;
}
