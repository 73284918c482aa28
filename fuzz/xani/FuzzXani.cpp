// Animations; what was read must be written and read again with the same names.

#include "MemoryFile.h"
#include "Xani.h"

#include <QCoreApplication>
#include <QTemporaryDir>

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    static const QCoreApplication application(*argc, *argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const QTemporaryDir dir;
    const MemoryFile file(data, size);
    MGraphX::Xani animation;
    if (!animation.load(QString::fromLatin1(file.path()))) {
        return 0;
    }
    const QString copy = dir.filePath(QStringLiteral("copy.xani"));
    if (!animation.save(copy, -1)) {
        return 0; // a format that can be read and not written
    }
    MGraphX::Xani again;
    if (!again.load(copy) || again.count() != animation.count()) {
        __builtin_trap();
    }
    for (int i = 0; i < again.count(); ++i) {
        if (again.frame(i).name() != animation.frame(i).name()) {
            __builtin_trap();
        }
    }
    return 0;
}
