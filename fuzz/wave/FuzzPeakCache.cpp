// The cache of peaks on disk, beside a sound of 600 frames: whatever it holds, the peaks fit.

#include "MemoryFile.h"
#include "WaveInput.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace {

/// A sound of one channel at 8 bits, and the folder of its cache.
struct Sound
{
    Sound()
    {
        QFile file(path);
        const QByteArray header = QByteArray::fromHex(
            "524946467c02000057415645666d74201000000001000100401f0000401f00000100080064617461"
            "58020000");
        if (!file.open(QIODevice::WriteOnly) || file.write(header + QByteArray(600, '\x40')) < 0) {
            __builtin_trap();
        }
        QDir().mkpath(dir.filePath(QStringLiteral("Envelopes")));
        QMMultiMedia::FileInput::setTempPath(dir.path());
    }

    QTemporaryDir dir;
    QString path = dir.filePath(QStringLiteral("sound.wav"));
};

}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const Sound sound;
    QMMultiMedia::WaveInput input;
    if (!input.load(QFile::encodeName(sound.path).constData(), false)) {
        __builtin_trap();
    }
    QFile cache(input.envelopeLocation());
    if (!cache.open(QIODevice::WriteOnly)
        || cache.write(reinterpret_cast<const char *>(data), static_cast<qint64>(size)) < 0) {
        __builtin_trap();
    }
    cache.close();
    input.createPeakVector();
    if (input.peakVector()->numPeakFrames() != 3 || input.peakVector()->peakChannels() != 1) {
        __builtin_trap();
    }
    return 0;
}
